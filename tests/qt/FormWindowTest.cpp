// The window of a form, and drops from outside the program.
#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>
#include <QUrl>

#include "ProgramFixture.h"
#include "ViewTestSupport.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/StatusBar.h"
#include "controls/TextBox.h"
#include "controls/Toolbar.h"
#include "foundation/FileSystem.h"
#include "qt/QtText.h"
#include "qt/views/ControlWidget.h"
#include "qt/views/FormWindow.h"
#include "qt/views/TextBoxWidget.h"

namespace orbidex {
namespace {

class frmEditNote : public Form {
public:
    frmEditNote() : Form("frmEditNote") {
        Caption = "Editing Note";
        Width = 6000;
        Height = 4500;
        frameProperties.Move(120, 600, 4000, 1500);
        lblCreated.Move(150, 300, 1500, 300);
        lblCreated.SetContainer(&frameProperties);
        txtClip.Move(120, 2200, 5000, 900);
        cmdSaveClose.Move(120, 3200, 1800, 400);
        cmdSaveClose.Default = true;
        cmdCancel.Move(2100, 3200, 1200, 400);
        cmdCancel.Cancel = true;
        cmdSaveClose.onClick = [this] { clicks.push_back("cmdSaveClose"); };
        cmdCancel.onClick = [this] { clicks.push_back("cmdCancel"); };
        mnuClipClear.onClick = [this] { clicks.push_back("mnuClipClear"); };
    }
    void Form_Unload(int& cancel) override {
        ++unloads;
        cancel = keepOpen ? 1 : 0;
    }
    void Form_Resize() override { ++resizes; }

    Menu mnuClip{this, "mnuClip", "&Clip"};
    Menu mnuClipClear{this, "mnuClipClear", "Clear this Clipboard", &mnuClip};
    Menu popupTabs{this, "popupTabs", "Tabs"};
    Toolbar Toolbar1{this, "Toolbar1"};
    Frame frameProperties{this, "frameProperties"};
    Label lblCreated{this, "lblCreated"};
    TextBox txtClip{this, "txtClip"};
    CommandButton cmdSaveClose{this, "cmdSaveClose"};
    CommandButton cmdCancel{this, "cmdCancel"};
    ControlArray<Label> lbl{this, "lbl"};
    StatusBar status{this, "status"};
    std::vector<std::string> clicks;
    int unloads = 0;
    int resizes = 0;
    bool keepOpen = false;
};

class FormWindowTest : public test::ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        platform_.AllowUnscriptedForms(true);
        form.popupTabs.Visible = false;
        form.Toolbar1.Buttons.Add("new", "New", tbrDefault, "note");
        form.Load();
        window = std::make_unique<FormWindow>(form);
        window->show();
        test::ProcessEvents();
    }
    frmEditNote form;
    std::unique_ptr<FormWindow> window;
};

TEST_F(FormWindowTest, TheWindowAndItsControlsStandWhereTheFormSays) {
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Editing Note"));
    EXPECT_EQ(window->size(), QSize(TwipsToPixels(6000), TwipsToPixels(4500)));
    ControlWidget* txt = window->viewOf(form.txtClip);
    ASSERT_NE(txt, nullptr);
    EXPECT_EQ(txt->geometry(), QRect(TwipsToPixels(120), TwipsToPixels(2200), TwipsToPixels(5000), TwipsToPixels(900)));
    EXPECT_EQ(window->viewOf(form.lblCreated)->parentWidget(), window->viewOf(form.frameProperties));

    form.txtClip.Top = 2500;  // a move by the program shows
    EXPECT_EQ(txt->y(), TwipsToPixels(2500));
    form.frameProperties.Visible = false;
    EXPECT_FALSE(window->viewOf(form.lblCreated)->isVisible()) << "hiding a frame hides what it holds";
    form.Caption = "Editing Note - Ideas";
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Editing Note - Ideas"));

    // The tool bar lies along the top and the status bar along the bottom, and the
    // form can read where they are.
    EXPECT_EQ(form.Toolbar1.Top, 0);
    EXPECT_EQ(form.Toolbar1.Width, PixelsToTwips(window->canvas()->width()));
    EXPECT_GT(form.Toolbar1.Height, 0);
    EXPECT_EQ(form.status.Top + form.status.Height, PixelsToTwips(window->canvas()->height()));
}

