// Drops as the window's views hand them to the main window: the drops that must
// change nothing, and text dropped from other programs on the grid and the lists.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "controls/DataObject.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/cTask.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

namespace {

std::string closed(const std::string& text) {
    return Replace(text, "|", "\x1F");
}

// Today's two events: the bank at 14:00, the post at 16:00.
const std::string kBank = closed("D200406050001|20040605|Office|1400|30|Call|||||||||Ring the bank|\r\n");
const std::string kPost = closed("D200406050002|20040605||1600|15||||||||||Post the letters|\r\n");
const std::string kTask = closed("N200406010001|20040601||1100|45||||||||||Order the fence|\r\n");

}  // namespace

class DragDropTest : public test::MainScreenFixture {
protected:
    void SetUp() override {
        MainScreenFixture::SetUp();
        WriteBytes(DataPath() + "D200406.dat", kBank + kPost);
        WriteBytes(DataPath() + "D_tasks.dat", kTask);
        StartProgram();
    }
    FlexGrid& grid() { return Form().gridDays; }
    /// The left button pressed on a cell of the day's grid, as the grid's view does it.
    void press(long row) {
        grid().UserMoveTo(row, 2);
        grid().UserMouseDown(vbLeftButton, 0, 0, 0);
    }
    void dropOnGrid(Control& source, long row, long col) {
        grid().UserMouseAt(row, col);
        grid().UserDragDrop(source, 0, 0);
    }
    /// Text from another program dropped on `control`.
    static void dropText(Control& control, const std::string& text) {
        DataObject data;
        data.Text = text;
        control.UserOLEDragDrop(data);
    }
    std::string Data(const std::string& name) { return ReadBytes(DataPath() + name); }
};

TEST_F(DragDropTest, DropsThatMoveNothingLeaveTheFilesAsTheyWere) {
    const struct {
        const char* what;
        std::function<void()> drop;
    } cases[] = {
        {"a drop without a drag from the grid", [&] { dropOnGrid(grid(), 4, 2); }},
        {"the event dropped where it stands",
         [&] {
             press(11);
             dropOnGrid(grid(), 11, 2);
         }},
        {"the event dropped on the heading",
         [&] {
             press(11);
             dropOnGrid(grid(), 0, 2);
         }},
        {"a task dropped on the calendar",
         [&] {
             Form().lvCat.UserMouseAt(1);
             Form().lvCat.UserMouseDown(vbLeftButton, 0, 0, 0);
             Form().MonthView1.UserDateDragDrop(Form().lvCat, DateSerial(2004, 6, 9));
         }},
        {"a task dropped on the task list", [&] { Form().lvCat.UserDragDrop(Form().lvCat, 0, 0); }},
        {"an event dropped on the list of another mode",
         [&] {
             press(11);
             glbScreen.SwitchMode("TASK");
             Form().lvCat.UserDragDrop(grid(), 0, 0);
         }},
    };
    for (const auto& c : cases) {
        c.drop();
        EXPECT_EQ(Data("D200406.dat"), kBank + kPost) << c.what;
        EXPECT_EQ(Data("D_tasks.dat"), kTask) << c.what;
        glbScreen.SwitchMode("CALENDAR");
    }
}

TEST_F(DragDropTest, AnEventWithoutAReminderMovesWithoutOne) {
    press(11);
    dropOnGrid(grid(), 4, 0);  // beside the day: the day's column takes it
    EXPECT_EQ(Data("D200406.dat"),
              kPost + closed("D200406050003|20040605|Office|1030|30|Call|||||||||Ring the bank|\r\n"));
    EXPECT_EQ(grid().TextMatrix(4, 2), "Ring the bank");
    EXPECT_TRUE(LogHas("-1 gridDays_DragDrop (leaving) : gintcur=")) << "the number comes first";
}

