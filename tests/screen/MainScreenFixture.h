#pragma once
// A started program: the scripted platform at 5 June 2004 09:30:12, modMain run in
// a temporary program folder, the main window built on the calendar.

#include <string>

#include "ProgramFixture.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex::test {

class MainScreenFixture : public ProgramFixture {
protected:
    /// Runs the start-up of the "LOCAL" or "CLIENT" kind of program; a client's
    /// first run is told to run without a server.
    void StartProgram(const std::string& kind = "LOCAL");
    frmClientDiaryMain& Form() { return MainForm(); }
    /// The text of a status bar panel (1 or 2).
    std::string Panel(long index) { return Form().status.Panels(index).Text; }
    bool LogHas(const std::string& message) const;
    /// The day column of the main grid whose heading reads `heading`, or -1.
    long ColumnHeaded(const std::string& heading);
};

}  // namespace orbidex::test
