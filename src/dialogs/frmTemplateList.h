#pragma once
// A plain editor of a list file of phrases, one a line: add, edit, find and remove
// entries, and OK writes the list back to its file.  The caller puts the file's
// path into lblFname before it opens the window.

#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"

namespace orbidex {

class frmTemplateList : public Form {
public:
    frmTemplateList();

    /// Fills the list from the file in lblFname.
    void Form_Load() override;

    void lstPhrases_Click();
    void lstPhrases_DblClick();
    void lstPhrases_MouseDown(int button, int shift, long x, long y);
    void cmdToolbar_Click(int index);
    void mnuPhraseAdd_Click();
    void mnuPhraseEdit_Click();
    /// Selects the first entry after the selected one, going round, that holds the
    /// phrase asked for (with regard to case).
    void mnuPhraseFind_Click();
    void mnuPhraseRemove_Click();
    void cmdOK_Click();

    ListBox lstPhrases{this, "lstPhrases"};
    TextBox txtPhrase{this, "txtPhrase"};
    Label lblFnameCaption{this, "lblFnameCaption"};
    Label lblFname{this, "lblFname"};
    Label lblHint{this, "lblHint"};
    CommandButton cmdOK{this, "cmdOK"};
    ControlArray<CommandButton> cmdToolbar{this, "cmdToolbar"};

    Menu mnuPhrase{this, "mnuPhrase", "&Phrases"};
    Menu mnuPhraseAdd{this, "mnuPhraseAdd", "&Add...", &mnuPhrase};
    Menu mnuPhraseEdit{this, "mnuPhraseEdit", "&Edit...", &mnuPhrase};
    Menu mnuPhraseFind{this, "mnuPhraseFind", "&Find...", &mnuPhrase};
    Menu mnuPhraseRemove{this, "mnuPhraseRemove", "&Remove", &mnuPhrase};
};

}  // namespace orbidex
