#include "dialogs/frmEditNote.h"

#include <algorithm>

#include "config/clsConfigDiary.h"
#include "dialogs/DialogDates.h"
#include "dialogs/TextEditCommands.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/cNotes.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

enum LabelIndex { kLblCreated = 1, kLblModified, kLblCategory, kLblColor, kCreated, kModified };

constexpr long kDesignWidth = 7200;
constexpr long kDesignHeight = 5400;
/// The height the window needs to show the properties above a useful text.
constexpr long kHeightWithProperties = 6795;
constexpr long kFrameTop = 450;

// A stored date ("yyyymmdd") as the properties show it; "" for none.
std::string shownDate(const std::string& yyyymmdd) {
    return yyyymmdd.empty() ? "" : FormatDate(DateOfText(yyyymmdd), "dd/mm/yyyy");
}

}  // namespace

frmEditNote::frmEditNote() : Form("frmEditNote") {
    Caption = "Editing Note";
    Width = kDesignWidth;
    Height = kDesignHeight;
    placeControls();
    bindEvents();
}

void frmEditNote::placeControls() {
    popupClip.Visible = false;
    cmdSaveClose.Caption = "Save and Close";
    cmdSaveClose.Move(60, 30, 1400, 375);
    chkProperties.Caption = "Show Properties";
    chkProperties.Move(1620, 60, 1800, 315);

    frameProperties.Caption = "Properties";
    frameProperties.Move(60, kFrameTop, 6600, 1000);
    frameProperties.Visible = false;
    const char* const captions[] = {"Date Created", "Date Last Modified", "Category", "Color"};
    for (int i = 0; i < 4; ++i) {
        Label& caption = lbl(kLblCreated + i);
        caption.Caption = captions[i];
        caption.SetContainer(&frameProperties);
        caption.Move(i < 2 ? 120 : 3300, (i % 2 == 0 ? 285 : 645), i < 2 ? 1560 : 780, 255);
    }
    for (int index : {kCreated, kModified}) {
        Label& date = lbl(index);
        date.Caption = "12/12/2002";
        date.SetContainer(&frameProperties);
        date.Move(1740, index == kCreated ? 285 : 645, 1200, 255);
    }
    cmbCategory.SetContainer(&frameProperties);
    cmbCategory.Move(4140, 240, 2340, 315);
    cmbColor.SetContainer(&frameProperties);
    cmbColor.Move(4140, 600, 2340, 315);
    cmbColor.Style = vbComboDropdownList;

    txtClip.FontName = "MS Sans Serif";
    txtClip.Move(0, kFrameTop, kDesignWidth, kDesignHeight - kFrameTop);
    txtClip.OLEDropMode = vbOLEDropManual;
    txtClip.ToolTipText = "Right click for the edit commands";
}

void frmEditNote::bindEvents() {
    cmbColor.onClick = [this] { cmbColor_Click(); };
    chkProperties.onClick = [this] { chkProperties_Click(); };
    cmdSaveClose.onClick = [this] { cmdSaveClose_Click(); };
    txtClip.onMouseDown = [this](int button, int shift, long x, long y) { txtClip_MouseDown(button, shift, x, y); };
    txtClip.onOLEDragDrop = [this](const DataObject& data) { txtClip_OLEDragDrop(data); };
    mnuClipUndo.onClick = [this] { mnuClipUndo_Click(); };
    mnuClipCut.onClick = [this] { mnuClipCut_Click(); };
    mnuClipCopy.onClick = [this] { mnuClipCopy_Click(); };
    mnuClipPaste.onClick = [this] { mnuClipPaste_Click(); };
    mnuClipSelectAll.onClick = [this] { mnuClipSelectAll_Click(); };
    mnuClipSelectAndCopy.onClick = [this] { mnuClipSelectAndCopy_Click(); };
    mnuClipClear.onClick = [this] { mnuClipClear_Click(); };
}

