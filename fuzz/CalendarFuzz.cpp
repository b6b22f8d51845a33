// Random bytes as a month of events, drawn as grid or list in a view of a day, a
// week, a fortnight or a month, with clicks on some cells: the drawing never fails
// and the grid always has one row per time slot and one column per day.  The first
// bytes choose the settings, the view and the cells.
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

constexpr size_t kClicks = 4;

void drawAndClick(VbDate date, const uint8_t* cells) {
    frmClientDiaryMain& form = MainForm();
    glbEvents.CalendarDateClicked(form, date);
    if (glbConfig.GridOrList != "GRID") return;
    FlexGrid& grid = form.gridDays;
    if (grid.Rows != glbConfig.timeSlots->totSlots + 1 || grid.Cols != glbConfig.DayWeekMonth + 2) std::abort();
    for (size_t i = 0; i < kClicks; ++i) {
        grid.Row = 1 + cells[2 * i] % grid.Rows;
        grid.Col = 2 + cells[2 * i + 1] % (grid.Cols - 1);
        glbEvents.GetEventFromGrid(grid, form.MonthView1, form.status);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static test::ScriptedPlatform platform;
    static test::TempFolder folder;
    platform.SetProgramFolder(folder.Stored());
    constexpr size_t kChoices = kSettingBytes + 1 + 2 * kClicks;
    if (size < kChoices) return 0;
    platform.SetProblemHandler([](const std::string&) {});  // unanswered questions count as Cancel
    platform.ClearTranscript();
    SetPlatform(&platform);
    static const bool reset = [] {
        ResetProgramState();
        gLogLevel = -2;
        gStrDataPath = folder.Stored() + "\\";
        return true;
    }();
    (void)reset;
    // The main window stays between inputs; the events and the loaded month do not.
    glbEvents = cDiaryRecords();
    gLngWhichMonthIsLoaded = 0;
    gintcur = -1;
    DeleteFile(gStrDataPath + "D200405.dat");
    WriteWholeFile(gStrDataPath + "D200406.dat",
                   std::string(reinterpret_cast<const char*>(data + kChoices), size - kChoices));
    chooseSettings(data);
    const uint8_t view = data[kSettingBytes];
    const int16_t lengths[] = {1, 7, 14, 31};
    glbConfig.DayWeekMonth = lengths[view % 4];
    glbConfig.GridOrList = (view & 4) != 0 ? "LIST" : "GRID";

    const VbDate june = DateSerial(2004, 6, 5);
    drawAndClick(june, data + kSettingBytes + 1);
    if ((view & 8) != 0) {
        ListBox files;
        glbEvents.DisplayScheduleInGrid(*glbConfig.timeSlots, MainForm().gridDays, june, 7, (view & 16) != 0, &files);
    }
    long hour = data[0];
    glbConfig.timeSlots->FindTimeSlot(hour, data[1], MainForm().lvDiary, false);
    return 0;
}
