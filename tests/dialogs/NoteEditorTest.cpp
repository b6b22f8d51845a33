// The note editor as the user works in it: the note's colour, the properties strip,
// the pop-up menu's edit commands and dropped files.
#include "DialogFixture.h"
#include "dialogs/frmEditNote.h"
#include "pim/cNote.h"

using namespace orbidex;

class NoteEditorTest : public orbidex::test::DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        gStrIniFile = Data("orbidex.ini");
        WriteBytes(gStrIniFile, "");  // the window's size is written only into an existing settings file
        MakeFolder(Data("notes"));
        WriteBytes(Data("notes\\Stamps.txt"), "Stamps\r\n");
        WriteBytes(Data("a.txt"), "alpha");
    }
    /// Opens the editor on a note coloured `colour` whose text is "Stamps".
    void Open(const std::string& colour) {
        gCurrentNote.Filename = "Stamps.txt";
        gCurrentNote.Color = colour;
        form.Load();
    }

    frmEditNote form;
};

TEST_F(NoteEditorTest, TheTextTakesThePaleColourOfTheNoteWhateverItsSpelling) {
    for (const auto& [colour, back] : std::vector<std::pair<std::string, OleColor>>{
             {"yellow", 0xC0FFFFU}, {"  pink ", 0xFFC0FFU}, {"none", vbWindowBackground}}) {
        frmEditNote fresh;
        gCurrentNote.Color = colour;
        fresh.Load();
        EXPECT_EQ(fresh.txtClip.BackColor(), back) << colour;
        EXPECT_EQ(fresh.cmbCategory.BackColor(), back) << colour;
    }
}

TEST_F(NoteEditorTest, ThePropertiesGrowALowWindowWhichKeepsItsSizeForTheNextNote) {
    for (const auto& [height, grown] : {std::pair{5400L, 6795L}, {8000L, 8000L}}) {
        Open("Red");
        form.Move(0, 0, 7200, height);
        form.chkProperties.UserClick();
        EXPECT_EQ(form.txtClip.Top(), form.frameProperties.Top() + form.frameProperties.Height() + 50);
        EXPECT_EQ(form.txtClip.Top() + form.txtClip.Height(), grown) << "the text fills the window";
        form.chkProperties.UserClick();
        EXPECT_EQ(form.txtClip.Top(), form.frameProperties.Top());
        EXPECT_EQ(form.Height(), grown) << "no smaller again";
        form.UserClose();
        EXPECT_TRUE(glbConfig.dialogCancelled);
        EXPECT_NE(ReadBytes(gStrIniFile).find("Height=" + CStr(grown) + "\r\n"), std::string::npos);
    }
}

TEST_F(NoteEditorTest, TheRightButtonsMenuEditsTheTextAndDropsAddToIt) {
    Open("White");
    Menu* shown = nullptr;
    form.SetPopupHandler([&shown](Menu& menu) { shown = &menu; });
    form.txtClip.UserMouseDown(vbRightButton, 0, 100, 100);
    EXPECT_EQ(shown, &form.popupClip);
    form.txtClip.UserSelect(0, 3);
    form.mnuClipCut.UserClick();
    form.txtClip.UserSelect(6, 0);
    form.mnuClipPaste.UserClick();
    EXPECT_EQ(form.txtClip.Text(), "mps\r\nSta");
    form.mnuClipSelectAndCopy.UserClick();
    EXPECT_EQ(platform_.ClipboardText(), "mps\r\nSta");

    form.txtClip.UserOLEDragDrop(DataObject{{}, "Ring Ann"});
    EXPECT_EQ(form.txtClip.Text(), "mps\r\nSta\r\nRing Ann");
    platform_.QueueMsgBoxAnswer(vbYes);
    form.txtClip.UserOLEDragDrop(DataObject{{Data("a.txt"), Data("a.txt")}, ""});
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"Copy contents from 2 files into Textbox?"});
    const std::string file = "\r\n" + Data("a.txt") + "\r\nalpha\r\n";
    EXPECT_EQ(form.txtClip.Text(), "mps\r\nSta\r\nRing Ann" + file + file);
    form.mnuClipClear.UserClick();
    form.txtClip.UserOLEDragDrop(DataObject{{Data("a.txt")}, ""});
    EXPECT_EQ(form.txtClip.Text(), "alpha") << "one file on an empty note is its text";
}
