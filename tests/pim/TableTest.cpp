// The table of raw lines: its shape after each step, finding, deleting, adding,
// saving, the identifiers of new lines, and the files it can't use.
#include <tuple>

#include "PimFixture.h"
#include "foundation/VbDate.h"
#include "pim/cData.h"

using namespace orbidex;

class TableTest : public test::PimFixture {
protected:
    /// Writes the lines as "table.dat" and loads them.
    void Load(const std::vector<std::string>& lines) {
        WriteLines("table.dat", lines);
        table.init(Data("table.dat"));
        table.LoadFromFile();
    }
    std::vector<std::string> Items() const {
        std::vector<std::string> items;
        for (long i = 0; i <= table.UpperBound(); ++i) items.push_back(table.Item(i));
        return items;
    }

    cData table;
};

TEST_F(TableTest, LinesStandFromZeroAfterALoadAndFromOneAfterASave) {
    table.init(Data("table.dat"));
    EXPECT_EQ(Items(), (std::vector<std::string>{"", ""}));
    EXPECT_EQ(table.Count(), 0);

    Load({"c", "a", "   ", "", "b"});
    EXPECT_EQ(Items(), (std::vector<std::string>{"c", "a", "b", ""}));
    EXPECT_EQ(table.Count(), 3);

    table.SaveToFile();
    EXPECT_EQ(Items(), (std::vector<std::string>{"", "a", "b", "c"}));
    EXPECT_EQ(ReadBytes(Data("table.dat")), "a\r\nb\r\nc\r\n");
}

TEST_F(TableTest, DeleteMovesTheLinesAboveDownAndSavesAndTheNumbersGoOn) {
    Load({"N200406050001", "N200406050002", "N200406050003"});
    table.Delete(1);
    EXPECT_EQ(ReadBytes(Data("table.dat")), "N200406050001\r\nN200406050003\r\n");
    EXPECT_EQ(table.getUniqueID(Data("table.dat"), Today()), "N200406050004");  // the gap stays
    table.Delete(2);  // the highest, at the top of the saved table: its number is free again
    EXPECT_EQ(table.getUniqueID(Data("table.dat"), Today()), "N200406050002");
    EXPECT_FALSE(platform_.BusyCursor());

    for (long index : {-1L, 2L}) {
        platform_.ClearTranscript();
        table.Delete(index);
        EXPECT_EQ(platform_.MessageTexts(),
                  (std::vector<std::string>{"Error in cData.Delete Error=9 = Subscript out of range"}))
            << index;
        EXPECT_EQ(ReadBytes(Data("table.dat")), "N200406050001\r\n");
    }
}

TEST_F(TableTest, AddMakesTheMissingFileAndEverySaveSortsAndDropsBlankLines) {
    table.init(Data("table.dat"));
    table.LoadFromFile();
    table.Add("N200406050001\x1F");
    EXPECT_EQ(ReadBytes(Data("table.dat")), "N200406050001\x1F\r\n");

    Load({"N200406050001\x1F", "  ", "D200406010000\x1F"});
    table.Item(1, "   ");  // a line of blanks vanishes at the save
    table.Add("D200406050000\x1F");
    EXPECT_EQ(ReadBytes(Data("table.dat")), "D200406050000\x1F\r\nN200406050001\x1F\r\n");
}

TEST_F(TableTest, NewIdentifiersFollowTheHighestOfTheDayInTheFile) {
    const VbDate june5 = DateSerial(2004, 6, 5);
    // file lines (none: no file), date, identifier
    const std::vector<std::tuple<std::vector<std::string>, VbDate, std::string>> cases = {
        {{}, DateSerial(2004, 6, 7), "N200406050001"},  // no file: today's first
        {{"N200406050001\x1F", "N200406050002\x1F"}, june5, "N200406050003"},
        {{"N200406050001\x1F", "N200406050003\x1F"}, june5, "N200406050004"},  // a gap stays a gap
        {{"N200406040007\x1F"}, june5, "N200406050001"},                       // another day
        {{"N200406040007\x1F"}, DateSerial(2004, 6, 4), "N200406040008"},
        {{"D200406050003\x1F", "N200406050001\x1F"}, june5, "D200406050004"},  // the first line's letter
        // No "D" identifier of the day: the day's "N" sequence goes on.
        {{"D200406010000\x1F", "N200406050001\x1F"}, june5, "N200406050002"},
        {{"D200406010000\x1F"}, june5, "N200406050001"},
        {{Closed("ID|Date|"), "C200406050002\x1F"}, june5, "C200406050003"},  // a heading line
        {{"", "D200406050001\x1F"}, june5, "D200406050002"},                  // the file name's letter
        {{"N200406059999\x1F"}, june5, "N2004060510000"},                     // a fifth digit
    };
    for (const auto& [lines, date, expected] : cases) {
        const std::string file = Data(lines.empty() ? "missing.dat" : "D_tasks.dat");
        if (!lines.empty()) WriteLines("D_tasks.dat", lines);
        EXPECT_EQ(table.getUniqueID(file, date), expected) << (lines.empty() ? "" : lines.front());
    }
}

TEST_F(TableTest, FilesThatCantBeUsedAreReported) {
    table.init("");
    table.init(Stored("nowhere\\table.dat"));
    table.init(Data("new.dat"));  // a missing file in an existing folder is fine
    const auto& shown = platform_.Transcript();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].title, "Blank Filename passed to cData class");
    EXPECT_EQ(shown[0].text, "Error in cData class - trying to initialise a blank file");
    EXPECT_EQ(shown[1].title, "Folder does not exist");
    EXPECT_EQ(shown[1].text, "Error in cData class - trying to initialise the file\r\n" + Stored("nowhere\\table.dat") +
                                 "\r\nbut the directory does not exist");

    // A folder where the file should be: nothing to load, and the save is refused.
    MakeFolder(Data("folder.dat"));
    table.init(Data("folder.dat"));
    table.LoadFromFile();
    EXPECT_EQ(table.Count(), 0);
    platform_.ClearTranscript();
    table.Add("a");
    EXPECT_EQ(platform_.MessageTexts(),
              (std::vector<std::string>{"Error in cData.SaveToFile Error=75 = Path/File access error"}));
    EXPECT_TRUE(FolderExists(Data("folder.dat")));
}

TEST_F(TableTest, AFileChangedOnDiskIsLoadedAgain) {
    Load({"a", "b"});
    EXPECT_FALSE(table.FileChangedOnDisk());
    WriteLines("table.dat", {"a", "b", "added by hand"});
    ASSERT_TRUE(table.FileChangedOnDisk());
    EXPECT_TRUE(table.ReloadIfChangedOnDisk());
    EXPECT_EQ(table.Count(), 3);
    table.Add("c");
    EXPECT_EQ(ReadBytes(Data("table.dat")), "a\r\nadded by hand\r\nb\r\nc\r\n");
    EXPECT_FALSE(table.FileChangedOnDisk());
}
