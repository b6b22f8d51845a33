// The start-up benchmark's anchor: the least a Qt Widgets program with a main window
// does before its first event-loop turn.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setObjectName(QStringLiteral("bareWindow"));
    window.resize(760, 500);
    window.show();
    return QApplication::exec();
}
