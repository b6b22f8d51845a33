#pragma once

#include <string>

namespace orbidex {

/// The program's start: creates the long-lived objects, finds the data folder, reads
/// the settings, loads today's month, builds the main window and starts the timer.
/// `networkKind` is "LOCAL" or "CLIENT", fixed when the program was built.
void modMain(const std::string& networkKind);

}  // namespace orbidex
