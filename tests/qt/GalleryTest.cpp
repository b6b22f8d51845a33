// One window with a view of every kind of control, filled with sample values, saved
// as screenshots/controls-gallery.png for a person to look at.
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QFileInfo>
#include <QFont>
#include <QTreeView>

#include "ProgramFixture.h"
#include "ViewTestSupport.h"
#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/DatePicker.h"
#include "controls/FlexGrid.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "controls/Menu.h"
#include "controls/MonthView.h"
#include "controls/OptionButton.h"
#include "controls/RichTextBox.h"
#include "controls/StatusBar.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "controls/Toolbar.h"
#include "controls/TreeView.h"
#include "controls/WebBrowser.h"
#include "foundation/VbDate.h"
#include "qt/QtText.h"
#include "qt/views/FlexGridWidget.h"
#include "qt/views/FormWindow.h"
#include "qt/views/ListViewWidget.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {
namespace {

constexpr OleColor kGridBack = 0xF0F4F4;
constexpr OleColor kHeadingBack = 0xC08040;
constexpr OleColor kWeekendBack = 0xE0E0E0;
constexpr OleColor kSpanBack = 0xFFE0C0;
constexpr OleColor kMultiBack = 0xC0FFFF;

class frmGallery : public Form {
public:
    frmGallery() : Form("frmGallery") {
        for (Control* c : std::initializer_list<Control*>{&lblTitle, &txtTitle, &chkRemind, &chkPrivate, &cmbReminder,
                                                          &dtPickDate, &dtPickTime, &cmdOK, &cmdCancel, &lblWarning})
            c->SetContainer(&frameEvent);
        for (int i : {0, 1}) optFinish(i).SetContainer(&frameEvent);
    }

    Menu mnuFile{this, "mnuFile", "&File"};
    Menu mnuFileNew{this, "mnuFileNew", "&New", &mnuFile};
    Menu mnuFileLine{this, "mnuFileLine", "-", &mnuFile};
    Menu mnuFileExit{this, "mnuFileExit", "E&xit", &mnuFile};
    Menu mnuView{this, "mnuView", "&View"};
    Menu mnuViewBrowser{this, "mnuViewBrowser", "&Browser", &mnuView};
    Toolbar Toolbar1{this, "Toolbar1"};
    MonthView MonthView1{this, "MonthView1"};
    TreeView tv{this, "tv"};
    ListView lvView{this, "lvView"};
    FlexGrid gridDays{this, "gridDays"};
    ListView lvDiary{this, "lvDiary"};
    Frame frameEvent{this, "frameEvent"};
    Label lblTitle{this, "lblTitle"};
    TextBox txtTitle{this, "txtTitle"};
    CheckBox chkRemind{this, "chkRemind"};
    CheckBox chkPrivate{this, "chkPrivate"};
    ControlArray<OptionButton> optFinish{this, "optFinish"};
    ComboBox cmbReminder{this, "cmbReminder"};
    DatePicker dtPickDate{this, "dtPickDate"};
    DatePicker dtPickTime{this, "dtPickTime"};
    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};
    Label lblWarning{this, "lblWarning"};
    ListBox lstUsers{this, "lstUsers"};
    TabStrip tabEvent{this, "tabEvent"};
    RichTextBox txtChat{this, "txtChat"};
    WebBrowser web{this, "web"};
    Timer timerSecond{this, "timerSecond"};
    StatusBar status{this, "status"};
};

void fillToolbar(Toolbar& bar) {
    Button& add = bar.Buttons.Add("new", "New     ", tbrDropdown, "calendar");
    add.ToolTipText = "Add a new item";
    for (const char* entry : {"Event", "Task", "Note"}) add.AddButtonMenu(entry);
    bar.Buttons.Add("Find", "Find    ", tbrDefault, "find").ToolTipText = "Search for information";
    bar.Buttons.Add("", "", tbrSeparator);
    bar.Buttons.Add("days", "Day     ", tbrButtonGroup, "days");
    bar.Buttons.Add("week", "Week    ", tbrButtonGroup, "week").Value = tbrPressed;
    bar.Buttons.Add("month", "Month   ", tbrButtonGroup, "month");
    bar.Buttons.Add("", "", tbrSeparator);
    bar.Buttons.Add("grid", "Grid   ", tbrCheck, "grid");
    bar.Buttons.Add("refresh", "Server  ", tbrDefault, "server");
}

