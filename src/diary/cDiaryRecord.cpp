#include "diary/cDiaryRecord.h"

#include <array>

#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"

namespace orbidex {

cDiaryRecord gCurrentEvent;
cDiaryRecord glbSearchEvent;
cDiaryRecord glbOldEvent;

namespace {

using Field = std::string cDiaryRecord::*;

// The fields of the event line, in line order.
constexpr std::array<Field, 15> kLineFields = {
    &cDiaryRecord::ID,        &cDiaryRecord::DateEvent,       &cDiaryRecord::Reference,  &cDiaryRecord::TimeEvent,
    &cDiaryRecord::length,    &cDiaryRecord::Action,          &cDiaryRecord::ContactID,  &cDiaryRecord::URL,
    &cDiaryRecord::JobToDoID, &cDiaryRecord::DateRemind,      &cDiaryRecord::TimeRemind, &cDiaryRecord::Priority,
    &cDiaryRecord::status,    &cDiaryRecord::ActionToPerform, &cDiaryRecord::details};

// Every text field that AssignRecord copies or blanks.
constexpr std::array<Field, 20> kTextFields = {&cDiaryRecord::ID,
                                               &cDiaryRecord::DateEvent,
                                               &cDiaryRecord::TimeEvent,
                                               &cDiaryRecord::DateCreated,
                                               &cDiaryRecord::timeCreated,
                                               &cDiaryRecord::UserCreatedBy,
                                               &cDiaryRecord::UserOwnedBy,
                                               &cDiaryRecord::details,
                                               &cDiaryRecord::group,
                                               &cDiaryRecord::length,
                                               &cDiaryRecord::Reference,
                                               &cDiaryRecord::Action,
                                               &cDiaryRecord::ActionToPerform,
                                               &cDiaryRecord::ContactID,
                                               &cDiaryRecord::URL,
                                               &cDiaryRecord::JobToDoID,
                                               &cDiaryRecord::Priority,
                                               &cDiaryRecord::status,
                                               &cDiaryRecord::DateRemind,
                                               &cDiaryRecord::TimeRemind};

// A length is negative when the text starts with a minus sign and a digit that is not 0
// somewhere in the digits that follow.
bool startsNegative(const std::string& text) {
    if (text.size() < 2 || text[0] != '-') return false;
    for (size_t i = 1; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
        if (text[i] != '0') return true;
    return false;
}

bool allBlank(const std::string& a, const std::string& b, const std::string& c, const std::string& d) {
    return Trim(a).empty() && Trim(b).empty() && Trim(c).empty() && Trim(d).empty();
}

std::string twoDigits(int value) {
    return FormatNumber(value, "00");
}

// Comma lines: at most 99 columns are looked at, in at most 200 slots.
constexpr size_t kCommaColumns = 99;
constexpr long kCommaSlots = 200;

// The fields of a comma line from index 1; index 0 and the last index are empty.
std::vector<std::string> splitCommaLine(const std::string& line) {
    std::string marked(kFieldDelimiter);
    bool quoted = false;
    for (char c : line) {
        if (c == '"')
            quoted = !quoted;
        else if (c == ',' && !quoted)
            marked += kFieldDelimiter;
        else
            marked += c;
    }
    marked += kFieldDelimiter;
    std::vector<std::string> parts;
    SplitToArray(parts, std::string(kFieldDelimiter), kCommaSlots, marked);
    return parts;
}

std::string standardHeading(const std::string& heading) {
    if (heading == "DATE" || heading == "EVENTDATE" || heading == "DATEEVENT") return "DATE";
    if (heading == "TIME" || heading == "EVENTTIME" || heading == "TIMEEVENT") return "TIME";
    if (heading == "LOCATION") return "URL";
    if (heading == "DETAILS" || heading == "TITLE" || heading == "NOTES") return "DETAILS";
    return "";
}

}  // namespace

void cDiaryRecord::init(const std::string& newDetails, const std::string& date, const std::string& time,
                        const std::string& reference, Currency amount, const std::string& extra) {
    details = newDetails;
    DateEvent = date.empty() ? FormatDate(Now(), "yyyymmdd") : date;
    TimeEvent = time.empty() ? FormatDate(Now(), "hhmm") : time;
    Reference = reference;
    if (amount.tenThousandths > 0)
        AmountDebit = amount;
    else
        AmountCredit = amount;
    extraText_ = extra;
    length = "1";
}

std::string cDiaryRecord::Validation() const {
    std::string reasons;
    if (details.empty()) reasons += "- no details have been entered\r\n";
    if (DateEvent.empty()) reasons += "- no date has been entered\r\n";
    if (TimeEvent.empty()) reasons += "- no time has been entered\r\n";
    return reasons;
}

void cDiaryRecord::AssignRecord(const cDiaryRecord* source) {
    if (source == nullptr) {
        for (Field f : kTextFields) (this->*f).clear();
        IsPrivate(true);
        return;
    }
    if (source == this) return;
    for (Field f : kTextFields) this->*f = source->*f;
    AmountDebit = source->AmountDebit;
    AmountCredit = source->AmountCredit;
    IsPrivate(source->IsPrivate());
    IsSavedOnClient(source->IsSavedOnClient());
    IsSavedOnServer(source->IsSavedOnServer());
    IsConfirmedSave(source->IsConfirmedSave());
}

void cDiaryRecord::GetDiaryRecordFromText(const std::string& line) {
    // When no further delimiter is found the field keeps the text of the field before
    // it and the search starts again at the front of the line: a short line repeats
    // its first fields.  Lines written by older versions look like that.
    std::string text;
    long start = 1;
    for (Field f : kLineFields) {
        const long found = InStr(start, line, kFieldDelimiter);
        if (found > 0) text = Mid(line, start, found - start);
        start = found + 1;
        this->*f = text;
        if (f == &cDiaryRecord::length) {
            if (startsNegative(length)) length = "30";
            if (length.size() > 3) {
                glbLog.log("Event on " + DateEvent + " at " + TimeEvent +
                               " has an invalid length - changing to 30 minute default\r\n" + details,
                           0);
                length = "30";
            }
        }
    }
}

std::string cDiaryRecord::joinFields(std::string_view delimiter, bool withAmounts) const {
    std::string line;
    for (Field f : kLineFields) {
        if (withAmounts && f == &cDiaryRecord::ActionToPerform) {
            line.append(AmountDebit.Text()).append(delimiter);
            line.append(AmountCredit.Text()).append(delimiter);
        }
        line.append(this->*f).append(delimiter);
    }
    return line;
}

std::string cDiaryRecord::FormatDiaryRecordAsCSV(std::string_view delimiter, std::string_view terminator) const {
    if (allBlank(ID, Reference, TimeEvent, details)) {
        glbLog.log("This record does not have an id - " + DateEvent + " " + TimeEvent + " " + details, 3);
        return "";
    }
    return joinFields(delimiter, false).append(terminator);
}

std::string cDiaryRecord::FormatDiaryRecordForNetwork(const cDiaryRecord& record, std::string_view delimiter,
                                                      std::string_view terminator,
                                                      const std::string& securityLevel) const {
    // The empty test looks at the reminder time where the line writer looks at the
    // event's time; servers have always seen it so.
    if (allBlank(record.ID, record.Reference, record.TimeRemind, record.details)) {
        glbLog.log(
            "This record does not have an id - " + record.DateRemind + " " + record.TimeRemind + " " + record.details,
            3);
        return "";
    }
    // The usage test is made on this record, the others on `record`.
    if ((IsDiaryEventPCUsage() || IsDiaryEventAfileAccess()) && securityLevel != "4") return "";
    if (record.status == "Private") return "";
    const std::string level = Trim(securityLevel);
    if (level == "0" || level.empty()) return "";
    if (level != "1" && level != "2" && level != "3" && level != "4") return std::string(terminator);

    const bool shareWhere = level != "1";
    const bool shareWhat = level == "3" || level == "4";
    std::string line;
    for (Field f : kLineFields) {
        const bool always = f == &cDiaryRecord::ID || f == &cDiaryRecord::DateEvent || f == &cDiaryRecord::TimeEvent ||
                            f == &cDiaryRecord::length;
        const bool what = f == &cDiaryRecord::JobToDoID || f == &cDiaryRecord::Priority || f == &cDiaryRecord::status ||
                          f == &cDiaryRecord::details;
        const bool shown = always || (what ? shareWhat : shareWhere);
        if (shown) line.append(record.*f);
        line.append(delimiter);
    }
    return line.append(terminator);
}

std::string cDiaryRecord::FormatAsText(std::string_view delimiter, bool shortForm) const {
    if (allBlank(ID, Reference, TimeEvent, details)) return "";
    return joinFields(delimiter, !shortForm);
}

std::string cDiaryRecord::FormatDiaryRecordAsHTML() const {
    return "<TD valign=top width=40>" + TimeEvent + "</td>" + "<td valign=top >" + details + "</td>" + "</tr>";
}

void cDiaryRecord::ParseCSVHeader(const std::string& line, std::vector<std::string>& names) const {
    const std::vector<std::string> parts = splitCommaLine(line);
    names.assign(kCommaColumns + 1, "");
    for (size_t i = 1; i <= kCommaColumns && i < parts.size(); ++i) {
        const std::string heading = UCase(Trim(parts[i]));
        if (heading.empty()) continue;
        names[i] = standardHeading(heading);
        if (names[i].empty())
            platform().MsgBox("Unknown Field in ParseCSVHeader :\r\n" + heading +
                                  "\r\nThis import will continue, but will ignore this field - you can edit this file "
                                  "with a text editor and retry the import",
                              vbOKOnly, "Dont know how to Parse this Field Heading");
    }
}

void cDiaryRecord::ParseCSVRecord(const std::string& line, const std::vector<std::string>& names) {
    const std::vector<std::string> parts = splitCommaLine(line);
    init("", "", "", "", Currency(), "");
    ID = "D" + FormatDate(Now(), "yyyymmdd") + "0000";  // replaced when the event is added
    for (size_t i = 0; i <= kCommaColumns && i < names.size() && i < parts.size(); ++i) {
        if (names[i] == "DATE") DateEvent = parts[i];
        if (names[i] == "DETAILS") details = parts[i];
        if (names[i] == "URL") URL = parts[i];
    }
}

int cDiaryRecord::IsThisEventIsReminder() const {
    // Despite the name, the answer is about the event's own day and time.
    if (Val(Trim(DateEvent)) == 0 || Val(Trim(TimeEvent)) == 0) return 0;
    const VbDate now = Now();
    const std::string today = CStr(Year(now)) + twoDigits(Month(now)) + twoDigits(Day(now));
    const std::string timeNow = twoDigits(Hour(now)) + twoDigits(Minute(now));
    if (DateEvent != today) return today < DateEvent ? 2 : 3;
    return timeNow <= TimeEvent ? 1 : 3;
}

bool cDiaryRecord::IsDiaryEventAfileAccess() const {
    return Action == "PCFile" && (Reference == "Autobackup" || Reference == "Edit");
}

bool cDiaryRecord::IsDiaryEventPCUsage() const {
    return Reference == "PCFile" && (Action == "Usage" || Action == "PCUsage");
}

bool cDiaryRecord::IsDiaryEventPrivate() const {
    return status == "Private";
}

bool cDiaryRecord::isDiaryRecordMeeting() const {
    return Left(Action, 7) == "Meeting" || Left(Reference, 7) == "Meeting";
}

void cDiaryRecord::Delete() {
    platform().MsgBox("TODO - delete the old event from the diary", vbOKOnly, "");
}

}  // namespace orbidex
