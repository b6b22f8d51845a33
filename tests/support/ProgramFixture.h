#pragma once
// The usual start of a test: program state reset, a temporary program folder with a
// "data" folder, a ScriptedPlatform at 5 June 2004 09:30:12 installed, the log
// opened in the data folder.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ScriptedPlatform.h"
#include "TempFolder.h"

namespace orbidex::test {

/// The bytes of the file `name` of a folder of golden files; a missing file fails the test.
std::string ReadGolden(const std::string& folder, const std::string& name);

class ProgramFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Program folder + "\data\" in stored form, as gStrDataPath holds it.
    std::string DataPath() const;
    /// A path below the program folder, from a stored relative path ("data\x.dat").
    std::string Stored(const std::string& relative) const;
    /// The whole file as bytes ("" when missing).
    std::string ReadBytes(const std::string& storedPath) const;
    void WriteBytes(const std::string& storedPath, const std::string& bytes) const;
    /// The lines of the program's log (data\OX_LOG.log), without their date, time,
    /// computer and user.
    std::vector<std::string> LogMessages() const;

    ScriptedPlatform platform_;
    TempFolder folder_;
};

}  // namespace orbidex::test
