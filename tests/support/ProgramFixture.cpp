#include "ProgramFixture.h"

#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex::test {

std::string ReadGolden(const std::string& folder, const std::string& name) {
    std::string bytes;
    EXPECT_TRUE(ReadWholeFile(ToStoredPath(folder + "/" + name), bytes)) << name;
    return bytes;
}

void ProgramFixture::SetUp() {
    ResetProgramState();
    platform_.SetProgramFolder(folder_.Stored());
    platform_.SetProblemHandler([](const std::string& description) { ADD_FAILURE() << description; });
    SetPlatform(&platform_);
    MakeFolder(DataPath());
    gStrDataPath = DataPath();
    gStrIniFile = gStrDataPath + "orbidex.ini";
    glbLog.init(Stored("data\\OX_LOG.log"), Stored("data\\OX_ERR.log"), "", true, 0);
}

void ProgramFixture::TearDown() {
    ResetProgramState();
    SetPlatform(nullptr);
}

std::string ProgramFixture::DataPath() const { return folder_.Stored() + "\\data\\"; }

std::string ProgramFixture::Stored(const std::string& relative) const { return folder_.Stored() + "\\" + relative; }

std::string ProgramFixture::ReadBytes(const std::string& storedPath) const {
    std::string bytes;
    ReadWholeFile(storedPath, bytes);
    return bytes;
}

void ProgramFixture::WriteBytes(const std::string& storedPath, const std::string& bytes) const {
    WriteWholeFile(storedPath, bytes);
}

std::vector<std::string> ProgramFixture::LogMessages() const {
    std::vector<std::string> messages;
    for (const std::string& line : SplitLines(ReadBytes(Stored("data\\OX_LOG.log")))) {
        // yyyy-mm-dd, hh:mm:ss, computer, user, message
        std::vector<std::string> parts = Split(line, ", ", 5);
        messages.push_back(parts.size() == 5 ? parts[4] : line);
    }
    return messages;
}

}  // namespace orbidex::test
