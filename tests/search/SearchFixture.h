#pragma once
// A started program (the clock at 5 June 2004 09:30:12, June 2004 in memory) over a
// data folder of several years, and the program's results window.

#include <string>
#include <vector>

#include "EventLines.h"
#include "MainScreenFixture.h"
#include "ResultRows.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "search/frmSearchResults.h"

namespace orbidex::test {

class SearchFixture : public MainScreenFixture {
protected:
    std::string Data(const std::string& name) const { return DataPath() + name; }
    /// Writes the lines, each ended by CR LF; "|" stands for the byte 0x1F.
    void WriteLines(const std::string& name, const std::vector<std::string>& lines) const {
        std::string bytes;
        for (const std::string& line : lines) bytes += Replace(line, "|", "\x1F") + "\r\n";
        WriteBytes(Data(name), bytes);
    }
    frmSearchResults& Results() { return SearchResultsForm(); }
    std::vector<std::string> Rows() { return RowTexts(Results().lvResults); }
    /// The tags of the rows: the events' identifiers.
    std::vector<std::string> Tags() {
        std::vector<std::string> tags;
        ListView& list = Results().lvResults;
        for (long i = 1; i <= list.ListItems.Count(); ++i) tags.push_back(list.ListItems(i).Tag);
        return tags;
    }
};

}  // namespace orbidex::test
