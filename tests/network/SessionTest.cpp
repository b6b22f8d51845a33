// The client's session: connecting the user's folder, the ping, log-on and log-off,
// the keep-alive, and what the main window shows of it.
#include <gtest/gtest.h>

#include <algorithm>

#include "ClientSettings.h"
#include "NetworkFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/modMain.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

namespace {

const std::string kPing = "Hi there server! please make a CHAT.TXT.OK if you are there\r\n";

}  // namespace

class SessionTest : public test::NetworkFixture {};

TEST_F(SessionTest, ThePingDecidesTheStateOfTheSession) {
    struct Case {
        const char* name;
        const char* runLocal;
        const char* user;
        bool serverUp;
        bool networkAlive, serverAlive;
        const char* chatLeft;  ///< what stays in CHAT.TXT
        long waited;           ///< seconds on the clock
    } cases[] = {
        {"run local only", "1", "fred", true, false, false, "", 0},
        {"folder missing", "0", "nobody", true, false, false, "", 0},
        {"server away", "0", "fred", false, true, false, kPing.c_str(), 13},
        {"connected", "0", "fred", true, true, true, "", 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        DeleteFile(UserFolder("fred") + "CHAT.TXT");
        glbConfig.runLocalModeOnly = c.runLocal;
        ServerUp(c.serverUp);
        glbNetworkAlive = glbServerAlive = !c.networkAlive;
        const VbDate start = platform_.Now();
        Connect(c.user);
        EXPECT_EQ(glbNetworkAlive, c.networkAlive);
        EXPECT_EQ(glbServerAlive, c.serverAlive);
        EXPECT_EQ(SecondsSince(start), c.waited);
        EXPECT_EQ(ReadBytes(UserFolder("fred") + "CHAT.TXT"), c.chatLeft);
        EXPECT_FALSE(FileExists(UserFolder("fred") + "CHAT.TXT.OK"));
    }
    EXPECT_EQ(glbMyUserName, "fred");
    EXPECT_EQ(glbClientsNetworkDatapath, UserFolder("fred"));
    const std::string missing = Share() + "nobody";
    EXPECT_EQ(LogFrom("ERROR: 67 - Net Connection Failed to " + missing),
              (std::vector<std::string>{"ERROR: 67 - Net Connection Failed to " + missing,
                                        "Launching networkPath folder to see what the problem is '" + missing + " '",
                                        "Cant find network datapath " + missing + "\\ - Running Local",
                                        "Net Connection Successful! to " + Share() + "fred",
                                        "Net Connection Successful! to " + Share() + "fred"}));
    EXPECT_EQ(platform_.DocumentsOpened(), std::vector<std::string>{missing});
    EXPECT_EQ(serverLog_, std::vector<std::string>{"answered fred's CHAT.TXT"});
}

TEST_F(SessionTest, AnUnansweredPingIsLoggedByItsWait) {
    gLogLevel = 1;
    Connect();
    const auto messages = LogMessages();
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages.back(),
              "FAIL - waitUntilFileCanOpened Timed out waiting for file to be opened after 13 attempts "
              "for file " +
                  UserFolder("fred") + "CHAT.TXT.OK");
}

TEST_F(SessionTest, ConnectingClearsTheFilesOfEarlierExchanges) {
    const std::vector<std::string> exchange = {"CHAT.TXT",    "CHAT.TXT.OK",    "RESULTS.TXT", "RESULTS.TXT.OK",
                                               "REQUEST.TXT", "REQUEST.TXT.OK", "SERVER.FIN"};
    for (const std::string& name : exchange) WriteBytes(UserFolder("fred") + name, "old\r\n");
    WriteBytes(UserFolder("fred") + "ALIVE.TXT", "old\r\n");
    Connect();
    for (const std::string& name : exchange)
        EXPECT_EQ(ReadBytes(UserFolder("fred") + name), name == "CHAT.TXT" ? kPing : "") << name;
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "ALIVE.TXT"), "old\r\n") << "the server's to take";
}

TEST_F(SessionTest, AnEmptyNetworkFolderRunsTheFirstStartAndEndsWithoutNetwork) {
    NETWORK_STRING = "CLIENT";
    glbConfig.fname = gStrIniFile;
    platform_.QueueMsgBoxAnswer(vbNo);
    ServerUp(true);
    glbNetworkDatapath.clear();
    glbComms.InitClient(DataPath());
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    EXPECT_TRUE(FileExists(gStrIniFile));
    EXPECT_FALSE(glbNetworkAlive);
    EXPECT_FALSE(glbServerAlive);
    EXPECT_EQ(glbMyUserName, "");
    EXPECT_TRUE(LogHas("Cant find network datapath \\ - Running Local"));
}

