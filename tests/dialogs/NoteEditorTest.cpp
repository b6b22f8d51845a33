// The note editor as the user works in it: the note's colour, the properties strip,
// saving to the body file, the pop-up menu's edit commands and dropped files.
#include "DialogFixture.h"
#include "dialogs/frmEditNote.h"
#include "pim/cNote.h"

using namespace orbidex;

class NoteEditorTest : public orbidex::test::DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        gStrIniFile = Data("orbidex.ini");
        MakeFolder(Data("notes"));
        WriteBytes(Data("notes\\Old name.txt"), "Old name\r\nBuy stamps\r\n");
    }
    /// Opens the editor on a note of the list, coloured `colour`.
    void Open(const std::string& colour) {
        gCurrentNote = cNote();
        gCurrentNote.ID = "N200406010001";
        gCurrentNote.DateCreated = "20040601";
        gCurrentNote.Filename = "Old name.txt";
        gCurrentNote.title = "Old name";
        gCurrentNote.Color = colour;
        form.Load();
    }
    void Type(const std::string& text) { form.txtClip.UserEdit({TextRun{text, {}}}, static_cast<long>(text.size())); }

    frmEditNote form;
};

TEST_F(NoteEditorTest, TheTextTakesThePaleColourOfTheNoteWhateverItsSpelling) {
    for (const auto& [colour, back] : std::vector<std::pair<std::string, OleColor>>{
             {"yellow", 0xC0FFFFU}, {"  pink ", 0xFFC0FFU}, {"none", vbWindowBackground}, {"", vbWindowBackground}}) {
        frmEditNote fresh;
        gCurrentNote.Color = colour;
        gCurrentNote.Filename = "Old name.txt";
        fresh.Load();
        EXPECT_EQ(fresh.txtClip.BackColor(), back) << colour;
        EXPECT_EQ(fresh.cmbCategory.BackColor(), back) << colour;
        EXPECT_EQ(fresh.txtClip.Text(), "Old name\r\nBuy stamps\r\n");
    }
    Open("Green");
    form.cmbColor.UserSelect(5);
    EXPECT_EQ(form.txtClip.BackColor(), 0xFFFFC0U) << "pale blue";
}

TEST_F(NoteEditorTest, ThePropertiesGrowALowWindowWhichStaysGrownWhenTheyGo) {
    for (const auto& [height, shown, hidden] : {std::tuple{5400L, 6795L, 6795L}, {8000L, 8000L, 8000L}}) {
        Open("Red");
        form.Move(0, 0, 7200, height);
        form.chkProperties.UserClick();
        EXPECT_TRUE(form.frameProperties.Visible());
        EXPECT_EQ(form.txtClip.Top(), form.frameProperties.Top() + form.frameProperties.Height() + 50);
        EXPECT_EQ(form.Height(), shown);
        EXPECT_EQ(form.txtClip.Top() + form.txtClip.Height(), shown) << "the text fills the window";
        form.chkProperties.UserClick();
        EXPECT_FALSE(form.frameProperties.Visible());
        EXPECT_EQ(form.txtClip.Top(), form.frameProperties.Top());
        EXPECT_EQ(form.Height(), hidden);
        form.UserClose();
    }
}

TEST_F(NoteEditorTest, SaveWritesTheBodyRenamesTheNoteAndKeepsTheWindowsPlace) {
    Open("Blue         ");
    EXPECT_TRUE(glbConfig.dialogCancelled) << "until Save and Close";
    EXPECT_EQ(form.lbl(5).Caption() + " " + form.lbl(6).Caption(), "01/06/2004 ");
    Type("Post office\r\nBuy stamps and envelopes");
    form.cmbCategory.UserEdit("Errands");
    form.cmdSaveClose.UserClick();
    EXPECT_TRUE(form.IsUnloaded());
    EXPECT_FALSE(glbConfig.dialogCancelled);
    EXPECT_EQ(gCurrentNote.FormatRecordAsCSV("|", ""),
              "N200406010001|20040601|20040605||Blue         |Errands|Old name.txt|Post office |");
    EXPECT_EQ(ReadBytes(Data("notes\\Old name.txt")), "Post office\r\nBuy stamps and envelopes\r\n");
    EXPECT_NE(ReadBytes(gStrIniFile).find("[frmEditNote]\r\nHeight=5400\r\nWidth=7200\r\n"), std::string::npos);

    // Closed by the window's button: nothing is saved.
    Open("Blue         ");
    Type("Scribble");
    form.UserClose();
    EXPECT_TRUE(glbConfig.dialogCancelled);
    EXPECT_EQ(ReadBytes(Data("notes\\Old name.txt")), "Post office\r\nBuy stamps and envelopes\r\n");
}

TEST_F(NoteEditorTest, TheRightButtonsMenuCutsCopiesPastesAndClears) {
    Open("White");
    Menu* shown = nullptr;
    form.SetPopupHandler([&shown](Menu& menu) { shown = &menu; });
    form.txtClip.UserMouseDown(vbLeftButton, 0, 100, 100);
    EXPECT_EQ(shown, nullptr);
    form.txtClip.UserMouseDown(vbRightButton, 0, 100, 100);
    ASSERT_EQ(shown, &form.popupClip);

    form.mnuClipSelectAndCopy.UserClick();
    EXPECT_EQ(platform_.ClipboardText(), "Old name\r\nBuy stamps\r\n");
    form.txtClip.UserSelect(0, 10);
    form.mnuClipCut.UserClick();
    EXPECT_EQ(platform_.ClipboardText(), "Old name\r\n");
    EXPECT_EQ(form.txtClip.Text(), "Buy stamps\r\n");
    form.txtClip.UserSelect(12, 0);
    form.mnuClipPaste.UserClick();
    EXPECT_EQ(form.txtClip.Text(), "Buy stamps\r\nOld name\r\n");
    form.mnuClipClear.UserClick();
    EXPECT_EQ(form.txtClip.Text(), "");
}

TEST_F(NoteEditorTest, DroppedTextAndFilesAreAddedAfterALineBreak) {
    WriteBytes(Data("a.txt"), "alpha");
    WriteBytes(Data("b.txt"), "beta");
    Open("White");
    form.txtClip.UserOLEDragDrop(DataObject{{}, "Ring Ann"});
    EXPECT_EQ(form.txtClip.Text(), "Old name\r\nBuy stamps\r\n\r\nRing Ann");

    const DataObject two{{Data("a.txt"), Data("b.txt")}, ""};
    platform_.QueueMsgBoxAnswer(vbNo);
    form.txtClip.UserOLEDragDrop(two);
    EXPECT_EQ(platform_.Transcript().back().title, "Pasting Text from Files");
    EXPECT_EQ(platform_.Transcript().back().text, "Copy contents from 2 files into Textbox?");
    EXPECT_EQ(form.txtClip.Text(), "Old name\r\nBuy stamps\r\n\r\nRing Ann");
    form.mnuClipClear.UserClick();
    platform_.QueueMsgBoxAnswer(vbYes);
    form.txtClip.UserOLEDragDrop(two);
    EXPECT_EQ(form.txtClip.Text(), "\r\n" + Data("a.txt") + "\r\nalpha\r\n\r\n" + Data("b.txt") + "\r\nbeta\r\n");

    form.mnuClipClear.UserClick();
    form.txtClip.UserOLEDragDrop(DataObject{{Data("a.txt")}, ""});
    EXPECT_EQ(form.txtClip.Text(), "alpha") << "one file on an empty note is its text";
}
