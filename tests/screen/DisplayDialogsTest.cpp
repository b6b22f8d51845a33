// The display settings dialogs, the perpetual calendar, the about box and help, as
// the user reaches them from the main window: what the dialogs write to the settings
// file, and the window drawn with it at once.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "CalendarFixture.h"
#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "config/frmColour.h"
#include "config/frmDiaryPickFields.h"
#include "config/frmOptions.h"
#include "controls/FlexGrid.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmAbout.h"
#include "screen/frmCalendarView.h"

using namespace orbidex;

class DisplayDialogsTest : public test::MainScreenFixture {
protected:
    /// A started program with a dentist's appointment today at 10:00, in the grid, and
    /// a note on the garden.
    void SetUp() override {
        MainScreenFixture::SetUp();
        test::Event dentist{"E1", "20040605", "1000", "Dentist"};
        WriteBytes(DataPath() + "D200406.dat", dentist.Line() + "\r\n");
        WriteBytes(DataPath() + "allnotes.dat",
                   Replace("N200406050001|20040605|20040605||||Garden.txt|Garden plans|\r\n", "|", "\x1F"));
        StartProgram();
        platform_.ClearTranscript();
    }
    template <typename Dialog>
    void Script(const std::string& name, std::function<void(Dialog&)> act) {
        platform_.QueueFormScript(name, [act](orbidex::Form& form) { act(static_cast<Dialog&>(form)); });
    }
    std::string Ini() { return ReadBytes(gStrIniFile); }
    bool IniHas(const std::string& line) { return InStr(Ini(), "\r\n" + line + "\r\n") != 0; }
    /// The captions of the list's columns from the `first`, by default the one after the icon's.
    std::vector<std::string> Columns(ListView& list, long first = 2) {
        std::vector<std::string> captions;
        for (long i = first; i <= list.ColumnHeaders.Count(); ++i) captions.push_back(list.ColumnHeaders(i).Text);
        return captions;
    }
};

TEST_F(DisplayDialogsTest, ColoursAndFontChosenAreWrittenWithOkAndDrawnAtOnceButNoByteWithCancel) {
    const struct {
        int row;
        bool background;
        long picked;
        std::string line;
    } cases[] = {
        {0, true, 0xFF8000, "normal_BackColor=16744448"},  // blue-ish: red in the low byte
        {1, false, 0x0000FF, "multi_ForeColor=255"},
        {5, true, 0x123456, "today_BackColor=1193046"},
        {6, false, 0xFFFFFF, "PCFile_ForeColor=16777215"},
    };
    const std::string before = Ini();
    for (bool ok : {false, true}) {
        Script<frmColour>("frmColour", [&](frmColour& dialog) {
            EXPECT_EQ(dialog.Colour("normal_BackColor"), 0xF0F4F4) << "read from \"&HF0F4F4\"";
            EXPECT_EQ(dialog.lblSample(2).BackColor(), 0xAFC1C2u) << "heading, read from \"11518402\"";
            EXPECT_EQ(dialog.lblFont.Caption(), " Arial, 9 points") << "the font of a new settings file";
            for (const auto& c : cases) {
                platform_.QueueColourAnswer(c.picked);
                (c.background ? dialog.cmdBack(c.row) : dialog.cmdFore(c.row)).UserClick();
                EXPECT_EQ(c.background ? dialog.lblSample(c.row).BackColor() : dialog.lblSample(c.row).ForeColor(),
                          static_cast<OleColor>(c.picked))
                    << c.line << ": the sample shows the choice";
            }
            platform_.QueueColourAnswer(-1);  // the chooser cancelled: the colour stays
            dialog.cmdBack(3).UserClick();
            platform_.QueueFontAnswer("Courier", 12);
            dialog.cmdFont.UserClick();
            EXPECT_EQ(dialog.lblFont.Caption(), " Courier, 12 points");
            EXPECT_EQ(dialog.lblFont.FontName(), "Courier");
            (ok ? dialog.cmdOK : dialog.cmdCancel).UserClick();
        });
        Form().mnuOptionsDisplay.UserClick();
        if (!ok) {
            EXPECT_EQ(Ini(), before) << "Cancel";
        }
    }
    for (const auto& c : cases) EXPECT_TRUE(IniHas(c.line)) << c.line;
    // A colour not changed keeps its text; the font chosen is written.
    for (const char* line :
         {"weekend_BackColor=&HE0E9E9", "multi_BackColor=&HC0C0FF", "fontName=Courier", "fontSize=12"})
        EXPECT_TRUE(IniHas(line)) << line;
    EXPECT_EQ(glbConfig.normal_BackColor, 0xFF8000);
    // The grid is drawn with the new colour.
    FlexGrid& grid = Form().gridDays;
    ASSERT_EQ(grid.TextMatrix(3, 2), "Dentist");
    grid.Row = 3;
    grid.Col = 2;
    EXPECT_EQ(grid.CellBackColor(), 0xFF8000u);
}

