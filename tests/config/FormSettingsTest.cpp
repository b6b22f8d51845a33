#include <gtest/gtest.h>

#include "SettingsFixture.h"
#include "config/clsConfigDiary.h"
#include "controls/ComboBox.h"
#include "controls/Form.h"

using namespace orbidex;

namespace {

// The screen of the scripted platform: 15360 x 11520 twips.
constexpr long kScreenWidth = 15360;
constexpr long kScreenHeight = 11520;

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

struct Place {
    long Left, Top, Width, Height;
};

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

TEST_F(FormSettingsTest, NegativePlacesGoToTheEdgeAndAPlaceJustOnTheScreenStays) {
    const Place form = Restored({"Left=-5", "Top=-1", "Height=2000", "Width=3000"}, true);
    EXPECT_EQ(form.Left, 0);
    EXPECT_EQ(form.Top, 0);
    EXPECT_EQ(form.Height, 2000);
    EXPECT_EQ(form.Width, 3000);

    const Place edge = Restored({"Left=15359", "Top=11520", "Height=2000", "Width=3000"}, true);
    EXPECT_EQ(edge.Left, kScreenWidth - 1);
    EXPECT_EQ(edge.Top, kScreenHeight);
}

TEST_F(FormSettingsTest, AZeroOrMissingSizeTakesTheScreensOrTheDesignedSize) {
    const Place screenSized = Restored({"Height=0", "Left=100", "Top=100"}, true);
    EXPECT_EQ(screenSized.Height, kScreenHeight / 4 * 3);
    EXPECT_EQ(screenSized.Width, kScreenWidth / 4 * 3);

    const Place designed = Restored({"Height=0", "Left=100", "Top=100"}, false);
    EXPECT_EQ(designed.Height, 3000);
    EXPECT_EQ(designed.Width, 4000);
    EXPECT_EQ(designed.Left, 100);

    const Place negative = Restored({"Height=-20", "Width=-1", "Left=100", "Top=100"}, false);
    EXPECT_EQ(negative.Height, 3000);
    EXPECT_EQ(negative.Width, 4000);
}

TEST_F(FormSettingsTest, AWindowOffOrLargerThanTheScreenIsBroughtBack) {
    const Place form = Restored({"Left=15361", "Top=99999", "Height=11521", "Width=40000"}, true);
    EXPECT_EQ(form.Left, kScreenWidth / 4);
    EXPECT_EQ(form.Top, kScreenHeight / 4);
    EXPECT_EQ(form.Height, kScreenHeight / 4 * 3);
    EXPECT_EQ(form.Width, kScreenWidth / 4 * 3);
}

TEST_F(FormSettingsTest, AMaximisedWindowKeepsItsLastNormalPlace) {
    WriteIni({"[frmTest]", "Height=3000", "Width=4000", "Left=100", "Top=200", "WindowState=0", "[next]"});
    frmTest form;
    form.WindowState = 2;
    form.Height = 11520;
    glbConfig.SaveFormSettings(form, IniPath());
    EXPECT_EQ(IniText(), "[frmTest]\r\nHeight=3000\r\nWidth=4000\r\nLeft=100\r\nTop=200\r\nWindowState=2\r\n[next]\r\n");

    form.WindowState = 0;
    glbConfig.SaveFormSettings(form, IniPath());
    EXPECT_EQ(IniText(), "[frmTest]\r\nHeight=11520\r\nWidth=4000\r\nLeft=500\r\nTop=600\r\nWindowState=0\r\n[next]\r\n");
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
    EXPECT_EQ(combo.List(2), "Orange       ");
    EXPECT_EQ(combo.List(7), "Pink         ");
    for (long i = 0; i < combo.ListCount(); ++i) {
        std::string name = combo.List(i);
        EXPECT_EQ(name.size(), 13U);
        EXPECT_NE(glbConfig.GetColorFromString(name, true), 0) << name;
    }
}