/// A week from Thursday 3 June 2004, 9 am to 2:30 pm in half hours, as the diary
/// draws it: hour and minute columns, merged hours, events in their colours.
void fillGrid(FlexGrid& grid) {
    grid.Rows = 13;
    grid.Cols = 7;
    grid.FixedRows = 1;
    grid.FixedCols = 2;
    grid.BackColor = kGridBack;
    grid.BackColorFixed = kHeadingBack;
    grid.ForeColorFixed = vbWhite;
    grid.RowHeightMin = 255;
    grid.SetRowHeight(0, 500);
    grid.SetColWidth(0, 600);
    grid.SetColWidth(1, 351);
    grid.MergeCells = flexMergeFree;
    grid.SetMergeCol(0, true);
    const VbDate start = DateSerial(2004, 6, 3);
    for (long col = 2; col < 7; ++col) {
        grid.SetColWidth(col, 1250);
        grid.SetColData(col, start + static_cast<double>(col - 2));
        grid.SetTextMatrix(0, col, FormatDate(start + static_cast<double>(col - 2), "DDD-d"));
    }
    for (long row = 1; row < 13; ++row) {
        const long hour = 9 + (row - 1) / 2;
        grid.SetTextMatrix(row, 0, std::to_string(hour > 12 ? hour - 12 : hour) + " ");
        grid.SetTextMatrix(row, 1, row % 2 == 0 ? "30" : hour >= 12 ? "pm" : "am");
    }
    // Formats go to ranges of cells at once.
    grid.FillStyle = flexFillRepeat;
    const auto select = [&grid](long row, long col, long rowSel, long colSel) {
        grid.Row = row;
        grid.Col = col;
        grid.RowSel = rowSel;
        grid.ColSel = colSel;
    };
    select(0, 2, 0, 6);  // the days
    grid.CellFontBold = true;
    grid.CellFontSize = 10;
    grid.CellAlignment = flexAlignLeftTop;
    select(1, 0, 12, 0);  // the hours
    grid.CellFontName = "Arial Black";
    grid.CellFontBold = true;
    grid.CellFontSize = 12;
    grid.CellForeColor = vbBlack;
    grid.CellAlignment = flexAlignRightTop;
    select(1, 1, 12, 1);  // am, pm and the half hours
    grid.CellFontSize = 8;
    grid.CellForeColor = vbGrayText;
    grid.CellAlignment = flexAlignLeftTop;
    for (long row = 1; row < 13; row += 2) {  // am and pm stand out
        select(row, 1, row, 1);
        grid.CellFontBold = true;
        grid.CellForeColor = vbBlack;
    }
    select(1, 4, 12, 5);  // the weekend
    grid.CellBackColor = kWeekendBack;
    select(4, 3, 5, 3);  // an event over two slots
    grid.CellBackColor = kSpanBack;
    const auto place = [&](long row, long col, const std::string& text) {
        select(row, col, row, col);
        grid.Text = text;
    };
    place(0, 4, "Sat-5");
    grid.CellForeColor = vbRed;  // today
    place(2, 2, "Dentist");
    grid.CellFontBold = true;  // it has a reminder
    place(3, 3, "Team meeting");
    grid.CellForeColor = vbRed;
    place(5, 2, "Call Bob (1030)Email Ann");
    grid.CellBackColor = kMultiBack;
    grid.CellForeColor = vbBlue;
    place(7, 6, "Private lunch");
    grid.CellForeColor = vbGrayText;
    place(9, 6, "Budget review with the whole finance team");
    grid.SetRowHeight(9, 510);
    place(2, 2, "Dentist");
}

