// The event list: its columns from the captions of the settings, its rows, keys,
// icons and colours.
#include <gtest/gtest.h>

#include "CalendarFixture.h"
#include "controls/ListView.h"
#include "diary/cDiaryRecords.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using namespace orbidex::test;

class EventListTest : public CalendarFixture {
protected:
    void SetUp() override {
        CalendarFixture::SetUp();
        Settings({{"calendar", "GridOrList", "LIST"}});
    }
    static ListView& List() { return MainForm().lvDiary; }
    static std::vector<std::pair<std::string, long>> columns() {
        std::vector<std::pair<std::string, long>> result;
        for (long i = 1; i <= List().ColumnHeaders.Count(); ++i)
            result.emplace_back(List().ColumnHeaders(i).Text, List().ColumnHeaders(i).Width);
        return result;
    }
};

TEST_F(EventListTest, ColumnsFollowTheCaptionsAndHiddenFieldsHaveNone) {
    WriteMonth("D200406.dat", {MakeEvent("D200406070001", "20040607", "0900", "Plain").Line()});
    Load(June(7));
    Draw(June(7));
    using Columns = std::vector<std::pair<std::string, long>>;
    EXPECT_EQ(columns(), (Columns{{" ", 450}, {"Date", 1240}, {"Time", 640}, {"Length", 540}, {"Event Details", 3540}}));

    Settings({{"ListViewHeadings", "Reference", "Ref."}, {"ListViewHeadings", "ActionToPerform", "Where"}});
    Draw(June(7));
    EXPECT_EQ(columns(), (Columns{{" ", 450}, {"Date", 1240}, {"Time", 640}, {"Ref.", 1040}, {"Length", 540},
                                  {"Where", 1440}, {"Event Details", 3540}}));
    EXPECT_EQ(List().ListItems(1).SubItems(3), "Phone");
    EXPECT_EQ(List().ListItems(1).SubItems(5), "Office");

    Settings({{"ListViewHeadings", "Reference", "<hide>"}, {"ListViewHeadings", "ActionToPerform", "<hide>"},
              {"ListViewHeadings", "Date", "<hide>"}, {"ListViewHeadings", "Time", "<hide>"},
              {"ListViewHeadings", "Length", "<hide>"}, {"ListViewHeadings", "details", "<hide>"}});
    Draw(June(7));
    EXPECT_EQ(columns(), (Columns{{" ", 450}}));
    ASSERT_EQ(List().ListItems.Count(), 1);
    EXPECT_EQ(List().ListItems(1).ListSubItems.Count(), 0);
}

TEST_F(EventListTest, RowsOfTheWeekCarryTheirIdentifierIconAndColour) {
    Settings({{"calendar", "DayWeekMonth", "7"}});
    Event usage = MakeEvent("D200406080001", "20040608", "1000", "Word");
    usage.reference = "PCFile";
    usage.action = "Usage";
    Event access = MakeEvent("D200406090001", "20040609", "1100", "report.doc");
    access.reference = "Edit";
    access.action = "PCFile";
    Event meeting = MakeEvent("D200406100001", "20040610", "1200", "Board");
    meeting.action = "Meeting";
    Event reminder = MakeEvent("D200406110001", "20040611", "1300", "Call back");
    reminder.dateRemind = "20040611";
    reminder.timeRemind = "1245";
    Event plain = MakeEvent("D200406070001", "20040607", "0900", "Plain");
    plain.reference = "";
    WriteMonth("D200406.dat", {MakeEvent("D200406060001", "20040606", "0900", "Sunday before").Line(),
                               plain.Line(), usage.Line(), access.Line(), meeting.Line(), reminder.Line(),
                               MakeEvent("D200406140001", "20040614", "0900", "Monday after").Line()});
    Load(June(9));
    Draw(June(9));

    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Week beginning 7-Jun-2004");
    EXPECT_TRUE(List().Visible);
    const std::vector<std::pair<std::string, std::string>> expected = {{plain.id, "general"},
                                                                       {usage.id, "tessaline"},
                                                                       {access.id, "autobackup"},
                                                                       {meeting.id, "staff"},
                                                                       {reminder.id, "calendar"}};
    ASSERT_EQ(List().ListItems.Count(), 5);
    for (long i = 1; i <= 5; ++i) {
        ListItem& row = List().ListItems(i);
        EXPECT_EQ(std::make_pair(row.Key(), row.SmallIcon()), expected[static_cast<size_t>(i - 1)]);
    }
    ListItem& plainRow = List().ListItems(1);
    EXPECT_EQ((std::vector<std::string>{plainRow.SubItems(1), plainRow.SubItems(2), plainRow.SubItems(3),
                                        plainRow.SubItems(4)}),
              (std::vector<std::string>{"20040607", "0900", "30", "Plain"}));
    EXPECT_EQ(plainRow.ForeColor(), vbWindowText);
    for (long i : {2L, 3L}) {
        ListItem& usageRow = List().ListItems(i);
        EXPECT_EQ(usageRow.ForeColor(), kPCFileFore);
        for (long k = 1; k <= 4; ++k) EXPECT_EQ(usageRow.ListSubItems(k).ForeColor(), kPCFileFore) << i << k;
    }
    EXPECT_EQ(List().FindItem("") , &plainRow);
    EXPECT_EQ(List().ListItems.Item(meeting.id), &List().ListItems(4));

    // A fortnight is listed as a month.
    Settings({{"calendar", "DayWeekMonth", "14"}});
    Draw(June(20));
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Month of Jun-2004");
    EXPECT_EQ(List().ListItems.Count(), 7);
}
