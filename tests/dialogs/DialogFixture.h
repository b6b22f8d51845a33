#pragma once
// The fixture of the event dialogs' tests: a program folder with its data folder,
// the clock at Saturday 2004-06-05 09:30:12, the calendar on that day, time slots of
// half an hour, and helpers for monthly files and event lines.

#include <memory>
#include <string>
#include <vector>

#include "ProgramFixture.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "screen/clsTimeSlots.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex::test {

/// The fields, each followed by the byte 0x1F.
inline std::string Fields(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& f : fields) line += f + "\x1F";
    return line;
}

/// An event line with the usual fields; `reference` "Meeting" makes a meeting.
inline std::string EventLine(const std::string& id, const std::string& date, const std::string& time,
                             const std::string& details, const std::string& reference = "Phone") {
    return Fields({id, date, reference, time, "30", "Call", "fred", "", "", "", "", "Normal", "", "Office", details});
}

class DialogFixture : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        glbConfig.timeSlots = std::make_shared<clsTimeSlots>();
        glbConfig.timeSlots->numSlotsPerHour = 2;
        MainForm().MonthView1.Value = June(5);
    }

    static VbDate June(int day) { return DateSerial(2004, 6, day); }
    std::string Data(const std::string& name) const { return DataPath() + name; }
    /// Writes the lines, each ended by CR LF.
    void WriteLines(const std::string& name, const std::vector<std::string>& lines) const {
        std::string bytes;
        for (const std::string& line : lines) bytes += line + "\r\n";
        WriteBytes(Data(name), bytes);
    }
    std::vector<std::string> Lines(const std::string& name) const { return SplitLines(ReadBytes(Data(name))); }
    /// Writes June's file and loads it, as the calendar does for 5 June.
    void LoadJune(const std::vector<std::string>& lines) {
        WriteLines("D200406.dat", lines);
        glbEvents.LoadDiaryData(June(5));
    }
    bool Logged(const std::string& message) const {
        for (const std::string& line : LogMessages())
            if (line == message) return true;
        return false;
    }
};

}  // namespace orbidex::test
