#include "ProgramFixture.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/clsArray.h"
#include "foundation/clsPath.h"

using namespace orbidex;

class FileHelpersTest : public orbidex::test::ProgramFixture {};

TEST_F(FileHelpersTest, PathPieces) {
    EXPECT_EQ(GetFileNameOnly("C:\\data\\D200406.dat"), "D200406.dat");
    EXPECT_EQ(GetFileNameOnly("D200406.dat"), "");
    EXPECT_EQ(GetFolderOfPath("C:\\data\\D200406.dat"), "C:\\data\\");
    EXPECT_EQ(GetFolderOfPath("D200406.dat"), "");
    std::string folder = "C:\\data";
    EXPECT_EQ(AddFileToPath(folder, "x.txt"), "C:\\data\\x.txt");
    EXPECT_EQ(folder, "C:\\data\\");
    EXPECT_EQ(AddFileToPath(folder, "y.txt"), "C:\\data\\y.txt");
    EXPECT_EQ(clsPath::ExtractParent("a\\b\\c"), "a\\b\\");
}

TEST_F(FileHelpersTest, SafeFileCopyReplacesKeepsABackupAndReportsFailures) {
    const std::string dest = Stored("data\\D200406.dat");
    WriteBytes(dest, "old\r\n");
    WriteBytes(Stored("new.dat"), "new\r\n");
    SafeFileCopy(Stored("new.dat"), dest, true, true);
    EXPECT_EQ(ReadBytes(dest), "new\r\n");
    EXPECT_FALSE(FileExists(dest + ".BAK"));

    // A missing source still leaves a backup of the destination, and no message.
    WriteBytes(dest + ".BAK", "stale backup\r\n");
    SafeFileCopy(Stored("data\\missing.dat"), dest, false, true);
    EXPECT_EQ(ReadBytes(dest), "new\r\n");
    EXPECT_EQ(ReadBytes(dest + ".BAK"), "new\r\n");
    EXPECT_EQ(LogMessages().back(), "SafeFileCopy Failed - source file doesnt exist: " + Stored("data\\missing.dat"));
    EXPECT_TRUE(platform_.Transcript().empty());

    const std::string nowhere = Stored("no-folder\\x.dat");
    SafeFileCopy(Stored("new.dat"), nowhere, true, true);
    EXPECT_EQ(LogMessages().back(), "SafeFileCopy Failed to copy " + Stored("new.dat") + " to " + nowhere);
    EXPECT_EQ(ReadBytes(Stored("err.log")), "20040605,09:30:12,fred,PC1,SafeFileCopy - could not copy " +
                                                Stored("new.dat") + " to " + nowhere + "\r\n");
    ASSERT_EQ(platform_.Transcript().size(), 1U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Error in SafeFileCopy");
    EXPECT_EQ(platform_.Transcript()[0].text,
              "Error copying the file \r\n" + Stored("new.dat") + "  to \r\n" + nowhere);
    SafeFileCopy(Stored("new.dat"), nowhere, true, false);
    EXPECT_EQ(platform_.Transcript().size(), 1U) << "no message when not asked for";
}

TEST_F(FileHelpersTest, IsPathWritableLeavesItsTestFile) {
    std::string folder = "   ";
    EXPECT_FALSE(IsPathWritable(folder));
    folder = Stored("data");
    EXPECT_TRUE(IsPathWritable(folder));
    EXPECT_EQ(folder, Stored("data\\"));
    EXPECT_TRUE(IsPathWritable(folder)) << "a second check starts the file again";
    EXPECT_EQ(
        ReadBytes(Stored("data\\orbidex.tmp")),
        "this is a temp file to check the datapath   \r\nYou can delete it to save space (wow - 100 bytes!)\r\n\r\n");
    std::string missing = Stored("nowhere");
    EXPECT_FALSE(IsPathWritable(missing));
}

TEST_F(FileHelpersTest, ReadingAndWritingWholeFiles) {
    WriteStringToFile(Stored("t.txt"), "a\r\nb");
    EXPECT_EQ(ReadBytes(Stored("t.txt")), "a\r\nb\r\n");
    WriteBytes(Stored("u.txt"), "a\nb");
    EXPECT_EQ(ReadFileToString(Stored("u.txt"), true), "a\r\nb\r\n");
    EXPECT_EQ(ReadFileToString(Stored("u.txt"), false), "a\nb");
    EXPECT_EQ(ReadFileToString(Stored("missing.txt"), true), "");
}

TEST_F(FileHelpersTest, ReadUniqueFieldValuesKeepsFirstSightings) {
    WriteBytes(Stored("list.txt"), "D200406x\r\n\r\nD200407y\r\nD200406z\r\n");
    std::vector<std::string> list;
    EXPECT_EQ(ReadUniqueFieldValues(Stored("list.txt"), 1, 7, list), 2);
    EXPECT_EQ(list, (std::vector<std::string>{"D200406", "D200407"}));
}

TEST_F(FileHelpersTest, NamesAreAskedOnce) {
    EXPECT_EQ(GetPCUserName(), "fred");
    platform_.SetUserName("mary");
    EXPECT_EQ(GetPCUserName(), "fred");
    ResetCachedNames();
    EXPECT_EQ(GetPCUserName(), "mary");
}

TEST_F(FileHelpersTest, MakePathAuxMakesEveryMissingFolder) {
    EXPECT_TRUE(MakePathAux(Stored("a\\b\\c")));
    EXPECT_TRUE(FolderExists(Stored("a\\b\\c")));
    EXPECT_TRUE(MakePathAux(Stored("a\\b\\c\\")));
}

TEST_F(FileHelpersTest, PathObject) {
    std::string name = "  " + Stored("x\\y") + "\\";
    clsPath p;
    p.initFull(name, true);
    EXPECT_EQ(name, Stored("x\\y"));
    EXPECT_TRUE(p.Exists());
    EXPECT_EQ(p.getFullName(true), Stored("x\\y\\"));

    clsArray files;
    EXPECT_EQ(p.GetListOFiles(files, "*.*"), 0);
    EXPECT_EQ(files.UpperBound(), 99);
    WriteBytes(Stored("x\\y\\one.txt"), "");
    MakeFolder(Stored("x\\y\\sub"));
    EXPECT_EQ(p.GetListOFiles(files, "*.TXT"), 1);
    EXPECT_EQ(files.Item(1), Stored("x\\y\\one.txt"));

    clsArray entries;
    entries.init(0);
    EXPECT_EQ(p.GetListOfSubDirectories(entries), 2);
    std::vector<std::string> names{entries.Item(1), entries.Item(2)};
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"", "sub"}));

    clsPath unnamed;
    EXPECT_EQ(unnamed.getFullName(false), "");
    EXPECT_EQ(platform_.MessageTexts().back(), "The path hasnt been initialised yet (you havent told me the name!)");
}

