// The scratch pad as a user keeps it: tabs added, typed into and removed, the
// program started again, read back from scratch.ini and the tabs' files.
#include <filesystem>
#include <functional>

#include "ProgramFixture.h"
#include "accessories/ScratchTabs.h"
#include "accessories/frmClipboard.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "screen/clsDiaryCommand.h"

using namespace orbidex;

namespace {

const std::string kWelcome =
    "Welcome to the Clipboard!\r\nThis is a simple way to jot down notes without having to save\r\n"
    "them as files, and choose directories.\r\nJust type some stuff, or paste, or drag and drop from another\r\n"
    "application and the notes stay there until you delete them!\r\nYou can add extra tabs and rename them, by "
    "right-clicking on\r\nany of the tabs.\r\n";
const std::string kHeader = "; SCRATCH.INI created by fred on Sat,05-Jun-2004 09:30:12\r\n[TabDefinitions]\r\n\r\n";

}  // namespace

class ScratchPadTest : public orbidex::test::ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        platform_.AllowUnscriptedForms(true);
    }
    /// The scratch pad as the Tools menu opens it.
    frmClipboard& Open() {
        glbCmd.ShowScratchPad();
        return ScratchPad();
    }
    /// Closes the window and forgets it, as the end of the program does.
    void CloseAndRestart() {
        ASSERT_TRUE(ScratchPad().UserClose());
        ResetScratchPad();
    }
    static void Type(frmClipboard& pad, const std::string& text) {
        pad.txtClip.UserEdit({TextRun{text, {}}}, static_cast<long>(text.size()));
    }
    static void Choose(frmClipboard& pad, long tab) { pad.tabClip.UserClickTab(pad.tabClip.Tabs(tab)); }
    std::string File(const std::string& name) const { return ReadBytes(Stored(name)); }
    std::string Line(const std::string& name, const std::string& file) const {
        return name + "," + Stored(file) + ",FREE,\r\n";
    }
};

TEST_F(ScratchPadTest, TheListOfTabsReadsTheLinesAfterItsHeading) {
    const std::string text =
        "; comment\r\nBefore,heading.tmp\r\n[tabdefinitions]\r\n\r\n  Shopping , C:\\a.tmp , LOCKED ,\r\n"
        ",nameless.tmp\r\nNo file\r\nMany,b.tmp,APPEND,1,2,3,4,5,6,7,8,9\r\n";
    EXPECT_EQ(ReadScratchTabs(text),
              (std::vector<ScratchTab>{
                  {"Shopping", "C:\\a.tmp", "LOCKED"}, {"No file", "", "FREE"}, {"Many", "b.tmp", "APPEND"}}));
    EXPECT_TRUE(ReadScratchTabs("Shopping,a.tmp,FREE,\r\n").empty()) << "no heading";
    EXPECT_EQ(ScratchIniText({{"A", "a.tmp", "LOCKED"}}, "fred", DateSerial(2004, 6, 5) + TimeSerial(9, 30, 12)),
              kHeader + "A,a.tmp,FREE,\r\n");
}

