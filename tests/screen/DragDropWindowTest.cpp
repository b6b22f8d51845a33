// The real program in this process with its Qt windows: events, tasks, files and
// text dragged onto the grid, the calendar and the task and note lists through the
// widgets' own drop events, read back from the files on disk.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTest>
#include <QTreeView>
#include <QUrl>
#include <string>
#include <vector>

#include "../diary/EventLines.h"
#include "ProgramWindowFixture.h"
#include "ViewTestSupport.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "qt/views/FlexGridWidget.h"
#include "qt/views/ListViewWidget.h"
#include "qt/views/MonthCalendar.h"
#include "qt/views/MonthViewWidget.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

namespace {

// A line of the fields, each closed by 0x1F, and its line end.
std::string line(const std::vector<std::string>& fields) {
    return test::Fields(fields) + "\r\n";
}

// Two events either side of the end of June, the first with a reminder, and a task.
const std::string kJune = line({"D200406010001", "20040630", "Office", "1000", "30", "Call", "", "", "", "20040630",
                                "0945", "Normal", "", "", "Ring the bank"});
const std::string kJuly =
    line({"D200407010001", "20040701", "Home", "0900", "60", "", "", "", "", "", "", "", "", "", "Dentist"});
const std::string kTask = line({"N200406010001", "20040601", "Garden", "1100", "45", "Phone", "Bob", "", "", "", "",
                                "2 - Normal", "", "", "Order the fence"});

}  // namespace

class DragDropWindowTest : public test::ProgramWindowFixture {
protected:
    void WriteData() override {
        WriteWholeFile(data_ + "D200406.dat", kJune);
        WriteWholeFile(data_ + "D200407.dat", kJuly);
        WriteWholeFile(data_ + "D_tasks.dat", kTask);
    }
    std::string file(const std::string& name) const {
        std::string bytes;
        ReadWholeFile(data_ + name, bytes);
        return bytes;
    }
    FlexGridWidget& grid() { return *ViewOf<FlexGridWidget>(*main_, MainForm().gridDays); }
    QTreeView& list() { return *ViewOf<ListViewWidget>(*main_, MainForm().lvCat)->treeView(); }
    QPoint cell(long row, long col) { return grid().cellRect(row, col).center(); }
    MonthCalendar& calendar() { return *ViewOf<MonthViewWidget>(*main_, MainForm().MonthView1)->calendars()[0]; }
    /// Where the calendar shows `day` of June 2004.
    QPoint day(int number) { return calendar().dayRect(QDate(2004, 6, number)).center(); }
    /// Drags the program's control `source` over `target` at `at`, without dropping it.
    static void dragOver(Control& source, QWidget& target, QPoint at) {
        const ControlWidget::DragScope dragging(source);
        QMimeData mime;
        mime.setData(ControlWidget::controlMimeType(), QByteArray::fromStdString(source.Name()));
        QDragEnterEvent enter(at, Qt::MoveAction, &mime, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &enter);
    }
    /// The week of 28 June to 4 July in the grid, as the user chooses it.
    void showTheLastWeekOfJune() {
        MenuEntry(QStringLiteral("Weekly View"))->trigger();
        QTest::mouseClick(&calendar(), Qt::LeftButton, {}, day(30));
        test::ProcessEvents();
        ASSERT_EQ(MainForm().gridDays.ColData(2), DateSerial(2004, 6, 28));
    }
};

