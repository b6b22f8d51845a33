#include "CalendarFixture.h"

#include <algorithm>
#include <cstdio>

#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex::test {

void CalendarFixture::SetUp() {
    ProgramFixture::SetUp();
    glbConfig.fname = gStrIniFile;
    glbConfig.ReadAllSettings();  // the first run writes the defaults
    const std::vector<std::pair<std::string, OleColor>> colours = {
        {"normal_ForeColor", kNormalFore},   {"normal_BackColor", kNormalBack},     {"multi_ForeColor", kMultiFore},
        {"multi_BackColor", kMultiBack},     {"heading_ForeColor", kHeadingFore},   {"heading_BackColor", kHeadingBack},
        {"weekend_ForeColor", kWeekendFore}, {"weekend_BackColor", kWeekendBack},   {"today_ForeColor", kTodayFore},
        {"PCFile_ForeColor", kPCFileFore},   {"spanning_BackColor", kSpanningBack}, {"PCFile_BackColor", kPCFileBack}};
    for (const auto& [key, colour] : colours) glbConfig.SetVal("colour", key, std::to_string(colour));
    glbConfig.ReadAllSettings();
    // The status bar as the main window has it: messages, then the mode.
    if (MainForm().status.Panels.Count() < 2) MainForm().status.Panels.Add();
}

Event CalendarFixture::E(const std::string& date, const std::string& time, const std::string& details,
                         const std::string& length) {
    char id[16];
    std::snprintf(id, sizeof id, "D%s%04d", date.c_str(), ++nextId_ % 10000);
    Event event;
    event.id = id;
    event.date = date;
    event.time = time;
    event.details = details;
    event.length = length;
    return event;
}

void CalendarFixture::Settings(const std::vector<std::tuple<std::string, std::string, std::string>>& changes) {
    for (const auto& [section, key, value] : changes) glbConfig.SetVal(section, key, value);
    glbConfig.ReadAllSettings();
}

void CalendarFixture::WriteMonth(VbDate month, const std::vector<Event>& events) const {
    std::string bytes;
    for (const Event& event : events) bytes += event.Line() + "\r\n";
    WriteBytes(DataPath() + "D" + FormatDate(month, "yyyymm") + ".dat", bytes);
}

void CalendarFixture::Draw(VbDate date) {
    MainForm().MonthView1.Value = date;
    glbEvents.DiaryTopLevelDisplay(date);
}

void CalendarFixture::Show(VbDate date, const std::vector<Event>& events) const {
    WriteMonth(date, events);
    glbEvents.LoadDiaryData(date);
    Draw(date);
}

FlexGrid& CalendarFixture::Grid() {
    return MainForm().gridDays;
}

std::string CalendarFixture::Text(long row, long col) {
    return Grid().TextMatrix(row, col);
}

OleColor CalendarFixture::Back(long row, long col) {
    return Grid().EffectiveStyle(row, col).backColor;
}

OleColor CalendarFixture::Fore(long row, long col) {
    return Grid().EffectiveStyle(row, col).foreColor;
}

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
    std::string line;
    for (const std::string& field :
         {id, date, reference, time, length, action, std::string("fred"), url, std::string(), dateRemind, timeRemind,
          std::string("Normal"), status, std::string("Office"), details})
        line += field + "\x1F";
    return line;
}

}  // namespace orbidex::test
