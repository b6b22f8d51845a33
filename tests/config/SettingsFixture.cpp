#include "SettingsFixture.h"

#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"

namespace orbidex::test {

void SettingsFixture::SetUp() {
    ProgramFixture::SetUp();
    glbConfig.fname = gStrIniFile;
}

void SettingsFixture::WriteIni(const std::vector<std::string>& lines) const {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    WriteBytes(IniPath(), text);
}

std::string SettingsFixture::Golden(const std::string& name) const {
    std::string text;
    EXPECT_TRUE(ReadWholeFile(ToStoredPath(std::string(ORBIDEX_CONFIG_GOLDEN_DIR) + "/" + name), text)) << name;
    return Replace(text, "{PROGRAM_FOLDER}", folder_.Stored());
}

bool SettingsFixture::ReadAllSettingsEnds(int& exitCode) {
    try {
        glbConfig.ReadAllSettings();
    } catch (const ProgramEnded& ended) {
        exitCode = ended.exitCode;
        return true;
    }
    return false;
}

::testing::AssertionResult SameLines(const std::string& actual, const std::string& expected) {
    const std::vector<std::string> a = SplitLines(actual);
    const std::vector<std::string> e = SplitLines(expected);
    for (size_t i = 0; i < a.size() || i < e.size(); ++i) {
        const std::string got = i < a.size() ? a[i] : "<no line>";
        const std::string want = i < e.size() ? e[i] : "<no line>";
        if (got != want)
            return ::testing::AssertionFailure()
                   << "line " << i + 1 << " is\n  [" << got << "]\nexpected\n  [" << want << "]";
    }
    if (actual != expected) return ::testing::AssertionFailure() << "same lines, but the line ends differ";
    return ::testing::AssertionSuccess();
}

}  // namespace orbidex::test