TEST_F(SessionTest, TheUserNameIsTheLastPartOfTheFolder) {
    const std::pair<const char*, const char*> cases[] = {
        {"\\share\\fred\\", "fred"}, {"\\share\\fred", "fred"}, {"fred", "fred"}, {"\\share\\", "share"}, {"", ""}};
    for (const auto& [folder, user] : cases) {
        glbClientsNetworkDatapath = folder;
        EXPECT_EQ(glbComms.GetMyUserName(), user) << folder;
    }
}

TEST_F(SessionTest, LogOnAndOffAppendALineEachAndTheServerListsTheUsers) {
    Connect();  // the server is away: the folder is there
    glbComms.Logon();
    EXPECT_FALSE(FileExists(UserFolder("fred") + "ALIVE.TXT")) << "a log-on needs the server";
    const std::string offAt = "user logged off at " + FormatDate(platform_.Now(), "yyyy-MMM-dd hh:mm:ss") + "\r\n";
    EXPECT_EQ(offAt, "user logged off at 2004-Jun-05 09:30:25\r\n");
    glbComms.Logoff();
    glbComms.Logoff();
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "DEAD.TXT"), offAt + offAt);

    ServerUp(true);
    glbComms.PingClient_local();
    glbComms.Logon();
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "ALIVE.TXT"), "user logged on at 2004-Jun-05 09:30:26\r\n");
    server_->Poll();
    EXPECT_FALSE(FileExists(UserFolder("fred") + "ALIVE.TXT"));
    for (const char* user : {"fred", "mary"})
        EXPECT_EQ(ReadBytes(UserFolder(user) + "USERS.TXT"), "fred,Logged On\r\nmary,Offline\r\n") << user;
    glbComms.Logoff();
    server_->Poll();
    EXPECT_EQ(ReadBytes(UserFolder("mary") + "USERS.TXT"), "fred,Offline\r\nmary,Offline\r\n");
}

TEST_F(SessionTest, TheKeepAliveWritesTheTimeAndWaitsForNothing) {
    WriteBytes(UserFolder("fred") + "CHAT.TXT", kPing);
    WriteBytes(UserFolder("fred") + "CHAT.TXT.OK", "answer\r\n");
    glbClientsNetworkDatapath = UserFolder("fred");
    const long pumped = platform_.DoEventsCount();
    glbComms.TellServerImStillAlive();
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "CHAT.TXT"), "20040605 09:30:12\r\n");
    EXPECT_FALSE(FileExists(UserFolder("fred") + "CHAT.TXT.OK"));
    EXPECT_EQ(platform_.DoEventsCount(), pumped);
}

TEST_F(SessionTest, PingClientCopiesTheSharedListsAndTellsALocalOnlyClientWhy) {
    WriteBytes(Share() + "common_locations.txt", "Office\r\nHome\r\n");
    ServerUp(true);
    Connect();
    glbDiaryComms.PingClient();
    EXPECT_TRUE(glbServerAlive);
    EXPECT_EQ(ReadBytes(DataPath() + "users.txt"), "fred,Offline\r\nmary,Offline\r\n");
    EXPECT_EQ(ReadBytes(DataPath() + "common_locations.txt"), "Office\r\nHome\r\n");
    EXPECT_TRUE(
        LogHas("SafeFileCopy Failed - source file doesnt exist: " + UserFolder("fred") + "common_references.txt"));
    EXPECT_TRUE(platform_.Transcript().empty());

    glbConfig.runLocalModeOnly = "1";
    glbDiaryComms.PingClient();
    EXPECT_FALSE(glbNetworkAlive);
    EXPECT_FALSE(glbServerAlive);
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    const test::DialogRecord& box = platform_.Transcript()[0];
    EXPECT_EQ(box.title, "This Client is set to not scan for a server");
    EXPECT_EQ(
        box.text,
        "This diary client is running in local mode and cannot\r\naccess a server. If you have recently installed "
        "a diary\r\nserver, go to the Options menu and turn off, run in local\r\nrun in local mode.");
    EXPECT_EQ(box.buttons, vbInformation);
}

