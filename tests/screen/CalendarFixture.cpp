#include "CalendarFixture.h"

#include <algorithm>
#include <cstdio>

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex::test {

namespace {

std::string hex(OleColor colour) {
    char text[16];
    std::snprintf(text, sizeof text, "&H%X", colour);
    return text;
}

}  // namespace

void CalendarFixture::SetUp() {
    ProgramFixture::SetUp();
    glbConfig.fname = gStrIniFile;
    glbConfig.ReadAllSettings();  // the first run writes the defaults
    Settings({{"colour", "normal_ForeColor", hex(kNormalFore)},     {"colour", "normal_BackColor", hex(kNormalBack)},
              {"colour", "multi_ForeColor", hex(kMultiFore)},       {"colour", "multi_BackColor", hex(kMultiBack)},
              {"colour", "heading_ForeColor", hex(kHeadingFore)},   {"colour", "heading_BackColor", hex(kHeadingBack)},
              {"colour", "weekend_ForeColor", hex(kWeekendFore)},   {"colour", "weekend_BackColor", hex(kWeekendBack)},
              {"colour", "spanning_BackColor", hex(kSpanningBack)}, {"colour", "today_ForeColor", hex(kTodayFore)},
              {"colour", "PCFile_ForeColor", hex(kPCFileFore)},     {"colour", "PCFile_BackColor", hex(kPCFileBack)}});
    // The status bar as the main window has it: messages, then the mode.
    if (MainForm().status.Panels.Count() < 2) MainForm().status.Panels.Add();
}

void CalendarFixture::Settings(const std::vector<std::tuple<std::string, std::string, std::string>>& changes) {
    for (const auto& [section, key, value] : changes) glbConfig.SetVal(section, key, value);
    glbConfig.ReadAllSettings();
}

void CalendarFixture::WriteMonth(const std::string& name, const std::vector<std::string>& lines) const {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + "\r\n";
    WriteBytes(DataPath() + name, bytes);
}

void CalendarFixture::Load(VbDate date) const { glbEvents.LoadDiaryData(date); }

void CalendarFixture::Draw(VbDate date) const {
    MainForm().MonthView1.Value = date;
    glbEvents.DiaryTopLevelDisplay(date);
}

FlexGrid& CalendarFixture::Grid() { return MainForm().gridDays; }

std::string CalendarFixture::Text(long row, long col) { return Grid().TextMatrix(row, col); }

OleColor CalendarFixture::Back(long row, long col) { return Grid().EffectiveStyle(row, col).backColor; }

OleColor CalendarFixture::Fore(long row, long col) { return Grid().EffectiveStyle(row, col).foreColor; }

std::string CalendarFixture::Click(long row, long col, bool* blank) {
    frmClientDiaryMain& form = MainForm();
    form.gridDays.Row = row;
    form.gridDays.Col = col;
    const bool wasBlank = glbEvents.GetEventFromGrid(form.gridDays, form.MonthView1, form.status);
    if (blank != nullptr) *blank = wasBlank;
    return form.status.Panels(1).Text;
}

bool CalendarFixture::Logged(const std::string& message) const {
    const std::vector<std::string> log = LogMessages();
    return std::find(log.begin(), log.end(), message) != log.end();
}

std::string Event::Line() const {
    const std::vector<std::string> fields = {id,         date, reference, time,   length, action, "fred", url,
                                             "",         dateRemind, timeRemind, "Normal", status, "Office", details};
    std::string line;
    for (const std::string& field : fields) line += field + "\x1F";
    return line;
}

}  // namespace orbidex::test
