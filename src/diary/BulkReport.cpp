#include "diary/BulkReport.h"

#include "foundation/FileHelpers.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex {

namespace {

constexpr size_t kReportLines = 10;

}  // namespace

void BulkReport::KeptWithOddDate(const cDiaryRecord& event, const std::string& file) {
    note(oddDates_, event, "in " + GetFileNameOnly(file));
}

std::string BulkReport::Sections() const {
    return Section("Not added", notAdded_) + Section("Kept with a date that is not yyyymmdd", oddDates_);
}

void BulkReport::note(std::vector<std::string>& list, const cDiaryRecord& event, const std::string& why) {
    list.push_back((event.DateEvent.empty() ? "(no date)" : event.DateEvent) + " " + event.details + " - " + why);
    glbLog.log("Bulk adding - " + list.back(), 0);
}

std::string BulkReport::Section(const std::string& title, const std::vector<std::string>& list) {
    if (list.empty()) return "";
    std::string text = "\r\n\r\n" + title + " (" + CStr(static_cast<long>(list.size())) + "):";
    for (size_t i = 0; i < list.size() && i < kReportLines; ++i) text += "\r\n" + list[i];
    if (list.size() > kReportLines)
        text += "\r\n... and " + CStr(static_cast<long>(list.size() - kReportLines)) + " more, listed in the log";
    return text;
}

}  // namespace orbidex
