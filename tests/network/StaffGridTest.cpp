// Events placed into the staff planner's cells one by one: what a cell shows when a
// second event comes into it, by the options of details and location, and the
// colours of what cannot be seen.
#include <gtest/gtest.h>

#include "EventLines.h"
#include "ProgramFixture.h"
#include "TimeSlots.h"
#include "config/clsConfigDiary.h"
#include "controls/FlexGrid.h"
#include "controls/ListView.h"
#include "diary/cDiaryRecord.h"
#include "foundation/VbDate.h"
#include "network/StaffGrid.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using test::Fields;

namespace {

cDiaryRecord event(const std::string& time, const std::string& length, const std::string& place,
                   const std::string& details, const std::string& status = "") {
    cDiaryRecord record;
    record.GetDiaryRecordFromText(Fields(
        {"D200406050007", "20040605", "Phone", time, length, "Call", "", "", "", "", "", "", status, place, details}));
    return record;
}

}  // namespace

class StaffGridTest : public test::ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        test::UseTimeSlots(9, 12, 2);
        glbConfig.normal_BackColor = 0xF0F4F4;
        glbConfig.spanning_BackColor = 0xC0C0C0;
        glbConfig.multi_BackColor = 0xC0C0FF;
        users.ListItems.Add("fred").Tag = "fred";
        users.ListItems(1).Checked = true;
    }
    /// Places the events in fred's row of a one-day planner; the text of the first
    /// one's cell.
    std::string Placed(const std::vector<cDiaryRecord>& events, bool location, bool details) {
        GridInitStaff(MainForm(), grid, DateSerial(2004, 6, 5), 1, users);
        for (const cDiaryRecord& e : events) {
            grid.Row = 2;
            GridPlaceEvent(e, grid, 0, location, details, true);
        }
        return grid.TextMatrix(2, 3);
    }
    ListView users{"lvUsers"};
    FlexGrid grid{"gridDays"};
};

TEST_F(StaffGridTest, ASecondEventInACellShowsBesideTheFirstByTheOptions) {
    const std::vector<cDiaryRecord> two = {event("1000", "60", "Room 1", "Budget"), event("1000", "30", "", "Call")};
    struct Case {
        bool location, details;
        std::string alone, both;
    } cases[] = {
        {false, false, ".", "90"},
        {true, false, "Room 1", "Multiple Events"},
        {false, true, "Budget", "Budget\r\n1000   (Call)"},
        {true, true, "Room 1: Budget", "Room 1: Budget\r\n1000   (Call)"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Placed({two[0]}, c.location, c.details), c.alone);
        EXPECT_EQ(grid.TextMatrix(2, 4), c.alone) << "the hour's bar";
        EXPECT_EQ(Placed(two, c.location, c.details), c.both);
        EXPECT_EQ(grid.TextMatrix(2, 4), c.both) << "the bar shows what its first cell shows";
        grid.Row = 2;
        grid.Col = 3;
        EXPECT_EQ(grid.CellBackColor(), static_cast<OleColor>(0xC0C0FF));
    }
}

TEST_F(StaffGridTest, WhatCannotBeSeenTakesItsCellsBackColour) {
    // A mark without location or details, an owner who shares neither, a private event.
    Placed({event("1000", "30", "", "")}, true, true);
    grid.Row = 2;
    grid.Col = 3;
    EXPECT_EQ(grid.Text(), ".");
    EXPECT_EQ(grid.CellForeColor(), grid.CellBackColor());
    EXPECT_EQ(grid.CellBackColor(), static_cast<OleColor>(0xC0C0C0));

    Placed({event("1000", "30", "Room 1", "Doctor", "Private")}, true, true);
    grid.Row = 2;
    grid.Col = 3;
    EXPECT_EQ(grid.CellForeColor(), static_cast<OleColor>(0x80000011));

    // Totals that are off are marks too.
    GridFillOneDay(users, grid, DateSerial(2004, 6, 5), true, true, false);
    grid.Row = 2;
    grid.Col = grid.Cols - 1;
    EXPECT_EQ(grid.Text(), ".");
    EXPECT_EQ(grid.CellForeColor(), vbWhite);
}
