#pragma once
// Tests of the settings: the program fixture with the settings file's path set as the
// start-up sets it, and helpers to write and read settings files.

#include <string>
#include <vector>

#include "ProgramFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"

namespace orbidex::test {

class SettingsFixture : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        glbConfig.fname = gStrIniFile;
    }
    /// data\orbidex.ini below the program folder.
    std::string IniPath() const { return Stored("data\\orbidex.ini"); }
    std::string IniText() const { return ReadBytes(IniPath()); }
    /// Writes the settings file from lines, each ended by CR LF.
    void WriteIni(const std::vector<std::string>& lines) const {
        std::string text;
        for (const std::string& line : lines) text += line + "\r\n";
        WriteBytes(IniPath(), text);
    }
    /// A file of tests/config/golden, "{PROGRAM_FOLDER}" replaced by the program folder.
    std::string Golden(const std::string& name) const {
        return Replace(ReadGolden(ORBIDEX_CONFIG_GOLDEN_DIR, name), "{PROGRAM_FOLDER}", folder_.Stored());
    }
};

}  // namespace orbidex::test
