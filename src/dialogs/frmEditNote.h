#pragma once
// The note editor: the text of gCurrentNote in one big box coloured as the note,
// its dates, category and colour in a strip shown by "Show Properties", and a
// pop-up menu of edit commands.  "Save and Close" writes the body file; leaving
// in any other way counts as Cancel.  The window keeps its place and size.

#include <string>

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/RichTextBox.h"

namespace orbidex {

class frmEditNote : public Form {
public:
    frmEditNote();

    void Form_Load() override;
    void Form_Resize() override;
    /// Keeps the window's place and size.
    void Form_Unload(int& cancel) override;

    void cmbColor_Click();
    void chkProperties_Click();
    void cmdSaveClose_Click();
    /// The right button opens the pop-up menu.
    void txtClip_MouseDown(int button, int shift, long x, long y);
    /// Dropped text is added; the content of dropped files too (after asking, for
    /// several), or it becomes the text of an empty note.
    void txtClip_OLEDragDrop(const DataObject& data);

    void mnuClipUndo_Click();
    void mnuClipCut_Click();
    void mnuClipCopy_Click();
    void mnuClipPaste_Click();
    void mnuClipSelectAll_Click();
    void mnuClipSelectAndCopy_Click();
    void mnuClipClear_Click();

    RichTextBox txtClip{this, "txtClip"};
    CheckBox chkProperties{this, "chkProperties"};
    CommandButton cmdSaveClose{this, "cmdSaveClose"};
    Frame frameProperties{this, "frameProperties"};
    /// 1 to 4 the captions of the properties, 5 and 6 the dates created and modified.
    ControlArray<Label> lbl{this, "lbl"};
    ComboBox cmbCategory{this, "cmbCategory"};
    ComboBox cmbColor{this, "cmbColor"};

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
    Menu mnuClipLoad{this, "mnuClipLoad", "Load a Text File", &popupClip};
    Menu mnuClipSave{this, "mnuClipSave", "Save this Clipboard as a File", &popupClip};

private:
    void placeControls();
    void bindEvents();
};

}  // namespace orbidex
