#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "TempFolder.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"

using namespace orbidex;
using orbidex::test::TempFolder;

namespace fs = std::filesystem;

namespace {

std::vector<std::string> namesIn(const TempFolder& folder) {
    std::vector<std::string> names = ListFolder(folder.Stored() + "\\*", true);
    std::sort(names.begin(), names.end());
    return names;
}

void touch(const std::string& native, const std::string& bytes = "x") {
    std::ofstream(native, std::ios::binary) << bytes;
}

// A file's time as the program's clock gives it: local time, to the second.
VbDate Date(fs::file_time_type written) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(std::chrono::file_clock::to_sys(written));
    std::tm local{};
    localtime_r(&seconds, &local);
    return DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
           TimeSerial(local.tm_hour, local.tm_min, local.tm_sec);
}

}  // namespace

TEST(FileSystem, StoredPathsUseBackslashes) {
    EXPECT_EQ(ToStoredPath("/tmp/a/b.txt"), "\\tmp\\a\\b.txt");
    EXPECT_EQ(ToNativePath("\\tmp\\no-such-folder-x\\b.txt"), "/tmp/no-such-folder-x/b.txt");
}

TEST(FileSystem, NamesMatchWithoutRegardToCase) {
    TempFolder t;
    std::filesystem::create_directory(t.Native() + "/Data");
    touch(t.Native() + "/Data/D200406.dat", "june");
    const std::string root = t.Stored();

    EXPECT_TRUE(FileExists(root + "\\data\\d200406.DAT"));
    EXPECT_TRUE(FolderExists(root + "\\DATA"));
    EXPECT_FALSE(FileExists(root + "\\DATA"));
    EXPECT_EQ(FileLength(root + "\\DATA\\D200406.DAT"), 4);
    EXPECT_EQ(ToNativePath(root + "\\data\\d200406.dat"), t.Native() + "/Data/D200406.dat");

    // Writing a name that exists in another case writes the existing file.
    ASSERT_TRUE(WriteWholeFile(root + "\\data\\D200406.DAT", "july"));
    std::string bytes;
    ASSERT_TRUE(ReadWholeFile(t.Native() + "/Data/D200406.dat", bytes));
    EXPECT_EQ(bytes, "july");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(t.Native() + "/Data"),
                            std::filesystem::directory_iterator()),
              1);

    // A new file keeps the case it was given, in the folder as it exists.
    ASSERT_TRUE(WriteWholeFile(root + "\\data\\NewFile.Txt", ""));
    EXPECT_TRUE(std::filesystem::exists(t.Native() + "/Data/NewFile.Txt"));

    // Copying onto another case replaces the existing entry.
    ASSERT_TRUE(CopyFile(root + "\\DATA\\newfile.txt", root + "\\data\\d200406.dat"));
    EXPECT_EQ(FileLength(t.Native() + "/Data/D200406.dat"), 0);

    EXPECT_TRUE(DeleteFile(root + "\\data\\NEWFILE.TXT"));
    EXPECT_FALSE(std::filesystem::exists(t.Native() + "/Data/NewFile.Txt"));
    EXPECT_FALSE(DeleteFile(root + "\\data\\NEWFILE.TXT"));
    EXPECT_FALSE(DeleteFile(root + "\\data"));  // a folder is no file
}

TEST(FileSystem, DirPatternsMatchWithoutRegardToCase) {
    EXPECT_TRUE(WildcardMatch("D*.DAT", "d200406.dat"));
    EXPECT_TRUE(WildcardMatch("D??????.dat", "D200406.DAT"));
    EXPECT_FALSE(WildcardMatch("D??????.dat", "D2004061.dat"));
    EXPECT_FALSE(WildcardMatch("D*.DAT", "D200406.dat.BAK"));
    EXPECT_TRUE(WildcardMatch("*.*", "README"));
    EXPECT_TRUE(WildcardMatch("README.*", "README"));
    EXPECT_TRUE(WildcardMatch("*", ""));

    TempFolder t;
    touch(t.Native() + "/D200406.dat");
    touch(t.Native() + "/d200407.DAT");
    touch(t.Native() + "/D200406.dat.BAK");
    std::filesystem::create_directory(t.Native() + "/D200408.dat");
    auto names = ListFolder(t.Stored() + "\\D*.DAT", false);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"D200406.dat", "d200407.DAT"}));
    EXPECT_EQ(ListFolder(t.Stored() + "\\D*.DAT", true).size(), 3U);
    EXPECT_TRUE(ListFolder(t.Stored() + "\\missing\\*.*", true).empty());
}

