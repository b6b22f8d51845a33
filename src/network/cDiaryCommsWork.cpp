// What the work of other users does to the local diary: a meeting booked by another
// user goes into its month, a changed one moves, a cancelled one goes; each is
// answered to its partner, and a changed month is handed back to the server.
#include <optional>
#include <string>

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/ServerWork.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

// A day of the diary's years written as yyyymmdd: a broken date would put the event
// into some month where no view ever shows it.
bool isDiaryDay(const std::string& yyyymmdd) {
    const VbDate date = DateFromYYYYMMDD(yyyymmdd);
    return IsDiaryDate(date) && FormatDate(date, "yyyymmdd") == yyyymmdd;
}

void notAdded(const std::string& what, const cDiaryRecord& record) {
    glbLog.log(what + " for a day that does not exist is not taken: " + record.DateEvent + " " + record.details, 0);
}

cDiaryRecord recordOf(const std::string& line) {
    cDiaryRecord record;
    record.GetDiaryRecordFromText(line);
    return record;
}

// Appends the event to the file of its month under a new identifier (the sender's
// means nothing here: the append gives it) and gives that file, or nothing when the
// append did not write it (`what` names the event in the log then).  The append's
// test for an event that is there already runs against that month.
std::optional<std::string> addToItsMonth(const std::string& what, cDiaryRecord& record) {
    const std::string file = glbEvents.GetDiaryFileNameForDate(DateFromYYYYMMDD(record.DateEvent));
    gStrDiaryDataFile = file;
    if (glbEvents.AddDiaryRecord(record, false, true)) return file;
    glbLog.log(what + " could not be written to " + file + ", it is not answered: " + record.DateEvent + " " +
                   record.TimeEvent + " " + record.details,
               0);
    return std::nullopt;
}

void meetingCancelled(const ChangeRecord& change, const cDiaryRecord& old) {
    const std::string text = change.user + " has cancelled the meeting :\r\n\r\n" + old.details +
                             "\r\n\r\nwhich was on " + old.DateEvent + " at " + old.TimeEvent;
    glbDiaryComms.CreateMessageLogEntry(change.user, "EV", text);
    if (!change.user.empty()) {
        glbComms.TransmitText(change.user, "CONFIRM: meeting cancelled");
        if (glbConfig.ShowPopupMessages != 0) ShowPopupMessage(text, "Meeting Cancellation");
    } else {
        glbLog.log("DEBUG - EventChangedByOtherUser - tryin to send msgbox to yourself for deletion", 0);
    }
    glbDiaryComms.DeleteEventFromAnywhere(old);
}

void putBack(const cDiaryRecord& old, const std::string& takenOut) {
    if (takenOut.empty()) return;
    const std::string file = glbEvents.GetDiaryFileNameForDate(DateFromYYYYMMDD(old.DateEvent));
    const std::string what = old.DateEvent + " " + old.TimeEvent + " " + old.details;
    if (AppendToFile(file, takenOut))
        glbLog.log("The meeting as it was is put back into " + file + ": " + what, 0);
    else
        glbLog.log("The meeting as it was could not be put back into " + file + ": " + what, 0);
}

// A change to a day that does not exist leaves the meeting where it is.
void meetingChanged(const ChangeRecord& change, const cDiaryRecord& old, cDiaryRecord changed) {
    if (!isDiaryDay(changed.DateEvent)) return notAdded("A changed meeting", changed);
    const std::string text = change.user + " has changed the meeting :\r\n\r\n" + old.details + "\r\n\r\nfrom " +
                             old.DateEvent + " at " + old.TimeEvent + " to " + changed.DateEvent + " at " +
                             changed.TimeEvent + "\r\n\r\n";
    ShowPopupMessage(text, "Change of Meeting");
    // Taken out first: an append first would be taken out again when the date, the
    // time and the text stay.  When the append fails the old meeting goes back.
    const std::string takenOut = glbDiaryComms.DeleteEventFromAnywhere(old);
    const std::optional<std::string> file = addToItsMonth("A changed meeting", changed);
    if (!file) {
        putBack(old, takenOut);
        return;
    }
    glbComms.SaveDiaryFileToServer(*file, true);
    glbComms.TransmitText(change.user, "CONFIRM: meeting details changed");
}

}  // namespace

void cDiaryComms::AddEventFromRemoteUser(const std::string& line) {
    cDiaryRecord record = recordOf(line);
    if (!isDiaryDay(record.DateEvent)) return notAdded("A meeting", record);
    const std::optional<std::string> file = addToItsMonth("A meeting", record);
    if (!file) return;
    // The booker is the partner of the answer.
    CreateMessageLogEntry(record.ContactID, "EV", "added event to your database :" + record.details);
    glbMessageWaiting = true;
    glbComms.TransmitText(record.ContactID, "RECEIVED: Meeting request for " + record.DateEvent + " at " +
                                                record.TimeEvent + " : " + record.details);
    glbComms.SaveDiaryFileToServer(*file, true);
}

bool cDiaryComms::EventChangedByAnotherUser(const std::string& name) {
    const std::string file = networkFile(name);
    std::string bytes;
    const bool read = ReadWholeFile(file, bytes);
    for (const ChangeRecord& change : ReadChangeRecords(bytes)) {
        const cDiaryRecord old = recordOf(change.oldEvent);
        const cDiaryRecord changed = recordOf(change.newEvent);
        if (changed.DateEvent.empty() && changed.TimeEvent.empty())
            meetingCancelled(change, old);
        else
            meetingChanged(change, old, changed);
    }
    DeleteServerFile(file);
    return read;
}

// The file is rewritten whole in one step: a failure on the way leaves it as it was.
std::string cDiaryComms::DeleteEventFromAnywhere(const cDiaryRecord& record) {
    const std::string file = glbEvents.GetDiaryFileNameForDate(DateFromYYYYMMDD(record.DateEvent));
    const std::string backup = file + ".BAK";
    DeleteFile(backup);
    CopyFile(file, backup);
    std::string bytes;
    FileError error;
    if (ReadWholeFile(file, bytes)) {
        const std::string deletedLog = platform().ProgramFolder() + "\\data\\deleted_events.txt";
        std::string kept;
        std::string takenOut;
        for (const std::string& line : SplitLines(bytes)) {
            const cDiaryRecord event = recordOf(line);
            if (event.DateEvent == record.DateEvent && event.TimeEvent == record.TimeEvent &&
                event.details == record.details) {
                glbLog.log("Deleting this record :" + line, 0);
                glbLog.pimlog(deletedLog, line, 0, 0);
                takenOut += line + "\r\n";
            } else {
                kept += line + "\r\n";
            }
        }
        if (WriteWholeFile(file + "._TEMP", kept, &error) && WriteWholeFile(file, kept, &error)) return takenOut;
    } else {
        error.description = "the file cannot be read";
    }
    glbLog.log("Error in errorTessalineDeleteEvent - " + error.description + " fname=" + file +
                   " diary.dataPath=" + gStrDataPath,
               0);
    return {};
}

}  // namespace orbidex
