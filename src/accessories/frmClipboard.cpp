#include "accessories/frmClipboard.h"

#include <algorithm>
#include <memory>

#include "config/clsConfigDiary.h"
#include "dialogs/TextEditCommands.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

constexpr long kDesignWidth = 7200;
constexpr long kDesignHeight = 4800;
constexpr long kTabRowHeight = 390;
constexpr OleColor kFreeColour = 0xD8FFFF;  // pale yellow
constexpr OleColor kAppendColour = vbWhite;

const char* const kWelcome =
    "Welcome to the Clipboard!\r\n"
    "This is a simple way to jot down notes without having to save\r\n"
    "them as files, and choose directories.\r\n"
    "Just type some stuff, or paste, or drag and drop from another\r\n"
    "application and the notes stay there until you delete them!\r\n"
    "You can add extra tabs and rename them, by right-clicking on\r\n"
    "any of the tabs.\r\n";

// A tab's name as the list can keep it: a comma would end it early there.
std::string tabName(const std::string& answer) {
    std::string name = Trim(answer);
    std::replace(name.begin(), name.end(), ',', ' ');
    return name;
}

std::unique_ptr<frmClipboard>& padHolder() {
    static std::unique_ptr<frmClipboard> pad;
    return pad;
}

}  // namespace

frmClipboard& ScratchPad() {
    auto& pad = padHolder();
    if (!pad) pad = std::make_unique<frmClipboard>();
    return *pad;
}

void ResetScratchPad() {
    padHolder().reset();
}

frmClipboard::frmClipboard() : Form("frmClipboard") {
    Caption = "Scrap Paper";
    Width = kDesignWidth;
    Height = kDesignHeight;
    popupTabs.Visible = false;
    popupClip.Visible = false;
    tabClip.Move(0, 0, kDesignWidth, kTabRowHeight);
    tabClip.ToolTipText = "Right click for the tab commands";
    txtClip.Move(0, kTabRowHeight, kDesignWidth, kDesignHeight - kTabRowHeight);
    txtClip.FontName = "Courier New";
    txtClip.FontSize = 10;
    txtClip.OLEDropMode = vbOLEDropManual;
    txtClip.ToolTipText = "Right click for the edit commands";
    tmrSave.Interval = 1000;
    tmrSave.Enabled = false;
    bindEvents();
}

void frmClipboard::bindEvents() {
    tabClip.onClick = [this] { tabClip_Click(); };
    tabClip.onMouseDown = [this](int button, int shift, long x, long y) { tabClip_MouseDown(button, shift, x, y); };
    txtClip.onChange = [this] { txtClip_Change(); };
    txtClip.onMouseDown = [this](int button, int shift, long x, long y) { txtClip_MouseDown(button, shift, x, y); };
    txtClip.onOLEDragDrop = [this](const DataObject& data) { txtClip_OLEDragDrop(data); };
    tmrSave.onTimer = [this] { tmrSave_Timer(); };
    popupTabsAdd.onClick = [this] { popupTabsAdd_Click(); };
    mnuTabsRename.onClick = [this] { mnuTabsRename_Click(); };
    popupTabsRemove.onClick = [this] { popupTabsRemove_Click(); };
    mnuTabDockWindow.onClick = [this] { mnuTabDockWindow_Click(); };
    mnuClipUndo.onClick = [this] { mnuClipUndo_Click(); };
    mnuClipCut.onClick = [this] { mnuClipCut_Click(); };
    mnuClipCopy.onClick = [this] { mnuClipCopy_Click(); };
    mnuClipPaste.onClick = [this] { mnuClipPaste_Click(); };
    mnuClipSelectAll.onClick = [this] { mnuClipSelectAll_Click(); };
    mnuClipSelectAndCopy.onClick = [this] { mnuClipSelectAndCopy_Click(); };
    mnuClipClear.onClick = [this] { mnuClipClear_Click(); };
    mnuClipGetDiaryCurrentEvent.onClick = [this] { mnuClipGetDiaryCurrentEvent_Click(); };
}

std::string frmClipboard::IniPath() {
    return platform().ProgramFolder() + "\\scratch.ini";
}

