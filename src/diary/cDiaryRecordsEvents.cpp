// What the user does to one event: add, edit, reschedule, move and delete it, tell
// other users of a changed meeting, and the word lists of the event editor.
#include <algorithm>
#include <cstdint>

#include "config/clsConfigDiary.h"
#include "controls/ComboBox.h"
#include "controls/LoadFileToListBox.h"
#include "dialogs/frmEditEvent.h"
#include "dialogs/frmRescheduleEvent.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "screen/clsDiaryScreen.h"
#include "screen/clsTimeSlots.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

const char* const kNotifyTitle = "Mult-User Event - Notify Others?";

bool isMeetingReference(const cDiaryRecord& event) {
    return Left(event.Reference, 7) == "Meeting";
}

// Whole minutes of one time slot, the length a new event starts with.
std::string slotMinutes() {
    const auto& slots = glbConfig.timeSlots;
    const int perHour = slots && slots->numSlotsPerHour >= 1 ? slots->numSlotsPerHour : 1;
    return CStr(60 / perHour);
}

bool answeredYes(const std::string& question) {
    return platform().MsgBox(question, vbYesNo, kNotifyTitle) == vbYes;
}

}  // namespace

void cDiaryRecords::DiaryEventAdd(VbDate date, const std::string& time, const std::string& details) {
    // A file changed behind the program's back is read again first, so that the
    // save below does not write over what was added to it.
    CheckDataFileAndReloadIfNeccesary();
    if (gIntTotalEvents >= INT16_MAX) {
        glbLog.log("DiaryEventAdd - the month holds as many events as it can", 0);
        return;
    }
    // The new event goes behind the old top slot, which stays empty until the reload.
    ++gIntTotalEvents;
    gintcur = gIntTotalEvents;
    SetUpperBound(gIntTotalEvents + 1);
    cDiaryRecord& event = CreateRecordAt(gintcur);

    // A date that was never set (before 1900) means today, also for the file asked for.
    const bool unset = FormatDate(date, "yyyymmdd") < "19000000";
    // Counted from today: the sequence numbers the events entered today in that file.
    const std::string file = GetDiaryFileNameForDate(unset ? Today() : date);
    event.ID = getUniqueID(file, Today(), kFieldDelimiter);
    event.DateEvent = FormatDate(unset ? Today() : date, "yyyymmdd");
    event.TimeEvent = time;
    event.ContactID = GetPCUserName();
    event.length = slotMinutes();
    if (event.TimeEvent.empty()) event.TimeEvent = FormatDate(Now(), "hhmm");
    if (date > Now()) {
        event.DateRemind = FormatDate(date, "yyyymmdd");
        event.TimeRemind = time;
    }
    glbConfig.dialogCancelled = false;
    glbConfig.dialogEditing = false;

    if (!details.empty()) {
        event.details = details;
    } else {
        gCurrentEvent.AssignRecord(event);
        frmEditEvent dialog;
        dialog.Show(true);
        event.AssignRecord(gCurrentEvent);
    }

    if (glbConfig.dialogCancelled) {
        --gIntTotalEvents;
        SetUpperBound(gIntTotalEvents);
        gintcur = gIntTotalEvents;
    } else {
        platform().SetBusyCursor(true);
        SaveDiaryArray(kFieldDelimiter, nullptr);
    }
    platform().SetBusyCursor(false);
}

void cDiaryRecords::DiaryEventEdit() {
    if (gintcur >= 0) CheckDataFileAndReloadIfNeccesary();
    // The reload finds the chosen event again; one that is gone is no event to edit.
    if (!HasSelectedEvent()) {
        platform().MsgBox("I dont know which event you selected", vbOKOnly, "");
        return;
    }
    glbConfig.dialogEditing = true;
    glbConfig.dialogCancelled = false;
    const double oldMonth = Val(Mid(events(gintcur).DateEvent, 5, 2));
    cDiaryRecord oldRecord;
    oldRecord.AssignRecord(events(gintcur));
    gCurrentEvent.AssignRecord(events(gintcur));

    {
        frmEditEvent dialog;
        dialog.Show(true);
    }
    events(gintcur).AssignRecord(gCurrentEvent);
    if (glbConfig.dialogCancelled) {
        platform().SetBusyCursor(false);
        return;
    }

    if (glbConfig.dataChanged) {
        if (Val(Mid(gCurrentEvent.DateEvent, 5, 2)) == oldMonth) {
            SaveDiaryArray(kFieldDelimiter, nullptr);
            glbConfig.dataChanged = false;
        } else {
            // Another month: the event is appended to its new month, then taken out
            // of the old one, which is loaded again for that.  When the append
            // fails, the old event stays as it is on disk.
            cDiaryRecord moved;
            moved.AssignRecord(gCurrentEvent);
            const bool added = AddDiaryRecord(moved, true);
            InitDiary(&MainForm(), "");
            LoadDiaryData(DateFromYYYYMMDD(oldRecord.DateEvent));
            gintcur = AsCurrentIndex(SelectDiaryRecordFromIDInMonth(oldRecord.ID, Left(oldRecord.DateEvent, 6)));
            if (!added) {
                glbConfig.dataChanged = false;
                platform().SetBusyCursor(false);
                return;
            }
            DiaryEventDelete(true);
            glbLog.log("moving an event to a different month in this version", 0);
        }
    }

    if (oldRecord.isDiaryRecordMeeting() &&
        answeredYes("This is a meeting - do you update changes on the other users diaries?"))
        SendEventChanges(oldRecord, gCurrentEvent);
    platform().SetBusyCursor(false);
}

