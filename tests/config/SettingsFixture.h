#pragma once
// Tests of the settings: the program fixture with the settings file's path set as the
// start-up sets it, and helpers to write and compare settings files.

#include <string>
#include <vector>

#include "ProgramFixture.h"

namespace orbidex::test {

class SettingsFixture : public ProgramFixture {
protected:
    void SetUp() override;

    /// data\orbidex.ini below the program folder.
    std::string IniPath() const { return Stored("data\\orbidex.ini"); }
    /// Writes the settings file from lines, each ended by CR LF.
    void WriteIni(const std::vector<std::string>& lines) const;
    std::string IniText() const { return ReadBytes(IniPath()); }
    /// A file of tests/config/golden, with "{PROGRAM_FOLDER}" replaced by the
    /// program folder.
    std::string Golden(const std::string& name) const;
    /// Runs ReadAllSettings and reports whether the program ended, with its code.
    bool ReadAllSettingsEnds(int& exitCode);
};

/// Compares two texts line by line, naming the first line that differs, then byte
/// for byte (line ends included).
::testing::AssertionResult SameLines(const std::string& actual, const std::string& expected);

}  // namespace orbidex::test
