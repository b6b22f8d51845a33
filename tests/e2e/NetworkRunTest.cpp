// The real server and two real clients over one share folder, offscreen: both log
// on, each adds an event that goes to the server, a search for one user's events
// finds what that user shares, and a server that dies in the middle of a hand-over
// costs neither client anything.  A message written in one client's chat reaches the
// other at its next poll, and the answer comes back.  A meeting booked in one
// client's staff planner reaches the other's diary, and the planner shows it.
#include <gtest/gtest.h>
#include <signal.h>

#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "ClientSettings.h"
#include "EventLines.h"
#include "ProgramRun.h"
#include "ScriptedPlatform.h"
#include "TempFolder.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "network/cComms.h"

using namespace orbidex;
using test::ProgramRun;

namespace {

std::string readNative(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// Lets the event loop run until `done` holds or the time is up.
bool waitUntil(const std::function<bool()>& done, int timeoutMs = 20000) {
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > timeoutMs) return false;
        QEventLoop loop;
        QTimer::singleShot(25, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

// The test's own process acting as a client: the real clock, and waits that let the
// event loop run.
class RealClock : public test::ScriptedPlatform {
public:
    VbDate Now() override {
        const QDateTime now = QDateTime::currentDateTime();
        const QDate d = now.date();
        const QTime t = now.time();
        return DateSerial(d.year(), d.month(), d.day()) + TimeSerial(t.hour(), t.minute(), t.second());
    }
    void DoEvents() override {
        QEventLoop loop;
        QTimer::singleShot(20, &loop, &QEventLoop::quit);
        loop.exec();
    }
};

}  // namespace

class NetworkRunTest : public test::ProgramRunTest {
protected:
    void SetUp() override {
        for (const char* user : {"alice", "bob"}) std::filesystem::create_directory(share_.Native() + "/" + user);
        month_ = QDate::currentDate().toString(QStringLiteral("yyyyMM")).toStdString();
    }
    void TearDown() override {
        if (server_.state() != QProcess::NotRunning) {
            server_.kill();
            server_.waitForFinished();
        }
    }

    void StartServer() {
        server_.start(QStringLiteral(ORBIDEX_SERVER_EXE), {QString::fromStdString(share_.Native())});
        ASSERT_TRUE(server_.waitForStarted());
    }
    std::string SharedFile(const std::string& relative) const { return readNative(share_.Native() + "/" + relative); }
    std::string StoredMonth(const std::string& user) const {
        return SharedFile(".server/" + user + " diary/D" + month_ + ".dat_NET");
    }
    /// A client of `user`, with its settings written so that no first-run question comes.
    void StartClient(ProgramRun& run, const std::string& user) {
        std::filesystem::create_directory(run.Folder() + "/data");
        std::ofstream(run.Folder() + "/data/orbidex.ini", std::ios::binary)
            << test::ClientSettingsFile(ToStoredPath(run.Folder()), share_.Stored() + "\\" + user + "\\", 1);
        run.SetEnvironment("LD_PRELOAD", ORBIDEX_USER_DRIVER);
        ASSERT_TRUE(run.Start());
        ASSERT_TRUE(run.WaitForStartUp());
    }
    /// Plays the user: each command done before this returns.
    void Drive(ProgramRun& run, const std::vector<std::string>& commands) {
        std::ofstream script(run.Folder() + "/driver.txt", std::ios::app);
        for (const std::string& command : commands) script << command << "\n";
        script.close();
        const std::string count = std::to_string(commandsSent_[run.Folder()] += static_cast<int>(commands.size()));
        ASSERT_TRUE(run.WaitForFile("driver.log", [&](const std::string& done) { return done == count; }));
    }
    /// Adds an event as a user does: the Add entry, the details, OK.
    void AddEvent(ProgramRun& run, const std::string& details) {
        Drive(run, {"click mnuAppAdd", "type txtDetails " + details, "click cmdOK"});
    }
    /// Opens the chat with `user` from the Server menu and sends one line.
    void Chat(ProgramRun& run, const std::string& user, const std::string& line) {
        Drive(run, {"click mnuServerChat", "type InputBox " + user, "press InputBox Return", "type txtTalk " + line,
                    "press txtTalk Return"});
    }
    bool Logged(const ProgramRun& run, const std::string& message) const {
        const auto messages = run.LogMessages();
        return std::count(messages.begin(), messages.end(), message) > 0;
    }
    /// A search for this month's events of `users`, sent as alice's client sends it.
    std::string SearchAsAlice(const std::string& users) {
        RealClock clock;
        SetPlatform(&clock);
        ResetProgramState();
        glbClientsNetworkDatapath = share_.Stored() + "\\alice\\";
        glbServerAlive = true;
        glbConfig.waitTime = 5;
        const std::string results = glbComms.ClientDiaryRequest(" ", users, month_ + "01", month_ + "31");
        ResetProgramState();
        SetPlatform(nullptr);
        return results;
    }

    test::TempFolder share_;
    QProcess server_;
    std::string month_;
    std::map<std::string, int> commandsSent_;
};

TEST_F(NetworkRunTest, TwoClientsShareThroughTheServerAndLoseNothingWhenItDies) {
    StartServer();
    ProgramRun alice(ORBIDEX_CLIENT_EXE);
    ProgramRun bob(ORBIDEX_CLIENT_EXE);
    StartClient(alice, "alice");
    StartClient(bob, "bob");
    const std::string bothOn = "alice,Logged On\r\nbob,Logged On\r\n";
    // The server writes the lists one after the other.
    ASSERT_TRUE(waitUntil([&] { return SharedFile("alice/USERS.TXT") == bothOn; }));
    EXPECT_TRUE(waitUntil([&] { return SharedFile("bob/USERS.TXT") == bothOn; })) << SharedFile("bob/USERS.TXT");

    // Each hands over the month with the event just added.
    AddEvent(alice, "Team lunch with Bob");
    AddEvent(bob, "Budget meeting");
    ASSERT_TRUE(waitUntil([&] { return contains(StoredMonth("alice"), "Team lunch with Bob"); }));
    ASSERT_TRUE(waitUntil([&] { return contains(StoredMonth("bob"), "Budget meeting"); }));
    ASSERT_TRUE(alice.WaitForFileContaining("data/OX_LOG.log", ", File was confirmed saved by the server\r\n"));
    ASSERT_TRUE(bob.WaitForFileContaining("data/OX_LOG.log", ", File was confirmed saved by the server\r\n"));

    const std::string results = SearchAsAlice("bob, ");
    EXPECT_EQ(results.rfind("; results of user.bob diary\\D" + month_ + ".dat_NET\r\n", 0), 0U) << results;
    EXPECT_TRUE(contains(results,
                         "\x1F"
                         "Budget meeting\x1F\r\n"))
        << results;
    EXPECT_FALSE(contains(results, "Team lunch")) << "only the users asked for";

    // The server stops answering while alice's next month is on its way, and dies.
    ::kill(static_cast<pid_t>(server_.processId()), SIGSTOP);
    AddEvent(alice, "Call the bank");
    ASSERT_TRUE(waitUntil([&] { return contains(SharedFile("alice/D" + month_ + ".dat_NET"), "Call the bank"); }));
    server_.kill();
    server_.waitForFinished();
    const std::string unconfirmed = "ERROR - File was not confirmed saved by the server (server may not be running)";
    ASSERT_TRUE(alice.WaitForFileContaining("data/OX_LOG.log", ", " + unconfirmed + "\r\n"));
    AddEvent(bob, "Dentist");
    ASSERT_TRUE(bob.WaitForFileContaining("data/OX_LOG.log", ", " + unconfirmed + "\r\n"));

    // Both go on locally with every event, and still end as they should.
    const std::string aliceMonth = alice.ReadFile("data/D" + month_ + ".dat");
    EXPECT_TRUE(contains(aliceMonth, "Team lunch with Bob") && contains(aliceMonth, "Call the bank")) << aliceMonth;
    const std::string bobMonth = bob.ReadFile("data/D" + month_ + ".dat");
    EXPECT_TRUE(contains(bobMonth, "Budget meeting") && contains(bobMonth, "Dentist")) << bobMonth;
    EXPECT_EQ(alice.CloseAndWait(), 0);
    EXPECT_EQ(bob.CloseAndWait(), 0);
    EXPECT_TRUE(contains(SharedFile("alice/DEAD.TXT"), "user logged off at "));

    // What the dead server missed waits in the folders; the next server takes it.
    StartServer();
    EXPECT_TRUE(waitUntil([&] { return contains(StoredMonth("alice"), "Call the bank"); }));
    EXPECT_TRUE(waitUntil([&] { return contains(StoredMonth("bob"), "Dentist"); }));
    EXPECT_TRUE(waitUntil([&] { return contains(SharedFile("alice/USERS.TXT"), "alice,Offline\r\n"); }));
    server_.terminate();
    ASSERT_TRUE(server_.waitForFinished());
    EXPECT_EQ(server_.exitCode(), 0);
    EXPECT_TRUE(contains(SharedFile("orbidex-server.log"), " stopped\r\n"));
}

TEST_F(NetworkRunTest, AMessageReachesTheOtherClientAtItsNextPollAndTheAnswerComesBack) {
    StartServer();
    ProgramRun alice(ORBIDEX_CLIENT_EXE);
    ProgramRun bob(ORBIDEX_CLIENT_EXE);
    StartClient(alice, "alice");
    StartClient(bob, "bob");

    Chat(alice, "bob", "Are you free at two?");
    ASSERT_TRUE(alice.WaitForFileContaining("data/messages.log", ";TX;bob, ;Are you free at two?\r\n"));
    ASSERT_TRUE(waitUntil([&] { return contains(SharedFile("bob/_4CLIENT.MESSAGE"), "Are you free at two?"); }));
    Drive(bob, {"click mnuServerCheck"});
    ASSERT_TRUE(bob.WaitForFileContaining("data/messages.log", ";RX;alice;Are you free at two?\r\n"));

    Chat(bob, "alice", "Yes, two is fine");
    ASSERT_TRUE(waitUntil([&] { return contains(SharedFile("alice/_4CLIENT.MESSAGE"), "Yes, two is fine"); }));
    Drive(alice, {"click mnuServerCheck"});
    ASSERT_TRUE(alice.WaitForFileContaining("data/messages.log", ";RX;bob;Yes, two is fine\r\n"));
    EXPECT_TRUE(contains(bob.ReadFile("data/messages.log"), ";TX;alice, ;Yes, two is fine\r\n"));
    EXPECT_EQ(alice.CloseAndWait(), 0);
    EXPECT_EQ(bob.CloseAndWait(), 0);
}

TEST_F(NetworkRunTest, AMeetingBookedInThePlannerReachesTheOtherClientsDiary) {
    // What bob, carol and alice share today, as their clients handed it over.
    const std::string today = QDate::currentDate().toString(QStringLiteral("yyyyMMdd")).toStdString();
    auto event = [&](const std::string& id, const std::string& time, const std::string& length,
                     const std::string& place, const std::string& details) {
        return test::Fields({"D" + today + id, today, "Phone", time, length, "Call", "", "", "", "", "", "", "", place,
                             details}) +
               "\r\n";
    };
    const std::map<std::string, std::string> shared = {
        {"alice", event("0001", "1500", "60", "Surgery", "Dentist")},
        {"bob",
         event("0001", "0900", "60", "Room 1", "Budget review") + event("0002", "1400", "30", "", "Call the bank")},
        {"carol",
         event("0001", "1000", "120", "Hall", "Training course") + event("0002", "1600", "90", "Room 2", "Interviews")},
    };
    std::filesystem::create_directory(share_.Native() + "/carol");
    for (const auto& [user, month] : shared) {
        std::filesystem::create_directories(share_.Native() + "/.server/" + user + " diary");
        std::ofstream(share_.Native() + "/.server/" + user + " diary/D" + month_ + ".dat_NET", std::ios::binary)
            << month;
    }
    StartServer();
    ProgramRun alice(ORBIDEX_CLIENT_EXE);
    ProgramRun bob(ORBIDEX_CLIENT_EXE);
    // Their own diaries hold what they share: a month handed back is whole.
    for (auto [run, user] : {std::pair{&alice, "alice"}, std::pair{&bob, "bob"}}) {
        std::filesystem::create_directory(run->Folder() + "/data");
        std::ofstream(run->Folder() + "/data/D" + month_ + ".dat", std::ios::binary) << shared.at(user);
    }
    StartClient(alice, "alice");
    StartClient(bob, "bob");

    // alice plans a meeting from the menu: the planner comes up, then the booking.
    Drive(alice, {"click mnuAppPlanMeeting", "shot frmBookMeeting screenshots/book-meeting.png Book a Meeting",
                  "type txtDetails Project kick-off", "click cmdOK", "click MsgBox"});
    ASSERT_TRUE(waitUntil([&] { return contains(SharedFile("bob/_4CLIENT.ADD"), "Project kick-off"); }))
        << SharedFile("bob/ADD.TXT");
    // Her own copy comes back through the server at once.
    ASSERT_TRUE(alice.WaitForFileContaining("data/D" + month_ + ".dat", "Project kick-off"));

    // bob's diary receives it at his next poll, which answers alice and hands the month back.
    Drive(bob, {"click mnuServerCheck"});
    ASSERT_TRUE(bob.WaitForFileContaining("data/D" + month_ + ".dat", "Project kick-off"));
    EXPECT_TRUE(
        bob.WaitForFileContaining("data/messages.log", ";EV;alice;added event to your database :Project kick-off"));
    ASSERT_TRUE(waitUntil([&] { return contains(StoredMonth("bob"), "Project kick-off"); }));

    // alice's next request shows it in bob's row, beside what the others share.
    Drive(alice, {"click mnuViewRefresh"});
    ASSERT_TRUE(waitUntil([&] {
        const std::string results = alice.ReadFile("data/RESULTS.TXT");
        return results.find("Project kick-off", results.find("user.bob")) != std::string::npos;
    }));
    Drive(alice, {"shot frmClientDiaryMain screenshots/staff-day.png Staff Planner"});
    EXPECT_EQ(alice.CloseAndWait(), 0);
    EXPECT_EQ(bob.CloseAndWait(), 0);

    std::filesystem::create_directories("screenshots");
    for (const char* shot : {"book-meeting.png", "staff-day.png"}) {
        ASSERT_TRUE(alice.Exists(std::string("screenshots/") + shot)) << shot;
        std::filesystem::copy_file(alice.Folder() + "/screenshots/" + shot, std::string("screenshots/") + shot,
                                   std::filesystem::copy_options::overwrite_existing);
    }
}