TEST_F(FormWindowTest, ResizingTellsTheFormAndClosingAsksIt) {
    const int before = form.resizes;
    window->resize(TwipsToPixels(9000), TwipsToPixels(3695));
    test::ProcessEvents();
    EXPECT_GT(form.resizes, before);
    EXPECT_EQ(form.Width, 9000);
    EXPECT_EQ(form.ScaleWidth, PixelsToTwips(window->canvas()->width()));

    form.keepOpen = true;
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    form.keepOpen = false;
    EXPECT_TRUE(window->close());
    EXPECT_EQ(form.unloads, 2);
    EXPECT_TRUE(form.IsUnloaded());
}

TEST_F(FormWindowTest, EnterAndEscapePressTheDefaultAndCancelButtons) {
    auto* txt = static_cast<TextBoxWidget*>(window->viewOf(form.txtClip));
    txt->lineEdit()->setFocus();
    QTest::keyClick(txt->lineEdit(), Qt::Key_Return);
    QTest::keyClick(txt->lineEdit(), Qt::Key_Escape);
    EXPECT_EQ(form.clicks, (std::vector<std::string>{"cmdSaveClose", "cmdCancel"}));
}

TEST_F(FormWindowTest, MenusFollowTheirEntriesAndPopUpMenusStayOffTheBar) {
    const QList<QAction*> top = window->menuBar()->actions();
    ASSERT_EQ(top.size(), 2);
    EXPECT_TRUE(top[0]->isVisible());
    EXPECT_FALSE(top[1]->isVisible()) << "a hidden entry is a pop-up menu";
    QAction* clear = top[0]->menu()->actions()[0];
    EXPECT_EQ(clear->text(), QStringLiteral("Clear this Clipboard"));
    clear->trigger();
    EXPECT_EQ(form.clicks, (std::vector<std::string>{"mnuClipClear"}));
    form.mnuClipClear.Enabled = false;
    form.mnuClipClear.Checked = true;
    EXPECT_FALSE(clear->isEnabled());
    EXPECT_TRUE(clear->isChecked());
}

TEST_F(FormWindowTest, ControlsLoadedAtRunTimeAreDrawnToo) {
    form.lbl(5).Caption = "12/12/2002";
    form.lbl(5).Move(120, 120, 1500, 300);
    test::ProcessEvents();
    ASSERT_NE(window->viewOf(form.lbl(5)), nullptr);
    EXPECT_EQ(window->viewOf(form.lbl(5))->x(), TwipsToPixels(120));
    form.lbl.Unload(5);
    test::ProcessEvents();
    EXPECT_TRUE(window->isVisible());
}

TEST(OutsideDropTest, FilesAndTextDroppedOnABoxReachItsHandlerInStoredForm) {
    TextBox txt("txtURL");
    TextBoxWidget view(txt);
    view.resize(200, 30);
    view.show();
    std::vector<DataObject> drops;
    txt.onOLEDragDrop = [&](const DataObject& data) { drops.push_back(data); };

    QMimeData mime;
    const QString native = QDir::tempPath() + QStringLiteral("/notes/plan.txt");
    mime.setUrls({QUrl::fromLocalFile(native)});
    EXPECT_FALSE(test::DragAndDrop(*view.lineEdit(), QPoint(5, 5), mime)) << "no drops unless the control takes them";
    txt.OLEDropMode = vbOLEDropManual;
    EXPECT_TRUE(test::DragAndDrop(*view.lineEdit(), QPoint(5, 5), mime));
    QMimeData text;
    text.setText(QString::fromUtf8("Caf\xC3\xA9 at 10"));
    EXPECT_TRUE(test::DragAndDrop(*view.lineEdit(), QPoint(5, 5), text));

    ASSERT_EQ(drops.size(), 2u);
    EXPECT_EQ(drops[0].Files, (std::vector<std::string>{ToStoredPath(native.toStdString())}));
    EXPECT_TRUE(drops[0].GetFormat(vbCFFiles));
    EXPECT_FALSE(drops[0].HasText()) << "the files are not text as well";
    EXPECT_EQ(drops[1].Text, "Caf\xE9 at 10");
    EXPECT_FALSE(drops[1].HasFiles());
}

}  // namespace
}  // namespace orbidex
