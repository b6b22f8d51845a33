// The record files of the list-and-details form: reading records, loading and saving
// the list, and the key of a new record.
#include <tuple>

#include "PimFixture.h"
#include "controls/ListView.h"
#include "pim/ListAndDetails.h"

using namespace orbidex;

class ListAndDetailsTest : public test::PimFixture {
protected:
    void SetUp() override {
        PimFixture::SetUp();
        // The event templates: key, name, length, category and a rich text.
        gListAndDetails.formTitle = "EventTemplate";
        gListAndDetails.numFields = 5;
        const char* captions[] = {"ID     ", "Name     ", "Length     ", "Category ", "Details  "};
        for (size_t i = 0; i < 5; ++i) gListAndDetails.fields[i].caption = captions[i];
        gListAndDetails.fields[0].listWidth = 0;
    }
    ListView list;
};

TEST_F(ListAndDetailsTest, RecordsEndAtTheirDelimiterWhereverTheLinesEnd) {
    using Records = std::vector<std::vector<std::string>>;
    const std::vector<std::pair<std::string, Records>> cases = {
        {"a|b|~", {{"a", "b"}}},
        {"a|b|~c|~", {{"a", "b"}, {"c"}}},  // two records on one line
        {"a|line 1\r\nline 2|~\r\nb|~", {{"a", "line 1\r\nline 2"}, {"b"}}},
        {"a|~cut short|", {{"a"}}},
        {"~\r\n~", {}},
        {"no delimiters", {}},
    };
    for (const auto& [text, records] : cases) EXPECT_EQ(ReadRecords(Closed(text), "\x1F", "\x1E"), records) << text;
}

TEST_F(ListAndDetailsTest, TheListIsSavedAndLoadedRecordByRecord) {
    for (const char* name : {"Meeting", "Call"}) {
        ListItem& row = list.ListItems.Add(getUniqueIDfromListView(list));
        row.SetSubItems(1, name);
        row.SetSubItems(2, "30");
        row.SetSubItems(4, std::string(name) + " notes\r\nsecond line");
    }
    glbConfig.dataChanged = true;
    SaveListToFile(list, Data("template_event.dat"));
    EXPECT_FALSE(glbConfig.dataChanged);
    EXPECT_EQ(ReadBytes(Data("template_event.dat")), Closed("X200406050001|Meeting|30||Meeting notes\r\nsecond line|~"
                                                            "X200406050002|Call|30||Call notes\r\nsecond line|~"));

    ListView loaded;
    LoadRecordFileToListBox(loaded, Data("template_event.dat"), "\x1F", "\x1E");
    ASSERT_EQ(loaded.ListItems.Count(), 2);
    EXPECT_EQ(loaded.ColumnHeaders.Count(), 5);
    EXPECT_EQ(loaded.ColumnHeaders(2).Text(), "Name     ");
    EXPECT_EQ(loaded.ListItems(2).Text(), "X200406050002");
    EXPECT_EQ(loaded.ListItems(2).SubItems(4), "Call notes\r\nsecond line");

    LoadRecordFileToListBox(loaded, Data("missing.dat"), "\x1F", "\x1E");
    EXPECT_EQ(platform_.MessageTexts(), std::vector<std::string>{"Cant find " + Data("missing.dat")});
    EXPECT_EQ(loaded.ListItems.Count(), 2);
}

TEST_F(ListAndDetailsTest, ANewKeyFollowsTheHighestKeyOfToday) {
    // keys in the list, new key
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{}, "X200406050001"},
        {{"T200406050003", "T200406010009"}, "T200406050004"},
        {{"T200406010009"}, "T200406050001"},
        {{""}, ""},
    };
    for (const auto& [keys, expected] : cases) {
        ListView keyed;
        for (const std::string& key : keys) keyed.ListItems.Add(key);
        EXPECT_EQ(getUniqueIDfromListView(keyed), expected);
    }
}