void fillLists(frmGallery& f) {
    ListView& lv = f.lvDiary;
    lv.Checkboxes = true;
    lv.ColumnHeaders.Add(" ", 450);
    lv.ColumnHeaders.Add("Date", 1240);
    lv.ColumnHeaders.Add("Time", 640);
    lv.ColumnHeaders.Add("Reference", 1040);
    lv.ColumnHeaders.Add("details", 3540);
    const char* rows[][5] = {{"D200406030001", "20040603", "0930", "", "Dentist"},
                             {"D200406040001", "20040604", "1000", "Meeting", "Team meeting"},
                             {"D200406070001", "20040607", "1200", "PCFile", "Private lunch"}};
    for (auto& r : rows) {
        ListItem& item = lv.ListItems.Add("", r[0], "", r[3][0] == 0 ? "general" : "staff");
        for (int i = 1; i <= 4; ++i) item.SetSubItems(i, r[i]);
    }
    lv.ListItems(1).Checked = true;
    lv.ListItems(2).ListSubItems(4).Bold = true;
    for (long i = 1; i <= 4; ++i) lv.ListItems(3).ListSubItems(i).ForeColor = vbRed;
    lv.ListItems(2).Selected = true;
    lv.SortKey = 1;
    lv.Sorted = true;

    ListView& icons = f.lvView;
    icons.View = lvwIcon;
    const char* shortcuts[][3] = {{"HOME", "Home", "overview"},
                                  {"CALENDAR", "My Diary", "clock"},
                                  {"TASK", "Tasks", "bridge"},
                                  {"NOTE", "Notes", "note"}};
    for (auto& s : shortcuts) icons.ListItems.Add(s[1], s[0], s[2]);
    icons.ListItems(2).Selected = true;

    TreeView& tv = f.tv;
    tv.Nodes.Add("", tvwLast, "HOME", "Home", "leaf");
    tv.Nodes.Add("HOME", tvwChild, "CALENDAR", "My Diary", "calendar");
    tv.Nodes.Add("CALENDAR", tvwChild, "CALENDAR_ADDNEW", "Add New Event", "new");
    tv.Nodes.Add("HOME", tvwChild, "TASK", "Tasks", "task");
    tv.Nodes.Add("HOME", tvwChild, "NOTE", "Notes", "note");
    tv.Nodes.Add("", tvwLast, "public", "Public Information", "leaf");
    tv.Nodes.Item("CALENDAR")->Selected = true;

    f.lstUsers.Style = vbListBoxCheckbox;
    for (const char* user : {"fred (you)", "mary", "john"}) f.lstUsers.AddItem(user);
    f.lstUsers.SetSelected(0, true);
    f.lstUsers.SetSelected(2, true);

    for (const char* entry : {"0 minutes", "5 minutes", "15 minutes", "1 hour   "}) f.cmbReminder.AddItem(entry);
    f.cmbReminder.Style = vbComboDropdownList;
    f.cmbReminder.ListIndex = 2;
}

void layOut(frmGallery& f) {
    f.Caption = "Orbidex controls";
    f.Width = 15300;
    f.Height = 8850;
    f.MonthView1.Move(60, 960, 3300, 2700);
    f.tv.Move(60, 3750, 3300, 2100);
    f.lvView.Move(60, 5925, 3300, 1800);
    f.gridDays.Move(3450, 960, 7260, 4500);
    f.lvDiary.Move(3450, 5550, 7260, 2175);
    f.frameEvent.Move(10800, 960, 4350, 4200);
    f.lblTitle.Move(150, 330, 700, 300);
    f.txtTitle.Move(900, 300, 3300, 330);
    f.chkRemind.Move(150, 750, 1600, 330);
    f.chkPrivate.Move(1900, 750, 1600, 330);
    f.optFinish(0).Move(150, 1150, 1700, 330);
    f.optFinish(1).Move(1900, 1150, 2300, 330);
    f.cmbReminder.Move(150, 1600, 2200, 360);
    f.lblWarning.Move(2500, 1630, 1700, 330);
    f.dtPickDate.Move(150, 2100, 2000, 360);
    f.dtPickTime.Move(2250, 2100, 1950, 360);
    f.cmdOK.Move(150, 3400, 1900, 450);
    f.cmdCancel.Move(2250, 3400, 1500, 450);
    f.lstUsers.Move(10800, 5250, 1650, 1200);
    f.tabEvent.Move(12525, 5250, 2625, 420);
    f.txtChat.Move(12525, 5700, 2625, 750);
    f.web.Move(10800, 6525, 4350, 1200);
}

