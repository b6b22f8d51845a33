#include "qt/QtPlatform.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <unistd.h>

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>
#include <QRandomGenerator>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "controls/Form.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "qt/PrintPainter.h"
#include "qt/QtText.h"

namespace orbidex {

namespace {

QMessageBox::StandardButtons buttonsOf(int style) {
    switch (style & 7) {
        case vbOKCancel: return QMessageBox::Ok | QMessageBox::Cancel;
        case vbAbortRetryIgnore: return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
        case vbYesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case vbYesNo: return QMessageBox::Yes | QMessageBox::No;
        case vbRetryCancel: return QMessageBox::Retry | QMessageBox::Cancel;
        default: return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(int style) {
    switch (style & 0x70) {
        case vbCritical: return QMessageBox::Critical;
        case vbQuestion: return QMessageBox::Question;
        case vbExclamation: return QMessageBox::Warning;
        case vbInformation: return QMessageBox::Information;
        default: return QMessageBox::NoIcon;
    }
}

int answerOf(int button) {
    switch (button) {
        case QMessageBox::Cancel: return vbCancel;
        case QMessageBox::Abort: return vbAbort;
        case QMessageBox::Retry: return vbRetry;
        case QMessageBox::Ignore: return vbIgnore;
        case QMessageBox::Yes: return vbYes;
        case QMessageBox::No: return vbNo;
        default: return vbOK;
    }
}

// The default button: the first of the set, or the second or third when asked.
QMessageBox::StandardButton defaultOf(int style) {
    QList<QMessageBox::StandardButton> order;
    const auto set = buttonsOf(style);
    for (auto b : {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Abort, QMessageBox::Retry,
                   QMessageBox::Ignore, QMessageBox::Cancel})
        if (set & b) order.push_back(b);
    const int index = (style & vbDefaultButton3) ? 2 : (style & vbDefaultButton2) ? 1 : 0;
    return order.value(index, order.front());
}

QString titleOr(const std::string& title) {
    return title.empty() ? QCoreApplication::applicationName() : ToQString(title);
}

// The width a window needs for the whole of its title: the text in the desktop's
// font and room for the title bar's icon and buttons, within the screen.
int titleWidth(const QString& title) {
    constexpr int kTitleBarRoom = 160;
    const int wanted = QFontMetrics(QApplication::font()).horizontalAdvance(title) + kTitleBarRoom;
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? wanted : std::min(wanted, screen->availableGeometry().width() * 9 / 10);
}

// The normal pointer over a dialog that waits for the user, also while the program
// shows the busy cursor.
class NormalCursorWhileAsking {
public:
    NormalCursorWhileAsking() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~NormalCursorWhileAsking() { QApplication::restoreOverrideCursor(); }
    NormalCursorWhileAsking(const NormalCursorWhileAsking&) = delete;
    NormalCursorWhileAsking& operator=(const NormalCursorWhileAsking&) = delete;
};

// A message box sizes itself by its text alone: a row as wide as the title widens it.
void makeRoomForTitle(QMessageBox& box) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid == nullptr) return;
    grid->addItem(new QSpacerItem(titleWidth(box.windowTitle()), 0, QSizePolicy::Minimum, QSizePolicy::Fixed),
                  grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

QtPlatform::QtPlatform(QtFormRegistry& forms) : forms_(forms) {}

QtPlatform::~QtPlatform() {
    if (instanceLock_ >= 0) ::close(instanceLock_);
}

VbDate QtPlatform::Now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate d = now.date();
    const QTime t = now.time();
    return DateSerial(d.year(), d.month(), d.day()) + TimeSerial(t.hour(), t.minute(), t.second());
}

double QtPlatform::Rnd() { return QRandomGenerator::global()->generateDouble(); }

int QtPlatform::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    QMessageBox box(iconOf(buttons), titleOr(title), ToQString(prompt), buttonsOf(buttons), QApplication::activeWindow());
    box.setObjectName(QStringLiteral("MsgBox"));  // the name a driver of the program finds it by
    box.setDefaultButton(defaultOf(buttons));
    makeRoomForTitle(box);
    const NormalCursorWhileAsking cursor;
    return answerOf(box.exec());
}

std::string QtPlatform::InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText) {
    QInputDialog box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("InputBox"));  // the name a driver of the program finds it by
    box.setWindowTitle(titleOr(title));
    box.setLabelText(ToQString(prompt));
    box.setTextValue(ToQString(defaultText));
    // The box lays itself out when shown: its text makes it as wide as the title.
    if (auto* label = box.findChild<QLabel*>()) label->setMinimumWidth(titleWidth(box.windowTitle()));
    const NormalCursorWhileAsking cursor;
    return box.exec() == QDialog::Accepted ? FromQString(box.textValue()) : "";
}

