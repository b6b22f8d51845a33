// The File menu's import and export and the Beta menu's view of the events in the
// browser, as the user reaches them: the file picked, the question answered, the page
// shown.
#include <gtest/gtest.h>

#include "MainScreenFixture.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

class ImportExportCommandsTest : public test::MainScreenFixture {
protected:
    std::string Page() const { return gStrDataPath + "D200406.html"; }
    /// The last question or message: its title and text.
    std::pair<std::string, std::string> Last() const {
        return {platform_.Transcript().back().title, platform_.Transcript().back().text};
    }
};

TEST_F(ImportExportCommandsTest, TheFileMenuImportsThePickedFileAndExportsOnlyWhenTheUserAgrees) {
    StartProgram();
    // An empty diary has nothing to export, and says so.
    platform_.QueueMsgBoxAnswer(vbYes);
    Form().mnuFileExport.UserClick();
    EXPECT_EQ(Last(), std::make_pair(std::string("Export Appointments"),
                                     std::string("There are no events in the diary to export.")));
    EXPECT_FALSE(Form().web.Visible);

    // A cancelled picker imports nothing.
    const std::string csv = Stored("visits.csv");
    WriteBytes(csv, "Date,Title,Location\r\n20040608,Garden centre,\"Kew, Surrey\"\r\n");
    platform_.ClearTranscript();
    platform_.QueuePickedFile("");
    Form().mnuFileImport.UserClick();
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Import Appointments") << "the picker";
    EXPECT_FALSE(FileExists(Stored("visits.DAT")));

    platform_.QueuePickedFile(csv);
    Form().mnuFileImport.UserClick();
    EXPECT_EQ(Last(), std::make_pair(std::string("Success"), std::string("Finished adding 1 records.")));
    EXPECT_NE(ReadBytes(gStrDataPath + "D200406.dat").find("\x1FKew, Surrey\x1F"), std::string::npos);
    EXPECT_TRUE(Form().timerSecond.Enabled) << "the timer runs again after the import";

    // No writes nothing; Yes writes the pages and shows this month's under the view.
    platform_.QueueMsgBoxAnswer(vbNo);
    Form().mnuFileExport.UserClick();
    EXPECT_EQ(Last(), std::make_pair(std::string("Export Appointments"),
                                     std::string("Create HTM versions of Diary Files\r\nDo you want to continue ?")));
    EXPECT_FALSE(FileExists(Page()));
    EXPECT_FALSE(Form().web.Visible);

    Form().UserResize(12000, 9000, 11880, 8400);
    platform_.QueueMsgBoxAnswer(vbYes);
    Form().mnuFileExport.UserClick();
    EXPECT_NE(ReadBytes(Page()).find("Garden centre"), std::string::npos);
    EXPECT_EQ(Form().web.LocationURL(), Page());
    EXPECT_TRUE(Form().web.Visible);
    EXPECT_TRUE(Form().mnuViewBrowser.Checked);
    EXPECT_EQ(glbScreen.BrowserHeight(), 5600) << "two thirds of the window";
    EXPECT_TRUE(platform_.DocumentsOpened().empty());

    // The Beta menu's entry exports without asking and opens the page in the desktop's browser.
    DeleteFile(Page());
    platform_.ClearTranscript();
    Form().mnuBetaTest[0].UserClick();
    EXPECT_TRUE(platform_.Transcript().empty());
    EXPECT_TRUE(FileExists(Page()));
    EXPECT_EQ(platform_.DocumentsOpened(), std::vector<std::string>{Page()});
}