TEST_F(DisplayDialogsTest, EventListHeadingHiddenAndRenamedShowInTheListAtOnce) {
    Form().mnuViewList.UserClick();
    ASSERT_EQ(Columns(Form().lvDiary), (std::vector<std::string>{"Date", "Time", "Length", "Event Details"}));
    Script<frmDiaryPickFields>("frmDiaryPickFields", [](frmDiaryPickFields& dialog) {
        EXPECT_EQ(dialog.Caption(), "Diary Headings in List mode");
        EXPECT_EQ(dialog.chkField(1).Caption(), "Time");
        EXPECT_EQ(dialog.chkField(1).Value(), vbChecked);
        EXPECT_EQ(dialog.chkField(2).Value(), vbUnchecked) << "Reference is <hide>";
        EXPECT_EQ(dialog.txtCaption(2).Text(), "Reference") << "a hidden field offers its name";
        EXPECT_FALSE(dialog.txtCaption(2).Enabled);
        dialog.chkField(1).UserClick();  // Time hidden
        dialog.txtCaption(0).UserEdit("Day", 3);
        dialog.chkField(2).UserClick();  // Reference shown, under its own name
        dialog.chkField(12).UserClick();
        dialog.txtCaption(12).UserEdit("  ", 2);  // a blank heading becomes the field's name
        dialog.cmdOK.UserClick();
    });
    Form().mnuOptionsListView.UserClick();
    EXPECT_EQ(Columns(Form().lvDiary),
              (std::vector<std::string>{"Day", "Reference", "Length", "Action to perform", "Event Details"}));
    EXPECT_EQ(Form().lvDiary.ListItems(1).ListSubItems(5).Text(), "Dentist") << "the row follows its columns";
    for (const char* line :
         {"Date=Day", "Time=<hide>", "Reference=Reference", "ActionToPerform=Action to perform", "Length=Length"})
        EXPECT_TRUE(IniHas(line)) << line;
}

TEST_F(DisplayDialogsTest, NoHeadingTickedKeepsTheDialogOpenAndCancelWritesNothing) {
    const std::string before = Ini();
    Script<frmDiaryPickFields>("frmDiaryPickFields", [this](frmDiaryPickFields& dialog) {
        EXPECT_EQ(dialog.Caption(), "Task Headings");
        EXPECT_EQ(dialog.chkField(14).Caption(), "Details");
        EXPECT_EQ(dialog.txtCaption(14).Text(), "Task Details");
        dialog.chkField(14).UserClick();
        dialog.cmdOK.UserClick();
        EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"Tick at least one field for the list to show."});
        EXPECT_FALSE(dialog.IsUnloaded());
        dialog.cmdCancel.UserClick();
    });
    Form().mnuOptionsTaskHeadings.UserClick();
    EXPECT_EQ(Ini(), before);
}

TEST_F(DisplayDialogsTest, TaskHeadingsFromTheTasksMenuReachTheTaskListThroughTheOptions) {
    Script<frmOptions>("frmOptions", [](frmOptions& options) {
        EXPECT_EQ(options.tabOpt.SelectedItem()->Caption(), "Task");
        options.cmdTaskHeadings.UserClick();
        options.cmdCancel.UserClick();  // the headings are kept whichever button closes the options
    });
    Script<frmDiaryPickFields>("frmDiaryPickFields", [](frmDiaryPickFields& dialog) {
        dialog.chkField(10).UserClick();  // Priority
        dialog.txtCaption(10).UserEdit("Urgency", 7);
        dialog.cmdOK.UserClick();
    });
    Form().mnuTaskHeadings.UserClick();
    EXPECT_EQ(glbScreen.Mode(), "TASK");
    EXPECT_TRUE(IniHas("Priority=Urgency"));
    EXPECT_EQ(Columns(Form().lvCat, 1), (std::vector<std::string>{" ", "Urgency", "Task Details"}));
}

