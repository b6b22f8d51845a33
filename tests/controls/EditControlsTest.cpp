// Text boxes, rich text, tick and option boxes, date pickers and the month calendar.
#include <gtest/gtest.h>

#include "ProgramFixture.h"
#include "controls/CheckBox.h"
#include "controls/DatePicker.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/MonthView.h"
#include "controls/OptionButton.h"
#include "controls/RichTextBox.h"
#include "controls/TextBox.h"
#include "foundation/VbDate.h"

namespace orbidex {
namespace {

TEST(TextBoxTest, EveryChangeOfTheTextRaisesChangeAndSelTextReplacesTheSelection) {
    TextBox txt("txtTalk");
    std::vector<std::string> changes;
    txt.onChange = [&] { changes.push_back(txt.Text); };
    txt.Text = "Hello world";
    txt.Text = "Hello world";  // the same text: no change
    txt.SelStart = 6;
    txt.SelLength = 5;
    EXPECT_EQ(txt.SelText, "world");
    txt.SelText = "there";
    EXPECT_EQ(txt.Text, "Hello there");
    EXPECT_EQ(txt.SelStart, 11);
    EXPECT_EQ(txt.SelLength, 0);
    txt.Text += "\r\n";
    EXPECT_EQ(changes, (std::vector<std::string>{"Hello world", "Hello there", "Hello there\r\n"}));
    EXPECT_EQ(txt.SelStart, 0) << "assigning the text puts the caret at its start";

    txt.SelStart = 99;  // beyond the end: at the end
    EXPECT_EQ(txt.SelStart, 13);

    txt.UserEdit("Hi", 2);
    EXPECT_EQ(txt.SelStart, 2) << "typing leaves the caret where the user put it";
    txt.Locked = true;
    txt.UserEdit("Nope", 4);
    EXPECT_EQ(txt.Text, "Hi");
}

TEST(RichTextBoxTest, SelectionFormatsApplyToTheSelectionOrToTextAddedAtTheCaret) {
    RichTextBox rtf("txtChat");
    rtf.Text = "Send a Message";
    rtf.SelStart = 0;
    rtf.SelLength = 4;
    rtf.SelColor = vbBlue;
    rtf.SelBold = true;

    // Nothing selected: colour and size go to what is added next.
    rtf.SelStart = static_cast<long>(rtf.Text().size());
    rtf.SelColor = vbRed;
    rtf.SelFontSize = 12;
    rtf.SelText = "\r\nfred: hi";

    const std::vector<TextRun> runs = rtf.Runs();
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].text, "Send");
    EXPECT_EQ(runs[0].format.color, vbBlue);
    EXPECT_TRUE(runs[0].format.bold);
    EXPECT_EQ(runs[1].text, " a Message");
    EXPECT_EQ(runs[1].format.color, vbWindowText);
    EXPECT_EQ(runs[2].text, "\r\nfred: hi");
    EXPECT_EQ(runs[2].format.color, vbRed);
    EXPECT_EQ(runs[2].format.size, 12);
    EXPECT_FALSE(runs[2].format.bold);

    rtf.SelStart = 2;
    rtf.SelLength = 0;
    EXPECT_EQ(rtf.SelColor, vbBlue) << "the caret takes the format of what stands before it";

    rtf.Text = "plain";  // a new text has one format again
    ASSERT_EQ(rtf.Runs().size(), 1u);
    EXPECT_EQ(rtf.Runs()[0].format.color, rtf.ForeColor);
}

class RichTextBoxFileTest : public test::ProgramFixture {};

TEST_F(RichTextBoxFileTest, PasteTakesTheClipboardAndFilesLoadAsPlainText) {
    RichTextBox rtf;
    platform_.SetClipboardText("pasted");
    rtf.Text = "ab";
    rtf.SelStart = 1;
    rtf.SelColor = vbGreen;
    rtf.Paste();
    EXPECT_EQ(rtf.Text, "apastedb");
    EXPECT_EQ(rtf.Runs()[1].format.color, vbGreen);

    EXPECT_TRUE(rtf.SaveFile(Stored("data\\~tab1.tmp"), rtfText));
    EXPECT_EQ(ReadBytes(Stored("data\\~tab1.tmp")), "apastedb");
    WriteBytes(Stored("data\\~tab2.tmp"), "line 1\r\nline 2");
    EXPECT_TRUE(rtf.LoadFile(Stored("data\\~tab2.tmp"), rtfText));
    EXPECT_EQ(rtf.Text, "line 1\r\nline 2");
    EXPECT_FALSE(rtf.LoadFile(Stored("data\\none.tmp"), rtfText));
    EXPECT_EQ(rtf.Text, "line 1\r\nline 2");
}