std::string QtPlatform::PickFileToOpen(const std::string& title, const std::string& filter) {
    const NormalCursorWhileAsking cursor;
    const QString file = QFileDialog::getOpenFileName(QApplication::activeWindow(), ToQString(title), QDir::homePath(),
                                                      ToQString(filter));
    return file.isEmpty() ? "" : ToStoredPath(file.toStdString());
}

std::string QtPlatform::PickFileToSave(const std::string& title, const std::string& filter,
                                       const std::string& proposedName) {
    const NormalCursorWhileAsking cursor;
    const QString file = QFileDialog::getSaveFileName(QApplication::activeWindow(), ToQString(title),
                                                      QDir::home().filePath(ToQString(proposedName)), ToQString(filter));
    return file.isEmpty() ? "" : ToStoredPath(file.toStdString());
}

void QtPlatform::PrintPreview(const PrintDocument& document) {
    const NormalCursorWhileAsking cursor;
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(ToQString(document.heading));
    printer.setPageOrientation(document.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintPreviewDialog preview(&printer, QApplication::activeWindow());
    preview.setWindowTitle(QStringLiteral("Print Preview"));
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested,
                     [&document](QPrinter* target) { PaintPrintDocument(document, *target); });
    preview.exec();
}

void QtPlatform::SetBusyCursor(bool busy) {
    if (busy == busy_) return;
    busy_ = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtPlatform::DoEvents() { QCoreApplication::processEvents(QEventLoop::AllEvents, 50); }

void QtPlatform::WaitForEvents(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void QtPlatform::Beep() { QApplication::beep(); }

void QtPlatform::PlaySoundFile(const std::string& storedPath) {
    // No sound library: hand the file to the desktop's player, or beep.
    const QString native = QString::fromStdString(ToNativePath(storedPath));
    for (const char* player : {"paplay", "aplay"}) {
        const QString exe = QStandardPaths::findExecutable(QString::fromLatin1(player));
        if (!exe.isEmpty() && QProcess::startDetached(exe, {native})) return;
    }
    Beep();
}

std::string QtPlatform::ClipboardText() { return FromQString(QGuiApplication::clipboard()->text()); }

void QtPlatform::SetClipboardText(const std::string& text) { QGuiApplication::clipboard()->setText(ToQString(text)); }

std::string QtPlatform::ProgramFolder() { return ToStoredPath(QCoreApplication::applicationDirPath().toStdString()); }

std::string QtPlatform::ExeName() {
    return QFileInfo(QCoreApplication::applicationFilePath()).fileName().toStdString();
}

std::string QtPlatform::UserName() {
    if (const passwd* pw = ::getpwuid(::getuid()); pw != nullptr && pw->pw_name != nullptr) return pw->pw_name;
    return qEnvironmentVariable("USER").toStdString();
}

std::string QtPlatform::ComputerName() { return QSysInfo::machineHostName().toStdString(); }

bool QtPlatform::AnotherInstanceRunning() {
    // One running copy per program folder: an exclusive lock on a file named after
    // the folder.  The system drops the lock when a process ends, even by a crash.
    if (instanceLock_ >= 0) return false;
    const QByteArray key =
        QCryptographicHash::hash(QCoreApplication::applicationDirPath().toUtf8(), QCryptographicHash::Sha1).toHex();
    QString dir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (dir.isEmpty()) dir = QDir::tempPath();
    const QString path = dir + QStringLiteral("/orbidex-") + QString::fromLatin1(key.left(16)) + QStringLiteral(".lock");
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (fd < 0) return false;
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd);
        return true;
    }
    instanceLock_ = fd;
    return false;
}

