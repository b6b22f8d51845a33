// Printing the present view: an HTML page in the data folder, opened for the user.
#include <gtest/gtest.h>

#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

namespace {

const std::string kTitle = "Events for Saturday, 5-Jun-2004";
const std::string kHeader = "<HTML><head>\r\n<title>" + kTitle + "</title>\r\n<STYLE>\r\n";
const std::string kTable = "</h2>\r\n<TABLE border=0 width=100% align=center valign=top>\r\n";
const std::string kEnd = "</TABLE>\r\n</BODY></HTML>\r\n";

// The page from its table on.
std::string tableOf(const std::string& page) {
    const size_t at = page.find(kTable);
    return at == std::string::npos ? "" : page.substr(at + kTable.size());
}

}  // namespace

class PrintTest : public test::MainScreenFixture {};

TEST_F(PrintTest, TheGridPrintsItsCellsWithTheirColours) {
    StartProgram();
    FlexGrid& grid = Form().gridDays;
    grid.Rows = 2;
    grid.Cols = 5;
    grid.SetTextMatrix(0, 2, "Mon-31");
    grid.SetTextMatrix(1, 0, "9 ");
    grid.SetTextMatrix(1, 1, "am");
    const std::pair<long, OleColor> cells[] = {{2, vbWhite}, {3, RGB(250, 240, 200)}, {4, RGB(255, 250, 235)}};
    for (const auto& [col, colour] : cells) {
        grid.SetTextMatrix(1, col, "Event " + std::to_string(col));
        grid.Row = 1;
        grid.Col = col;
        grid.CellForeColor = colour;
    }
    grid.SetRowHeight(0, 300);
    grid.SetRowHeight(1, 300);
    Form().Toolbar1.UserClickButton(Form().Toolbar1.Buttons("print"));

    const std::string file = DataPath() + "Diary Events.htm";
    EXPECT_TRUE(platform_.DocumentsOpened().empty()) << "the print preview shows instead of the browser";
    ASSERT_EQ(platform_.Printed().size(), 1U);
    const PrintDocument& printed = platform_.Printed()[0];
    EXPECT_EQ(printed.dates, "Saturday, 5 June 2004") << "the day on screen";
    ASSERT_EQ(printed.rows.size(), 2U);
    ASSERT_EQ(printed.rows[1].size(), 5U);
    EXPECT_EQ(printed.rows[0][2].text, "Mon-31");
    EXPECT_EQ(printed.rows[1][3].text, "Event 3");
    EXPECT_EQ(printed.rows[1][3].foreColor, RGB(250, 240, 200));
    EXPECT_EQ(printed.rows[1][0].foreColor, 0x000000U) << "the desktop's text colour prints black";
    EXPECT_EQ(printed.headingRows, grid.FixedRows);
    grid.SetRowHeight(0, 0);
    EXPECT_EQ(glbCmd.PrintDocumentOfView().rows.size(), 1U) << "a hidden row does not print";
    const std::string page = ReadBytes(file);
    EXPECT_EQ(page.rfind(kHeader, 0), 0U);
    const std::string plain = "<TD valign=top align=left>";
    const std::string day = "<TD valign=top align=left width=30%>";
    EXPECT_EQ(tableOf(page), "<TR>" + plain + "&nbsp;</TD>" + plain + "&nbsp;</TD>" + day +
                                 "<FONT COLOR=Black>Mon-31</FONT></TD>" + day + "&nbsp;</TD>" + day +
                                 "&nbsp;</TD>\r\n" + "<TR>" + plain + "<FONT COLOR=Black>9 </FONT></TD>" + plain +
                                 "<FONT COLOR=Black>am</FONT></TD>" + day + "<FONT COLOR=White>Event 2</FONT></TD>" +
                                 day + "<FONT COLOR=CornSilk>Event 3</FONT></TD>" + day +
                                 "<FONT COLOR=Ivory>Event 4</FONT></TD>\r\n" + kEnd);
}

TEST_F(PrintTest, TheListPrintsItsHeadingsAndRows) {
    StartProgram();
    glbCmd.ViewList();
    ListView& list = Form().lvDiary;
    list.ListItems.Clear();
    list.ColumnHeaders.Clear();
    for (const char* caption : {" ", "Time", "Event Details"}) list.ColumnHeaders.Add(caption);
    ListItem& item = list.ListItems.Add("", "D200406050001");
    item.SetSubItems(1, "0900");
    item.SetSubItems(2, "Dentist");
    Form().mnuFilePrint.UserClick();
    EXPECT_EQ(tableOf(ReadBytes(DataPath() + "Diary Events.htm")),
              "<TR><B><TD> </B></TD><B><TD>Time</B></TD><B><TD>Event Details</B></TD><td></td><TR>\r\n"
              "<TR><TD></TD><TD>0900</TD><TD>Dentist</TD>\r\n" +
                  kEnd);
}

TEST_F(PrintTest, EachModePrintsToItsOwnFile) {
    StartProgram();
    for (const char* mode : {"TASK", "NOTE", "STAFF"}) {
        glbScreen.SwitchMode(mode);
        glbCmd.CommandPrint();
    }
    std::vector<std::string> headings;
    for (const PrintDocument& printed : platform_.Printed()) headings.push_back(printed.heading);
    // Each page is headed as the view is; no server answers the staff planner here.
    EXPECT_EQ(headings,
              (std::vector<std::string>{
                  "Tasks", "Notes",
                  "Staff Events for Saturday,  5-Jun-2004   (the server did not answer: its last answer is shown)"}));
    for (const char* file : {"fred Tasks.htm", "Staff.htm", "fred Notes.htm"})
        EXPECT_TRUE(FileExists(DataPath() + file)) << file;

    glbScreen.SwitchMode("MESSAGE");
    glbCmd.CommandPrint();
    EXPECT_EQ(platform_.MessageTexts().back(), "Printing this view is not yet implemented");
    // The overview prints its own page.
    glbScreen.SwitchMode("HOME");
    glbCmd.CommandPrint();
    EXPECT_EQ(platform_.Printed().back().htmlFile, DataPath() + "overview.htm");
}

TEST_F(PrintTest, TheStyleSheetIsWrittenWhenMissing) {
    StartProgram();
    const std::string css = DataPath() + "style.css";
    glbCmd.CommandPrint();
    const std::string style = ReadBytes(css);
    EXPECT_EQ(style.rfind("<STYLE>\r\nBODY {  font-size:8pt; FONT-FAMILY:Verdana;  }\r\n", 0), 0U);
    EXPECT_TRUE(EndsWith(style, "padding: 0px 0px 0px 0px; }\r\n</STYLE>\r\n"));
    const std::string logged = "Creating deafult style.css file, because none existed. = " + css;
    EXPECT_TRUE(LogHas(logged));

    // Each page holds the style block whole; the file is written only when missing.
    WriteBytes(css, "kept");
    glbCmd.CommandPrint();
    EXPECT_EQ(ReadBytes(css), "kept");
    EXPECT_NE(ReadBytes(DataPath() + "Diary Events.htm").find(style + "\r\n</head>\r\n\r\n<BODY>\r\n<H2>" + kTitle),
              std::string::npos);
    DeleteFile(css);
    glbCmd.CommandPrint();
    EXPECT_EQ(ReadBytes(css), style);
}
