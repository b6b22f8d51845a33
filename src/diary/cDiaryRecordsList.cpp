// The event list: the events of the view as rows of a list control, with the fields
// the user chose as its columns.
#include <algorithm>

#include "config/clsConfigDiary.h"
#include "controls/ListView.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/VbDate.h"

namespace orbidex {

namespace {

/// The caption that leaves a field out of the list.
const char* const kHidden = "<hide>";

struct ListColumn {
    std::string cDiaryRecord::*field;
    long width;  ///< twips; 0 for the list's usual width
};

/// The fields that can have a column, in the order of the columns.
const ListColumn kListColumns[] = {
    {&cDiaryRecord::DateEvent, 1240},
    {&cDiaryRecord::TimeEvent, 640},
    {&cDiaryRecord::Reference, 1040},
    {&cDiaryRecord::length, 540},
    {&cDiaryRecord::Action, 0},
    {&cDiaryRecord::ContactID, 0},
    {&cDiaryRecord::URL, 0},
    {&cDiaryRecord::JobToDoID, 0},
    {&cDiaryRecord::DateRemind, 0},
    {&cDiaryRecord::TimeRemind, 0},
    {&cDiaryRecord::Priority, 0},
    {&cDiaryRecord::status, 0},
    {&cDiaryRecord::ActionToPerform, 0},
    {&cDiaryRecord::ID, 0},
    {&cDiaryRecord::details, 3540},
};

/// The usage recorder's and the file launcher's events.
bool isUsage(const cDiaryRecord& event) {
    return event.IsDiaryEventPCUsage() || event.IsDiaryEventAfileAccess();
}

/// The icon of a row by the kind of its event.
std::string iconOf(const cDiaryRecord& event) {
    if (event.IsDiaryEventPCUsage()) return "tessaline";
    if (event.IsDiaryEventAfileAccess()) return "autobackup";
    if (event.isDiaryRecordMeeting()) return "staff";
    if (event.IsThisEventIsReminder() != 0) return "calendar";
    return "general";
}

}  // namespace

void cDiaryRecords::InitListViewForTimedSchedule(clsTimeSlots&, const cDiaryRecord& header, ListView& list) {
    list.Visible = false;
    list.ColumnHeaders.Clear();
    list.ColumnHeaders.Add(" ", 450);  // the icon's column
    for (const ListColumn& column : kListColumns) {
        const std::string& caption = header.*column.field;
        if (caption == kHidden) continue;
        if (column.width > 0)
            list.ColumnHeaders.Add(caption, column.width);
        else
            list.ColumnHeaders.Add(caption);
    }
}

void cDiaryRecords::DisplayScheduleInListView(ListView& list, VbDate date, int days, const cDiaryRecord& header) {
    list.ListItems.Clear();
    const std::string first = FormatDate(date, "yyyymmdd");
    const std::string last = FormatDate(date + std::max(days, 1) - 1, "yyyymmdd");
    for (long i = 0; i <= totEvents(); ++i) {
        if (IsEmptySlot(i)) continue;
        const cDiaryRecord& event = *slots_[static_cast<size_t>(i)];
        if (event.DateEvent < first || event.DateEvent > last) continue;

        const std::string icon = iconOf(event);
        ListItem& item = list.ListItems.Add("", event.ID, icon, icon);
        long columns = 0;
        for (const ListColumn& column : kListColumns)
            if (header.*column.field != kHidden) item.SetSubItems(++columns, event.*column.field);

        if (isUsage(event)) {
            SetListViewColumnsColour(item, columns, SettingColour(glbConfig.PCFile_ForeColor));
            ++usageEvents_;
            AddMinutes(usageTime_, event.length);
        } else {
            ++eventsShown_;
            AddMinutes(totTime_, event.length);
        }
    }
}

void cDiaryRecords::SetListViewColumnsColour(ListItem& item, long columns, OleColor colour) {
    item.ForeColor = colour;
    for (long k = 1; k <= columns; ++k) item.ListSubItems(k).ForeColor = colour;
}

ListItem& cDiaryRecords::AddDiaryRecordToSearchResult_USER_DEFINED(const cDiaryRecord& record, ListView& list,
                                                                   const std::string& user) {
    ListItem& item = list.ListItems.Add(user, "", "calendar", "calendar");
    item.Tag = record.ID;
    long columns = 0;
    for (const ListColumn& column : kListColumns)
        if (gListViewHeadings.*column.field != kHidden) item.SetSubItems(++columns, record.*column.field);
    AddMinutes(totTime_, record.length);
    ++totEventsFound_;
    return item;
}

}  // namespace orbidex
