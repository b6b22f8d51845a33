#pragma once
// The settings file of a client that works with a server, as a first start that
// answered Yes leaves it: written before a start, so that no first-run question
// comes up.

#include <string>

namespace orbidex::test {

/// The whole settings file for a program in `programFolder` whose network folder is
/// `networkFolder` (both stored paths) and which waits `waitTime` seconds for the
/// server.
std::string ClientSettingsFile(const std::string& programFolder, const std::string& networkFolder, int waitTime);

}  // namespace orbidex::test
