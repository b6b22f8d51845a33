// Random bytes as a month of events, drawn in every view as grid and as list, with
// a click on each cell: the drawing never fails and the grid always has one row per
// time slot and one column per day.  The first bytes choose the settings.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "ScriptedPlatform.h"
#include "TempFolder.h"
#include "config/clsConfigDiary.h"
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "screen/clsTimeSlots.h"
#include "screen/frmClientDiaryMain.h"

namespace {

using namespace orbidex;

constexpr size_t kSettingBytes = 4;

void chooseSettings(const uint8_t* data) {
    auto slots = std::make_shared<clsTimeSlots>();
    slots->startHr = static_cast<int16_t>(data[0] % 24);
    slots->stopHr = static_cast<int16_t>(data[1] % 24);
    slots->numSlotsPerHour = static_cast<int16_t>(data[2] % 14);
    slots->InitTimeArray();
    glbConfig.timeSlots = slots;
    glbConfig.DisplayFileEvents = static_cast<int16_t>(data[3] % 3);
    glbConfig.Wordwrap = 1;
    glbConfig.Autosize = static_cast<int16_t>((data[3] >> 2) & 1);
    glbConfig.RowHeightMin = 255;
    glbConfig.RowHeightMax = 750;
    for (std::string* caption : {&gListViewHeadings.DateEvent, &gListViewHeadings.TimeEvent, &gListViewHeadings.URL,
                                 &gListViewHeadings.details})
        *caption = "caption";
}

void drawAndClickEverywhere(VbDate date) {
    frmClientDiaryMain& form = MainForm();
    glbEvents.CalendarDateClicked(form, date);
    if (glbConfig.GridOrList != "GRID") return;
    FlexGrid& grid = form.gridDays;
    const clsTimeSlots& slots = *glbConfig.timeSlots;
    if (grid.Rows != slots.totSlots + 1 || grid.Cols != glbConfig.DayWeekMonth + 2) std::abort();
    for (long row = 1; row < grid.Rows; ++row)
        for (long col = 2; col < grid.Cols; col += 3) {
            grid.Row = row;
            grid.Col = col;
            glbEvents.GetEventFromGrid(grid, form.MonthView1, form.status);
        }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static test::ScriptedPlatform platform;
    static test::TempFolder folder;
    if (size < kSettingBytes) return 0;
    platform.SetProblemHandler([](const std::string&) {});  // unanswered questions count as Cancel
    platform.ClearTranscript();
    SetPlatform(&platform);
    ResetProgramState();
    gLogLevel = -2;
    gStrDataPath = folder.Stored() + "\\";
    gStrIniFile = gStrDataPath + "orbidex.ini";
    WriteWholeFile(gStrDataPath + "D200406.dat",
                   std::string(reinterpret_cast<const char*>(data + kSettingBytes), size - kSettingBytes));
    chooseSettings(data);

    const VbDate june = DateSerial(2004, 6, 5);
    for (const char* view : {"GRID", "LIST"}) {
        glbConfig.GridOrList = view;
        for (int16_t days : {1, 7, 14, 31}) {
            glbConfig.DayWeekMonth = days;
            drawAndClickEverywhere(june);
        }
    }
    ListBox files;
    glbEvents.DisplayScheduleInGrid(*glbConfig.timeSlots, MainForm().gridDays, june, 7, false, &files);
    glbEvents.DisplayScheduleInGrid(*glbConfig.timeSlots, MainForm().gridDays, june, 7, true, &files);
    long hour = data[0];
    glbConfig.timeSlots->FindTimeSlot(hour, data[1], MainForm().lvDiary, false);
    return 0;
}
