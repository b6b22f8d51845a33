// The real program on a user's diary: it opens its main window on the calendar and,
// closed by the system, keeps the window's place.
#include <gtest/gtest.h>

#include <QDate>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "EventLines.h"
#include "ProgramRun.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"

using orbidex::test::ProgramRun;

namespace {

std::string eventLine(const std::string& date, const std::string& time, const std::string& details) {
    return orbidex::test::Fields(
               {"D" + date + "0001", date, "Office", time, "30", "Call", "", "", "", "", "", "Normal", "", "", details}) +
           "\r\n";
}

}  // namespace

class MainWindowRunTest : public orbidex::test::ProgramRunTest {};

TEST_F(MainWindowRunTest, TheWindowOpensOnTheCalendarAndKeepsItsPlace) {
    ProgramRun run(ORBIDEX_EXE);
    std::filesystem::create_directory(run.Folder() + "/data");
    const QDate today = QDate::currentDate();
    const std::string month = today.toString(QStringLiteral("yyyyMM")).toStdString();
    const std::string lastMonth = today.addMonths(-1).toString(QStringLiteral("yyyyMM")).toStdString();
    std::ofstream(run.Folder() + "/data/D" + month + ".dat", std::ios::binary)
        << eventLine(month + "01", "0900", "Team stand-up") << eventLine(month + "02", "1400", "Dentist");
    std::ofstream(run.Folder() + "/data/D" + lastMonth + ".dat", std::ios::binary)
        << eventLine(lastMonth + "28", "1000", "Month end report");

    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(run.WaitForStartUp());
    const std::vector<std::string> messages = run.LogMessages();
    const auto first = std::find(messages.begin(), messages.end(), "TOK - cmd.init");
    ASSERT_NE(first, messages.end());
    const std::vector<std::string> steps(first, std::min(first + 7, messages.end()));
    EXPECT_EQ(steps, (std::vector<std::string>{"TOK - cmd.init", "TOK - mainForm declared", "TOK - mainForm.setForm",
                                               "TOK - mainForm.drawForm", "TOK - mainForm.SwitchMode CALENDAR",
                                               "About to count Data Files", "Found 2 Data Files"}));
    // The user's months are untouched by a start.
    EXPECT_EQ(run.ReadFile("data/D" + lastMonth + ".dat"), eventLine(lastMonth + "28", "1000", "Month end report"));

    EXPECT_EQ(run.CloseAndWait(), 0);
    const std::string settings = run.ReadFile("data/orbidex.ini");
    const size_t section = settings.find("[frmClientDiaryMain]\r\n");
    ASSERT_NE(section, std::string::npos);
    EXPECT_NE(settings.find("WindowState=0\r\n", section), std::string::npos);
    EXPECT_NE(settings.find("Width=", section), std::string::npos);
}