void cDiaryRecords::DiaryEventReschedule() {
    if (gintcur < 0) return;
    CheckDataFileAndReloadIfNeccesary();
    if (!HasSelectedEvent()) return;
    glbConfig.dialogEditing = true;
    glbConfig.dialogCancelled = false;
    gCurrentEvent.AssignRecord(events(gintcur));
    cDiaryRecord oldRecord;
    oldRecord.AssignRecord(gCurrentEvent);

    {
        frmRescheduleEvent dialog;
        dialog.Show(true);
    }
    if (!glbConfig.dialogCancelled) {
        // Showing another day in the main window leaves no event selected: the
        // event is then moved through the files.
        if (gintcur < 0) {
            if (!DiaryEventMove(oldRecord, gCurrentEvent)) {
                platform().SetBusyCursor(false);
                return;
            }
        } else {
            events(gintcur).AssignRecord(gCurrentEvent);
            SaveDiaryArray(kFieldDelimiter, nullptr);
            glbConfig.dataChanged = false;
        }
        if (isMeetingReference(gCurrentEvent)) SendEventChanges(oldRecord, gCurrentEvent);
    }
    platform().SetBusyCursor(false);
}

bool cDiaryRecords::DiaryEventMove(const cDiaryRecord& oldRecord, cDiaryRecord newRecord) {
    // The event is taken from its old place only once it stands in its new one, so
    // that a move whose append fails leaves it where it was.
    const VbDate oldDate = DateFromYYYYMMDD(oldRecord.DateEvent);
    const VbDate newDate = DateFromYYYYMMDD(newRecord.DateEvent);
    gStrDiaryDataFile = GetDiaryFileNameForDate(newDate);
    const bool moved = AddDiaryRecord(newRecord);
    LoadDiaryData(oldDate);
    if (!moved) return false;

    DeleteDiaryEventFromArray(SelectDiaryRecordFromIDInMonth(oldRecord.ID, Left(oldRecord.DateEvent, 6)));
    SaveDiaryArray(kFieldDelimiter, nullptr);
    glbConfig.dataChanged = false;
    LoadDiaryData(newDate);
    return true;
}

void cDiaryRecords::DiaryEventDelete(bool noQuestion) {
    if (!HasSelectedEvent()) {
        platform().MsgBox("Select a record to be deleted first", vbOKOnly, "");
        return;
    }
    cDiaryRecord deleted;
    deleted.AssignRecord(events(gintcur));
    cDiaryRecord cancelled;
    cancelled.AssignRecord(events(gintcur));

    if (!noQuestion) {
        const std::string question = "Deleting event on " + deleted.DateEvent + " at " + deleted.TimeEvent +
                                     " details :" + deleted.details + "\r\n\r\nDo you want to delete this event";
        if (platform().MsgBox(question, vbYesNo, "Deleting Event from Diary") != vbYes) return;
    }
    DeleteDiaryEventFromArray(gintcur);

    // An empty date in the new form of a meeting cancels it for the others.
    if (isMeetingReference(deleted) &&
        answeredYes("This is a meeting - do you cancel this event on the other users diaries?")) {
        cancelled.DateEvent.clear();
        cancelled.TimeEvent.clear();
        SendEventChanges(deleted, cancelled);
    }
}

void cDiaryRecords::SendEventChanges(const cDiaryRecord& oldRecord, const cDiaryRecord& newRecord) {
    const std::string header = "; " + FormatDate(Now(), "yyyymmdd hh:mm:ss") + " by PC User " + GetPCUserName();
    AppendToFile(gStrDataPath + "_CHANGE_REQUEST.TXT",
                 header + "\r\n" + "OLD " + oldRecord.FormatDiaryRecordAsCSV(kFieldDelimiter, "") + "\r\n" + "NEW " +
                     newRecord.FormatDiaryRecordAsCSV(kFieldDelimiter, "") + "\r\n");
}

namespace {

/// The office's word list, then the user's own in its place when there is one.
template <typename List>
void loadWordList(List& control, const std::string& common, const std::string& own) {
    LoadFileToListBox(control, gStrDataPath + common);
    LoadFileToListBox(control, gStrDataPath + own);
}

}  // namespace

void cDiaryRecords::DisplayLocations(ComboBox& control) {
    loadWordList(control, "common_locations.txt", "locations.txt");
}

void cDiaryRecords::DisplayReferences(ComboBox& control) {
    loadWordList(control, "common_references.txt", "references.txt");
}

void cDiaryRecords::DisplayLocations(ListView& control) {
    loadWordList(control, "common_locations.txt", "locations.txt");
}

void cDiaryRecords::DisplayReferences(ListView& control) {
    loadWordList(control, "common_references.txt", "references.txt");
}

}  // namespace orbidex