TEST(FileSystem, LinesEndInCrLfCrOrLf) {
    EXPECT_EQ(SplitLines("a\r\nb\r\n"), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(SplitLines("a\r\n\r\nb"), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_EQ(SplitLines("a\nb\rc"), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_TRUE(SplitLines("").empty());
    EXPECT_EQ(SplitLines("\r\n"), (std::vector<std::string>{""}));
}

TEST(FileSystem, FoldersAndMissingFilesFailQuietly) {
    TempFolder t;
    std::string bytes = "kept";
    EXPECT_FALSE(ReadWholeFile(t.Stored(), bytes));
    EXPECT_FALSE(ReadWholeFile(t.Stored() + "\\missing.txt", bytes));
    EXPECT_FALSE(WriteWholeFile(t.Stored(), "x"));
    EXPECT_FALSE(WriteWholeFile(t.Stored() + "\\no\\such\\file.txt", "x"));
    EXPECT_EQ(FileLength(t.Stored()), -1);
    VbDate stamp = 0;
    EXPECT_FALSE(FileTimeStamp(t.Stored() + "\\missing.txt", stamp));
    EXPECT_TRUE(FileTimeStamp(t.Stored(), stamp));
}

TEST(FileSystem, AFileVersionChangesWithEveryWriteAndOnlyThen) {
    TempFolder t;
    const std::string file = t.Stored() + "\\Orbidex.ini";
    touch(t.Native() + "/orbidex.ini", "[a]\r\n");
    FileVersion first;
    ASSERT_TRUE(FileVersionOf(t.Stored() + "\\ORBIDEX.INI", first)) << "names match without regard to case";
    EXPECT_EQ(first.length, 5);
    FileVersion again;
    std::string bytes;
    ASSERT_TRUE(ReadWholeFile(file, bytes, again));
    EXPECT_EQ(bytes, "[a]\r\n");
    EXPECT_EQ(again, first) << "reading leaves the version as it was";
    EXPECT_EQ(LastTouched(first), Date(fs::last_write_time(t.Native() + "/orbidex.ini")));

    // The same bytes written again make another version: the file was replaced.
    ASSERT_TRUE(WriteWholeFile(file, "[a]\r\n"));
    FileVersion rewritten;
    ASSERT_TRUE(FileVersionOf(file, rewritten));
    EXPECT_NE(rewritten, first);
    EXPECT_EQ(rewritten.length, first.length);

    FileVersion none;
    EXPECT_FALSE(FileVersionOf(t.Stored() + "\\missing.ini", none));
    EXPECT_FALSE(FileVersionOf(t.Stored(), none)) << "a folder has no version";
}

TEST(FileSystem, ARewriteReplacesTheFileWholeAndKeepsItsPermissionsAndLinks) {
    TempFolder t;
    const std::string month = t.Native() + "/D200406.dat";
    touch(month, "old content");
    fs::permissions(month, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    ASSERT_TRUE(WriteWholeFile(t.Stored() + "\\D200406.dat", "new"));
    std::string bytes;
    ASSERT_TRUE(ReadWholeFile(t.Stored() + "\\D200406.dat", bytes));
    EXPECT_EQ(bytes, "new");
    EXPECT_EQ(fs::status(month).permissions(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);

    // Written through a link, the file it points at changes and the link stays.
    ASSERT_EQ(::symlink(month.c_str(), (t.Native() + "/linked.dat").c_str()), 0);
    ASSERT_TRUE(WriteWholeFile(t.Stored() + "\\linked.dat", "through the link"));
    EXPECT_TRUE(fs::is_symlink(t.Native() + "/linked.dat"));
    ASSERT_TRUE(ReadWholeFile(t.Stored() + "\\D200406.dat", bytes));
    EXPECT_EQ(bytes, "through the link");
    EXPECT_EQ(namesIn(t), (std::vector<std::string>{"D200406.dat", "linked.dat"}));
}

TEST(FileSystem, AWriteThatFailsSaysWhyAndLeavesNothingBehind) {
    TempFolder t;
    touch(t.Native() + "/plain", "kept");
    struct Case {
        std::string path;
        int number;
        std::string description;
    };
    const Case cases[] = {
        {t.Stored(), 75, "Path/File access error"},  // a folder
        {t.Stored() + "\\missing\\D200406.dat", 76, "Path not found"},
        {t.Stored() + "\\plain\\D200406.dat", 76, "Path not found"},  // a file where a folder should be
    };
    for (const Case& c : cases) {
        FileError error;
        EXPECT_FALSE(WriteWholeFile(c.path, "x", &error)) << c.path;
        EXPECT_EQ(error.number, c.number) << c.path;
        EXPECT_EQ(error.description, c.description) << c.path;
    }
    std::string bytes;
    ASSERT_TRUE(ReadWholeFile(t.Stored() + "\\plain", bytes));
    EXPECT_EQ(bytes, "kept");
    EXPECT_EQ(namesIn(t), std::vector<std::string>{"plain"});
}
