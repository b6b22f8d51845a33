// Requests for other users' events: the [search] block, the waits for the answer,
// and the answers that come late, half or not at all.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "EventLines.h"
#include "NetworkFixture.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "network/cComms.h"

using namespace orbidex;
using test::EventLine;

namespace {

const std::string kRequest = "[search]\r\ndetail= \r\ndateStart=20040601\r\ndateEnd=20040630\r\nusers=mary, \r\n\r\n";
const std::string kNoAnswer = "Failed to get valid response from server in ClientDiaryRequest";

}  // namespace

class RequestTest : public test::NetworkFixture {
protected:
    /// A partner that answers a request after a time, in part or in full.
    struct Partner {
        bool answers = false;
        long answerAfter = 0;  ///< seconds after the request was published
        bool withResults = true;
        std::string results;
        VbDate published = 0;
        bool answered = false;
        std::string requested;  ///< REQUEST.TXT as it was published
    };

    void SetUp() override {
        NetworkFixture::SetUp();
        ServerUp(true);
        Connect();
        ServerUp(false);
        platform_.AddDoEventsHook([this] { answer(); });
    }
    void answer() {
        Partner& p = partner_;
        if (!p.answers || p.answered) return;
        if (p.published == 0 && FileExists(Fred("REQUEST.TXT.OK"))) {
            p.published = platform_.Now();
            p.requested = ReadBytes(Fred("REQUEST.TXT"));
        }
        if (p.published == 0 || SecondsSince(p.published) < p.answerAfter) return;
        p.answered = true;
        if (p.withResults) WriteBytes(Fred("RESULTS.TXT"), p.results);
        WriteBytes(Fred("RESULTS.TXT.OK"), "done\r\n");
    }
    std::string Request() { return glbComms.ClientDiaryRequest(" ", "mary, ", "20040601", "20040630"); }
    std::string Fred(const std::string& name) const { return UserFolder("fred") + name; }
    /// The messages of a log in the program folder, without date, time, user and computer.
    std::vector<std::string> ProgramLog(const std::string& name) const {
        std::vector<std::string> messages;
        for (const std::string& line : SplitLines(ProgramFile(name))) messages.push_back(Split(line, ",", 5).back());
        return messages;
    }

    Partner partner_;
};

TEST_F(RequestTest, ARequestIsAnsweredFromTheOtherUsersSharedMonths) {
    ServerUp(true);
    Connect("mary");
    const std::string month = DataPath() + "D200406.dat";
    WriteBytes(month, EventLine("D200406050001", "20040605", "1200", "Lunch with Ann") + "\r\n");
    glbComms.SaveDiaryFileToServer(month, false);
    glbComms.SaveFileToMyNetworkDatapathForServer(month, false);  // the plain copy is never searched

    Connect("fred");
    EXPECT_EQ(Request(), "; results of user.mary diary\\D200406.dat_NET\r\n" +
                             EventLine("D200406050001", "20040605", "1200", "Lunch with Ann") + "\r\n");
    std::vector<std::string> left = ListFolder(Fred("*"), false);
    std::sort(left.begin(), left.end());
    EXPECT_EQ(left, (std::vector<std::string>{"RESULTS.TXT", "USERS.TXT"}));
}

TEST_F(RequestTest, AnswersOnTimeLateHalfOrEmpty) {
    const std::string results = "; results of user.mary diary\\D200406.dat_NET\r\nA\x1F\r\n";
    struct Case {
        const char* name;
        long answerAfter;
        bool withResults;
        std::string results;
        std::string expected;
        long waited;
        std::vector<std::string> log;  ///< what the request adds to the program's log
        std::vector<std::string> svrReq, svrErr;
    } cases[] = {
        {"on time", 3, true, results, results, 4, {}, {}, {}},
        {"confirmed without data",
         2,
         false,
         "",
         "",
         7,
         {},
         {kNoAnswer},
         {"WaitForServerData found confirm file but no real file " + Fred("RESULTS.TXT.OK")}},
        {"empty results", 2, true, "", "", 3, {}, {kNoAnswer}, {}},
        {"late",
         19,
         true,
         "late\r\n",
         "",
         18,
         {"WaitForServerData waited, but confirm file not found after 14 seconds " + Fred("RESULTS.TXT.OK")},
         {kNoAnswer},
         {}},
    };
    glbServerAlive = true;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        DeleteFile(Stored("svr_req.log"));
        DeleteFile(Stored("svr_err.log"));
        partner_ = Partner();
        partner_.answers = true;
        partner_.answerAfter = c.answerAfter;
        partner_.withResults = c.withResults;
        partner_.results = c.results;
        const size_t logged = LogMessages().size();
        const VbDate start = platform_.Now();
        EXPECT_EQ(Request(), c.expected);
        EXPECT_EQ(SecondsSince(start), c.waited);
        EXPECT_EQ(partner_.requested, kRequest);
        const auto messages = LogMessages();
        EXPECT_EQ(std::vector<std::string>(messages.begin() + static_cast<long>(logged), messages.end()), c.log);
        EXPECT_EQ(ProgramLog("svr_req.log"), c.svrReq);
        EXPECT_EQ(ProgramLog("svr_err.log"), c.svrErr);
        for (const char* gone : {"REQUEST.TXT", "REQUEST.TXT.OK"}) EXPECT_FALSE(FileExists(Fred(gone))) << gone;
        EXPECT_TRUE(glbServerAlive) << "a request never decides that the server is gone";
    }
    // The late answer lands after the wait and stays for a later look.
    while (!partner_.answered) platform_.DoEvents();
    EXPECT_EQ(ReadBytes(Fred("RESULTS.TXT")), "late\r\n");
}

TEST_F(RequestTest, WithoutAServerTheRequestCleansUpAndGivesNothingAtOnce) {
    glbServerAlive = false;  // as a ping without answer leaves it
    WriteBytes(Fred("RESULTS.TXT"), "old results\r\n");
    const long pumped = platform_.DoEventsCount();
    EXPECT_EQ(Request(), "");
    EXPECT_EQ(platform_.DoEventsCount(), pumped);
    EXPECT_FALSE(FileExists(Fred("RESULTS.TXT")));
    EXPECT_FALSE(FileExists(Fred("REQUEST.TXT")));
    EXPECT_EQ(LogMessages().back(), "Server not alive - not trying to do ClientDiaryRequest");
}

TEST_F(RequestTest, AServerFolderThatVanishesDuringTheWait) {
    glbServerAlive = true;
    platform_.AddDoEventsHook([this] {
        if (FileExists(Fred("REQUEST.TXT.OK"))) std::filesystem::remove_all(folder_.Native() + "/share/fred");
    });
    EXPECT_EQ(Request(), "");
    EXPECT_EQ(ProgramLog("svr_req.log"), std::vector<std::string>{kNoAnswer});
    EXPECT_TRUE(glbServerAlive);
    glbComms.PingClient_local();
    EXPECT_FALSE(glbNetworkAlive);
    EXPECT_FALSE(glbServerAlive);
}

TEST_F(RequestTest, TheUserOfAResultsHeader) {
    const std::pair<const char*, const char*> cases[] = {
        {"; results of user.mary diary\\D200406.dat_NET", "mary"},
        {"; results of user.j.smith diary\\D200406.dat_NET", "j.smith"},
        {";no dot at all", ""},
        {"; user.fred", "fred"},
        {"; user. fred later", ""},
    };
    for (const auto& [line, user] : cases) EXPECT_EQ(glbComms.GetUserNameFromResultsLine(line), user) << line;
}
