#pragma once
// The fixture of the event store's tests: a program folder with its data folder, the
// clock at 2004-06-05 09:30:12, and helpers for monthly files.

#include <string>
#include <vector>

#include "ProgramFixture.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"

namespace orbidex::test {

class DiaryFixture : public ProgramFixture {
protected:
    /// A file of the data folder.
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
    /// True when the log file contains the text.
    bool Logged(const std::string& text) const {
        return ReadBytes(Stored("data\\OX_LOG.log")).find(text) != std::string::npos;
    }

    static VbDate June(int day) { return DateSerial(2004, 6, day); }
};

}  // namespace orbidex::test
