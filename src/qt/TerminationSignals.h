#pragma once

namespace orbidex {

/// A termination request from the system (SIGTERM, SIGINT, SIGHUP) closes the
/// program's windows as a user would, so that the program ends through its one
/// exit path.
void CloseWindowsOnTerminationSignals();

}  // namespace orbidex
