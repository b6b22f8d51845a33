// Forms, their controls, and the properties the controls are made of.
#include <gtest/gtest.h>

#include "ProgramFixture.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"

namespace orbidex {
namespace {

class frmSample : public Form {
public:
    frmSample() : Form("frmSample") {}
    void Form_Load() override {
        ++loads;
        Caption = "Adding event to Diary";
    }
    void Form_Unload(int& cancel) override {
        ++unloads;
        cancel = refuseToClose ? 1 : 0;
    }
    void cmdCancel_Click() { Unload(); }

    TextBox txtDetails{this, "txtDetails"};
    CommandButton cmdCancel{this, "cmdCancel"};
    ControlArray<Label> lbl{this, "lbl"};
    Menu mnuFile{this, "mnuFile", "&File"};
    Menu mnuFileExit{this, "mnuFileExit", "E&xit", &mnuFile};
    int loads = 0;
    int unloads = 0;
    bool refuseToClose = false;
};

class FormTest : public test::ProgramFixture {};

TEST_F(FormTest, ShowingModallyLoadsOnceAndUnloadingLetsTheNextShowLoadAgain) {
    frmSample form;
    form.cmdCancel.onClick = [&] { form.cmdCancel_Click(); };
    platform_.QueueFormScript("frmSample", [](Form& f) {
        auto& sample = static_cast<frmSample&>(f);
        EXPECT_EQ(sample.Caption, "Adding event to Diary");
        EXPECT_TRUE(sample.Visible);
        sample.cmdCancel.UserClick();
    });
    form.Show(true);
    EXPECT_EQ(form.loads, 1);
    EXPECT_EQ(form.unloads, 1);
    EXPECT_TRUE(form.IsUnloaded());
    EXPECT_FALSE(form.Visible);

    for (int i = 0; i < 2; ++i) platform_.QueueFormScript("frmSample", [](Form& f) { f.Hide(); });
    form.Show(true);
    EXPECT_EQ(form.loads, 2);
    form.Show(true);  // hidden, not unloaded: no second load
    EXPECT_EQ(form.loads, 2);
    EXPECT_EQ(platform_.FormsShown().size(), 3u);
}

TEST_F(FormTest, FormUnloadCanRefuseAndClosingTheWindowAsks) {
    platform_.AllowUnscriptedForms(true);
    frmSample form;
    form.Show(false);
    form.refuseToClose = true;
    EXPECT_FALSE(form.UserClose());
    EXPECT_TRUE(form.IsLoaded());
    EXPECT_TRUE(form.Visible);
    form.refuseToClose = false;
    EXPECT_TRUE(form.UserClose());
    EXPECT_EQ(form.unloads, 2);
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormTest, AssigningVisibleShowsOrHidesTheForm) {
    platform_.AllowUnscriptedForms(true);
    frmSample form;
    form.Visible = true;
    EXPECT_EQ(form.loads, 1);
    EXPECT_EQ(platform_.FormsShown(), (std::vector<std::string>{"frmSample"}));
    form.Visible = false;
    EXPECT_TRUE(form.IsLoaded());
}

TEST(FormControlsTest, AFormKnowsItsControlsAndMenusInOrder) {
    frmSample form;
    std::vector<std::string> names;
    for (Control* c : form.Controls()) names.push_back(c->Name());
    EXPECT_EQ(names, (std::vector<std::string>{"txtDetails", "cmdCancel", "mnuFile", "mnuFileExit"}));
    EXPECT_EQ(form.FindControl("cmdCancel"), &form.cmdCancel);
    EXPECT_EQ(form.mnuFile.Items(), (std::vector<Menu*>{&form.mnuFileExit}));
    EXPECT_EQ(form.mnuFileExit.ParentMenu(), &form.mnuFile);

    // Elements of a control array are controls of the form with one name.
    form.lbl(12).Caption = "Reminder will occur";
    form.lbl.Load(13);
    EXPECT_EQ(form.lbl.Count(), 2);
    EXPECT_EQ(form.lbl(12).Index(), 12);
    EXPECT_EQ(form.lbl.UBound(), 13);
    EXPECT_EQ(form.Controls().size(), 6u);
    form.lbl.Unload(12);
    EXPECT_EQ(form.Controls().size(), 5u);
    EXPECT_EQ(form.FindControl("lbl")->Index(), 13);
}

TEST(FormControlsTest, TheFormsWindowHearsOfChangesAndNewControls) {
    frmSample form;
    std::vector<FormNotice> notices;
    form.SetViewCallback([&](FormNotice n) { notices.push_back(n); });
    form.Width = 5600;
    form.Width = 5600;
    form.lbl.Load(1);
    form.UserResize(9000, 3695, 8880, 3000);
    EXPECT_EQ(form.ScaleWidth, 8880);
    EXPECT_EQ(notices.front(), FormNotice::Changed);
    EXPECT_EQ(notices[1], FormNotice::ControlsChanged);
    form.SetViewCallback(nullptr);
}

TEST(PropertyTest, PropertiesReadAssignAndCompareLikeTheirValues) {
    Label lbl("lblHeading");
    int changes = 0;
    lbl.SetViewCallback([&](ViewNotice) { ++changes; });
    lbl.Caption = "  Events for ";
    lbl.Caption += "Saturday";
    const std::string heading = lbl.Caption;
    EXPECT_EQ(heading, "  Events for Saturday");
    EXPECT_TRUE("x" + lbl.Caption + "y" == "x  Events for Saturdayy");
    lbl.Caption = std::string("  Events for Saturday");  // the same value: no change
    EXPECT_EQ(changes, 2);

    lbl.Width = 1005;
    lbl.Width += 10;
    long width = lbl.Width;
    EXPECT_EQ(width, 1015);
    Label other;
    other.Width = lbl.Width;  // one property to another copies the value
    EXPECT_EQ(other.Width, 1015);
    other.Width = 5600.5;  // a fraction rounds half to even
    EXPECT_EQ(other.Width, 5600);
    other.Height = 250.7;
    EXPECT_EQ(other.Height, 251);
    lbl.SetViewCallback(nullptr);
}

}  // namespace
}  // namespace orbidex
