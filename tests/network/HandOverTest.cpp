// Handing saved files over to the server: the network form of a month, the ".OK"
// file, SERVER.FIN, and what happens when the server does not answer.
#include <gtest/gtest.h>

#include <filesystem>

#include "EventLines.h"
#include "NetworkFixture.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "network/cComms.h"

using namespace orbidex;
using test::EventLine;
using test::Fields;

namespace {

const std::string kLunch = EventLine("D200406050001", "20040605", "1200", "Lunch with Ann");
const std::string kDoctor =
    Fields({"D200406070001", "20040607", "Health", "0900", "30", "", "", "", "", "", "", "", "Private", "", "Doctor"});
// Only a date: nothing that the network form would show.
const std::string kDateOnly = Fields({"", "20040608", "", "", "", "", "", "", "", "", "", "", "", "", ""});
const std::string kMonth = kLunch + "\r\n" + kDoctor + "\r\n" + kDateOnly + "\r\n";
// The lunch as other users see it at level 3: every field.
const std::string kLunchShared = kLunch + "\r\n";

}  // namespace

class HandOverTest : public test::NetworkFixture {
protected:
    void SetUp() override {
        NetworkFixture::SetUp();
        month_ = DataPath() + "D200406.dat";
        WriteBytes(month_, kMonth);
    }
    std::string month_;
};

TEST_F(HandOverTest, AMonthHandedOverIsConfirmedByTheServer) {
    ServerUp(true);
    Connect();
    const VbDate start = platform_.Now();
    EXPECT_FALSE(glbComms.SaveDiaryFileToServer(month_, false));

    EXPECT_EQ(ReadBytes(month_), kMonth);
    EXPECT_EQ(ReadBytes(month_ + "_NET"), kLunchShared) << "no private event, no blank line";
    EXPECT_EQ(ReadBytes(StoreFolder("fred") + "D200406.dat_NET"), kLunchShared);
    for (const char* left : {"D200406.dat_NET", "D200406.dat_NET.OK", "SERVER.FIN"})
        EXPECT_FALSE(FileExists(UserFolder("fred") + left)) << left;
    EXPECT_EQ(LogMessages().back(), "File was confirmed saved by the server");
    EXPECT_FALSE(glbSavingToServer);
    EXPECT_EQ(serverLog_.back(), "took over fred\\D200406.dat_NET");
    EXPECT_EQ(SecondsSince(start), 4) << "a second a line, and one for the server";
}

TEST_F(HandOverTest, AHandOverNobodyConfirmsIsLoggedAndTheFileStaysSaved) {
    ServerUp(true);
    Connect();
    ServerUp(false);
    const VbDate start = platform_.Now();
    glbComms.SaveFileToMyNetworkDatapathForServer(month_, false);

    EXPECT_EQ(ReadBytes(month_), kMonth);
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "D200406.dat"), kMonth);
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "D200406.dat.OK"),
              "this was saved by the client on 2004-06-05 09:30:13\r\n");
    EXPECT_EQ(SecondsSince(start), 13);
    EXPECT_EQ(LogFrom("WARNING - File was not confirmed saved by the server (server may not be running) If you think "
                      "the server is running, confirm the paths and 'ping' the server before trying again"),
              (std::vector<std::string>{
                  "WARNING - File was not confirmed saved by the server (server may not be running) If you think the "
                  "server is running, confirm the paths and 'ping' the server before trying again",
                  "ERROR - File was not confirmed saved by the server (server may not be running)"}));
    EXPECT_FALSE(glbSavingToServer);

    // The server takes it over when it comes back; its SERVER.FIN, left over,
    // confirms the next hand-over at once.
    server_->Poll();
    EXPECT_EQ(ReadBytes(StoreFolder("fred") + "D200406.dat"), kMonth);
    const std::string tasks = DataPath() + "D_tasks.dat";
    WriteBytes(tasks, "T200406050001\x1F\r\n");
    const VbDate again = platform_.Now();
    glbComms.SaveFileToMyNetworkDatapathForServer(tasks, false);
    EXPECT_EQ(SecondsSince(again), 0);
    EXPECT_EQ(LogMessages().back(), "File was confirmed saved by the server");
}

TEST_F(HandOverTest, WithTheServerAwayTheChangeListWaitsForAHandOverThatWaited) {
    Connect();
    ASSERT_FALSE(glbServerAlive);
    glbComms.SaveDiaryFileToServer(month_, false);
    EXPECT_EQ(LogMessages().back(), "Server not alive - not SaveFileToMyNetworkDatapathForServer");
    EXPECT_TRUE(glbSavingToServer);
    EXPECT_FALSE(FileExists(UserFolder("fred") + "D200406.dat_NET"));

    const std::string changes = DataPath() + "_CHANGE_REQUEST.TXT";
    const std::string lunch =
        Fields({"D200406050001", "20040605", "Meeting", "1200", "30", "Meeting request for mary, ", "fred", "", "", "",
                "", "", "", "", "Lunch with Ann"});
    const std::string change = "; 20040605 09:30:12 by PC User fred\r\nOLD " + lunch + "\r\nNEW " + lunch + "\r\n";
    WriteBytes(changes, change);
    ServerUp(true);
    glbComms.PingClient_local();
    EXPECT_FALSE(glbComms.UpdateServerWithChangedFiles(DataPath())) << "the flag still stands";
    EXPECT_EQ(ReadBytes(changes), change);

    glbComms.SaveDiaryFileToServer(month_, false);
    EXPECT_FALSE(glbSavingToServer);
    EXPECT_TRUE(glbComms.UpdateServerWithChangedFiles(DataPath()));
    EXPECT_FALSE(FileExists(changes));
    server_->Poll();
    // That hand-over did not wait, so the flag stands again until one that waits.
    WriteBytes(changes, change);
    EXPECT_FALSE(glbComms.UpdateServerWithChangedFiles(DataPath()));
    glbComms.SaveDiaryFileToServer(month_, false);
    EXPECT_TRUE(glbComms.UpdateServerWithChangedFiles(DataPath()));
    server_->Poll();
    // The second change waits on the server until mary's client has taken the first.
    const std::string forMary = "; 20040605 09:30:12 fred\r\nOLD " + lunch + "\r\nNEW " + lunch + "\r\n";
    EXPECT_EQ(ReadBytes(UserFolder("mary") + "_4CLIENT.CHANGE"), forMary);
    EXPECT_EQ(ReadBytes(StoreFolder("mary") + "_4CLIENT.CHANGE"), forMary);
}

TEST_F(HandOverTest, AServerFolderThatVanishedMakesTheCopyFailInFrontOfTheUser) {
    ServerUp(true);
    Connect();
    std::filesystem::remove_all(folder_.Native() + "/share/fred");
    glbComms.SaveDiaryFileToServer(month_, false);

    const std::string target = UserFolder("fred") + "D200406.dat_NET";
    EXPECT_EQ(platform_.MessageTexts(),
              std::vector<std::string>{"Error occurred in SaveFileToMyNetworkDatapathForServer\r\ncopying " + month_ +
                                       "_NET\r\nto " + target});
    EXPECT_EQ(LogMessages().back(),
              "Error occurred in SaveFileToMyNetworkDatapathForServer copying " + month_ + "_NETto " + target);
    EXPECT_EQ(ReadBytes(month_), kMonth);
    EXPECT_EQ(ReadBytes(month_ + "_NET"), kLunchShared);
    EXPECT_TRUE(glbSavingToServer) << "only a hand-over that waited lowers the flag";
}
