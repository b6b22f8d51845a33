#include "dialogs/frmTemplateList.h"

#include "controls/LoadFileToListBox.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

frmTemplateList::frmTemplateList() : Form("frmTemplateList") {
    Caption = "Edit List";
    Move(0, 0, 4800, 5400);
    const char* const captions[] = {"&Add...", "&Edit...", "&Delete"};
    for (int i = 0; i < 3; ++i) {
        CommandButton& button = cmdToolbar(i);
        button.Caption = captions[i];
        button.Move(120 + i * 1080, 120, 1000, 375);
        button.onClick = [this, i] { cmdToolbar_Click(i); };
    }
    lstPhrases.Move(120, 600, 4440, 3000);
    lstPhrases.ToolTipText = "Right Mouse Click for Menu";
    txtPhrase.Move(120, 3660, 4440, 315);
    txtPhrase.Locked = true;
    lblHint.Caption = "Right Mouse Click for Menu";
    lblHint.Move(120, 4080, 2700, 255);
    lblFnameCaption.Caption = "Fname :";
    lblFnameCaption.Visible = false;
    lblFname.Caption = "<path and filename of list>";
    lblFname.Visible = false;
    cmdOK.Caption = "OK";
    cmdOK.Default = true;
    cmdOK.Move(3480, 4020, 1080, 375);

    lstPhrases.onClick = [this] { lstPhrases_Click(); };
    lstPhrases.onDblClick = [this] { lstPhrases_DblClick(); };
    lstPhrases.onMouseDown = [this](int button, int shift, long x, long y) {
        lstPhrases_MouseDown(button, shift, x, y);
    };
    mnuPhraseAdd.onClick = [this] { mnuPhraseAdd_Click(); };
    mnuPhraseEdit.onClick = [this] { mnuPhraseEdit_Click(); };
    mnuPhraseFind.onClick = [this] { mnuPhraseFind_Click(); };
    mnuPhraseRemove.onClick = [this] { mnuPhraseRemove_Click(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmTemplateList::Form_Load() {
    lstPhrases.Clear();
    txtPhrase.Text = "";
    LoadFileToListBox(lstPhrases, lblFname.Caption);
}

void frmTemplateList::lstPhrases_Click() {
    txtPhrase.Text = lstPhrases.ListIndex >= 0 ? lstPhrases.List(lstPhrases.ListIndex) : "";
}

void frmTemplateList::lstPhrases_DblClick() {
    mnuPhraseEdit_Click();
}

void frmTemplateList::lstPhrases_MouseDown(int button, int, long, long) {
    if (button == vbRightButton) PopupMenu(mnuPhrase);
}

void frmTemplateList::cmdToolbar_Click(int index) {
    if (index == 0) mnuPhraseAdd_Click();
    if (index == 1) mnuPhraseEdit_Click();
    if (index == 2) mnuPhraseRemove_Click();
}

void frmTemplateList::mnuPhraseAdd_Click() {
    const std::string phrase = platform().InputBox("Enter Item to add to List.", "Adding Item to List", "");
    if (phrase.empty()) return;
    lstPhrases.AddItem(phrase);
    lstPhrases.ListIndex = lstPhrases.ListCount() - 1;
}

void frmTemplateList::mnuPhraseEdit_Click() {
    const long selected = lstPhrases.ListIndex;
    if (selected < 0) return;
    const std::string phrase =
        platform().InputBox("Edit Phrase ", "Editing Existing Phrase in List", lstPhrases.List(selected));
    if (phrase.empty()) return;
    lstPhrases.SetList(selected, phrase);
    lstPhrases_Click();
}

void frmTemplateList::mnuPhraseFind_Click() {
    const std::string phrase = platform().InputBox("Enter Phrase to search for", "Looking for Phrase", "");
    if (phrase.empty()) return;
    const long count = lstPhrases.ListCount();
    const long selected = lstPhrases.ListIndex;
    // From the entry after the selected one to the end, then from the first up to it.
    for (long step = 1; step <= count; ++step) {
        const long i = (selected + step) % count;
        if (lstPhrases.List(i).find(phrase) != std::string::npos) {
            lstPhrases.ListIndex = i;
            return;
        }
    }
}

void frmTemplateList::mnuPhraseRemove_Click() {
    const long selected = lstPhrases.ListIndex;
    if (selected < 0) return;
    lstPhrases.RemoveItem(selected);
    txtPhrase.Text = "";
}

void frmTemplateList::cmdOK_Click() {
    std::string lines;
    for (long i = 0; i < lstPhrases.ListCount(); ++i) lines += lstPhrases.List(i) + "\r\n";
    FileError error;
    if (!WriteWholeFile(lblFname.Caption, lines, &error)) {
        ShowFileError("frmTemplateList saving " + std::string(lblFname.Caption), error);
        return;
    }
    Unload();
}

}  // namespace orbidex