void frmClipboard::Form_Load() {
    popupTabs.Visible = false;
    popupClip.Visible = false;
    Caption = "Scrap Paper for " + GetPCUserName();
    const bool vimmer = UCase(LaunchedBy) == "VIMMER";
    mnuClipSendToVimmer.Visible = vimmer;
    mnuClipGetFromVimmer.Visible = vimmer;

    filling_ = true;
    txtClip.Text = FileExists(IniPath()) ? "" : kWelcome;
    glbConfig.GetFormSettings(*this, gStrIniFile, false);
    LoadScratchTabs(IniPath());
    tabClip.Tabs.Clear();
    for (const ScratchTab& tab : tabs_) tabClip.Tabs.Add(tab.name);
    filling_ = false;
    // A first tab without a file yet keeps the welcome text.
    showTab(0);
    Form_Resize();
}

void frmClipboard::Form_Resize() {
    const long width = ScaleWidth > 0 ? static_cast<long>(ScaleWidth) : static_cast<long>(Width);
    const long height = ScaleHeight > 0 ? static_cast<long>(ScaleHeight) : static_cast<long>(Height);
    tabClip.Move(0, 0, width, kTabRowHeight);
    txtClip.Move(0, kTabRowHeight, width, std::max(0L, height - kTabRowHeight));
}

void frmClipboard::Form_Unload(int& cancel) {
    // A text that could not be written keeps the window open, so it is not lost.
    if (!saveShownTab()) {
        cancel = 1;
        return;
    }
    tmrSave.Enabled = false;
    glbConfig.SaveFormSettings(*this, gStrIniFile);
    SaveScratchTabs(IniPath());
}

void frmClipboard::LoadScratchTabs(const std::string& iniPath) {
    tabs_.clear();
    std::string bytes;
    if (FileExists(iniPath) && ReadWholeFile(iniPath, bytes)) tabs_ = ReadScratchTabs(bytes);
    if (tabs_.empty()) tabs_ = DefaultScratchTabs(GetFolderOfPath(iniPath));
    // A tab the list names without a file gets a file of its own.
    for (size_t i = 0; i < tabs_.size(); ++i)
        if (tabs_[i].file.empty()) tabs_[i].file = newTabFile(static_cast<long>(i) + 1);
}

void frmClipboard::SaveScratchTabs(const std::string& iniPath) {
    FileError error;
    if (!WriteWholeFile(iniPath, ScratchIniText(tabs_, GetPCUserName(), Now()), &error))
        ShowFileError("SaveScratchTabs", error);
}

bool frmClipboard::saveShownTab() {
    if (shown_ < 0 || shown_ >= static_cast<long>(tabs_.size())) return true;
    tmrSave.Enabled = false;
    if (unreadShown_) return true;
    FileError error;
    if (WriteWholeFile(tabs_[static_cast<size_t>(shown_)].file, txtClip.Text(), &error)) return true;
    ShowFileError("frmClipboard saving " + tabs_[static_cast<size_t>(shown_)].file, error);
    return false;
}

void frmClipboard::showTab(long index) {
    shown_ = index >= 0 && index < static_cast<long>(tabs_.size()) ? index : -1;
    if (shown_ < 0) return;
    const ScratchTab& tab = tabs_[static_cast<size_t>(shown_)];
    filling_ = true;
    std::string bytes;
    // A tab whose file is not there yet keeps what the box holds (the welcome text)
    // the first time, and is empty after a change of tab.
    const bool read = ReadWholeFile(tab.file, bytes);
    if (read) txtClip.Text = bytes;
    // A file that is there but could not be read is not written over with the empty
    // box; what the user types replaces it.
    unreadShown_ = !read && FileExists(tab.file);
    if (tab.mode == "LOCKED") txtClip.BackColor = vbButtonFace;
    if (tab.mode == "FREE") txtClip.BackColor = kFreeColour;
    if (tab.mode == "APPEND") txtClip.BackColor = kAppendColour;
    txtClip.Locked = tab.mode == "LOCKED";
    filling_ = false;
}

void frmClipboard::tabClip_Click() {
    if (filling_) return;
    if (!saveShownTab()) {
        // The text that could not be written stays in the box, on its own tab.
        filling_ = true;
        tabClip.Tabs(shown_ + 1).Selected = true;
        filling_ = false;
        return;
    }
    filling_ = true;
    txtClip.Text = "";
    filling_ = false;
    const Tab* chosen = tabClip.SelectedItem();
    showTab(chosen != nullptr ? chosen->Index() - 1 : -1);
}

