// The real program on a diary with a reminder due at the next minute of the
// machine's clock: the sticky note comes up, the reminder is remembered, and the
// home page shows the day.  Screenshots of both are saved.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "EventLines.h"
#include "ProgramRun.h"

using orbidex::test::ProgramRun;

namespace {

std::string line(const std::vector<std::string>& fields) { return orbidex::test::Fields(fields) + "\r\n"; }

std::string eventLine(const QDateTime& when, const std::string& details, const std::string& remindTime = "") {
    const std::string date = when.toString(QStringLiteral("yyyyMMdd")).toStdString();
    return line({"D" + date + when.toString(QStringLiteral("hhmm")).toStdString(), date, "Office",
                 when.toString(QStringLiteral("hhmm")).toStdString(), "30", "Call", "", "", "",
                 remindTime.empty() ? "" : date, remindTime, "Normal", "", "", details});
}

std::string taskLine(const std::string& id, const std::string& details) {
    return line({id, QDate::currentDate().toString(QStringLiteral("yyyyMMdd")).toStdString(), "", "0900", "60", "", "",
                 "", "", "", "", "", "", "", details});
}

// Lets the event loop run for `ms` milliseconds.
void letRun(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

void keepScreenshot(const ProgramRun& run, const QString& name) {
    QDir().mkpath(QStringLiteral("screenshots"));
    QFile::remove(QStringLiteral("screenshots/") + name);
    EXPECT_TRUE(QFile::copy(QString::fromStdString(run.Folder() + "/screenshots/") + name,
                            QStringLiteral("screenshots/") + name))
        << name.toStdString();
}

}  // namespace

class ReminderRunTest : public orbidex::test::ProgramRunTest {};

TEST_F(ReminderRunTest, AReminderDueNextMinuteComesUpOnceAndTheHomePageShowsTheDay) {
    // The reminder is for the next minute of the machine's clock; in the last minute
    // of a day that would be tomorrow, so the test waits for the day to turn first.
    while (QTime::currentTime() >= QTime(23, 59)) letRun(1000);
    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime due = now.addSecs(60 - now.time().second());
    const std::string remindTime = due.toString(QStringLiteral("hhmm")).toStdString();
    const std::string details = "Take the cake out of the oven";

    ProgramRun run(ORBIDEX_EXE);
    std::filesystem::create_directory(run.Folder() + "/data");
    std::map<std::string, std::string> months;  // file -> lines; tomorrow may be next month
    const QDateTime today = QDateTime(QDate::currentDate(), QTime(0, 0));
    const auto add = [&](const QDateTime& when, const std::string& text) {
        months["data/D" + when.toString(QStringLiteral("yyyyMM")).toStdString() + ".dat"] += text;
    };
    add(today.addSecs(8 * 3600 + 30 * 60), eventLine(today.addSecs(8 * 3600 + 30 * 60), "Team stand-up"));
    add(due, eventLine(due.addSecs(15 * 60), details, remindTime));
    add(today.addSecs(17 * 3600), eventLine(today.addSecs(17 * 3600), "Pick up the children from school"));
    add(today.addDays(1), eventLine(today.addDays(1).addSecs(10 * 3600), "Dentist, Dr Halloran, 14 High Street"));
    for (const auto& [file, bytes] : months) std::ofstream(run.Folder() + "/" + file, std::ios::binary) << bytes;
    std::ofstream(run.Folder() + "/data/D_tasks.dat", std::ios::binary)
        << taskLine("N000000000001", "Book the car in for its service")
        << taskLine("N000000000002", "Renew the passport");
    std::ofstream(run.Folder() + "/driver.txt", std::ios::binary) << "grab txtNote screenshots/reminder.png\n"
                                                                     "click Command1\n"
                                                                     "click mnuViewMode\n"
                                                                     "grab web screenshots/overview.png\n";

    run.SetEnvironment("LD_PRELOAD", ORBIDEX_USER_DRIVER);
    ASSERT_TRUE(run.Start());
    const std::string key = due.toString(QStringLiteral("yyyyMMdd")).toStdString() + " " +
                            due.addSecs(15 * 60).toString(QStringLiteral("hhmm")).toStdString() + " " + details;
    ASSERT_TRUE(run.WaitForFileContaining("data/reminded.log", key, 130000));
    ASSERT_TRUE(run.WaitForFileContaining("driver.log", "4"));
    EXPECT_EQ(run.ReadFile("data/reminded.log"), key + "\r\n");
    EXPECT_NE(run.ReadFile("data/overview.htm").find(">Dentist, Dr Halloran, 14 High Street<"), std::string::npos);
    keepScreenshot(run, QStringLiteral("reminder.png"));
    keepScreenshot(run, QStringLiteral("overview.png"));
    EXPECT_EQ(run.CloseAndWait(), 0);
}
