// The start-up benchmark's second anchor: a plain Qt main window with a menu bar, a
// tool bar, a table of 20 rows and 8 columns and a status bar.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTableWidget>
#include <QToolBar>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setObjectName(QStringLiteral("plainWindow"));
    for (const char* title : {"&File", "&Edit", "&View", "&Help"}) {
        QMenu* menu = window.menuBar()->addMenu(QString::fromLatin1(title));
        for (const char* entry : {"&New", "&Open", "&Save", "E&xit"}) menu->addAction(QString::fromLatin1(entry));
    }
    QToolBar* tools = window.addToolBar(QStringLiteral("Tools"));
    for (const char* button : {"New", "Open", "Save", "Print", "Find"}) tools->addAction(QString::fromLatin1(button));
    auto* table = new QTableWidget(20, 8, &window);
    for (int row = 0; row < 20; ++row)
        for (int col = 0; col < 8; ++col)
            table->setItem(row, col, new QTableWidgetItem(QStringLiteral("%1,%2").arg(row).arg(col)));
    window.setCentralWidget(table);
    window.statusBar()->showMessage(QStringLiteral("Ready"));
    window.resize(760, 500);
    window.show();
    return QApplication::exec();
}
