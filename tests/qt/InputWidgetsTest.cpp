// Text boxes, rich text, tick and option boxes, lists, buttons, date pickers, the
// month calendar, tabs and labels: the model shows, and what the user does reaches it.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

#include "ViewTestSupport.h"
#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/KeyCodes.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/MonthView.h"
#include "controls/OptionButton.h"
#include "controls/RichTextBox.h"
#include "controls/ScrollBar.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "foundation/VbDate.h"
#include "qt/views/CheckBoxWidget.h"
#include "qt/views/ComboBoxWidget.h"
#include "qt/views/CommandButtonWidget.h"
#include "qt/views/DatePickerWidget.h"
#include "qt/views/LabelWidget.h"
#include "qt/views/MonthCalendar.h"
#include "qt/views/ListBoxWidget.h"
#include "qt/views/MonthViewWidget.h"
#include "qt/views/OptionButtonWidget.h"
#include "qt/views/RichTextBoxWidget.h"
#include "qt/views/ScrollBarWidget.h"
#include "qt/views/TabStripWidget.h"
#include "qt/views/TextBoxWidget.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {
namespace {

using test::Shown;

TEST(TextBoxWidgetTest, TypingReachesTheModelAndTheModelsTextShows) {
    TextBox txt("txtTitle");
    auto view = Shown<TextBoxWidget>(txt);
    int changes = 0;
    txt.onChange = [&] { ++changes; };
    txt.onKeyPress = [](int& key) {
        if (key == 'x') key = 0;  // the handler refuses x
    };
    QTest::keyClicks(view->lineEdit(), "axb");
    EXPECT_EQ(txt.Text, "ab");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(txt.SelStart, 2);

    txt.Text = "Caf\xE9";  // Windows-1252
    EXPECT_EQ(view->lineEdit()->text(), QString::fromUtf8("Caf\xC3\xA9"));
    txt.SelStart = 1;
    txt.SelLength = 2;
    EXPECT_EQ(view->lineEdit()->selectedText(), QStringLiteral("af"));
}

TEST(TextBoxWidgetTest, AMultiLineBoxKeepsCrLfAndReportsEnter) {
    TextBox txt("txtTalk");
    txt.MultiLine = true;
    auto view = Shown<TextBoxWidget>(txt);
    ASSERT_NE(view->plainTextEdit(), nullptr);
    std::vector<int> keys;
    txt.onKeyDown = [&](int& code, int) { keys.push_back(code); };
    QTest::keyClicks(view->plainTextEdit(), "hi");
    QTest::keyClick(view->plainTextEdit(), Qt::Key_Return);
    QTest::keyClicks(view->plainTextEdit(), "there");
    EXPECT_EQ(txt.Text, "hi\r\nthere");
    EXPECT_EQ(txt.SelStart, 9);
    EXPECT_EQ(keys[2], vbKeyReturn);
    txt.Text = "one\r\ntwo";
    EXPECT_EQ(view->plainTextEdit()->toPlainText(), QStringLiteral("one\ntwo"));
}

TEST(RichTextBoxWidgetTest, EachStretchKeepsItsColourBothWays) {
    RichTextBox rtf("txtChat");
    auto view = Shown<RichTextBoxWidget>(rtf);
    rtf.SelColor = vbBlue;
    rtf.SelText = "Send a Message\r\n";
    rtf.SelColor = vbRed;
    rtf.SelText = "fred: hi";
    QTextEdit* edit = view->textEdit();
    EXPECT_EQ(edit->toPlainText(), QStringLiteral("Send a Message\nfred: hi"));
    QTextCursor cursor(edit->document());
    cursor.setPosition(3);
    EXPECT_EQ(cursor.charFormat().foreground().color(), QColor(Qt::blue));
    cursor.setPosition(18);
    EXPECT_EQ(cursor.charFormat().foreground().color(), QColor(Qt::red));

    edit->moveCursor(QTextCursor::End);
    QTest::keyClicks(edit, "!!");
    EXPECT_EQ(rtf.Text, "Send a Message\r\nfred: hi!!");
    EXPECT_EQ(rtf.Runs().back().format.color, vbRed) << "typed text goes on in the colour before it";
    EXPECT_EQ(rtf.SelStart, static_cast<long>(rtf.Text().size()));
}

class ChoicesForm : public Form {
public:
    ChoicesForm() : Form("frmChoices") {}
    CheckBox chkRemind{this, "chkRemind"};
    OptionButton optA{this, "optA"};
    OptionButton optB{this, "optB"};
};

TEST(ChoiceWidgetsTest, TickAndOptionClicksGoThroughTheModel) {
    ChoicesForm form;
    auto check = Shown<CheckBoxWidget>(form.chkRemind);
    auto a = Shown<OptionButtonWidget>(form.optA);
    auto b = Shown<OptionButtonWidget>(form.optB);
    std::vector<int> clicks;
    form.chkRemind.onClick = [&] { clicks.push_back(form.chkRemind.Value); };

    QTest::mouseClick(check->checkBox(), Qt::LeftButton);
    QTest::mouseClick(check->checkBox(), Qt::LeftButton);
    form.chkRemind.Value = vbGrayed;
    EXPECT_EQ(check->checkBox()->checkState(), Qt::PartiallyChecked);
    QTest::mouseClick(check->checkBox(), Qt::LeftButton);
    EXPECT_EQ(clicks, (std::vector<int>{vbChecked, vbUnchecked, vbGrayed, vbChecked}));
    EXPECT_EQ(check->checkBox()->checkState(), Qt::Checked);

    QTest::mouseClick(a->radioButton(), Qt::LeftButton);
    QTest::mouseClick(b->radioButton(), Qt::LeftButton);
    EXPECT_FALSE(form.optA.Value);
    EXPECT_FALSE(a->radioButton()->isChecked());
    EXPECT_TRUE(b->radioButton()->isChecked());
}

TEST(ListWidgetsTest, ChoosingFromACombinationBoxOrAListClicks) {
    ComboBox combo("cmbReminder");
    for (const char* entry : {"0 minutes", "5 minutes", "15 minutes"}) combo.AddItem(entry);
    combo.Style = vbComboDropdownList;
    combo.ListIndex = 0;
    auto comboView = Shown<ComboBoxWidget>(combo);
    int clicks = 0;
    combo.onClick = [&] { ++clicks; };
    QTest::keyClick(comboView->comboBox(), Qt::Key_Down);
    EXPECT_EQ(combo.ListIndex, 1);
    EXPECT_EQ(combo.Text, "5 minutes");
    EXPECT_EQ(clicks, 1);
    combo.AddItem("30 minutes");
    combo.ListIndex = 3;
    test::ProcessEvents();
    EXPECT_EQ(comboView->comboBox()->currentText(), QStringLiteral("30 minutes"));

    ComboBox editable("cmbLocation");
    auto editView = Shown<ComboBoxWidget>(editable);
    QTest::keyClicks(editView->comboBox()->lineEdit(), "Office");
    EXPECT_EQ(editable.Text, "Office");

    ListBox list("lstUsers");
    list.Style = vbListBoxCheckbox;
    for (const char* user : {"fred", "mary"}) list.AddItem(user);
    auto listView = Shown<ListBoxWidget>(list);
    long ticked = -1;
    list.onItemCheck = [&](long index) { ticked = index; };
    listView->listWidget()->setCurrentRow(1);
    QTest::keyClick(listView->listWidget(), Qt::Key_Space);
    EXPECT_EQ(ticked, 1);
    EXPECT_TRUE(list.Selected(1));
    list.SetSelected(0, true);
    test::ProcessEvents();
    EXPECT_EQ(listView->listWidget()->item(0)->checkState(), Qt::Checked);
}

TEST(ButtonWidgetsTest, ButtonsAndLabelsClickAndDisabledOnesDoNot) {
    CommandButton cmd("cmdOK");
    cmd.Caption = "Save and Close";
    auto button = Shown<CommandButtonWidget>(cmd);
    int clicks = 0;
    cmd.onClick = [&] { ++clicks; };
    QTest::mouseClick(button->button(), Qt::LeftButton);
    cmd.Enabled = false;
    EXPECT_FALSE(button->isEnabled());
    QTest::mouseClick(button->button(), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(button->button()->text(), QStringLiteral("Save and Close"));

    Label lbl("lblUsers");
    lbl.Caption = "3 of 5 Staff displayed";
    lbl.ForeColor = vbRed;
    auto label = Shown<LabelWidget>(lbl);
    int labelClicks = 0;
    lbl.onClick = [&] { ++labelClicks; };
    QTest::mouseClick(label->label(), Qt::LeftButton);
    EXPECT_EQ(labelClicks, 1);
    EXPECT_EQ(label->label()->text(), QStringLiteral("3 of 5 Staff displayed"));
    EXPECT_EQ(label->label()->palette().color(QPalette::WindowText), QColor(Qt::red));
}

TEST(DateWidgetsTest, APickedDayKeepsTheTimeAndAClickedOrDroppedOnDayIsNamed) {
    DatePicker date("dtPickDate");
    date.Value = DateSerial(2004, 6, 5) + TimeSerial(15, 0, 0);
    auto picker = Shown<DatePickerWidget>(date);
    int changes = 0;
    date.onChange = [&] { ++changes; };
    EXPECT_EQ(picker->dateTimeEdit()->date(), QDate(2004, 6, 5));
    picker->dateTimeEdit()->setFocus();
    QTest::keyClick(picker->dateTimeEdit(), Qt::Key_Up);  // the day goes up by one
    EXPECT_DOUBLE_EQ(date.Value, DateSerial(2004, 6, 6) + TimeSerial(15, 0, 0));
    EXPECT_EQ(changes, 1);

    MonthView month("MonthView1");
    month.Value = DateSerial(2004, 6, 5);
    auto calendar = Shown<MonthViewWidget>(month);
    ASSERT_EQ(calendar->calendars().size(), 1u);
    MonthCalendar& days = *calendar->calendars()[0];
    EXPECT_EQ(days.currentDate(), QDate(2004, 6, 5));
    VbDate clicked = 0;
    month.onDateClick = [&](VbDate day) { clicked = day; };
    const QPoint sixteenth = days.dayRect(QDate(2004, 6, 16)).center();
    QTest::mouseClick(&days, Qt::LeftButton, {}, sixteenth);
    EXPECT_EQ(clicked, DateSerial(2004, 6, 16));
    EXPECT_EQ(month.Value, DateSerial(2004, 6, 16));
    EXPECT_EQ(days.currentDate(), QDate(2004, 6, 16));
    EXPECT_EQ(calendar->dateAt(days.mapTo(calendar.get(), sixteenth)), QDate(2004, 6, 16));

    // A control dragged onto a day names the day.
    Label grid("gridDays");
    std::string over;
    VbDate dropped = 0;
    month.onDateDragOver = [&](Control& source, VbDate day) {
        over = source.Name() + " " + FormatDate(day, "mmm-dd-yyyy");
    };
    month.onDateDragDrop = [&](Control&, VbDate day) { dropped = day; };
    EXPECT_TRUE(test::DropControl(grid, days, days.dayRect(QDate(2004, 6, 20)).center()));
    EXPECT_EQ(over, "gridDays Jun-20-2004");
    EXPECT_EQ(dropped, DateSerial(2004, 6, 20));

    month.MonthColumns = 2;
    ASSERT_EQ(calendar->calendars().size(), 2u);
    EXPECT_EQ(calendar->calendars()[1]->monthShown(), 7);
    EXPECT_EQ(calendar->calendars()[1]->yearShown(), 2004);
}

TEST(ScrollBarWidgetTest, TheUsersMovesReachTheModelWithinItsRange) {
    ScrollBar bar("VScroll1");
    bar.Vertical = false;
    bar.Min = 100;
    bar.Max = 1000;
    bar.Value = 255;
    auto view = Shown<ScrollBarWidget>(bar);
    EXPECT_EQ(view->scrollBar()->orientation(), Qt::Horizontal);
    EXPECT_EQ(view->scrollBar()->value(), 255);
    long changed = 0;
    bar.onChange = [&] { changed = bar.Value; };
    view->scrollBar()->setValue(300);
    EXPECT_EQ(changed, 300);
    bar.UserScroll(5000);
    EXPECT_EQ(bar.Value, 1000) << "kept within Max";
}

TEST(TabStripWidgetTest, AClickOnATabSelectsItInTheModel) {
    TabStrip tabs("tabEvent");
    for (const char* tab : {"General", "Reminder", "Advanced"}) tabs.Tabs.Add(tab);
    auto view = Shown<TabStripWidget>(tabs);
    long clicked = 0;
    tabs.onClick = [&] { clicked = tabs.SelectedItem()->Index(); };
    QTest::mouseClick(view->tabBar(), Qt::LeftButton, {}, view->tabBar()->tabRect(2).center());
    EXPECT_EQ(clicked, 3);
    tabs.Tabs(2).Selected = true;
    EXPECT_EQ(view->tabBar()->currentIndex(), 1);
    tabs.Tabs(1).Caption = "Event";
    EXPECT_EQ(view->tabBar()->tabText(0), QStringLiteral("Event"));
}

}  // namespace
}  // namespace orbidex
