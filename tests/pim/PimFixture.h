#pragma once
// The fixture of the task and note tests: the event store's (a program folder with its
// data folder, the clock at 2004-06-05 09:30:12, lines and files of the data folder),
// with the hand-written data folder of tests/pim/golden and the two editors.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "../diary/DiaryFixture.h"
#include "config/clsConfigDiary.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"

namespace orbidex::test {

class PimFixture : public DiaryFixture {
protected:
    void SetUp() override {
        DiaryFixture::SetUp();
        gStrTasksFile = Data("D_tasks.dat");
    }

    /// The text with each "|" as the byte 0x1F that closes a field and each "~" as the
    /// byte 0x1E that closes a record.
    static std::string Closed(const std::string& text) { return Replace(Replace(text, "|", "\x1F"), "~", "\x1E"); }

    /// A file of tests/pim/golden.
    static std::string Golden(const std::string& name) { return ReadGolden(ORBIDEX_PIM_GOLDEN_DIR, name); }
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
