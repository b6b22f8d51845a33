#include "qt/TerminationSignals.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <csignal>

namespace orbidex {

namespace {

int gSignalPipe[2] = {-1, -1};

void onSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(gSignalPipe[0], &byte, 1);
}

}  // namespace

void CloseWindowsOnTerminationSignals() {
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, gSignalPipe) != 0) return;
    auto* notifier = new QSocketNotifier(gSignalPipe[1], QSocketNotifier::Read, qApp);
    // A request may come before the main window is shown, or while a message box
    // holds the program: windows are closed again and again until the program ends.
    auto* closer = new QTimer(qApp);
    closer->setInterval(50);
    QObject::connect(closer, &QTimer::timeout, qApp, [] { QApplication::closeAllWindows(); });
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [closer] {
        char byte = 0;
        [[maybe_unused]] const auto read = ::read(gSignalPipe[1], &byte, 1);
        QApplication::closeAllWindows();
        closer->start();
    });
    struct sigaction action {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int sig : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(sig, &action, nullptr);
}

}  // namespace orbidex
