#pragma once
// The about box: the program's name and version, the kind of program, the data
// folder and the settings file in use and, for the client, the server's folder and
// whether the server answers.

#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"

namespace orbidex {

class frmAbout : public Form {
public:
    frmAbout();

    void Form_Load() override;
    void cmdOK_Click();

    Label lblTitle{this, "lblTitle"};
    Label lblVersion{this, "lblVersion"};
    /// Captions (0) and values (1) of the rows: kind, data folder, settings file,
    /// and for the client the server's folder and its state.
    ControlArray<Label> lblCaption{this, "lblCaption"};
    ControlArray<Label> lblValue{this, "lblValue"};
    Label lblMaker{this, "lblMaker"};
    CommandButton cmdOK{this, "cmdOK"};

private:
    void addRow(const std::string& caption, const std::string& value);

    int rows_ = 0;
};

}  // namespace orbidex