TEST_F(FileHelpersTest, ArrayOfTexts) {
    clsArray a;
    a.init(0);
    EXPECT_EQ(a.UpperBound(), 1);
    a.CreateByParsingText("zero, one ,,two", ",");
    EXPECT_EQ(a.Count(), 2);
    EXPECT_EQ(a.Item(1), "one");
    EXPECT_EQ(a.Item(2), "two");
    EXPECT_EQ(a.GetIndexByText("TWO", true), 2);
    EXPECT_EQ(a.GetIndexByText("TWO", false), 0);
    a.Add("x", 2);
    EXPECT_EQ(platform_.MessageTexts().back(), "ndx isnt setup to add at specific point yet");
    EXPECT_EQ(a.Count(), 2);

    a.SaveToDisk(Stored("a.txt"));
    EXPECT_EQ(ReadBytes(Stored("a.txt")), "one\r\ntwo\r\n");
    clsArray b;
    b.init(5);
    b.LoadFromDisk(Stored("a.txt"), true);
    EXPECT_EQ(b.Count(), 2);
    EXPECT_EQ(b.UpperBound(), 2);
    EXPECT_EQ(platform_.MessageTexts().back(), "Read in 2 lines \r\n from file " + Stored("a.txt"));
    EXPECT_EQ(b.Item(7), "");
}
