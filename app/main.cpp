// The program's entry: Qt's application, the platform, then the diary's own start.
#include <QApplication>

#include "foundation/modMain.h"
#include "qt/ProgramStyle.h"
#include "qt/QtFormRegistry.h"
#include "qt/QtPlatform.h"
#include "qt/TerminationSignals.h"

#ifndef ORBIDEX_NETWORK_STRING
#define ORBIDEX_NETWORK_STRING "LOCAL"
#endif

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orbidex"));
    orbidex::UseProgramStyle();
    orbidex::QtFormRegistry forms;
    orbidex::RegisterProgramWindows(forms);
    orbidex::QtPlatform platform(forms);
    orbidex::SetPlatform(&platform);
    orbidex::CloseWindowsOnTerminationSignals();
    orbidex::modMain(ORBIDEX_NETWORK_STRING);
    return QApplication::exec();
}