TEST_F(SessionTest, AClientStartLogsOnAndShowsTheConnectionAndTheServerMenuActs) {
    WriteBytes(DataPath() + "orbidex.ini", test::ClientSettingsFile(folder_.Stored(), UserFolder("fred"), 2));
    platform_.AllowUnscriptedForms(true);
    ServerUp(true);
    modMain("CLIENT");
    frmClientDiaryMain& form = MainForm();
    // Connected, a ping there and another with the lists, then the start goes on.
    const std::string chatOK = UserFolder("fred") + "CHAT.TXT.OK";
    EXPECT_EQ(LogFrom("NETWORK_STRING = CLIENT"),
              (std::vector<std::string>{
                  "NETWORK_STRING = CLIENT", "Initializing Client", "Net Connection Successful! to " + Share() + "fred",
                  "SUCCESS - waitUntilFileCanOpened took 1 attempts for " + chatOK,
                  "SUCCESS - waitUntilFileCanOpened took 1 attempts for " + chatOK,
                  "SafeFileCopy Failed - source file doesnt exist: " + UserFolder("fred") + "common_locations.txt",
                  "SafeFileCopy Failed - source file doesnt exist: " + UserFolder("fred") + "common_references.txt",
                  "About to count Data Files", "Found 1 Data Files"}));
    EXPECT_EQ(ReadBytes(UserFolder("mary") + "USERS.TXT"), "fred,Logged On\r\nmary,Offline\r\n");
    EXPECT_EQ(ReadBytes(DataPath() + "users.txt"), "fred,Logged On\r\nmary,Offline\r\n");
    Button& server = form.Toolbar1.Buttons("refresh");
    EXPECT_EQ(server.Image(), "server");
    EXPECT_EQ(server.ToolTipText(), "You are connected as fred");
    EXPECT_EQ(form.status.Panels(1).Text(), "Connected to the Diary Server as fred");

    ServerUp(false);
    form.mnuPingServer.UserClick();
    EXPECT_EQ(server.Image(), "disconnect");
    EXPECT_EQ(form.status.Panels(1).Text(), "Orbidex - Local mode (server unavailable)");
    EXPECT_TRUE(form.timerSecond.Enabled);
    glbScreen.showStatus();
    EXPECT_EQ(server.ToolTipText(), "Local mode (server unavailable)");
    EXPECT_EQ(form.status.Panels(1).Text(), "Running in Local Mode (Server not responding)");

    ServerUp(true);
    form.mnuPingServer.UserClick();
    EXPECT_EQ(server.Image(), "server");
    EXPECT_EQ(form.Caption(), "Orbidex - Network mode.  Your username = fred");
    EXPECT_EQ(form.status.Panels(1).Text(), "Orbidex - connected to server as fred");

    ServerUp(false);
    form.mnuServerLogoff.UserClick();
    form.mnuServerLoggon.UserClick();
    EXPECT_TRUE(FileExists(UserFolder("fred") + "DEAD.TXT"));
    EXPECT_TRUE(FileExists(UserFolder("fred") + "ALIVE.TXT"));
}

TEST_F(SessionTest, AClientWhoseServerDoesNotAnswerWaitsWithItsWindowUp) {
    WriteBytes(DataPath() + "orbidex.ini", test::ClientSettingsFile(folder_.Stored(), UserFolder("fred"), 3));
    platform_.AllowUnscriptedForms(true);
    ServerUp(false);
    // The pumps of events from the start of the session on, and whether the window was up.
    std::vector<bool> windowUpAtPump;
    platform_.AddDoEventsHook([&] {
        const auto messages = LogMessages();
        if (std::find(messages.begin(), messages.end(), "NETWORK_STRING = CLIENT") == messages.end()) return;
        const auto shown = platform_.FormsShown();
        windowUpAtPump.push_back(std::find(shown.begin(), shown.end(), "frmClientDiaryMain") != shown.end());
    });
    const VbDate start = platform_.Now();
    modMain("CLIENT");
    EXPECT_FALSE(glbServerAlive);
    EXPECT_GE(SecondsSince(start), 3) << "the ping waited its 3 seconds";
    ASSERT_GE(windowUpAtPump.size(), 3U);
    EXPECT_EQ(std::count(windowUpAtPump.begin(), windowUpAtPump.end(), false), 0);
}
