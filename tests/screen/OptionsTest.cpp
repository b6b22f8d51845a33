// The options dialog as the user drives it from the window: the rules for the data
// paths, what OK writes to the settings file and Cancel does not, the tabs that local
// mode closes, and the settings read again afterwards.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "MainScreenFixture.h"
#include "config/clsConfigDiary.h"
#include "config/frmOptions.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "pim/cTasks.h"
#include "screen/clsDiaryScreen.h"

using namespace orbidex;

class OptionsTest : public test::MainScreenFixture {
protected:
    void SetUp() override {
        MainScreenFixture::SetUp();
        StartProgram();
        platform_.ClearTranscript();
    }
    /// Opens the options from the Tools menu; `act` plays the user in the dialog.
    void InOptions(std::function<void(frmOptions&)> act) {
        platform_.QueueFormScript("frmOptions", [act](orbidex::Form& form) { act(static_cast<frmOptions&>(form)); });
        Form().mnuViewSetup.UserClick();
    }
    std::string Ini() { return ReadBytes(gStrIniFile); }
    /// A folder below the program folder (stored form, without "\" behind it).
    std::string Folder(const std::string& name, bool withUsers = false) {
        const std::string folder = Stored(name);
        MakeFolder(folder);
        if (withUsers) WriteBytes(folder + "\\USERS.TXT", "fred,Logged On\r\n");
        return folder;
    }
};

TEST_F(OptionsTest, EachRuleForTheDataPathsAcceptsOneAndRefusesAnother) {
    const std::string data = Stored("data");
    const std::string server = Folder("server", true);
    const std::string bare = Folder("bare");
    const std::string missing = Stored("missing");
    const struct {
        std::string local, network;
        bool runLocal;
        std::string answer;
    } cases[] = {
        {data, server, false, ""},
        {data + "\\", UCase(data), true, "The local datapath cannot be the same as the network datapath"},
        {missing, server, true, "The local datapath does not exist"},
        {"", server, true, "The local datapath does not exist"},
        {data, missing, true, ""},
        {data, missing, false, "The Network datapath does not exist"},
        {data, "", false, "The Network datapath does not exist"},
        {data, bare, true, ""},
        {data, bare, false,
         "WARNING - The Network datapath hasnt been configured by the server. [should be a USERS.TXT file in " + bare +
             "]"},
    };
    InOptions([&](frmOptions& options) {
        for (const auto& c : cases) {
            std::string local = c.local;
            std::string network = c.network;
            EXPECT_EQ(options.ValidateDataPaths(local, network, c.runLocal), c.answer) << c.local << " " << c.network;
            EXPECT_FALSE(EndsWith(local, "\\")) << "the trailing separator is cut";
        }
        options.cmdCancel.UserClick();
    });
}

TEST_F(OptionsTest, OkWritesTheKeysOfTheDialogAndCancelNoByte) {
    const std::string before = Ini();
    const auto change = [this](bool ok) {
        InOptions([ok](frmOptions& options) {
            EXPECT_EQ(options.lblHeightMin.Caption(), "Min Height = 255");
            options.chkShowFolders.UserClick();
            options.cmbDayWeekMonth.UserSelect(1);  // week
            options.cmbStartTime.UserSelect(8);
            options.VScroll1.UserScroll(300);
            EXPECT_EQ(options.lblHeightMin.Caption(), "Min Height = 300");
            options.lstSecurity.UserSelect(1);
            options.txtTimeOut.UserEdit("5", 1);
            (ok ? options.cmdOK : options.cmdCancel).UserClick();
        });
    };
    change(false);
    EXPECT_EQ(Ini(), before) << "Cancel";
    change(true);
    std::string expected = before;
    for (const auto& [from, to] : {std::pair<std::string, std::string>{"security=3", "security=1"},
                                   {"waitTime=12", "waitTime=5"},
                                   {"RetryAfterOutage=0\r\n", "RetryAfterOutage=0\r\ndataPath=\r\ntoolsPath=\r\n"},
                                   {"DayWeekMonth=1", "DayWeekMonth=7"},
                                   {"RowHeightMin=255", "RowHeightMin=300"},
                                   {"StartTime=9", "StartTime=8"},
                                   {"ShowFolders=0", "ShowFolders=1"}})
        expected = Replace(expected, from, to);
    EXPECT_EQ(Ini(), expected);

    // The window shows the change at once.
    EXPECT_TRUE(Form().tv.Visible);
    EXPECT_EQ(Form().gridDays.Cols(), 9) << "the week";
    EXPECT_EQ(Form().gridDays.TextMatrix(1, 0), "8 ") << "from 8 o'clock";
    EXPECT_TRUE(Form().mnuViewType[1].Checked);
}

