// Loaded into a program with LD_PRELOAD by the start-up benchmark, it marks the moment
// a start is over: the first turn of the program's event loop after its first window
// has been shown and painted.  It writes two times of the monotonic clock, in
// nanoseconds, and the window's object name to the file named by
// ORBIDEX_STARTUP_PROBE, then ends the process at once:
//   <painted> <main loop> <name>
// "painted" is the first turn of any loop after the window's first paint (a wait that
// keeps the window alive counts), "main loop" the first turn of the main event loop
// after it.  The program itself is unchanged.
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QPointer>
#include <QThread>
#include <QWidget>
#include <ctime>

namespace {

long long monotonicNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

class StartupProbe : public QObject {
public:
    explicit StartupProbe(QObject* parent) : QObject(parent) {
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                &StartupProbe::loopTurns);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && window_.isNull()) {
            auto* widget = qobject_cast<QWidget*>(watched);
            if (widget != nullptr && widget->window()->isVisible()) {
                window_ = widget->window();
                postTurn();
            }
        }
        return false;
    }

    // Posted at a low priority, so delivered after everything pending at its turn: the
    // first paint is over, and so is the rest of that turn's work.
    void customEvent(QEvent* /*event*/) override {
        const long long now = monotonicNanoseconds();
        if (painted_ == 0) painted_ = now;
        if (QThread::currentThread()->loopLevel() > 0) report(now);
        waitingForLoop_ = true;  // a wait pumped the events: the main loop is yet to come
    }

private:
    // Each turn of an event loop that may wait starts here; a pump of pending events
    // inside the program's own work does not.
    void loopTurns() {
        if (!waitingForLoop_) return;
        waitingForLoop_ = false;
        postTurn();
    }

    void postTurn() { QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::LowEventPriority); }

    void report(long long loopTurn) {
        QFile out(qEnvironmentVariable("ORBIDEX_STARTUP_PROBE"));
        if (out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            out.write(QByteArray::number(painted_) + ' ' + QByteArray::number(loopTurn) + ' ' +
                      window_->objectName().toUtf8() + '\n');
            out.close();
        }
        ::_exit(0);
    }

    long long painted_ = 0;
    bool waitingForLoop_ = false;
    QPointer<QWidget> window_;
};

void startProbe() {
    if (qEnvironmentVariableIsEmpty("ORBIDEX_STARTUP_PROBE")) return;
    qApp->installEventFilter(new StartupProbe(qApp));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(startProbe)
