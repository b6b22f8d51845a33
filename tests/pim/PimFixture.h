#pragma once
// The fixture of the task and note tests: a program folder with its data folder, the
// clock at 2004-06-05 09:30:12, and helpers for lines, files and the two editors.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "ProgramFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"

namespace orbidex::test {

class PimFixture : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        gStrTasksFile = Data("D_tasks.dat");
    }

    /// A file of the data folder.
    std::string Data(const std::string& name) const { return DataPath() + name; }
    /// Writes the lines, each ended by CR LF.
    void WriteLines(const std::string& name, const std::vector<std::string>& lines) const {
        std::string bytes;
        for (const std::string& line : lines) bytes += line + "\r\n";
        WriteBytes(Data(name), bytes);
    }
    std::vector<std::string> Lines(const std::string& name) const { return SplitLines(ReadBytes(Data(name))); }

    /// The fields, each followed by 0x1F.
    static std::string Line(const std::vector<std::string>& fields) {
        std::string line;
        for (const std::string& field : fields) line += field + "\x1F";
        return line;
    }

    /// The text with each "|" as the byte 0x1F that closes a field and each "~" as the
    /// byte 0x1E that closes a record.
    static std::string Closed(const std::string& text) { return Replace(Replace(text, "|", "\x1F"), "~", "\x1E"); }

    /// A file of tests/pim/golden.
    std::string Golden(const std::string& name) const {
        std::string bytes;
        EXPECT_TRUE(ReadWholeFile(ToStoredPath(std::string(ORBIDEX_PIM_GOLDEN_DIR) + "/" + name), bytes)) << name;
        return bytes;
    }
    /// Copies the hand-written data folder of tests/pim/golden into the program's.
    void CopyGoldenData() const {
        std::filesystem::copy(
            std::string(ORBIDEX_PIM_GOLDEN_DIR) + "/data", folder_.Native() + "/data",
            std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing);
    }

    /// The next time the editor `form` opens, `edit` acts as the user, who then
    /// presses OK (or Cancel).
    void QueueEditor(const std::string& form, std::function<void()> edit, bool cancel = false) {
        platform_.QueueFormScript(form, [edit, cancel](Form&) {
            edit();
            glbConfig.dialogCancelled = cancel;
        });
    }
};

}  // namespace orbidex::test