TEST_F(OptionsTest, RefusedPathsKeepTheDialogOpenAndWriteNothing) {
    const std::string before = Ini();
    const std::string bare = Folder("bare");
    InOptions([&](frmOptions& options) {
        options.Text1(0).UserEdit(Stored("missing"), 0);
        options.cmdOK.UserClick();
        EXPECT_FALSE(options.IsUnloaded());
        EXPECT_EQ(platform_.Transcript().back().title, "Invalid Datapaths");
        EXPECT_EQ(platform_.Transcript().back().text, "The local datapath does not exist");

        options.Text1(0).UserEdit(Stored("data"), 0);
        options.Text1(1).UserEdit(bare, 0);
        options.chkRunLocal.UserClick();  // off: the server's folder counts
        platform_.QueueMsgBoxAnswer(vbNo);
        options.cmdOK.UserClick();
        EXPECT_EQ(platform_.Transcript().back().title, "Network is not connected");
        EXPECT_EQ(Ini(), before) << "No writes nothing";

        options.cmbCal(0).UserSelect(3);  // 4 months down ...
        options.cmbCal(1).UserSelect(3);  // ... by 4 across
        EXPECT_EQ(platform_.Transcript().back().text,
                  "The maximum number of months which can be displayed on the Calendar is 12.\r\nYou need to make "
                  "sure the Rows * Columns is less than or equal to 12");
        options.cmdOK.UserClick();
        EXPECT_EQ(Ini(), before) << "16 months";
        options.cmbCal(0).UserSelect(2);  // 3 by 4 is allowed
        platform_.QueueMsgBoxAnswer(vbYes);
        options.cmdOK.UserClick();
    });
    EXPECT_NE(InStr(Ini(), "runLocalModeOnly=0\r\n"), 0);
    EXPECT_NE(InStr(Ini(), "dataPath=" + bare + "\\\r\n"), 0) << "Yes writes the server's folder";
    EXPECT_NE(InStr(Ini(), "rows=3\r\ncols=4\r\n"), 0);
}

TEST_F(OptionsTest, TheDialogOpensOnTheTabOfTheModeAndLocalModeClosesStaffAndSecurity) {
    const std::pair<const char*, const char*> tabs[] = {
        {"HOME", "Display"}, {"CALENDAR", "Calendar"}, {"TASK", "Task"}, {"NOTE", "Notes"}, {"STAFF", "Data Files"}};
    for (const auto& [mode, tab] : tabs) {
        glbScreen.SwitchMode(mode);
        InOptions([tab = std::string(tab)](frmOptions& options) {
            EXPECT_EQ(options.tabOpt.SelectedItem()->Caption(), tab);
            EXPECT_TRUE(options.frameOpt(options.tabOpt.SelectedItem()->Index() - 1).Visible);
            options.cmdCancel.UserClick();
        });
        EXPECT_EQ(glbScreen.Mode(), mode);
    }

    glbScreen.SwitchMode("CALENDAR");
    InOptions([this](frmOptions& options) {
        options.tabOpt.UserClickTab(options.tabOpt.Tabs(6));  // Staff
        EXPECT_EQ(platform_.Transcript().back().text,
                  "You cant change any staff options as you have chosen 'Run in Local Mode only");
        EXPECT_EQ(platform_.Transcript().back().title, "Diary is set to Local Mode Only");
        EXPECT_TRUE(options.frameOpt(2).Visible) << "the calendar's page stays";
        EXPECT_FALSE(options.frameOpt(5).Visible);
        options.tabOpt.UserClickTab(options.tabOpt.Tabs(1));
        options.chkRunLocal.UserClick();
        options.tabOpt.UserClickTab(options.tabOpt.Tabs(7));  // Security
        EXPECT_TRUE(options.frameOpt(6).Visible);
        EXPECT_EQ(options.lstSecurity.Text(), "3 - Low Security / All Events Shared");
        options.cmdCancel.UserClick();
    });
}

