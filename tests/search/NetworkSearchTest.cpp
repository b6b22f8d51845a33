// A search of other users' diaries through the reference server: the rows show what
// each owner's sharing level lets through, and nothing more.
#include <gtest/gtest.h>

#include <algorithm>

#include "EventLines.h"
#include "NetworkFixture.h"
#include "ResultRows.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "network/cComms.h"
#include "search/cSearch.h"
#include "search/frmInfoSearch.h"
#include "search/frmSearchResults.h"

using namespace orbidex;
using test::EventLine;
using test::Fields;

class NetworkSearchTest : public test::NetworkFixture {
protected:
    void SetUp() override {
        NetworkFixture::SetUp();
        MakeFolder(UserFolder("ann"));
        platform_.AllowUnscriptedForms(true);
        NETWORK_STRING = "CLIENT";
        ServerUp(true);
        // fred shares the time of his events, mary everything but her private ones.
        Share("fred", "1", {EventLine("D200406050001", "20040605", "0900", "Ring the bank")});
        Share("mary", "3",
              {EventLine("D200406050001", "20040605", "1000", "Bank loan meeting", "Meeting", "60"),
               Fields({"D200406050002", "20040605", "Phone", "1100", "30", "Call", "", "", "", "", "", "", "Private",
                       "", "Bank manager"}),
               Fields({"D200406050003", "20040605", "PCFile", "1200", "30", "Usage", "", "", "", "", "", "", "", "",
                       "Online banking"})});
    }
    void Share(const std::string& user, const std::string& level, const std::vector<std::string>& lines) {
        Connect(user);
        glbConfig.security = level;
        std::string bytes;
        for (const std::string& line : lines) bytes += line + "\r\n";
        WriteBytes(DataPath() + "D200406.dat", bytes);
        glbComms.SaveDiaryFileToServer(DataPath() + "D200406.dat", false);
    }
    /// The search form as the user fills it: the text, and the users ticked.
    void Search(const std::string& text, const std::vector<std::string>& users) {
        platform_.QueueFormScript("frmInfoSearch", [text, users](Form& f) {
            auto& form = static_cast<frmInfoSearch&>(f);
            form.txtDetails.UserEdit(text, static_cast<long>(text.size()));
            form.chkLocalFilesOnly.UserClick();
            // The server's user list, every user ticked at first.
            EXPECT_EQ(form.lvUsers.ListItems.Count(), 3);
            for (long i = 1; i <= form.lvUsers.ListItems.Count(); ++i) {
                ListItem& row = form.lvUsers.ListItems(i);
                form.lvUsers.UserCheckItem(row, std::find(users.begin(), users.end(), row.Text()) != users.end());
            }
            form.cmdSearch.UserClick();
        });
        cSearch search;
        search.init();
        ASSERT_TRUE(search.ShowSearchInputForm());
        search.PerformSearch();
    }
    frmSearchResults& Results() { return SearchResultsForm(); }
    std::vector<std::string> Rows() { return test::RowTexts(Results().lvResults); }
};

TEST_F(NetworkSearchTest, OtherUsersEventsShowWhatTheirLevelsAllow) {
    Connect("ann");
    Search("", {"fred", "mary"});
    EXPECT_EQ(Rows(),
              (std::vector<std::string>{"fred|20040605|0900|Event|", "mary|20040605|1000|Meeting|Bank loan meeting"}));
    EXPECT_EQ(Results().lvResults.ColumnHeaders(1).Width(), 1300);
    EXPECT_EQ(Results().Caption(), "Searching for  - found 2 records ");
    EXPECT_EQ(Results().status.Panels(1).Text(), "Spent 1 hr 30 min   minutes on <all items> ");
    EXPECT_EQ(Results().status.Panels(2).Text(), "Found 2 events");

    // fred's text is not shared, so it is not found either.
    Search("BANK", {"fred", "mary"});
    EXPECT_EQ(Rows(), (std::vector<std::string>{"mary|20040605|1000|Meeting|Bank loan meeting"}));
    // Another user's event is not one of this diary.
    Results().lvResults.UserDblClickItem(Results().lvResults.ListItems(1));
    EXPECT_EQ(platform_.MessageTexts().back(), "This event is from mary\r\nThere is no more information on this event");

    // The user's own rows stand out.
    Connect("mary");
    Search("bank", {"mary"});
    EXPECT_EQ(Rows(), (std::vector<std::string>{"mary (bold)|20040605|1000|Meeting|Bank loan meeting"}));
}

TEST_F(NetworkSearchTest, NoUsersOrNoServerIsTold) {
    Connect("ann");
    platform_.ClearTranscript();
    Search("bank", {});
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"You didnt select any users to do a network search"});

    ServerUp(false);
    Search("bank", {"mary"});
    EXPECT_EQ(Rows(), std::vector<std::string>{});
    EXPECT_EQ(Results().Caption(), "Searching for bank - SERVER TIMED OUT (No response)");
    EXPECT_EQ(Results().status.Panels(1).Text(), "Server did not respond");
    EXPECT_EQ(Results().status.Panels(2).Text(), "");
    EXPECT_TRUE(LogHas("Nothing returned from server"));
    EXPECT_FALSE(platform_.BusyCursor());
}
