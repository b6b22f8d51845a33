// Random bytes as the results file the staff planner draws: a day and a week are
// drawn for two ticked users with every option on, and the grid keeps its shape:
// two heading rows, a row a user and the totals, whatever the file holds.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "FuzzProgram.h"
#include "TimeSlots.h"
#include "config/clsConfigDiary.h"
#include "controls/FlexGrid.h"
#include "controls/ListView.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "network/StaffGrid.h"
#include "screen/frmClientDiaryMain.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    auto& folder = orbidex::test::StartFuzzInput().folder;
    orbidex::gStrDataPath = folder.Stored() + "\\";
    orbidex::test::UseTimeSlots(9, 12, 2);
    orbidex::glbConfig.ShowTotals = 1;
    orbidex::glbResultsFile = orbidex::gStrDataPath + "RESULTS.TXT";
    orbidex::WriteWholeFile(orbidex::glbResultsFile, std::string(reinterpret_cast<const char*>(data), size));

    orbidex::ListView users("lvUsers");
    for (const char* name : {"fred", "mary"}) users.ListItems.Add(name).Tag = name;
    users.ListItems(1).Checked = true;
    users.ListItems(2).Checked = true;
    orbidex::FlexGrid grid("gridDays");
    const orbidex::VbDate day = orbidex::DateSerial(2004, 6, 5);
    for (int days : {1, 7}) {
        orbidex::GridInitStaff(orbidex::MainForm(), grid, day, days, users);
        if (days == 1)
            orbidex::GridFillOneDay(users, grid, day, true, true, true);
        else
            orbidex::GridFillManyDays(users, grid, day, days, true, true, true);
        orbidex::GridShadeEmptyCells(grid);
        if (grid.Rows() != 5 || grid.TextMatrix(4, 0) != "TOTAL" || grid.TextMatrix(3, 0) != "mary") std::abort();
    }
    orbidex::ResetProgramState();
    return 0;
}