TEST_F(DragDropWindowTest, AnEventDraggedAcrossTheMonthEndLandsInBothFiles) {
    showTheLastWeekOfJune();
    QTest::mousePress(grid().viewport(), Qt::LeftButton, {}, cell(3, 4));                  // 30 June, 10:00
    ASSERT_TRUE(test::DropControl(MainForm().gridDays, *grid().viewport(), cell(11, 6)));  // 2 July, 14:00
    QTest::mouseRelease(grid().viewport(), Qt::LeftButton, {}, cell(11, 6));

    // The two months of the week are saved together, each file starting with a blank line.
    EXPECT_EQ(file("D200406.dat"), "\r\n") << "June keeps no event";
    EXPECT_EQ(file("D200407.dat"), "\r\n" + kJuly +
                                       line({"D200407020001", "20040702", "Office", "1400", "30", "Call", "", "", "",
                                             "20040702", "1400", "Normal", "", "", "Ring the bank"}))
        << "the reminder moves to the new moment";
    EXPECT_EQ(MainForm().gridDays.TextMatrix(11, 6), "Ring the bank");
    EXPECT_EQ(MainForm().gridDays.TextMatrix(3, 4), "");

    // Dragged onto a day of the calendar, it keeps its time.
    QTest::mousePress(grid().viewport(), Qt::LeftButton, {}, cell(11, 6));
    dragOver(MainForm().gridDays, calendar(), day(15));
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "Release mouse button to move event to Jun-15-2004");
    ASSERT_TRUE(test::DropControl(MainForm().gridDays, calendar(), day(15)));
    EXPECT_EQ(file("D200406.dat"), "\r\n" + line({"D200406150001", "20040615", "Office", "1400", "30", "Call", "", "",
                                                  "", "20040615", "1400", "Normal", "", "", "Ring the bank"}));
    EXPECT_EQ(file("D200407.dat"), "\r\n" + kJuly);
}

TEST_F(DragDropWindowTest, ATaskDraggedOntoTheGridBecomesAnEventAndAnEventDraggedBackATask) {
    test::ProcessEvents();
    ASSERT_EQ(MainForm().lvCat.ListItems.Count(), 1);
    const QPoint task = list().visualRect(list().model()->index(0, 0)).center();
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, task);
    ASSERT_TRUE(test::DropControl(MainForm().lvCat, *grid().viewport(), cell(4, 2)));  // today, 10:30
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, task);

    EXPECT_EQ(file("D200406.dat"), kJune + line({"D200406050001", "20040605", "Garden", "1030", "45", "Phone", "Bob",
                                                 "", "", "", "", "2 - Normal", "", "", "Order the fence"}));
    EXPECT_EQ(file("D_tasks.dat"), kTask) << "the task stays";
    EXPECT_EQ(MainForm().gridDays.TextMatrix(4, 2), "Order the fence");

    // The event dragged onto the task list is copied to it as a task of its day.
    QTest::mousePress(grid().viewport(), Qt::LeftButton, {}, cell(4, 2));
    ASSERT_TRUE(test::DropControl(MainForm().gridDays, *list().viewport(), task));
    EXPECT_EQ(file("D_tasks.dat"), kTask + line({"N200406050001", "20040605", "Garden", "0930", "60", "Phone", "", "",
                                                 "", "", "", "", "", "", "Order the fence"}));
    EXPECT_EQ(MainForm().lvCat.ListItems.Count(), 2);
}

TEST_F(DragDropWindowTest, AFileFromAnotherProgramDroppedOnTheNotesBecomesANote) {
    const std::string outside = folder_.Stored() + "\\Shopping list.txt";
    WriteWholeFile(outside, "Eggs\r\nFlour\r\n");
    MenuEntry(QStringLiteral("&Notes"), QStringLiteral("&View"))->trigger();
    test::ProcessEvents();
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(QString::fromStdString(ToNativePath(outside)))});
    ASSERT_TRUE(test::DragAndDrop(*list().viewport(), QPoint(20, 20), mime));

    VbDate written = 0;
    ASSERT_TRUE(FileTimeStamp(outside, written));
    EXPECT_EQ(file("allnotes.dat"), line({"N200406050001", FormatDate(written, "yyyymmdd"), "20040605", "", "", "",
                                          "Shopping list.txt", "  Eggs  Flour  "}));
    EXPECT_EQ(file("notes\\Shopping list.txt"), "Eggs\r\nFlour\r\n");
    ASSERT_EQ(MainForm().lvCat.ListItems.Count(), 1);
    EXPECT_EQ(MainForm().status.Panels(2).Text(), "NOTE");
}