void frmEditNote::Form_Load() {
    cNote& note = gCurrentNote;
    glbEvents.DisplayReferences(cmbCategory);
    glbConfig.BuildColorList(cmbColor);
    // The list's names are padded: a stored name matches whatever its blanks and case.
    for (long i = 0; i < cmbColor.ListCount(); ++i)
        if (UCase(Trim(cmbColor.List(i))) == UCase(Trim(note.Color))) cmbColor.ListIndex = i;
    chkProperties.Value = vbUnchecked;

    // A new note has no body file yet: its text is empty.
    const std::string text = note.LoadDetails();
    txtClip.Text = text;
    note.details = text;
    lbl(kCreated).Caption = shownDate(note.DateCreated);
    lbl(kModified).Caption = shownDate(note.DateModified);
    cmbCategory.Text = note.Category;

    glbConfig.GetFormSettings(*this, gStrIniFile, false);
    glbConfig.dialogCancelled = true;  // only "Save and Close" saves
    Form_Resize();
}

void frmEditNote::Form_Resize() {
    const long width = ScaleWidth > 0 ? static_cast<long>(ScaleWidth) : static_cast<long>(Width);
    const long height = ScaleHeight > 0 ? static_cast<long>(ScaleHeight) : static_cast<long>(Height);
    txtClip.Move(0, txtClip.Top, width, std::max(0L, height - txtClip.Top));
}

void frmEditNote::Form_Unload(int&) {
    glbConfig.SaveFormSettings(*this, gStrIniFile);
}

// "none" or an unknown name leaves the colours as they are.
void frmEditNote::cmbColor_Click() {
    std::string name = cmbColor.Text;
    const auto colour = static_cast<OleColor>(glbConfig.GetColorFromString(name, true));
    if (colour == 0) return;
    cmbCategory.BackColor = colour;
    cmbColor.BackColor = colour;
    txtClip.BackColor = colour;
}

void frmEditNote::chkProperties_Click() {
    if (chkProperties.Value == vbChecked) {
        frameProperties.Visible = true;
        txtClip.Top = frameProperties.Top + frameProperties.Height + 50;
        // The window grows to show both; it does not shrink back.
        if (Height < kHeightWithProperties) {
            if (ScaleHeight > 0) ScaleHeight = ScaleHeight + kHeightWithProperties - Height;
            Height = kHeightWithProperties;
        }
    } else {
        frameProperties.Visible = false;
        txtClip.Top = frameProperties.Top;
    }
    Form_Resize();
}

void frmEditNote::cmdSaveClose_Click() {
    cNote& note = gCurrentNote;
    const std::string text = txtClip.Text;
    // The title always follows the text's first line.
    note.title = cNotes::GetNoteTitleFromDetails(text);
    note.details = text;
    note.DateModified = FormatDate(Today(), "yyyymmdd");
    note.Color = cmbColor.Text;
    note.Category = cmbCategory.Text;
    glbConfig.dialogCancelled = false;
    note.SaveDetails(text);
    Unload();
}

void frmEditNote::txtClip_MouseDown(int button, int, long, long) {
    if (button == vbRightButton) PopupMenu(popupClip);
}

void frmEditNote::txtClip_OLEDragDrop(const DataObject& data) {
    DropIntoText(txtClip, data);
}

void frmEditNote::mnuClipUndo_Click() {
    txtClip.Undo();
}

void frmEditNote::mnuClipCut_Click() {
    CutSelection(txtClip);
}

void frmEditNote::mnuClipCopy_Click() {
    CopySelection(txtClip);
}

void frmEditNote::mnuClipPaste_Click() {
    txtClip.Paste();
}

void frmEditNote::mnuClipSelectAll_Click() {
    SelectAllText(txtClip);
}

void frmEditNote::mnuClipSelectAndCopy_Click() {
    SelectAllAndCopy(txtClip);
}

void frmEditNote::mnuClipClear_Click() {
    txtClip.Text = "";
}

}  // namespace orbidex