void frmClipboard::tabClip_MouseDown(int button, int, long, long) {
    if (button != vbRightButton) return;
    popupTabsRemove.Enabled = tabs_.size() > 1;
    PopupMenu(popupTabs);
}

void frmClipboard::txtClip_Change() {
    if (filling_ || shown_ < 0) return;
    unreadShown_ = false;
    tmrSave.Enabled = true;
}

void frmClipboard::tmrSave_Timer() {
    saveShownTab();
}

void frmClipboard::txtClip_MouseDown(int button, int, long, long) {
    if (button == vbRightButton) PopupMenu(popupClip);
}

void frmClipboard::txtClip_OLEDragDrop(const DataObject& data) {
    DropIntoText(txtClip, data);
}

std::string frmClipboard::newTabFile(long number) const {
    const std::string folder = GetFolderOfPath(IniPath());
    for (;; ++number) {
        const std::string file = folder + "~tab" + CStr(number) + ".tmp";
        const bool taken = FileExists(file) || std::any_of(tabs_.begin(), tabs_.end(), [&](const ScratchTab& tab) {
                               return UCase(tab.file) == UCase(file);
                           });
        if (!taken) return file;
    }
}

void frmClipboard::popupTabsAdd_Click() {
    const std::string name = tabName(platform().InputBox("Enter the name of the Tab", "Rename Tab", ""));
    if (name.empty()) return;
    tabs_.push_back({name, newTabFile(static_cast<long>(tabs_.size()) + 1), "FREE"});
    SaveScratchTabs(IniPath());
    tabClip.Tabs.Add(name).Selected = true;
}

void frmClipboard::mnuTabsRename_Click() {
    Tab* tab = tabClip.SelectedItem();
    if (tab == nullptr) return;
    ScratchTab& entry = tabs_[static_cast<size_t>(tab->Index() - 1)];
    const std::string name = tabName(platform().InputBox("Enter the name of the Tab", "Rename Tab", entry.name));
    if (name.empty()) return;
    entry.name = name;
    tab->Caption = name;
    SaveScratchTabs(IniPath());
}

void frmClipboard::popupTabsRemove_Click() {
    Tab* tab = tabClip.SelectedItem();
    if (tab == nullptr || tabs_.size() <= 1) return;
    // The tab's file stays on the disk: removing a tab never loses its text.  A text
    // that could not be written keeps its tab.
    if (!saveShownTab()) return;
    const long index = tab->Index();
    tabs_.erase(tabs_.begin() + (index - 1));
    SaveScratchTabs(IniPath());
    shown_ = -1;
    tabClip.Tabs.Remove(index);
    tabClip.Tabs(std::min(index, tabClip.Tabs.Count())).Selected = true;
}

void frmClipboard::mnuTabDockWindow_Click() {
    mnuTabDockWindow.Checked = !mnuTabDockWindow.Checked;
}

void frmClipboard::mnuClipUndo_Click() {
    txtClip.Undo();
}

void frmClipboard::mnuClipCut_Click() {
    CutSelection(txtClip);
}

void frmClipboard::mnuClipCopy_Click() {
    CopySelection(txtClip);
}

void frmClipboard::mnuClipPaste_Click() {
    txtClip.Paste();
}

void frmClipboard::mnuClipSelectAll_Click() {
    SelectAllText(txtClip);
}

void frmClipboard::mnuClipSelectAndCopy_Click() {
    SelectAllAndCopy(txtClip);
}

void frmClipboard::mnuClipClear_Click() {
    txtClip.Text = "";
}

void frmClipboard::mnuClipGetDiaryCurrentEvent_Click() {
    if (!glbEvents.HasSelectedEvent()) return;
    const cDiaryRecord& event = glbEvents.events(gintcur);
    AppendLine(txtClip, FormatDiaryDate(event.DateEvent, 7) + " " + Mid(event.TimeEvent, 1, 2) + ":" +
                            Mid(event.TimeEvent, 3, 2) + " " + event.details);
}

}  // namespace orbidex
