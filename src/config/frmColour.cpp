#include "config/frmColour.h"

#include "config/clsConfigDiary.h"
#include "dialogs/EditorSupport.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

const ColourPair frmColour::kPairs[7] = {
    {"Events", "normal"},
    {"Several events in one slot", "multi"},
    {"Headings of days and times", "heading"},
    {"Weekends", "weekend"},
    {"The rest of a long event", "spanning"},
    {"Today", "today"},
    {"Usage and file events", "PCFile"},
};

namespace {

constexpr long kRowTop = 240;
constexpr long kRowStep = 450;
constexpr long kNameWidth = 2520;
constexpr long kSampleLeft = 2700;
constexpr long kSampleWidth = 2040;
constexpr long kButtonHeight = 345;

std::string keyOf(int index, bool background) {
    return std::string(frmColour::kPairs[index].key) + (background ? "_BackColor" : "_ForeColor");
}

// A colour as the settings file holds it: decimal or "&H" text.  A key that holds
// neither shows as black, the colour the grid then draws.
long readColour(const std::string& key) {
    double value = 0;
    if (!TryParseNumber(glbConfig.GetValue("colour", key), value) || value < 0 || value > 0xFFFFFF) return 0;
    return static_cast<long>(value);
}

}  // namespace

frmColour::frmColour() : Form("frmColour") {
    Caption = "Choose Colours";
    Width = 7740;
    Height = kRowTop + 7 * kRowStep + 120 + 720 + 375 + 600;
    placeControls();
    for (int i = 0; i < 7; ++i) {
        cmdFore(i).onClick = [this, i] { cmdColour_Click(i, false); };
        cmdBack(i).onClick = [this, i] { cmdColour_Click(i, true); };
    }
    cmdFont.onClick = [this] { cmdFont_Click(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmColour::placeControls() {
    for (int i = 0; i < 7; ++i) {
        const long top = kRowTop + i * kRowStep;
        lblName(i).Caption = kPairs[i].caption;
        lblName(i).Move(120, top + 60, kNameWidth, 255);
        lblSample(i).Caption = " 9:00  Meeting";
        lblSample(i).BorderStyle = 1;
        lblSample(i).Move(kSampleLeft, top, kSampleWidth, kButtonHeight);
        cmdFore(i).Caption = "Text...";
        cmdFore(i).ToolTipText = std::string("The colour of the text of ") + kPairs[i].caption;
        cmdFore(i).Move(kSampleLeft + kSampleWidth + 120, top, 1080, kButtonHeight);
        cmdBack(i).Caption = "Background...";
        cmdBack(i).ToolTipText = std::string("The colour behind ") + kPairs[i].caption;
        cmdBack(i).Move(kSampleLeft + kSampleWidth + 1260, top, 1380, kButtonHeight);
    }
    const long fontTop = kRowTop + 7 * kRowStep + 120;
    lblFontName.Caption = "Font of the annual calendar";
    lblFontName.Move(120, fontTop + 60, kNameWidth, 255);
    lblFont.BorderStyle = 1;
    lblFont.Move(kSampleLeft, fontTop, kSampleWidth + 1200, kButtonHeight + 60);
    cmdFont.Caption = "Font...";
    cmdFont.Move(kSampleLeft + kSampleWidth + 1260, fontTop, 1380, kButtonHeight);

    PlaceOkCancel(cmdOK, cmdCancel, Width, fontTop + 720);
}

void frmColour::Form_Load() {
    changed_.clear();
    for (int i = 0; i < 7; ++i) {
        colours_[i][0] = readColour(keyOf(i, false));
        colours_[i][1] = readColour(keyOf(i, true));
        showSample(i);
    }
    fontName_ = glbConfig.GetValue("calendarView", "fontName");
    if (fontName_.empty()) fontName_ = "Arial";
    fontSize_ = Val(glbConfig.GetValue("calendarView", "fontSize"));
    if (fontSize_ <= 0) fontSize_ = 9;
    showFont();
}

long frmColour::Colour(const std::string& key) const {
    for (int i = 0; i < 7; ++i)
        for (int side = 0; side < 2; ++side)
            if (EqualsText(keyOf(i, side == 1), key)) return colours_[i][side];
    return -1;
}

void frmColour::showSample(int index) {
    lblSample(index).ForeColor = static_cast<OleColor>(colours_[index][0]);
    lblSample(index).BackColor = static_cast<OleColor>(colours_[index][1]);
}

void frmColour::showFont() {
    lblFont.Caption = " " + fontName_ + ", " + CStr(fontSize_) + " points";
    lblFont.FontName = fontName_;
    lblFont.FontSize = fontSize_;
}

void frmColour::cmdColour_Click(int index, bool background) {
    long colour = colours_[index][background ? 1 : 0];
    const std::string title = std::string(background ? "Background of " : "Text of ") + kPairs[index].caption;
    if (!platform().PickColour(title, colour)) return;
    colours_[index][background ? 1 : 0] = colour & 0xFFFFFF;
    changed_.insert(keyOf(index, background));
    showSample(index);
}

void frmColour::cmdFont_Click() {
    if (!platform().PickFont("Font of the annual calendar", fontName_, fontSize_)) return;
    changed_.insert("font");
    showFont();
}

void frmColour::cmdOK_Click() {
    for (int i = 0; i < 7; ++i)
        for (int side = 0; side < 2; ++side)
            if (changed_.count(keyOf(i, side == 1)) != 0)
                glbConfig.SetVal("colour", keyOf(i, side == 1), CStr(colours_[i][side]));
    if (changed_.count("font") != 0) {
        glbConfig.SetVal("calendarView", "fontName", fontName_);
        glbConfig.SetVal("calendarView", "fontSize", CStr(fontSize_));
    }
    Unload();
}

void frmColour::cmdCancel_Click() {
    Unload();
}

}  // namespace orbidex
