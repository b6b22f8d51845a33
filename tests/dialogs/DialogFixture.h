#pragma once
// The fixture of the event dialogs' tests: the event store's fixture with the
// calendar on Saturday 2004-06-05 and time slots of half an hour.

#include <memory>
#include <string>

#include "../diary/DiaryFixture.h"
#include "../diary/EventLines.h"
#include "config/clsConfigDiary.h"
#include "controls/RichTextBox.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "screen/clsTimeSlots.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex::test {

class DialogFixture : public DiaryFixture {
protected:
    void SetUp() override {
        DiaryFixture::SetUp();
        glbConfig.timeSlots = std::make_shared<clsTimeSlots>();
        glbConfig.timeSlots->numSlotsPerHour = 2;
        MainForm().MonthView1.Value = June(5);
    }
    /// Types `text` into the box as the user does, the caret at its end.
    static void TypeDetails(RichTextBox& box, const std::string& text) {
        box.UserEdit({TextRun{text, {}}}, static_cast<long>(text.size()));
    }
    /// True when the log holds a line with exactly this message.
    bool LoggedMessage(const std::string& message) const {
        for (const std::string& line : LogMessages())
            if (line == message) return true;
        return false;
    }
};

}  // namespace orbidex::test
