// The task list on screen, in search results and as an HTML page.
#include <array>

#include "config/clsConfigDiary.h"
#include "controls/ListView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/cTasks.h"
#include "screen/HtmlHeader.h"
#include "screen/clsDiaryScreen.h"
#include "screen/clsTimeSlots.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

const char* const kHidden = "<hide>";

struct HeadingColumn {
    const char* heading;  ///< in capitals
    std::string cDiaryRecord::*caption;
};

// Each heading a task offers, with the field of gTaskHeadings that holds its caption.
constexpr std::array<HeadingColumn, 15> kHeadingColumns = {{{"ID", &cDiaryRecord::ID},
                                                            {"DATE", &cDiaryRecord::DateEvent},
                                                            {"TIME", &cDiaryRecord::TimeEvent},
                                                            {"DETAILS", &cDiaryRecord::details},
                                                            {"LENGTH", &cDiaryRecord::length},
                                                            {"REMINDDATE", &cDiaryRecord::DateRemind},
                                                            {"REMINDTIME", &cDiaryRecord::TimeRemind},
                                                            {"ACTIONID", &cDiaryRecord::Action},
                                                            {"ACTIONTOPERFORM", &cDiaryRecord::ActionToPerform},
                                                            {"REFERENCE", &cDiaryRecord::Reference},
                                                            {"CONTACTID", &cDiaryRecord::ContactID},
                                                            {"URLID", &cDiaryRecord::URL},
                                                            {"JOBTODOID", &cDiaryRecord::JobToDoID},
                                                            {"PRIORITY", &cDiaryRecord::Priority},
                                                            {"STATUS", &cDiaryRecord::status}}};

std::string today() {
    return FormatDate(Today(), "yyyymmdd");
}

}  // namespace

long cTasks::CountActive() const {
    cTask task;
    task.SetDefault();
    long count = 0;
    for (long i = 0; i <= Count(); ++i) {
        const std::string& line = table_.Item(i);
        if (Trim(line).empty()) continue;
        task.ReadTextLine(line, kFieldDelimiter);
        if (task.showInOutput && task.isTaskActive() && !Trim(task.details).empty()) ++count;
    }
    return count;
}

void cTasks::InitTaskList(ListView& listControl) {
    if (glbScreen.Mode() != "CALENDAR") {
        clsTimeSlots slots;  // the column routine of the event list does not read it
        glbEvents.InitListViewForTimedSchedule(slots, gTaskHeadings, listControl);
        listControl.ColumnHeaders(1).Width = 0;
        // The statuses of the task editor's list read whole.
        for (long i = 2; i <= listControl.ColumnHeaders.Count(); ++i)
            if (listControl.ColumnHeaders(i).Text() == gTaskHeadings.status) listControl.ColumnHeaders(i).Width = 2880;
    } else {
        // The calendar's font, as the settings file has it for the calendars.
        const std::string font = glbConfig.GetValue("calendarView", "fontName");
        if (!font.empty()) listControl.FontName = font;
        const double size = Val(glbConfig.GetValue("calendarView", "fontSize"));
        if (size > 0) listControl.FontSize = size;
        listControl.ColumnHeaders.Clear();
        listControl.ColumnHeaders.Add(" Task Details ");
    }
    listControl.Visible = true;
}

void cTasks::AddHeadingIfVisible(ListItem& listItem, const std::string& value, const std::string& heading) {
    const std::string upper = UCase(heading);
    for (const HeadingColumn& column : kHeadingColumns) {
        if (upper != column.heading) continue;
        if (gTaskHeadings.*column.caption != kHidden) listItem.ListSubItems.Add(value);
        return;
    }
}

void cTasks::DisplayInListView(ListView& listControl, bool onlyActive) {
    listControl.ListItems.Clear();
    InitTaskList(listControl);
    cTask task;
    task.SetDefault();
    for (long i = 0; i <= Count(); ++i) {
        const std::string& line = table_.Item(i);
        if (Trim(line).empty()) continue;
        task.CreateTaskFromTextLine(line, kFieldDelimiter);
        if (!task.showInOutput || (onlyActive && !task.isTaskActive())) continue;
        task.AddToListView(listControl, line);
    }
    if (glbScreen.Mode() == "TASK")
        MainForm().status.Panels(1).Text =
            CStr(listControl.ListItems.Count()) + " of " + CStr(Count()) + " Tasks shown";
}

std::optional<cTask> cTasks::GetFromList(const ListItem* listItem) {
    if (listItem == nullptr) return std::nullopt;
    return FindByID(Left(listItem->Tag(), 13));
}

void cTasks::Search(ListView& lvResults, const std::string& keyword, bool caseSensitive) {
    cTask task;
    task.SetDefault();
    for (long i = 0; i <= Count(); ++i) {
        const std::string& line = table_.Item(i);
        if (Trim(line).empty()) continue;
        task.CreateTaskFromTextLine(line, kFieldDelimiter);
        if ((caseSensitive ? InStr(line, keyword) : InStrText(1, line, keyword)) > 0)
            AddToSearchResults(lvResults, task);
    }
}

void cTasks::AddToSearchResults(ListView& listControl, const cTask& task) {
    ListItem& item = listControl.ListItems.Add("- Task -");
    item.Tag = task.FormatRecordAsCSV(kFieldDelimiter, "");
    for (const std::string& text :
         {task.DateCreated, task.timeCreated, std::string("Task"), task.details, std::string("task")})
        item.ListSubItems.Add(text);
    ListSubItem& kind = item.ListSubItems(3);
    const long cells = item.ListSubItems.Count();
    if (!task.isTaskActive()) {
        for (long k = 1; k <= cells; ++k) item.ListSubItems(k).ForeColor = vbGrayText;
        kind.Text = kind.Text() + " - Done";
        return;
    }
    if (Left(task.Priority, 1) == "1") {
        item.ListSubItems(4).Bold = true;
        kind.Text = kind.Text() + " - Urgent";
    }
    if (!task.RemindDate.empty() && task.RemindDate < today()) {
        // One suffix for each cell coloured, as the results have always shown it.
        for (long k = 1; k <= cells; ++k) {
            item.ListSubItems(k).ForeColor = vbRed;
            kind.Text = kind.Text() + " - Overdue";
        }
    }
}

void cTasks::ExportToFile(std::string fileName, const std::string&, bool withHeader, bool onlyActive, bool brief) {
    if (fileName.empty()) fileName = platform().ProgramFolder() + "\\task.htm";
    std::string page;
    if (withHeader) page += GetHtmlHeader(onlyActive ? "List of unfinished tasks" : "List of ALL tasks");
    page += "<TABLE width=100% border=0 valign=top align=left>\r\n";
    cTask task;
    task.SetDefault();
    for (long i = 0; i <= Count(); ++i) {
        task.CreateTaskFromTextLine(table_.Item(i), kFieldDelimiter);
        if ((onlyActive && !task.isTaskActive()) || task.details.empty()) continue;
        if (brief)
            page += "<TR><TD width=100% valign=top><LI>" + task.details + "</td></tr>\r\n";
        else
            page += "<TR><TD width=15% valign=top>" + task.DateCreated + "\r\n</td><TD width=85% valign=top>" +
                    task.details + "\r\n</td></tr>\r\n";
    }
    if (withHeader) page += "</table>\r\n</BODY></HTML>\r\n";
    WriteWholeFile(fileName, page);
}

}  // namespace orbidex
