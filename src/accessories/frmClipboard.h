#pragma once
// The scratch pad: tabbed scrap paper.  Each tab's text lives in a file of its own
// and stays until the user removes the tab; there is no saving step.  The list of
// tabs is scratch.ini in the program's folder.

#include <string>
#include <vector>

#include "accessories/ScratchTabs.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "controls/Timer.h"

namespace orbidex {

class frmClipboard : public Form {
public:
    frmClipboard();

    void Form_Load() override;
    void Form_Resize() override;
    /// Keeps the shown tab's text, the window's place and the list of tabs.  When the
    /// text can't be written, the window stays open.
    void Form_Unload(int& cancel) override;

    /// Reads the list of tabs; a missing file, or one that names no tab, gives the
    /// three default tabs.
    void LoadScratchTabs(const std::string& iniPath);
    void SaveScratchTabs(const std::string& iniPath);

    /// The shown tab's text goes to its file, the chosen tab's text comes from its.
    /// When the text can't be written, its tab is chosen again.
    void tabClip_Click();
    void tabClip_MouseDown(int button, int shift, long x, long y);
    void txtClip_Change();
    void txtClip_MouseDown(int button, int shift, long x, long y);
    void txtClip_OLEDragDrop(const DataObject& data);
    /// A second after the user's last change, the text is written to its tab's file.
    void tmrSave_Timer();

    void popupTabsAdd_Click();
    void mnuTabsRename_Click();
    void popupTabsRemove_Click();
    void mnuTabDockWindow_Click();
    void mnuClipUndo_Click();
    void mnuClipCut_Click();
    void mnuClipCopy_Click();
    void mnuClipPaste_Click();
    void mnuClipSelectAll_Click();
    void mnuClipSelectAndCopy_Click();
    void mnuClipClear_Click();
    /// Adds the date, time and text of the event selected in the diary.
    void mnuClipGetDiaryCurrentEvent_Click();

    /// The program that opens the window, in capitals: "DIARY", or "VIMMER", the
    /// small note program, for which two more entries of the text's menu are shown.
    std::string LaunchedBy = "DIARY";
    /// The program's folder + "\scratch.ini".
    static std::string IniPath();
    const std::vector<ScratchTab>& ScratchTabs() const { return tabs_; }

    TabStrip tabClip{this, "tabClip"};
    RichTextBox txtClip{this, "txtClip"};
    Timer tmrSave{this, "tmrSave"};

    Menu popupTabs{this, "popupTabs", "Tabs"};
    Menu popupTabsAdd{this, "popupTabsAdd", "&Add Tab...", &popupTabs};
    Menu mnuTabsRename{this, "mnuTabsRename", "&Rename Tab...", &popupTabs};
    Menu popupTabsRemove{this, "popupTabsRemove", "R&emove Tab", &popupTabs};
    Menu mnuTabsSep{this, "mnuTabsSep", "-", &popupTabs};
    Menu mnuTabDockWindow{this, "mnuTabDockWindow", "&Dock Window", &popupTabs};

    Menu popupClip{this, "popupClip", "Clipboard"};
    Menu mnuClipUndo{this, "mnuClipUndo", "Undo", &popupClip};
    Menu mnuClipCut{this, "mnuClipCut", "Cut", &popupClip};
    Menu mnuClipCopy{this, "mnuClipCopy", "Copy", &popupClip};
    Menu mnuClipPaste{this, "mnuClipPaste", "Paste", &popupClip};
    Menu mnuClipSelectAll{this, "mnuClipSelectAll", "Select All", &popupClip};
    Menu mnuClipSelectAndCopy{this, "mnuClipSelectAndCopy", "Select All and Copy", &popupClip};
    Menu mnuClipSendToVimmer{this, "mnuClipSendToVimmer", "Send Text back to Vimmer Window", &popupClip};
    Menu mnuClipGetFromVimmer{this, "mnuClipGetFromVimmer", "Get Vimmer Window contents", &popupClip};
    Menu mnuClipGetDiaryCurrentEvent{this, "mnuClipGetDiaryCurrentEvent", "Get text for current event from Diary",
                                     &popupClip};
    Menu mnuClipClear{this, "mnuClipClear", "Clear this Clipboard", &popupClip};
    // As on the note editor's menu, these two have no handler and do nothing.
    Menu mnuClipLoad{this, "mnuClipLoad", "Load a Text File", &popupClip};
    Menu mnuClipSave{this, "mnuClipSave", "Save this Clipboard as a File", &popupClip};

private:
    void bindEvents();
    /// The shown tab's text to its file; false when it could not be written (the
    /// user is told).  A file that could not be read is left alone until the user types.
    bool saveShownTab();
    /// Shows the text of the tab at `index` (from 0) in its mode's colour.
    void showTab(long index);
    /// A file for the tab of that number (from 1): "~tab" + the number, or the next
    /// one that no tab uses and no file has.
    std::string newTabFile(long number) const;

    std::vector<ScratchTab> tabs_;
    long shown_ = -1;           ///< the tab whose text txtClip holds, from 0; -1 for none
    bool filling_ = false;      ///< the program, not the user, is changing the tabs or the text
    bool unreadShown_ = false;  ///< the shown tab's file is there but could not be read, nothing typed since
};

/// The one scratch pad of the program.
frmClipboard& ScratchPad();
/// Forgets the scratch pad, for a new start of the program.
void ResetScratchPad();

}  // namespace orbidex
