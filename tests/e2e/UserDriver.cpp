// Plays the user inside a real program.  Loaded into it with LD_PRELOAD by an
// end-to-end test, it reads "driver.txt" in the program's working folder, one
// command a line, and performs each on the program's windows by the names of their
// controls, as soon as the control is on screen:
//   click <name>        a menu entry or a button ("MsgBox": the message box's first)
//   type <name> <text>  keys typed into a text box
//   press <name> <key>  one key ("Return") pressed in a text box
//   shot <window> <file> [<text>]  a picture of a window, once its title holds the text
//   grab <name> <file>  the window that holds the control saved as a PNG picture
// Each command done is counted in "driver.log".  The program itself is unchanged.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QWidget>

namespace {

QObject* findShown(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        for (QAction* action : window->findChildren<QAction*>(name))
            if (action->isEnabled()) return action;
        for (QWidget* widget : window->findChildren<QWidget*>(name))
            if (widget->isVisible() && widget->isEnabled()) return widget;
    }
    return nullptr;
}

template <typename Part>
Part* partOf(QObject* target) {
    if (auto* part = qobject_cast<Part*>(target)) return part;
    return target->findChild<Part*>();
}

bool perform(const QString& command, QObject* target, const QString& text) {
    if (command == QLatin1String("click")) {
        // Later, so that a dialog the click opens runs its own loop, not this step's.
        if (auto* action = qobject_cast<QAction*>(target)) {
            QTimer::singleShot(0, action, &QAction::trigger);
            return true;
        }
        if (auto* button = partOf<QAbstractButton>(target)) {
            QTimer::singleShot(0, button, &QAbstractButton::click);
            return true;
        }
    }
    if (command == QLatin1String("type") || command == QLatin1String("press")) {
        QWidget* editor = partOf<QTextEdit>(target);
        if (editor == nullptr) editor = partOf<QPlainTextEdit>(target);
        if (editor == nullptr) editor = partOf<QLineEdit>(target);
        if (editor == nullptr) return false;
        if (command == QLatin1String("type")) {
            QTest::keyClicks(editor, text);
        } else {
            // Later, so that a dialog the key closes returns to its own loop.
            QTimer::singleShot(0, editor, [editor] { QTest::keyClick(editor, Qt::Key_Return); });
        }
        return true;
    }
    if (command == QLatin1String("grab")) {
        auto* widget = qobject_cast<QWidget*>(target);
        if (widget == nullptr || text.isEmpty()) return false;
        QDir().mkpath(QFileInfo(text).absolutePath());
        return widget->window()->grab().save(text);
    }
    return false;
}

// Saves a picture of the shown window `name` once its title holds `title`.
bool takeShot(const QString& name, const QString& file, const QString& title) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->objectName() != name || !window->windowTitle().contains(title)) continue;
        QDir().mkpath(QFileInfo(file).path());
        return window->grab().save(file);
    }
    return false;
}

void startDriver() {
    auto* timer = new QTimer(qApp);
    auto done = std::make_shared<int>(0);
    QObject::connect(timer, &QTimer::timeout, qApp, [done] {
        QFile script(QStringLiteral("driver.txt"));
        if (!script.open(QIODevice::ReadOnly)) return;
        const QStringList lines = QString::fromUtf8(script.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        if (*done >= lines.size()) return;
        const QStringList words = lines[*done].trimmed().split(QLatin1Char(' '));
        if (words.size() < 2) return;
        if (words[0] == QLatin1String("shot")) {
            if (words.size() < 3 || !takeShot(words[1], words[2], words.mid(3).join(QLatin1Char(' ')))) return;
        } else {
            QObject* target = findShown(words[1]);
            if (target == nullptr || !perform(words[0], target, words.mid(2).join(QLatin1Char(' ')))) return;
        }
        ++*done;
        QFile log(QStringLiteral("driver.log"));
        if (log.open(QIODevice::WriteOnly | QIODevice::Truncate)) log.write(QByteArray::number(*done));
    });
    timer->start(50);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(startDriver)