TEST_F(ScratchPadTest, TabsLiveUntilRemovedWithoutASavingStep) {
    frmClipboard& pad = Open();
    EXPECT_EQ(pad.Caption(), "Scrap Paper for fred");
    ASSERT_EQ(pad.tabClip.Tabs.Count(), 3);
    EXPECT_EQ(pad.tabClip.Tabs(1).Caption(), "Scratch Pad 1");
    EXPECT_EQ(pad.txtClip.Text(), kWelcome) << "a first start";
    EXPECT_FALSE(pad.mnuClipSendToVimmer.Visible);
    // The text's menu is the note editor's; loading and saving a file do nothing there.
    std::vector<std::string> entries;
    for (const Menu* entry : pad.popupClip.Items()) entries.push_back(entry->Caption());
    EXPECT_EQ(entries, (std::vector<std::string>{"Undo", "Cut", "Copy", "Paste", "Select All", "Select All and Copy",
                                                 "Send Text back to Vimmer Window", "Get Vimmer Window contents",
                                                 "Get text for current event from Diary", "Clear this Clipboard",
                                                 "Load a Text File", "Save this Clipboard as a File"}));
    pad.mnuClipLoad.UserClick();
    pad.mnuClipSave.UserClick();
    EXPECT_EQ(pad.txtClip.Text(), kWelcome);
    EXPECT_TRUE(platform_.Transcript().empty());

    // Three tabs, each typed into as it is added; a comma cannot end a tab's name early.
    for (const char* name : {"Shopping", "Work, ideas", "Books"}) {
        platform_.QueueInputAnswer(name);
        pad.popupTabsAdd_Click();
        Type(pad, std::string(name) + " list\r\n");
    }
    platform_.QueueInputAnswer("");
    pad.popupTabsAdd_Click();
    EXPECT_EQ(pad.tabClip.Tabs.Count(), 6) << "an empty answer adds nothing";
    // The last text reaches its file a second after the typing, with nothing saved by hand.
    EXPECT_TRUE(pad.tmrSave.Running());
    pad.tmrSave.Tick();
    EXPECT_EQ(File("~tab6.tmp"), "Books list\r\n");
    EXPECT_FALSE(pad.tmrSave.Running());

    CloseAndRestart();
    const std::string allTabs = kHeader + Line("Scratch Pad 1", "~scratchpad001.tmp") +
                                Line("Scratch Pad 2", "~scratchpad002.tmp") +
                                Line("Scratch Pad 3", "~scratchpad003.tmp") + Line("Shopping", "~tab4.tmp") +
                                Line("Work  ideas", "~tab5.tmp") + Line("Books", "~tab6.tmp");
    EXPECT_EQ(File("scratch.ini"), allTabs);
    EXPECT_EQ(File("~scratchpad001.tmp"), kWelcome);
    EXPECT_EQ(File("~tab4.tmp"), "Shopping list\r\n");
    EXPECT_EQ(File("~tab5.tmp"), "Work, ideas list\r\n");

    // The program started again: each tab shows what it held.
    frmClipboard& again = Open();
    EXPECT_EQ(again.tabClip.Tabs(5).Caption(), "Work  ideas");
    EXPECT_EQ(again.txtClip.Text(), kWelcome) << "the first tab's file";
    Choose(again, 5);
    EXPECT_EQ(again.txtClip.Text(), "Work, ideas list\r\n");
    again.popupTabsRemove_Click();
    EXPECT_EQ(again.tabClip.Tabs.Count(), 5);
    EXPECT_EQ(again.tabClip.SelectedItem()->Caption(), "Books");
    EXPECT_EQ(again.txtClip.Text(), "Books list\r\n");
    CloseAndRestart();

    EXPECT_EQ(File("scratch.ini"), kHeader + Line("Scratch Pad 1", "~scratchpad001.tmp") +
                                       Line("Scratch Pad 2", "~scratchpad002.tmp") +
                                       Line("Scratch Pad 3", "~scratchpad003.tmp") + Line("Shopping", "~tab4.tmp") +
                                       Line("Books", "~tab6.tmp"));
    EXPECT_EQ(File("~tab5.tmp"), "Work, ideas list\r\n") << "a removed tab's text stays on the disk";
    EXPECT_EQ(File("~tab6.tmp"), "Books list\r\n");
    EXPECT_EQ(File("~scratchpad002.tmp"), "") << "a tab shown and left empty";

    // A tab added now takes a file no tab had, not the removed tab's.
    Open();
    platform_.QueueInputAnswer("Later");
    ScratchPad().popupTabsAdd_Click();
    EXPECT_EQ(ScratchPad().ScratchTabs().back().file, Stored("~tab7.tmp"));
}