TEST_F(DisplayDialogsTest, NoteHeadingsFromTheMenuAndTheOptionsAreWrittenAndTheNoteListKeepsTheTitle) {
    const auto throughOptions = [this](bool ok) {
        Script<frmOptions>("frmOptions", [ok](frmOptions& options) {
            EXPECT_EQ(options.tabOpt.SelectedItem()->Caption(), "Notes") << "the tab of the present mode";
            options.cmdNoteHeadings.UserClick();
            (ok ? options.cmdOK : options.cmdCancel).UserClick();
        });
        Form().mnuViewSetup.UserClick();
    };
    const auto section = [](const std::string& created, const std::string& category, const std::string& title) {
        return "\r\n[NoteHeadings]\r\nID=<hide>\r\nCreated=" + created +
               "\r\nModified=<hide>\r\nReference=<hide>\r\nColor=<hide>\r\nCategory=" + category +
               "\r\nFilename=<hide>\r\ntitle=" + title + "\r\n";
    };
    // What each field shows when the picker opens: its heading when ticked, "-" when not.
    using Shown = std::vector<std::string>;
    const struct {
        std::string how;
        std::function<void()> open;
        Shown before;
        int toggled;
        std::string title;
        std::string written;
    } cases[] = {
        {"Notes menu, no key yet", [this] { Form().mnuNotesMenu[3].UserClick(); },
         Shown{"-", "-", "-", "-", "-", "-", "-", "Title"}, 1, "Subject", section("Created", "<hide>", "Subject")},
        {"options closed with OK", [&] { throughOptions(true); },
         Shown{"-", "Created", "-", "-", "-", "-", "-", "Subject"}, 5, "Note", section("Created", "Category", "Note")},
        {"options closed with Cancel", [&] { throughOptions(false); },
         Shown{"-", "Created", "-", "-", "-", "Category", "-", "Note"}, 1, "Name",
         section("<hide>", "Category", "Name")},
    };
    glbScreen.SwitchMode("NOTE");
    for (const auto& c : cases) {
        Script<frmDiaryPickFields>("frmDiaryPickFields", [&c](frmDiaryPickFields& dialog) {
            EXPECT_EQ(dialog.Caption(), "Note Headings") << c.how;
            Shown names;
            Shown before;
            for (int i = 0; i < dialog.Fields(); ++i) {
                names.push_back(dialog.chkField(i).Caption());
                before.push_back(dialog.chkField(i).Value() == vbChecked ? dialog.txtCaption(i).Text() : "-");
            }
            EXPECT_EQ(names, (Shown{"Identifier", "Created", "Modified", "Reference", "Colour", "Category", "File name",
                                    "Title"}));
            EXPECT_EQ(before, c.before) << c.how;
            dialog.chkField(c.toggled).UserClick();
            dialog.txtCaption(7).UserEdit(c.title, static_cast<long>(c.title.size()));
            dialog.cmdOK.UserClick();
        });
        c.open();
        EXPECT_NE(Ini().find(c.written), std::string::npos) << c.how << "\n" << Ini();
        for (bool redrawn : {false, true}) {
            if (redrawn) glbScreen.SwitchMode("NOTE", true);
            ListView& list = Form().lvCat;
            EXPECT_EQ(Columns(list), Shown{"Title"}) << c.how << (redrawn ? ", drawn again" : "");
            ASSERT_EQ(list.ListItems.Count(), 1) << c.how;
            EXPECT_EQ(list.ListItems(1).ListSubItems.Count(), 1) << c.how;
            EXPECT_EQ(list.ListItems(1).ListSubItems(1).Text(), "Garden plans") << c.how;
        }
    }
}

TEST_F(DisplayDialogsTest, EnforcingTheServersConfirmationTurnsOnAndOffTwice) {
    const std::string on = "Server Enforced is on";
    const std::string off = "Server Enforced is Off\r\nServer does not have to respond to all requests";
    ASSERT_FALSE(glbServerConfirm);
    ASSERT_FALSE(Form().mnuBetaServerEnforce.Checked);
    std::vector<std::string> shown;
    for (bool enforced : {true, false, true, false}) {
        Form().mnuBetaServerEnforce.UserClick();
        shown.push_back(enforced ? on : off);
        EXPECT_EQ(glbServerConfirm, enforced);
        EXPECT_EQ(Form().mnuBetaServerEnforce.Checked(), enforced);
        EXPECT_EQ(platform_.Transcript().back().title, "Enforce Confirm save from server");
    }
    EXPECT_EQ(platform_.MessageTexts(), shown) << "one message a click, in order";
}

