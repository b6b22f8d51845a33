// Running another program and waiting for its end while the window's events go on.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "TempFolder.h"
#include "qt/QtFormRegistry.h"
#include "qt/QtPlatform.h"

namespace orbidex {
namespace {

// Whether the process still runs: false once it has ended, reaped or not.
bool hasNotEnded(const std::string& pid) {
    std::ifstream stat("/proc/" + pid + "/stat");
    std::string line;
    if (!std::getline(stat, line)) return false;
    const size_t name = line.rfind(')');
    return name != std::string::npos && line.compare(name, 3, ") Z") != 0;
}

TEST(RunAndWaitTest, AProgramWhoseEndIsHandledAmongTheWindowsEventsEndsTheWait) {
    test::TempFolder folder;
    const std::string go = folder.Native() + "/go";
    const std::string pidFile = folder.Native() + "/pid";
    ASSERT_EQ(::mkfifo(go.c_str(), 0600), 0);
    QtFormRegistry forms;
    QtPlatform platform{forms};

    // The program writes its id and waits for a line. The first time the wait lets
    // events run, the line is sent and the program's end is handled right there.
    QElapsedTimer sinceTheEnd;
    QTimer timer;
    timer.setInterval(0);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (sinceTheEnd.isValid()) {
            if (sinceTheEnd.elapsed() < 3000) return;
            std::fputs("RunAndWait went on waiting for a program that had ended\n", stderr);
            std::_Exit(EXIT_FAILURE);
        }
        std::ofstream(go) << "end\n";  // opens once the program waits for its line
        std::string pid;
        std::ifstream(pidFile) >> pid;
        ASSERT_FALSE(pid.empty());
        while (hasNotEnded(pid)) continue;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
        sinceTheEnd.start();
    });
    timer.start();

    EXPECT_TRUE(platform.RunAndWait("sh -c \"echo $$ > " + pidFile + "; read line < " + go + "\""));
    EXPECT_TRUE(sinceTheEnd.isValid());
}

TEST(RunAndWaitTest, AProgramThatCannotStartIsNotWaitedFor) {
    test::TempFolder folder;
    QtFormRegistry forms;
    QtPlatform platform{forms};
    EXPECT_FALSE(platform.RunAndWait(folder.Native() + "/missing-program"));
    EXPECT_FALSE(platform.RunAndWait(""));
}

}  // namespace
}  // namespace orbidex