TEST_F(OptionsTest, AnotherDataPathIsReadAtOnceAndTheOldFolderKeepsItsFiles) {
    const std::string event = Replace("D200406050001|20040605||1000|30||||||||||Dentist|\r\n", "|", "\x1F");
    const std::string task = Replace("N200406010001|20040601||1100|45||||||||||Order the fence|\r\n", "|", "\x1F");
    const std::string moved = Folder("elsewhere");
    WriteBytes(moved + "\\D200406.dat", event);
    WriteBytes(moved + "\\D_tasks.dat", task);
    const std::string oldMonth = ReadBytes(DataPath() + "D200406.dat");

    InOptions([&](frmOptions& options) {
        options.Text1(0).UserEdit(moved, 0);
        options.cmdOK.UserClick();
    });
    EXPECT_EQ(platform_.Transcript().back().title, "Diary Datapath Changed");
    EXPECT_EQ(platform_.Transcript().back().text,
              "The diary now keeps its files in " + moved + "\\\r\n\r\nNo file was moved: the files in " + DataPath() +
                  " stay there as they were. To go on with them here, close the diary, copy them into the new "
                  "folder and start the diary again.");
    EXPECT_NE(InStr(Ini(), "dataPath=" + moved + "\\\r\n"), 0);
    EXPECT_EQ(gStrDataPath, moved + "\\");
    EXPECT_EQ(Form().gridDays.TextMatrix(3, 2), "Dentist");
    EXPECT_EQ(Form().lvCat.ListItems.Count(), 1) << "the tasks of the new folder";
    EXPECT_EQ(ReadBytes(DataPath() + "D200406.dat"), oldMonth);
    EXPECT_FALSE(FileExists(DataPath() + "D_tasks.dat"));
    EXPECT_EQ(ReadBytes(moved + "\\D200406.dat"), event);
}

TEST_F(OptionsTest, TheFolderButtonsStoreAChosenFolderAtOnce) {
    const std::string server = Folder("server", true);
    InOptions([&](frmOptions& options) {
        platform_.QueueFolderAnswer(server);
        options.cmdDataPath(1).UserClick();
        EXPECT_EQ(options.Text1(1).Text(), ToNativePath(server)) << "shown in this system's form";
        EXPECT_EQ(glbConfig.GetValue("Network", "dataPath"), server + "\\");
        EXPECT_EQ(glbConfig.GetValue("Network", "userPath"), server + "\\");

        options.Text1(0).UserEdit("", 0);
        platform_.QueueFolderAnswer("");  // the picker cancelled on an empty box
        platform_.QueueMsgBoxAnswer(vbYes);
        options.cmdDataPath(0).UserClick();
        EXPECT_EQ(platform_.Transcript().back().title, "No Diary Datapath specified");
        EXPECT_EQ(options.Text1(0).Text(), ToNativePath(DataPath())) << "Yes: the default";

        platform_.QueueFolderAnswer(Stored("gone"));
        options.cmdDataPath(0).UserClick();
        EXPECT_EQ(platform_.Transcript().back().text, "Data path does not exist");
        options.cmdCancel.UserClick();
    });
    EXPECT_EQ(glbConfig.GetValue("diary", "dataPath"), DataPath()) << "a missing folder is not stored";
}

TEST_F(OptionsTest, ResetAllOptionsWritesTheDefaultsAndKeepsTheChoiceOfAServer) {
    glbConfig.SetVal("colour", "normal_BackColor", "&HFF");
    glbConfig.SetVal("calendar", "DayWeekMonth", "7");
    glbConfig.ReadAllSettings();
    InOptions([this](frmOptions& options) {
        platform_.QueueMsgBoxAnswer(vbNo);
        options.cmdDefault.UserClick();
        EXPECT_EQ(glbConfig.GetValue("colour", "normal_BackColor"), "&HFF") << "No keeps everything";
        platform_.QueueMsgBoxAnswer(vbYes);
        options.cmdDefault.UserClick();
        EXPECT_EQ(platform_.Transcript().back().text, "Default settings have been set");
        EXPECT_EQ(options.cmbDayWeekMonth.Text(), "Day") << "the dialog shows the defaults";
        options.cmdCancel.UserClick();
    });
    EXPECT_EQ(glbConfig.GetValue("colour", "normal_BackColor"), "&HF0F4F4");
    EXPECT_EQ(glbConfig.GetValue("calendar", "DayWeekMonth"), "1");
    EXPECT_EQ(glbConfig.GetValue("Network", "runLocalModeOnly"), "1") << "the diary still runs alone";
    EXPECT_EQ(glbConfig.GetValue("diary", "dataPath"), DataPath());
}