void fillTheRest(frmGallery& f, const std::string& page) {
    f.MonthView1.Value = DateSerial(2004, 6, 5);
    f.MonthView1.SetDayBold(DateSerial(2004, 6, 3), true);
    f.MonthView1.SetDayBold(DateSerial(2004, 6, 4), true);
    f.frameEvent.Caption = "Event";
    f.lblTitle.Caption = "Title :";
    f.txtTitle.Text = "Dentist";
    f.chkRemind.Caption = "Reminder";
    f.chkRemind.Value = vbChecked;
    f.chkPrivate.Caption = "Private";
    f.optFinish(0).Caption = "on this date";
    f.optFinish(0).Value = true;
    f.optFinish(1).Caption = "after running for";
    f.lblWarning.Caption = "Private!";
    f.lblWarning.ForeColor = vbRed;
    f.lblWarning.FontBold = true;
    f.dtPickDate.Value = DateSerial(2004, 6, 3) + TimeSerial(9, 30, 0);
    f.dtPickTime.Format = dtpTime;
    f.dtPickTime.Value = DateSerial(2004, 6, 3) + TimeSerial(9, 30, 0);
    f.cmdOK.Caption = "Save and Close";
    f.cmdOK.Default = true;
    f.cmdCancel.Caption = "Cancel";
    f.cmdCancel.Cancel = true;
    for (const char* tab : {"General", "Reminder", "Advanced"}) f.tabEvent.Tabs.Add(tab);
    f.tabEvent.Tabs(2).Selected = true;
    f.txtChat.SelColor = vbBlue;
    f.txtChat.SelFontSize = 12;
    f.txtChat.SelText = "Send a Message\r\n";
    f.txtChat.SelColor = vbRed;
    f.txtChat.SelFontSize = 9;
    f.txtChat.SelText = "fred: hello";
    f.web.Navigate2(page);
    f.timerSecond.Interval = 1000;
    f.mnuViewBrowser.Checked = true;
    f.status.Panels(1).Text = "Blank Timeslot on 5-Jun-2004 at 0930";
    f.status.Panels(1).AutoSize = sbrSpring;
    f.status.Panels.Add("CALENDAR");
}

class GalleryTest : public test::ProgramFixture {};

TEST_F(GalleryTest, EveryViewDrawsItsModel) {
    const std::string page = Stored("data\\overview.html");
    WriteBytes(page, "<html><body><h3>Saturday, 5-Jun-2004</h3><p>3 events this week</p></body></html>");
    frmGallery form;
    fillToolbar(form.Toolbar1);
    fillGrid(form.gridDays);
    fillLists(form);
    layOut(form);
    fillTheRest(form, page);

    FormWindow window(form);
    window.show();
    test::ProcessEvents();
    const QString shot = test::SaveScreenshot(window, QStringLiteral("controls-gallery"));
    ASSERT_TRUE(QFileInfo(shot).size() > 0);

    // The hour merged over two rows is drawn without a line between them; two hours
    // have one. A range formatted at once is drawn whole.
    auto* grid = static_cast<FlexGridWidget*>(window.viewOf(form.gridDays));
    ASSERT_NE(grid, nullptr);
    const QRect nine = grid->cellRect(1, 0);
    EXPECT_EQ(test::ColorAt(*grid->viewport(), QPoint(nine.left() + 3, nine.bottom())), ToQColor(kHeadingBack));
    const QRect ten = grid->cellRect(3, 0);
    EXPECT_NE(test::ColorAt(*grid->viewport(), QPoint(ten.left() + 3, ten.top() - 1)), ToQColor(kHeadingBack));
    EXPECT_EQ(test::ColorAt(*grid->viewport(), grid->cellRect(12, 5).center()), ToQColor(kWeekendBack));

    // The list, sorted by date, with one bold cell.
    auto* lv = static_cast<ListViewWidget*>(window.viewOf(form.lvDiary));
    const QAbstractItemModel* rows = lv->itemView()->model();
    EXPECT_EQ(rows->index(1, 4).data().toString(), QStringLiteral("Team meeting"));
    EXPECT_TRUE(rows->index(1, 4).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(rows->index(1, 3).data(Qt::FontRole).value<QFont>().bold());
}

}  // namespace
}  // namespace orbidex
