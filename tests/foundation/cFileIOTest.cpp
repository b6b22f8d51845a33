#include "ProgramFixture.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/cFileIO.h"

using namespace orbidex;

class FileIOTest : public orbidex::test::ProgramFixture {};

TEST_F(FileIOTest, ReadingLoopSeesOneExtraEmptyLine) {
    WriteBytes(Stored("three.txt"), "one\r\ntwo\r\nthree\r\n");
    cFileIO f;
    f.init(Stored("three.txt"));
    f.OpenFile("input");
    std::vector<std::string> lines;
    while (f.moreData()) lines.push_back(f.getLine());
    EXPECT_EQ(lines, (std::vector<std::string>{"one", "two", "three", ""}));

    // Without a final line end the shape is the same.
    WriteBytes(Stored("three.txt"), "one\r\ntwo\r\nthree");
    f.OpenFile("INPUT");
    lines.clear();
    while (f.moreData()) lines.push_back(f.getLine());
    EXPECT_EQ(lines, (std::vector<std::string>{"one", "two", "three", ""}));
}

TEST_F(FileIOTest, LoadFileToStringEndsWithOneSeparatorMore) {
    WriteBytes(Stored("empty.txt"), "");
    cFileIO f;
    f.init(Stored("empty.txt"));
    EXPECT_EQ(f.LoadFileToString(","), ",");
    WriteBytes(Stored("two.txt"), "a\r\nb\r\n");
    f.init(Stored("two.txt"));
    EXPECT_EQ(f.LoadFileToString("|"), "a|b||");
}

TEST_F(FileIOTest, WritingAndAppendingUseCrLf) {
    cFileIO f;
    f.init(Stored("out.txt"));
    f.OpenFile("OUTPUT");
    f.printLine("first");
    f.closeFile();
    f.appendLine("second");
    EXPECT_EQ(ReadBytes(Stored("out.txt")), "first\r\nsecond\r\n");
    f.Clear();
    EXPECT_FALSE(f.Exists());
}

TEST_F(FileIOTest, OutputReplacesTheFileWholeWhenItIsClosed) {
    WriteBytes(Stored("out.txt"), "old\r\n");
    cFileIO f;
    f.init(Stored("out.txt"));
    f.OpenFile("OUTPUT");
    f.printLine("new");
    f.appendLine("lines");
    EXPECT_EQ(ReadBytes(Stored("out.txt")), "old\r\n") << "until the close the file is as it was";
    EXPECT_TRUE(f.closeFile());
    EXPECT_EQ(ReadBytes(Stored("out.txt")), "new\r\nlines\r\n");

    // A close whose write fails leaves what stands there.
    f.OpenFile("OUTPUT");
    f.printLine("lost");
    DeleteFile(Stored("out.txt"));
    MakeFolder(Stored("out.txt"));
    EXPECT_FALSE(f.closeFile());
    EXPECT_TRUE(FolderExists(Stored("out.txt")));
    EXPECT_FALSE(f.isOpen());

    // A folder that does not exist fails at the open, as it always did.
    cFileIO lost;
    lost.init(Stored("missing\\out.txt"));
    lost.OpenFile("OUTPUT");
    EXPECT_FALSE(lost.isOpen());
}

TEST_F(FileIOTest, OpeningRulesAndFailures) {
    cFileIO f;
    f.init(Stored("missing.txt"));
    f.OpenFile("INPUT");
    EXPECT_FALSE(f.isOpen());
    EXPECT_FALSE(f.moreData());
    EXPECT_EQ(f.getLine(), "");

    f.OpenFile("RANDOM");
    EXPECT_EQ(platform_.MessageTexts(), (std::vector<std::string>{"Invalid method of opening file"}));
    EXPECT_TRUE(f.isOpen());
    EXPECT_TRUE(f.moreData());

    cFileIO folder;
    folder.init(Stored("data"));
    folder.OpenFile("INPUT");
    EXPECT_FALSE(folder.isOpen());
    folder.OpenFile("OUTPUT");
    EXPECT_FALSE(folder.isOpen());
}

TEST_F(FileIOTest, WaitEndsWhenTheFileAppears) {
    cFileIO f;
    f.init(Stored("late.txt"));
    platform_.AddDoEventsHook([this] {
        if (platform_.DoEventsCount() == 3) WriteBytes(Stored("late.txt"), "here");
    });
    gLogLevel = 1;
    EXPECT_TRUE(f.waitUntilFileCanBeOpened(5));
    EXPECT_EQ(LogMessages().back(), "SUCCESS - waitUntilFileCanOpened took 3 attempts for " + Stored("late.txt"));
    EXPECT_FALSE(platform_.BusyCursor());
    EXPECT_TRUE(f.waitUntilFileCanBeOpened(0));
    EXPECT_EQ(LogMessages().back(), "SUCCESS - waitUntilFileCanOpened took 0 attempts for " + Stored("late.txt"));
}

TEST_F(FileIOTest, WaitTimesOutByTheClockAndGivesUpAcrossMidnight) {
    cFileIO f;
    f.init(Stored("never.txt"));
    platform_.SetNow(DateSerial(2004, 6, 5) + TimeSerial(23, 59, 58));
    EXPECT_FALSE(f.waitUntilFileCanBeOpened(5));
    EXPECT_EQ(platform_.DoEventsCount(), 0) << "the deadline reads as passed at once";

    platform_.SetNow(DateSerial(2004, 6, 5) + TimeSerial(10, 0, 0));
    platform_.SetDoEventsTick(1.0);
    gLogLevel = 1;
    EXPECT_FALSE(f.waitUntilFileCanBeOpened(2));
    // The deadline "10:00:02" is passed once the clock reads 10:00:03: three ticks.
    EXPECT_EQ(platform_.DoEventsCount(), 3);
    EXPECT_EQ(LogMessages().back(),
              "FAIL - waitUntilFileCanOpened Timed out waiting for file to be opened after 3 attempts for file " +
                  Stored("never.txt"));
}
