// The overview page of the home mode: today's and tomorrow's events and the tasks
// still to do, written as overview.htm into the data folder and shown in the
// browser pane.  A waiting page stands in the pane while it is written.
#include <algorithm>
#include <vector>

#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/cTasks.h"
#include "platform/Platform.h"
#include "screen/HtmlHeader.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

std::string monthFile(VbDate day) {
    return gStrDataPath + "D" + FormatDate(day, "yyyymm") + ".dat";
}

// The events of `day` as its month's file holds them now, usage and file access
// left out, in the order of their times.
std::vector<cDiaryRecord> eventsOfDay(VbDate day) {
    std::vector<cDiaryRecord> records;
    glbEvents.ReadDiaryFileToArray(monthFile(day), records, true);
    const std::string date = FormatDate(day, "yyyymmdd");
    std::vector<cDiaryRecord> events;
    for (const cDiaryRecord& record : records)
        if (record.DateEvent == date) events.push_back(record);
    std::stable_sort(events.begin(), events.end(),
                     [](const cDiaryRecord& a, const cDiaryRecord& b) { return a.TimeEvent < b.TimeEvent; });
    return events;
}

// The table of one day's events, or the line that says there are none.
std::string dayTable(VbDate day, const std::string& noneLine) {
    std::string block = "<TABLE border=0 width=100% valign=top bgcolor=white>\r\n";
    const std::vector<cDiaryRecord> events = eventsOfDay(day);
    for (const cDiaryRecord& event : events)
        block += "<TR><td  valign=top width=15%>" + event.TimeEvent + "</td><td valign=top width=70%>" + event.details +
                 "</td></tr>\r\n";
    if (events.empty()) block += noneLine + "\r\n";
    return block + "</table><BR><BR>\r\n";
}

std::string fileStamp(const std::string& file) {
    VbDate written = 0;
    if (!FileTimeStamp(file, written)) return "-";
    return FormatDate(written, "yyyymmddhhmmss") + "/" + std::to_string(FileLength(file));
}

// What the page shows depends on: the day, today's and tomorrow's months, the tasks.
std::string overviewSourcesNow() {
    const VbDate today = Today();
    return FormatDate(today, "yyyymmdd") + " " + fileStamp(monthFile(today)) + " " + fileStamp(monthFile(today + 1)) +
           " " + fileStamp(gStrDataPath + "D_tasks.dat");
}

}  // namespace

std::string clsDiaryScreen::GetOverViewTitle(bool withTime) const {
    std::string title = NETWORK_STRING == "CLIENT" ? glbMyUserName + "'s" : "";
    title += " Overview - ";
    title += " ";
    title += withTime ? FormatDate(Now(), "DDD, d-MMM-yyyy hh:mm:ss AMPM") : FormatDate(Now(), "DDD, dd-MMM-yyyy");
    return title;
}

void clsDiaryScreen::writeWaitingPage(const std::string& file) {
    WriteWholeFile(file,
                   GetHtmlHeader(GetOverViewTitle(false)) + "<BR>Preparing Overview...<BR>\r\n</BODY></HTML>\r\n");
}

void clsDiaryScreen::writeOverview(const std::string& file) {
    const VbDate today = Today();
    overviewSources_ = overviewSourcesNow();
    std::string page = GetHtmlHeader(GetOverViewTitle(true));
    page += "<BR>\r\n";
    page += "<table border=0 cellpadding=15% cellspacing=10% align=center width=95% valign=top><TR>\r\n";
    page += "<TD width=50% valign=top>\r\n";
    page += "<H3>Events for Today</h3>\r\n";
    page += dayTable(today, "<BR>no appointments today!<BR><BR>");
    page += "<H3>Tomorrow - " + FormatDate(today + 1, "DDD, d-mmm") + "</h3>\r\n";
    page += dayTable(today + 1, "<BR>no appointments tomorrow!<BR><BR>");
    page += "</td><TD width=50% valign=top>\r\n";
    page += "<H3>Tasks</H3>\r\n";
    if (glbTasks.Count() == 0) {
        page += "No tasks in the list\r\n";
    } else {
        const std::string taskBlock = gStrDataPath + "tmpTasks.html";
        glbTasks.ExportToFile(taskBlock, "", false, true, true);
        std::string tasks;
        ReadWholeFile(taskBlock, tasks);
        page += tasks;
    }
    page += "<BR>\r\n</td></tr></table></body></html>\r\n";
    WriteWholeFile(file, page);
}

void clsDiaryScreen::showOverview() {
    frmClientDiaryMain& form = *form_;
    const std::string waiting = gStrDataPath + "waiting.html";
    writeWaitingPage(waiting);
    form.web.Navigate2(waiting);
    platform().DoEvents();
    const std::string overview = gStrDataPath + "overview.htm";
    writeOverview(overview);
    form.web.Navigate2(overview);
}

void clsDiaryScreen::RefreshOverviewIfStale() {
    if (form_ == nullptr || mode_ != "HOME" || overviewSources_ == overviewSourcesNow()) return;
    const std::string overview = gStrDataPath + "overview.htm";
    writeOverview(overview);
    form_->web.Navigate2(overview);
}

}  // namespace orbidex
