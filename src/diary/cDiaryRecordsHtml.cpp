// The month's page of events: the export writes one for every month, and the browser
// pane of past days shows the day's events on it.
#include <algorithm>

#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "screen/HtmlHeader.h"

namespace orbidex {

namespace {

// The event's text as the page shows it: the characters that HTML reads as markup are
// written as what they stand for, so the text reads as it was typed.
std::string asPageText(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        if (c == '&')
            out += "&amp;";
        else if (c == '<')
            out += "&lt;";
        else if (c == '>')
            out += "&gt;";
        else
            out += c;
    }
    return out;
}

// True when the page was written after the monthly file last changed.
bool pageIsUpToDate(const std::string& page, const std::string& monthFile) {
    VbDate pageTime = 0, monthTime = 0;
    return FileTimeStamp(page, pageTime) && FileTimeStamp(monthFile, monthTime) && pageTime > monthTime;
}

std::string pageUserName() {
    return glbMyUserName.empty() ? GetPCUserName() : glbMyUserName;
}

}  // namespace

void cDiaryRecords::ConvertEventsToHTML(const std::vector<cDiaryRecord>& records, long count,
                                        const std::string& htmlFile, VbDate date, const std::string& includeFile,
                                        bool always) {
    if (!always && pageIsUpToDate(htmlFile, gStrDiaryDataFile)) return;

    std::string page = GetHtmlHeader("Brindlewick Software's Diary - " + pageUserName());
    page += "<H1>Diary Events for " + FormatDate(date, "MMM-yyyy") + "</H1>\r\n";
    if (!includeFile.empty()) page += ReadFileToString(includeFile, false);
    page += "<table bgcolor=white border=0 width=95%><TR>\r\n";

    // Sorted by day, time and text; usage, file and private events are left out.
    std::vector<std::string> keys;
    const long last = std::min<long>(count, static_cast<long>(records.size()));
    for (long i = 0; i < last; ++i) {
        const cDiaryRecord& event = records[static_cast<size_t>(i)];
        if (event.IsDiaryEventPCUsage() || event.IsDiaryEventAfileAccess() || event.IsDiaryEventPrivate()) continue;
        keys.push_back(event.DateEvent + event.TimeEvent + event.details);
    }
    SortTexts(keys);

    std::string shownDay;
    for (const std::string& key : keys) {
        if (key.empty()) continue;
        if (Left(key, 8) != shownDay) {
            shownDay = Left(key, 8);
            page += "<tr><td colspan=2><a name=day" + Mid(key, 7, 2) + "></a><BR><H2>" +
                    FormatDate(DateFromYYYYMMDD(shownDay), "DDDD, d-MMM-yyyy") + "</h2></td></tr>\r\n";
        }
        cDiaryRecord row;
        row.TimeEvent = Mid(key, 9, 4);
        row.details = asPageText(Mid(key, 13));
        page += "<tr>" + row.FormatDiaryRecordAsHTML() + "\r\n";
    }
    // The breaks let an anchor near the end scroll to the top of the window.
    page += "</tr></table>\r\n";
    for (int i = 0; i < 24; ++i) page += "<BR>";
    page += "\r\n</body></html>\r\n";
    WriteWholeFile(htmlFile, page);
}

}  // namespace orbidex
