#pragma once
// Opening a file or a web address the way the desktop opens it, with the program's
// messages for each way this can fail.

#include <string>

namespace orbidex {

/// Opens `path` (a stored path or an address) with the program associated with it.
/// The program's own text files (".dat", ".log") go to the text editor instead.  A
/// failure is logged and shown with the message of its code.  An empty path does
/// nothing.  True when something was opened.
bool LaunchDocument(const std::string& path);

/// The message shown when opening failed with `code`.
std::string LaunchFailureMessage(int code, const std::string& path);

}  // namespace orbidex