TEST(CheckBoxTest, EachChangeOfTheValueClicks) {
    CheckBox chk("chkRemind");
    std::vector<int> clicks;
    chk.onClick = [&] { clicks.push_back(chk.Value); };
    chk.Value = vbChecked;  // by the program
    chk.Value = vbChecked;
    chk.UserClick();
    chk.Value = vbGrayed;
    chk.UserClick();
    chk.Enabled = false;
    chk.UserClick();
    EXPECT_EQ(clicks, (std::vector<int>{vbChecked, vbUnchecked, vbGrayed, vbChecked}));
}

class TwoFrames : public Form {
public:
    TwoFrames() : Form("frmTwo") {
        for (auto* option : {&optA, &optB}) option->SetContainer(&frameFinish);
    }
    Frame frameFinish{this, "frameFinish"};
    OptionButton optA{this, "optA"};
    OptionButton optB{this, "optB"};
    OptionButton optOther{this, "optOther"};  // on the form itself
};

TEST(OptionButtonTest, ChoosingOneClearsTheOthersOfItsContainerAndClicks) {
    TwoFrames form;
    int clicksB = 0;
    form.optB.onClick = [&] { ++clicksB; };
    form.optOther.Value = true;
    form.optA.Value = true;
    form.optB.UserClick();
    EXPECT_FALSE(form.optA.Value);
    EXPECT_TRUE(form.optB.Value);
    EXPECT_TRUE(form.optOther.Value) << "another container's button stays";
    form.optB.UserClick();  // chosen already
    EXPECT_EQ(clicksB, 1);
}

TEST(DatePickerTest, PickingADateKeepsTheTimeAndPickingATimeKeepsTheDate) {
    DatePicker date("dtPickDate");
    int changes = 0;
    date.onChange = [&] { ++changes; };
    date.Value = DateSerial(2004, 6, 5) + 0.7;  // an afternoon value
    date.UserPickDate(DateSerial(2004, 7, 1));
    EXPECT_DOUBLE_EQ(date.Value, DateSerial(2004, 7, 1) + 0.7);

    DatePicker time("dtPickTime");
    time.Format = dtpTime;
    time.Value = DateSerial(2004, 6, 5) + TimeSerial(9, 0, 0);
    time.UserPickTime(TimeSerial(14, 30, 0));
    EXPECT_DOUBLE_EQ(time.Value, DateSerial(2004, 6, 5) + TimeSerial(14, 30, 0));
    EXPECT_EQ(time.DisplayText(), "2:30:00 PM");

    // Before 1900 the time stays a positive fraction: -1.25 is 29 Dec 1899 06:00.
    date.Value = -1.25;
    date.UserPickDate(-3);
    EXPECT_DOUBLE_EQ(date.Value, -3.25);
    date.Value = 5;  // by the program: no Change
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(date.DisplayText(), "04/01/1900");
}

TEST(MonthViewTest, TheValueIsADayAndTheWholeSelectionUnlessARangeIsChosen) {
    MonthView mv("MonthView1");
    std::vector<VbDate> clicked;
    mv.onDateClick = [&](VbDate d) { clicked.push_back(d); };
    mv.Value = DateSerial(2004, 6, 5) + 0.75;
    EXPECT_EQ(mv.Value, DateSerial(2004, 6, 5));
    EXPECT_EQ(mv.SelStart, mv.Value);
    EXPECT_EQ(mv.SelEnd, mv.Value);

    mv.UserClickDate(DateSerial(2004, 6, 9));
    EXPECT_EQ(clicked, (std::vector<VbDate>{DateSerial(2004, 6, 9)}));
    EXPECT_EQ(mv.SelEnd, DateSerial(2004, 6, 9));

    mv.UserSelectRange(DateSerial(2004, 6, 14), DateSerial(2004, 6, 10));
    EXPECT_EQ(mv.SelEnd, mv.SelStart) << "one day unless MultiSelect";
    mv.MultiSelect = true;
    mv.UserSelectRange(DateSerial(2004, 6, 14), DateSerial(2004, 6, 10));
    EXPECT_EQ(mv.Value, DateSerial(2004, 6, 10));
    EXPECT_EQ(mv.SelEnd - mv.Value, 4);
    mv.UserSelectRange(DateSerial(2004, 6, 1), DateSerial(2004, 6, 30));
    EXPECT_EQ(mv.SelEnd, DateSerial(2004, 6, 7)) << "at most MaxSelCount days";

    mv.SetDayBold(DateSerial(2004, 6, 5) + 0.5, true);
    EXPECT_TRUE(mv.DayBold(DateSerial(2004, 6, 5)));
    EXPECT_FALSE(mv.DayBold(DateSerial(2004, 6, 6)));
}

}  // namespace
}  // namespace orbidex
