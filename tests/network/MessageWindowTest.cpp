// The message mode of the main window and the chat window as the user sees them,
// saved as screenshots.
#include <gtest/gtest.h>

#include <QWidget>

#include "TempFolder.h"
#include "ViewTestSupport.h"
#include "WindowTestPlatform.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/modMain.h"
#include "network/cComms.h"
#include "network/cMessages.h"
#include "network/frmChat.h"
#include "qt/QtFormRegistry.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

class MessageWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        ResetProgramState();
        MakeFolder(folder_.Stored() + "\\data");
        MakeFolder(folder_.Stored() + "\\share");
        MakeFolder(folder_.Stored() + "\\share\\fred");
        WriteWholeFile(folder_.Stored() + "\\data\\messages.log",
                       "20040605 08:55:10;RX;mary;Are you coming to the budget meeting?\r\n"
                       "20040605 08:56:02;TX;mary, ;Yes, I'll bring the figures\r\n"
                       "20040605 09:05:40;EV;ann;added event to your database :Supplier visit\r\n"
                       "20040605 09:05:41;TX;ann;RECEIVED: Meeting request for 20040614 at 1000 : Supplier visit\r\n"
                       "20040605 09:12:00;RX;bob;CONFIRM: meeting cancelled\r\n"
                       "20040605 09:20:30;RX;bob;The printer on the first floor is mended\r\n");
        RegisterProgramWindows(forms_);
        SetPlatform(&platform_);
        modMain("LOCAL");
        // A client connected as fred, without the waits of a real server.
        glbClientsNetworkDatapath = folder_.Stored() + "\\share\\fred\\";
        glbNetworkAlive = glbServerAlive = true;
        glbConfig.runLocalModeOnly = "0";
        platform_.WindowOf(MainForm())->resize(1000, 600);
        test::ProcessEvents();
    }
    void TearDown() override {
        ResetProgramState();
        test::ProcessEvents();
        SetPlatform(nullptr);
    }

    test::TempFolder folder_;
    QtFormRegistry forms_;
    test::WindowTestPlatform platform_{forms_, folder_.Stored()};
};

TEST_F(MessageWindowTest, TheMessagesOfTheDayAndAChat) {
    glbScreen.SwitchMode("MESSAGE");
    test::ProcessEvents();
    test::SaveScreenshot(*platform_.WindowOf(MainForm()), QStringLiteral("messages"));
    EXPECT_EQ(MainForm().lvCat.ListItems.Count(), 5);
    EXPECT_EQ(MainForm().status.Panels(1).Text(), "5 Messages");

    glbMessages.EnterChatMode(MainForm(), "mary, ");
    frmChat& chat = ChatForm();
    chat.txtTalk.UserEdit("Can we move the budget meeting to Thursday?\r\n", 45);
    WriteWholeFile(glbClientsNetworkDatapath + "_4CLIENT.MESSAGE",
                   "20040605 09:31:00\r\nmary\r\nThursday at ten suits me\r\n");
    glbComms.CheckForServerRequests();
    chat.txtTalk.UserEdit("Good, I'll tell the others\r\n", 28);
    QWidget* window = platform_.WindowOf(chat);
    ASSERT_NE(window, nullptr);
    test::ProcessEvents();
    test::SaveScreenshot(*window, QStringLiteral("chat"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Chatting to mary, "));
    chat.cmdCancel_Click();
}
