// The week grid and the event list as the user sees them, saved as screenshots.
#include <gtest/gtest.h>

#include "CalendarFixture.h"
#include "ViewTestSupport.h"
#include "controls/FlexGrid.h"
#include "diary/cDiaryRecords.h"
#include "qt/QtText.h"
#include "qt/views/FlexGridWidget.h"
#include "qt/views/ListViewWidget.h"
#include "qt/views/ViewSupport.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;
using namespace orbidex::test;

class CalendarScreenshotTest : public CalendarFixture {
protected:
    void SetUp() override {
        CalendarFixture::SetUp();
        const Event meeting = With(E("20040602", "1300", "Board meeting"), &Event::action, "Meeting");
        const Event secret = With(E("20040603", "1400", "Doctor"), &Event::status, "Private");
        const Event reminder = With(E("20040604", "1500", "Send the invoices"), &Event::dateRemind, "20040604");
        WriteMonth(DateSerial(2004, 5, 1), {E("20040531", "0900", "Budget review with the whole team", "90")});
        WriteMonth(June(1), {E("20040601", "1030", "Call Ann"), E("20040601", "1045", "Call Bob"), meeting, secret,
                             reminder, E("20040605", "1100", "Shopping", "60"), E("20040606", "1000", "Walk")});
        Settings({{"calendar", "DayWeekMonth", "7"}});
        glbEvents.CalendarDateClicked(MainForm(), June(5));
    }
};

TEST_F(CalendarScreenshotTest, TheWeekGridShowsItsEventsInTheirColours) {
    FlexGridWidget view(Grid());
    view.resize(1000, 560);
    view.show();
    ProcessEvents();
    SaveScreenshot(view, QStringLiteral("calendar-week-grid"));
    ASSERT_EQ(Text(1, 2), "Budget review with the whole team");
    EXPECT_EQ(ColorAt(*view.viewport(), view.cellRect(3, 2).center()), ToQColor(kSpanningBack));
    EXPECT_EQ(ColorAt(*view.viewport(), view.cellRect(4, 3).center()), ToQColor(kMultiBack));
    EXPECT_EQ(ColorAt(*view.viewport(), view.cellRect(10, 8).center()), ToQColor(kWeekendBack));
}

TEST_F(CalendarScreenshotTest, TheEventListShowsTheWeeksEvents) {
    Settings({{"calendar", "GridOrList", "LIST"}, {"ListViewHeadings", "Reference", "Reference"}});
    glbEvents.CalendarDateClicked(MainForm(), June(5));
    ListViewWidget view(MainForm().lvDiary);
    view.resize(800, 300);
    view.show();
    ProcessEvents();
    SaveScreenshot(view, QStringLiteral("calendar-week-list"));
    EXPECT_EQ(MainForm().lvDiary.ListItems.Count(), 8);
}