ScreenSize QtPlatform::Screen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return {15360, 11520};
    const QRect r = screen->geometry();
    return {PixelsToTwips(r.width()), PixelsToTwips(r.height())};
}

bool QtPlatform::RunAndWait(const std::string& commandLine) {
    QStringList args = QProcess::splitCommand(ToQString(ToNativePath(commandLine)));
    if (args.isEmpty()) return false;
    QProcess process;
    process.start(args.takeFirst(), args);
    if (!process.waitForStarted()) return false;
    // The end may be handled among the events, after which waitForFinished only
    // says false: the process's state says when the wait is over.
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(50)) DoEvents();
    return true;
}

bool QtPlatform::StartProcess(const std::string& commandLine) {
    QStringList args = QProcess::splitCommand(ToQString(ToNativePath(commandLine)));
    if (args.isEmpty()) return false;
    const QString program = args.takeFirst();
    return QProcess::startDetached(program, args);
}

std::string QtPlatform::PickFolder(const std::string& title, const std::string& startFolder) {
    const QString start = startFolder.empty() ? QString() : QString::fromStdString(ToNativePath(startFolder));
    const QString picked = QFileDialog::getExistingDirectory(QApplication::activeWindow(), titleOr(title), start);
    return picked.isEmpty() ? "" : ToStoredPath(picked.toStdString());
}

bool QtPlatform::PickColour(const std::string& title, long& current) {
    const QColor start(RedOf(static_cast<OleColor>(current)), GreenOf(static_cast<OleColor>(current)),
                       BlueOf(static_cast<OleColor>(current)));
    const QColor picked = QColorDialog::getColor(start, QApplication::activeWindow(), titleOr(title));
    if (!picked.isValid()) return false;
    current = static_cast<long>(RGB(picked.red(), picked.green(), picked.blue()));
    return true;
}

bool QtPlatform::PickFont(const std::string& title, std::string& name, double& size) {
    bool ok = false;
    QFont start(ToQString(name));
    if (size > 0) start.setPointSizeF(size);
    const QFont picked = QFontDialog::getFont(&ok, start, QApplication::activeWindow(), titleOr(title));
    if (!ok) return false;
    name = FromQString(picked.family());
    size = picked.pointSizeF();
    return true;
}

int QtPlatform::OpenDocument(const std::string& fileOrUrl) {
    const QString text = ToQString(fileOrUrl);
    QUrl url = QUrl(text);
    const bool isAddress = url.isValid() && url.scheme().size() > 1;
    if (!isAddress) {
        const QString native = QString::fromStdString(ToNativePath(fileOrUrl));
        const QFileInfo info(native);
        if (!info.dir().exists()) return 3;  // path not found
        if (!info.exists()) return 2;        // file not found
        url = QUrl::fromLocalFile(info.absoluteFilePath());
    }
    return QDesktopServices::openUrl(url) ? 42 : 31;
}

QWidget* QtPlatform::windowFor(Form& form) {
    QPointer<QWidget> window = windows_.value(&form);
    if (window.isNull()) {
        window = forms_.Create(form);
        if (window.isNull()) {
            std::fprintf(stderr, "orbidex: no window for form %s\n", form.Name().c_str());
            return nullptr;
        }
        windows_.insert(&form, window);
    }
    return window.data();
}

QWidget* QtPlatform::WindowOf(const Form& form) const { return windows_.value(&form).data(); }

void QtPlatform::ShowModal(Form& form) {
    QWidget* window = windowFor(form);
    if (window == nullptr) return;
    window->setWindowModality(Qt::ApplicationModal);
    window->show();
    QEventLoop loop;
    modalLoops_.insert(&form, &loop);
    if (!form.IsUnloaded() && form.Visible) loop.exec();
    modalLoops_.remove(&form);
}

void QtPlatform::ShowModeless(Form& form) {
    if (QWidget* window = windowFor(form)) window->show();
}

void QtPlatform::HideForm(Form& form) {
    if (QWidget* window = WindowOf(form)) window->hide();
    if (QEventLoop* loop = modalLoops_.value(&form)) loop->quit();
}

void QtPlatform::EndProgram(int exitCode) {
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

}  // namespace orbidex
