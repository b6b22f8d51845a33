#pragma once
// The colours of the grid and the lists, each pair of text and background shown on
// a sample and changed through the desktop's colour chooser, and the font of the
// annual calendar.  OK writes the keys the user changed to the settings file, as
// decimal numbers with red in the low byte; Cancel, or closing the window, writes
// nothing.  The caller reads the settings again after.

#include <set>
#include <string>

#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"

namespace orbidex {

/// One kind of cell: the caption the dialog gives it and the start of its two keys
/// in [colour] (`normal` for normal_ForeColor and normal_BackColor).
struct ColourPair {
    const char* caption;
    const char* key;
};

class frmColour : public Form {
public:
    /// The kinds of cell, in the order the dialog shows them.
    static const ColourPair kPairs[7];

    frmColour();

    void Form_Load() override;
    /// The colour chooser for the text (`background` false) or the background of row `index`.
    void cmdColour_Click(int index, bool background);
    void cmdFont_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    /// The colour the dialog holds for a key of [colour] ("normal_BackColor").
    long Colour(const std::string& key) const;

    ControlArray<Label> lblName{this, "lblName"};
    ControlArray<Label> lblSample{this, "lblSample"};
    ControlArray<CommandButton> cmdFore{this, "cmdFore"};
    ControlArray<CommandButton> cmdBack{this, "cmdBack"};
    Label lblFontName{this, "lblFontName"};
    Label lblFont{this, "lblFont"};
    CommandButton cmdFont{this, "cmdFont"};
    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};

private:
    void placeControls();
    void showSample(int index);
    void showFont();

    long colours_[7][2] = {};  ///< text and background of each row
    std::string fontName_;
    double fontSize_ = 0;
    std::set<std::string> changed_;  ///< the keys the user changed, to be written
};

}  // namespace orbidex