TEST_F(DragDropTest, OverTenDaysWhatIsDroppedLandsOnTheDayItsColumnIsHeaded) {
    // A column's heading reads the day before the events it shows: what is dropped in
    // the column headed "9" lands on the 9th and is drawn under the heading "8".
    Form().mnuViewType[2].UserClick();  // a fortnight: the bank's call to 10:30
    grid().UserMoveTo(11, ColumnHeaded("4"));
    grid().UserMouseDown(vbLeftButton, 0, 0, 0);
    dropOnGrid(grid(), 4, ColumnHeaded("9"));
    const std::string moved = closed("D200406090001|20040609|Office|1030|30|Call|||||||||Ring the bank|\r\n");
    EXPECT_EQ(Data("D200406.dat"), "\r\n" + kPost + moved) << "a view across a month end saves its months so";
    EXPECT_EQ(grid().TextMatrix(4, ColumnHeaded("8")), "Ring the bank");

    Form().mnuViewType[3].UserClick();  // the month: text at 11:00, the task at 11:30
    const long col = ColumnHeaded("9");
    grid().UserMouseAt(5, col);
    dropText(grid(), "Call the plumber");
    Form().lvCat.UserMouseAt(1);
    Form().lvCat.UserMouseDown(vbLeftButton, 0, 0, 0);
    dropOnGrid(Form().lvCat, 6, col);
    EXPECT_EQ(Data("D200406.dat"),
              "\r\n" + kPost + moved +
                  closed("D200406050003|20040609||1100|30||fred|||20040609|1100||||Call the plumber|\r\n") +
                  closed("D200406090002|20040609||1130|45||||||||||Order the fence|\r\n"));
    EXPECT_EQ(grid().TextMatrix(4, col - 1), "Ring the bank");
    EXPECT_EQ(grid().TextMatrix(5, col - 1), "Call the plumber");
    EXPECT_EQ(grid().TextMatrix(6, col - 1), "Order the fence");
}

TEST_F(DragDropTest, TextFromAnotherProgramBecomesAnEventATaskOrANote) {
    grid().UserMouseAt(4, 2);
    dropText(grid(), "Call the plumber\r\nabout the leak");
    EXPECT_EQ(
        Data("D200406.dat"),
        kBank + kPost + closed("D200406050003|20040605||1030|30||fred||||||||Call the plumber  about the leak|\r\n"))
        << "a quick add at the cell's day and time, on one line";

    const std::string longText =
        "Book the venue for the summer party and ask the caterers for three quotes\r\n"
        "before the end of the month";
    glbConfig.dialogCancelled = true;  // a dialog closed before with its close box
    dropText(Form().lvCat, longText);  // the task list beside the calendar
    EXPECT_EQ(Data("D_tasks.dat"),
              kTask + closed("N200406050001|20040605||0930|60||||||||||" + Replace(longText, "\r\n", "  ") + "|\r\n"));
    EXPECT_EQ(gCurrentTask.title, "Book the venue for the summer party and ask the caterers for three quotes  befor")
        << "80 characters, the line break as blanks";

    glbScreen.SwitchMode("NOTE");
    glbConfig.dialogCancelled = true;
    dropText(Form().lvCat, "Plans: 1/2 of the garden\r\nfor vegetables");
    EXPECT_EQ(Data("allnotes.dat"), closed("N200406050001|20040605|20040605||||Plans 12 of the garden  for "
                                           "vegetables.txt|Plans: 1/2 of the garden  for vegetables|\r\n"));
    EXPECT_EQ(Data("notes\\Plans 12 of the garden  for vegetables.txt"),
              "Plans: 1/2 of the garden\r\nfor vegetables\r\n");
    EXPECT_EQ(Panel(1), "1 Notes");

    dropText(Form().lvCat, "");
    EXPECT_EQ(platform_.MessageTexts().back(), "Not sure what format you dropped - try using text");
    Form().lvCat.Tag = "CONTACT";
    dropText(Form().lvCat, "Fred");
    EXPECT_EQ(platform_.MessageTexts().back(), "Drag Drop not setup for this data type yet");
}

TEST_F(DragDropTest, FilesFromAnotherProgramDroppedOnTheTaskListBecomeATaskEach) {
    glbScreen.SwitchMode("TASK");
    DataObject data;
    data.Files = {Stored("Quotes\\venue.doc"), Stored("Quotes\\Summer party.xls")};
    data.Text = "venue.doc";           // the text beside the files makes no task of its own
    glbConfig.dialogCancelled = true;  // a dialog closed before with its close box
    Form().lvCat.UserOLEDragDrop(data);
    const std::string folder = Stored("Quotes") + "\\";
    EXPECT_EQ(Data("D_tasks.dat"), kTask +
                                       closed("N200406050001|20040605||0930|60|||" + data.Files[0] +
                                              "|||||||Edit venue.doc in " + folder + "|\r\n") +
                                       closed("N200406050002|20040605||0930|60|||" + data.Files[1] +
                                              "|||||||Edit Summer party.xls in " + folder + "|\r\n"));
    EXPECT_EQ(Form().lvCat.ListItems.Count(), 3);
    EXPECT_EQ(glbScreen.Mode(), "TASK");
}