TEST_F(DisplayDialogsTest, PerpetualCalendarMovesByYearAndAClickedDayShowsInTheDiary) {
    Form().mnuViewMode[0].UserClick();  // the overview: a day clicked leads back to the calendar
    Script<frmCalendarView>("frmCalendarView", [this](frmCalendarView& calendar) {
        EXPECT_EQ(calendar.lblYear.Caption(), "2004");
        EXPECT_EQ(calendar.mvYear.Value(), DateSerial(2004, 6, 5)) << "the view's day";
        EXPECT_EQ(calendar.mvYear.MonthRows() * calendar.mvYear.MonthColumns(), 12);
        const struct {
            CommandButton* button;
            std::string year;
            VbDate day;
        } moves[] = {
            {&calendar.cmdNextYear, "2005", DateSerial(2005, 6, 5)},
            {&calendar.cmdPrevYear, "2004", DateSerial(2004, 6, 5)},
            {&calendar.cmdPrevYear, "2003", DateSerial(2003, 6, 5)},
            {&calendar.cmdThisYear, "2004", DateSerial(2004, 6, 5)},
        };
        for (const auto& m : moves) {
            m.button->UserClick();
            EXPECT_EQ(calendar.lblYear.Caption(), m.year);
            EXPECT_EQ(calendar.mvYear.Value(), m.day) << m.year;
            EXPECT_EQ(calendar.mvYear.FirstMonth(), DateSerial(Year(m.day), 1, 1)) << "January first";
        }
        calendar.mvYear.UserClickDate(DateSerial(2004, 2, 29));
        calendar.cmdNextYear.UserClick();
        EXPECT_EQ(calendar.mvYear.Value(), DateSerial(2005, 2, 28)) << "a leap day becomes the 28th";

        calendar.mvYear.UserClickDate(DateSerial(2005, 3, 14));
        EXPECT_EQ(glbScreen.Mode(), "CALENDAR");
        EXPECT_EQ(Form().MonthView1.Value(), DateSerial(2005, 3, 14));
        EXPECT_EQ(Form().lblHeading.Caption(), "  Events for Monday, 14-Mar-2005");
        calendar.cmdClose.UserClick();
    });
    Form().mnuToolsCalendar.UserClick();
    EXPECT_EQ(Form().MonthView1.Value(), DateSerial(2005, 3, 14)) << "the diary stays on the day chosen";
}

TEST_F(DisplayDialogsTest, AboutNamesTheProgramItsVersionAndItsFiles) {
    Script<frmAbout>("frmAbout", [this](frmAbout& about) {
        EXPECT_EQ(about.lblVersion.Caption(), "Version 1.0.1");
        std::vector<std::string> rows;
        for (long i = 0; i < about.lblValue.Count(); ++i)
            rows.push_back(about.lblCaption(i).Caption() + ": " + about.lblValue(i).Caption());
        EXPECT_EQ(rows, (std::vector<std::string>{"Kind of program: LOCAL - a diary of its own",
                                                  "Data folder: " + ShownPath(DataPath()),
                                                  "Settings file: " + ShownPath(DataPath() + "orbidex.ini")}));
        about.cmdOK.UserClick();
    });
    Form().mnuHelpAbout.UserClick();
    EXPECT_EQ(platform_.FormsShown().back(), "frmAbout");
}

TEST_F(DisplayDialogsTest, HelpContentsOpensItsPageInTheBrowserPaneOrSaysItIsMissing) {
    Form().mnuHelpContents.UserClick();
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"The help page " + ShownPath(Stored("help\\help-diary.html")) + " is missing."});
    EXPECT_FALSE(Form().web.Visible);

    MakeFolder(Stored("help"));
    WriteBytes(Stored("help\\help-diary.html"), "<html><body>Help</body></html>");
    Form().mnuHelpContents.UserClick();
    EXPECT_EQ(Form().web.LocationURL(), Stored("help\\help-diary.html"));
    EXPECT_TRUE(Form().web.Visible);
    EXPECT_TRUE(Form().mnuViewBrowser.Checked);
    EXPECT_TRUE(platform_.DocumentsOpened().empty()) << "nothing opens outside the program";
}
