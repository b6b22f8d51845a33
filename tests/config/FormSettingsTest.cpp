#include <gtest/gtest.h>

#include <array>

#include "SettingsFixture.h"
#include "controls/ComboBox.h"
#include "controls/Form.h"

using namespace orbidex;

namespace {

class frmTest : public Form {
public:
    frmTest() : Form("frmTest") {
        Left = 500;
        Top = 600;
        Width = 4000;  // the size it was designed with
        Height = 3000;
    }
};

}  // namespace

// Left, top, width and height.
using Place = std::array<long, 4>;

class FormSettingsTest : public orbidex::test::SettingsFixture {
protected:
    /// The place a new frmTest takes from a section with these keys.
    Place Restored(const std::vector<std::string>& keys, bool useScreenSize) {
        std::vector<std::string> lines = {"[frmTest]"};
        lines.insert(lines.end(), keys.begin(), keys.end());
        WriteIni(lines);
        frmTest form;
        glbConfig.GetFormSettings(form, IniPath(), useScreenSize);
        return {form.Left, form.Top, form.Width, form.Height};
    }
};

TEST_F(FormSettingsTest, StoredPlacesAreCheckedAgainstTheScreen) {
    constexpr long w = 15360, h = 11520;  // the scripted platform's screen, in twips
    const struct {
        std::vector<std::string> keys;
        bool useScreenSize;
        Place expected;
    } cases[] = {
        // Negative places go to the edge; a place just on the screen stays.
        {{"Left=-5", "Top=-1", "Height=2000", "Width=3000"}, true, {0, 0, 3000, 2000}},
        {{"Left=15359", "Top=11520", "Height=2000", "Width=3000"}, true, {w - 1, h, 3000, 2000}},
        // No size stored: 3/4 of the screen, or the size the form was designed with.
        {{"Height=0", "Left=100", "Top=100"}, true, {100, 100, w / 4 * 3, h / 4 * 3}},
        {{"Height=0", "Left=100", "Top=100"}, false, {100, 100, 4000, 3000}},
        {{"Height=-20", "Width=-1", "Left=100", "Top=100"}, false, {100, 100, 4000, 3000}},
        // Off the screen or larger than it: brought back.
        {{"Left=15361", "Top=99999", "Height=11521", "Width=40000"}, true, {w / 4, h / 4, w / 4 * 3, h / 4 * 3}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Restored(c.keys, c.useScreenSize), c.expected)
            << Join(c.keys, " ") << (c.useScreenSize ? " (screen size)" : "");
    }
}

TEST_F(FormSettingsTest, AMaximisedWindowKeepsItsLastNormalPlace) {
    WriteIni({"[frmTest]", "Height=3000", "Width=4000", "Left=100", "Top=200", "WindowState=0", "[next]"});
    frmTest form;
    form.WindowState = 2;
    form.Height = 11520;
    glbConfig.SaveFormSettings(form, IniPath());
    EXPECT_EQ(IniText(),
              "[frmTest]\r\nHeight=3000\r\nWidth=4000\r\nLeft=100\r\nTop=200\r\nWindowState=2\r\n[next]\r\n");

    form.WindowState = 0;
    glbConfig.SaveFormSettings(form, IniPath());
    EXPECT_EQ(IniText(),
              "[frmTest]\r\nHeight=11520\r\nWidth=4000\r\nLeft=500\r\nTop=600\r\nWindowState=0\r\n[next]\r\n");
}

TEST_F(FormSettingsTest, ColourNamesAreFoldedAndLookedUpDarkOrPale) {
    std::string name = "  pink ";
    EXPECT_EQ(glbConfig.GetColorFromString(name, true), 0xFFC0FF);
    EXPECT_EQ(name, "PINK");
    name = "Pink";
    EXPECT_EQ(glbConfig.GetColorFromString(name, false), 0xFF00FF);
    name = "White        ";
    EXPECT_EQ(glbConfig.GetColorFromString(name, false), 0x000000);
    EXPECT_EQ(glbConfig.GetColorFromString(name, true), 0xFFFFFF);
    name = "orange";
    EXPECT_EQ(glbConfig.GetColorFromString(name, false), 0x0040C0);
    name = " mauve";
    EXPECT_EQ(glbConfig.GetColorFromString(name, true), 0);
    EXPECT_EQ(name, "MAUVE");
}

TEST_F(FormSettingsTest, TheColourListHoldsEightPaddedNamesOnce) {
    ComboBox combo;
    combo.AddItem("left over");
    glbConfig.BuildColorList(combo);
    glbConfig.BuildColorList(combo);
    ASSERT_EQ(combo.ListCount(), 8);
    EXPECT_EQ(combo.List(0), "White        ");
    EXPECT_EQ(combo.List(7), "Pink         ");
    for (long i = 0; i < combo.ListCount(); ++i) {
        std::string name = combo.List(i);
        EXPECT_NE(glbConfig.GetColorFromString(name, true), 0) << name;
    }
}
