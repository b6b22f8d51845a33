#include "pim/cTask.h"

#include <array>

#include "config/clsConfigDiary.h"
#include "controls/ListView.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "pim/PimSupport.h"
#include "pim/cTasks.h"
#include "screen/clsDiaryScreen.h"

namespace orbidex {

cTask gCurrentTask;

namespace {

using Field = std::string cTask::*;

// The fields of the task line, in line order.
constexpr std::array<Field, 15> kLineFields = {
    &cTask::ID,         &cTask::DateCreated, &cTask::Reference, &cTask::timeCreated,     &cTask::length,
    &cTask::ActionID,   &cTask::ContactID,   &cTask::UrlID,     &cTask::JobToDoID,       &cTask::RemindDate,
    &cTask::RemindTime, &cTask::Priority,    &cTask::status,    &cTask::ActionToPerform, &cTask::details};

struct ListCell {
    Field field;
    const char* heading;
};

// The cells a task offers to a full task list, in the order they are offered.
constexpr std::array<ListCell, 15> kListCells = {{{&cTask::ID, "ID"},
                                                  {&cTask::DateCreated, "Date"},
                                                  {&cTask::timeCreated, "time"},
                                                  {&cTask::Reference, "Reference"},
                                                  {&cTask::length, "length"},
                                                  {&cTask::ActionID, "ActionID"},
                                                  {&cTask::ContactID, "ContactID"},
                                                  {&cTask::UrlID, "UrlID"},
                                                  {&cTask::JobToDoID, "JobToDoID"},
                                                  {&cTask::RemindDate, "RemindDate"},
                                                  {&cTask::RemindTime, "RemindTime"},
                                                  {&cTask::Priority, "Priority"},
                                                  {&cTask::status, "status"},
                                                  {&cTask::ActionToPerform, "ActionToPerform"},
                                                  {&cTask::details, "Details"}}};

// The row's text and all its cells take the weight and the colour, so that the
// calendar's list of one column shows them too.
void markRow(ListItem& item, bool bold, OleColor colour, bool colourIt) {
    if (bold) item.Bold = true;
    if (colourIt) item.ForeColor = colour;
    for (long k = 1; k <= item.ListSubItems.Count(); ++k) {
        if (bold) item.ListSubItems(k).Bold = true;
        if (colourIt) item.ListSubItems(k).ForeColor = colour;
    }
}

}  // namespace

void cTask::SetDefault() {
    for (Field f : kLineFields) (this->*f).clear();
    DateCreated = FormatDate(Now(), "yyyymmdd");
    timeCreated = FormatDate(Now(), "hhmm");
    length = "60";
    title.clear();
    dateDue.clear();
    dateAssigned.clear();
    Category.clear();
    userAssignedTo.clear();
    UserCreated = MyUserName();
    UserOwner = UserCreated;
    showInOutput = true;
}

std::string cTask::FormatRecordAsCSV(std::string_view delimiter, std::string_view) const {
    if (Trim(ID).empty() && Trim(Reference).empty() && Trim(timeCreated).empty() && Trim(details).empty()) {
        glbLog.log("This record does not have an id - " + DateCreated + " " + timeCreated + " " + details, 3);
        return "";
    }
    std::string line;
    for (Field f : kLineFields) line.append(this->*f).append(delimiter);
    return line;
}

bool cTask::isTaskActive() const {
    const std::string state = UCase(Trim(status));
    return state != "COMPLETED" && state != "DONE" && state != "OVER" && state != "FINISHED";
}

bool cTask::ReadTextLine(const std::string& line, std::string_view delimiter) {
    if (line.empty()) {
        SetDefault();
        return true;
    }
    size_t start = 0;
    for (Field f : kLineFields) {
        const size_t found = line.find(delimiter, start);
        if (found == std::string::npos) return false;
        (this->*f).assign(line, start, found - start);
        start = found + delimiter.size();
        if (f == &cTask::length && Val(length) < 0) length = "30";
    }
    return true;
}

bool cTask::CreateTaskFromTextLine(const std::string& line, std::string_view delimiter) {
    if (ReadTextLine(line, delimiter)) return true;
    ReportDataError("cTask.CreateTaskFromTextLine", kInvalidArgument);
    return false;
}

void cTask::AddToListView(ListView& listControl, const std::string& listLine) const {
    if (Trim(details).empty()) return;
    ListItem& item = listControl.ListItems.Add();
    item.Tag = listLine;
    if (glbScreen.Mode() == "CALENDAR") {
        item.Text = details;
    } else {
        item.Text = RemindDate.empty() ? "" : RemindDate + " ";
        for (const ListCell& cell : kListCells) cTasks::AddHeadingIfVisible(item, this->*cell.field, cell.heading);
    }
    if (isTaskActive()) {
        const bool overdue = !RemindDate.empty() && RemindDate < FormatDate(Today(), "yyyymmdd");
        markRow(item, Left(Priority, 1) == "1", vbRed, overdue);
    } else {
        markRow(item, false, vbGrayText, true);
    }
}

}  // namespace orbidex