TEST_F(ScratchPadTest, ALockedTabIsGreyAndRefusesTypingAndEveryModeIsSavedAsFree) {
    WriteBytes(Stored("scratch.ini"), "[TabDefinitions]\r\nNotes,notes.tmp,LOCKED,\r\nLog,log.tmp,APPEND,\r\nNew\r\n");
    WriteBytes(Stored("notes.tmp"), "Keep this");
    frmClipboard& pad = Open();
    EXPECT_EQ(pad.txtClip.Text(), "Keep this") << "no welcome once the list exists";
    EXPECT_EQ(pad.txtClip.BackColor(), vbButtonFace);
    Type(pad, "Lost");
    EXPECT_EQ(pad.txtClip.Text(), "Keep this");
    Choose(pad, 2);
    EXPECT_EQ(pad.txtClip.BackColor(), vbWhite);
    Choose(pad, 3);
    EXPECT_EQ(pad.txtClip.BackColor(), OleColor{0xD8FFFF});
    CloseAndRestart();
    // A file named without its folder stays so: it counts from the program's folder.
    EXPECT_EQ(File("scratch.ini"),
              kHeader + "Notes,notes.tmp,FREE,\r\nLog,log.tmp,FREE,\r\n" + Line("New", "~tab3.tmp"));
    EXPECT_EQ(File("notes.tmp"), "Keep this");
}

TEST_F(ScratchPadTest, ATextThatCantBeWrittenKeepsItsTabAndTheWindow) {
    WriteBytes(Stored("scratch.ini"), "[TabDefinitions]\r\nStuck,stuck.tmp,FREE,\r\nOther,other.tmp,FREE,\r\n");
    MakeFolder(Stored("stuck.tmp"));  // where the tab's file should be
    WriteBytes(Stored("other.tmp"), "Other text");
    frmClipboard& pad = Open();
    Type(pad, "Typed");
    const std::string refused = "Error in frmClipboard saving stuck.tmp Error=75 = Path/File access error";
    // Each way of leaving the tab is told of the failure and leaves the text where it is.
    const struct {
        const char* what;
        std::function<void()> leave;
    } cases[] = {
        {"another tab chosen", [&] { Choose(pad, 2); }},
        {"the tab removed", [&] { pad.popupTabsRemove_Click(); }},
        {"the window closed", [&] { EXPECT_FALSE(pad.UserClose()); }},
    };
    for (const auto& c : cases) {
        platform_.ClearTranscript();
        c.leave();
        EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{refused}) << c.what;
        EXPECT_EQ(pad.tabClip.SelectedItem()->Caption(), "Stuck") << c.what;
        EXPECT_EQ(pad.tabClip.Tabs.Count(), 2) << c.what;
        EXPECT_EQ(pad.txtClip.Text(), "Typed") << c.what;
    }
    EXPECT_EQ(File("other.tmp"), "Other text");
}

TEST_F(ScratchPadTest, ATabWhoseFileCantBeReadIsNotWrittenOverUntilSomethingIsTyped) {
    WriteBytes(Stored("scratch.ini"), "[TabDefinitions]\r\nUnread,unread.tmp,FREE,\r\nOther,other.tmp,FREE,\r\n");
    WriteBytes(Stored("other.tmp"), "Other text");
    // The file is there, but reading it fails (and so does writing to where it lies).
    const std::filesystem::path unread = ToNativePath(Stored("unread.tmp"));
    std::filesystem::create_symlink("/proc/self/mem", unread);
    frmClipboard& pad = Open();
    EXPECT_EQ(pad.txtClip.Text(), "");
    Choose(pad, 2);
    EXPECT_EQ(pad.txtClip.Text(), "Other text");
    Choose(pad, 1);
    CloseAndRestart();
    EXPECT_TRUE(platform_.MessageTexts().empty()) << "leaving the tab and closing the window write nothing to it";
    EXPECT_TRUE(std::filesystem::is_symlink(unread));
    EXPECT_EQ(File("other.tmp"), "Other text");

    frmClipboard& again = Open();
    Type(again, "Typed");
    EXPECT_FALSE(again.UserClose()) << "what is typed is written";
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"Error in frmClipboard saving unread.tmp Error=76 = Path not found"});
}
