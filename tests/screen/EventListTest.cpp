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
    using Columns = std::vector<std::pair<std::string, long>>;
    static Columns columns() {
        Columns result;
        for (long i = 1; i <= List().ColumnHeaders.Count(); ++i)
            result.emplace_back(List().ColumnHeaders(i).Text, List().ColumnHeaders(i).Width);
        return result;
    }
};

TEST_F(EventListTest, ColumnsFollowTheCaptionsAndHiddenFieldsHaveNone) {
    Show(June(7), {E("20040607", "0900", "Plain")});
    EXPECT_EQ(columns(),
              (Columns{{" ", 450}, {"Date", 1240}, {"Time", 640}, {"Length", 540}, {"Event Details", 3540}}));

    Settings({{"ListViewHeadings", "Reference", "Ref."}, {"ListViewHeadings", "ActionToPerform", "Where"}});
    Draw(June(7));
    EXPECT_EQ(columns(), (Columns{{" ", 450},
                                  {"Date", 1240},
                                  {"Time", 640},
                                  {"Ref.", 1040},
                                  {"Length", 540},
                                  {"Where", 1440},
                                  {"Event Details", 3540}}));
    EXPECT_EQ(std::make_pair(List().ListItems(1).SubItems(3), List().ListItems(1).SubItems(5)),
              std::make_pair(std::string("Phone"), std::string("Office")));

    std::vector<std::tuple<std::string, std::string, std::string>> hidden;
    for (const char* key : {"Reference", "ActionToPerform", "Date", "Time", "Length", "details"})
        hidden.emplace_back("ListViewHeadings", key, "<hide>");
    Settings(hidden);
    Draw(June(7));
    EXPECT_EQ(columns(), (Columns{{" ", 450}}));
    EXPECT_EQ(List().ListItems(1).ListSubItems.Count(), 0);
}

TEST_F(EventListTest, RowsOfTheWeekCarryTheirIdentifierIconAndColour) {
    View("7");
    const Event plain = With(E("20040607", "0000", "Plain"), &Event::reference, "");
    const Event usage = With(With(E("20040608", "1000", "Word"), &Event::reference, "PCFile"), &Event::action, "Usage");
    const Event access =
        With(With(E("20040609", "1100", "a.doc"), &Event::reference, "Edit"), &Event::action, "PCFile");
    const Event meeting = With(E("20040610", "1200", "Board"), &Event::action, "Meeting");
    const Event timed = E("20040611", "1300", "Call");
    Show(June(9), {E("20040606", "0900", "Sunday before"), plain, usage, access, meeting, timed,
                   E("20040614", "0900", "Monday after")});

    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Week beginning 7-Jun-2004");
    EXPECT_TRUE(List().Visible);
    std::vector<std::pair<std::string, std::string>> rows;
    for (long i = 1; i <= List().ListItems.Count(); ++i)
        rows.emplace_back(List().ListItems(i).Key, List().ListItems(i).SmallIcon);
    EXPECT_EQ(rows, (std::vector<std::pair<std::string, std::string>>{{plain.id, "general"},
                                                                      {usage.id, "tessaline"},
                                                                      {access.id, "autobackup"},
                                                                      {meeting.id, "staff"},
                                                                      {timed.id, "calendar"}}));
    ListItem& plainRow = List().ListItems(1);
    EXPECT_EQ((std::vector<std::string>{plainRow.SubItems(1), plainRow.SubItems(2), plainRow.SubItems(3),
                                        plainRow.SubItems(4)}),
              (std::vector<std::string>{"20040607", "0000", "30", "Plain"}));
    EXPECT_EQ(plainRow.ForeColor(), vbWindowText);
    for (long i : {2L, 3L}) {
        ListItem& usageRow = List().ListItems(i);
        EXPECT_EQ(usageRow.ForeColor(), kPCFileFore);
        for (long k = 1; k <= 4; ++k) EXPECT_EQ(usageRow.ListSubItems(k).ForeColor(), kPCFileFore) << i << k;
    }

    View("14");  // a fortnight is listed as a month
    Draw(June(20));
    EXPECT_EQ(MainForm().lblHeading.Caption(), "  Events for Month of Jun-2004");
    EXPECT_EQ(List().ListItems.Count(), 7);
}
