#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include "ProgramFixture.h"
#include "config/IniDocument.h"
#include "config/PrivateProfile.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"

using namespace orbidex;
using namespace std::string_literals;

namespace {

std::string valueOf(const std::string& text, const std::string& section, const std::string& key) {
    std::string value;
    return IniDocument(text).Find(section, key, value) ? value : "<missing>";
}

std::string afterSet(const std::string& text, const std::string& section, const std::string& key,
                     const std::string& value) {
    IniDocument document(text);
    document.Set(section, key, value);
    return document.Text();
}

}  // namespace

TEST(IniDocumentTest, NamesMatchWithoutRegardToCaseAndTheFileKeepsItsSpelling) {
    const std::string text = "[Network]\r\ndataPath=\\\\server\\diary\r\n[diary]\r\ndataPath=local\r\n";
    EXPECT_EQ(valueOf(text, "network", "DATAPATH"), "\\\\server\\diary");
    EXPECT_EQ(valueOf(text, "DIARY", "datapath"), "local");
    EXPECT_EQ(afterSet(text, "network", "datapath", "x"), "[Network]\r\ndataPath=x\r\n[diary]\r\ndataPath=local\r\n");
    // A key of that name in another section is another key.
    EXPECT_EQ(valueOf(text, "calendar", "dataPath"), "<missing>");
}

TEST(IniDocumentTest, PresentButEmptyIsFoundAndMissingOrCommentedIsNot) {
    const std::string text = "loose=1\r\n[a]\r\nempty=\r\n  spaced  =  two words \t\r\nnoequals\r\n;key=x\r\n";
    EXPECT_EQ(valueOf(text, "a", "empty"), "");
    EXPECT_EQ(valueOf(text, "a", ";key"), "<missing>");
    EXPECT_EQ(valueOf(text, "", "loose"), "<missing>");
    EXPECT_EQ(valueOf(text, "a", "spaced"), "two words");
    EXPECT_EQ(valueOf(text, "a", "noequals"), "<missing>");
    EXPECT_EQ(valueOf(text, "a", "other"), "<missing>");
    EXPECT_EQ(valueOf(text, "b", "empty"), "<missing>");
}

TEST(IniDocumentTest, TheFirstSectionAndTheFirstKeyOfANameWin) {
    const std::string text = "[a]\r\nk=1\r\nk=2\r\n[A]\r\nk=3\r\nj=4\r\n";
    EXPECT_EQ(valueOf(text, "a", "k"), "1");
    EXPECT_EQ(valueOf(text, "a", "j"), "<missing>");
    EXPECT_EQ(afterSet(text, "A", "K", "9"), "[a]\r\nk=9\r\nk=2\r\n[A]\r\nk=3\r\nj=4\r\n");
}

TEST(IniDocumentTest, ASectionAtTheEndWithoutAFinalLineEnd) {
    const std::string text = "[a]\r\nx=1\r\n[b]\r\ny=2";
    EXPECT_EQ(valueOf(text, "b", "y"), "2");
    EXPECT_EQ(afterSet(text, "b", "y", "3"), "[a]\r\nx=1\r\n[b]\r\ny=3");
    EXPECT_EQ(afterSet(text, "b", "z", "3"), "[a]\r\nx=1\r\n[b]\r\ny=2\r\nz=3\r\n");
    EXPECT_EQ(afterSet(text, "c", "z", "3"), "[a]\r\nx=1\r\n[b]\r\ny=2\r\n[c]\r\nz=3\r\n");
    EXPECT_EQ(afterSet("[b]", "b", "z", "3"), "[b]\r\nz=3\r\n");
    EXPECT_EQ(afterSet("", "b", "z", "3"), "[b]\r\nz=3\r\n");
}

TEST(IniDocumentTest, NewKeysGoAfterTheSectionsCommentsAndBeforeItsTrailingBlankLines) {
    std::string text =
        "; header\r\n[general]\r\n; \r\n \r\n; The Network section\r\n[Network]\r\na=1\r\n\r\n  \r\n[diary]\r\n";
    text = afterSet(text, "general", "loglevel", "3");
    text = afterSet(text, "network", "b", "2");
    text = afterSet(text, "diary", "c", "3");
    EXPECT_EQ(text,
              "; header\r\n[general]\r\n; \r\n \r\n; The Network section\r\nloglevel=3\r\n"
              "[Network]\r\na=1\r\nb=2\r\n\r\n  \r\n[diary]\r\nc=3\r\n");
}

TEST(IniDocumentTest, AChangeLeavesEveryOtherByteAsItWas) {
    // Lone LF and lone CR line ends, tabs, a comment that looks like a key.
    const std::string text = "; top\n[a]\r\n\tk = old \r;k=no\n[b]\r\nm=1\r\n";
    EXPECT_EQ(afterSet(text, "a", "k", "new"), "; top\n[a]\r\nk=new\r;k=no\n[b]\r\nm=1\r\n");
    EXPECT_EQ(afterSet(text, "a", "j", "2"), "; top\n[a]\r\n\tk = old \r;k=no\nj=2\r\n[b]\r\nm=1\r\n");
}

TEST(IniDocumentTest, AValueCannotBreakTheLineItIsWrittenOn) {
    EXPECT_EQ(afterSet("", "a", "k", "one\r\n[evil]\r\nx=1"), "[a]\r\nk=one\r\n");
    EXPECT_EQ(afterSet("", "a", "k\0x"s, "v\0w"s), "[a]\r\nk=v\r\n");
}

class PrivateProfileTest : public orbidex::test::ProgramFixture {
protected:
    long read(const std::string& section, const std::string& key, std::string& value, long size = 32000) {
        return GetPrivateProfileString(section, key, "default", value, size, file_);
    }
    std::string file_ = DataPath() + "test.ini";
};

TEST_F(PrivateProfileTest, AValueIsCutAtTheFirstNulThenTrimmedAndItsLengthReturned) {
    WriteBytes(file_, "[a]\r\nk=ab \0cd\r\nblank= \0x\r\nnothing=\r\n"s);
    std::string value;
    EXPECT_EQ(read("a", "k", value), 2);
    EXPECT_EQ(value, "ab");
    EXPECT_EQ(read("a", "blank", value), 0);
    EXPECT_EQ(value, "");
    // Present but empty is not missing: the default is not used.
    EXPECT_EQ(read("a", "nothing", value), 0);
    EXPECT_EQ(value, "");
    EXPECT_EQ(read("a", "missing", value), 7);
    EXPECT_EQ(value, "default");
}

TEST_F(PrivateProfileTest, WritesMakeTheFileAndEveryReadGoesToIt) {
    EXPECT_TRUE(WritePrivateProfileString("a", "k", "1", file_));
    EXPECT_EQ(ReadBytes(file_), "[a]\r\nk=1\r\n");
    // A doubled separator names the same file.
    EXPECT_TRUE(WritePrivateProfileString("a", "k", std::string(40000, 'x'), DataPath() + "\\test.ini"));
    std::string value;
    EXPECT_EQ(read("a", "k", value), 32000);
    EXPECT_EQ(value, std::string(32000, 'x'));
    // Another program changes the file: the next read sees it.
    WriteBytes(file_, "[a]\r\nk=changed\r\n");
    EXPECT_EQ(read("a", "k", value), 7);
    EXPECT_EQ(value, "changed");
}

TEST_F(PrivateProfileTest, AFolderWhereTheFileShouldBeIsNeitherReadNorHarmed) {
    ASSERT_TRUE(MakeFolder(file_));
    std::string value;
    EXPECT_EQ(read("a", "k", value), 7);
    EXPECT_FALSE(WritePrivateProfileString("a", "k", "1", file_));
    EXPECT_TRUE(FolderExists(file_));
}

// The file parsed is kept for the next read only while the file stays the same and its
// time stamps were settled, seconds behind the clock, when it was read.
class ParsedSettingsTest : public PrivateProfileTest {
protected:
    // Writes the file and sets the clock `seconds` after its time stamps.
    void writeSettled(const std::string& bytes, int seconds = 10) {
        WriteBytes(file_, bytes);
        FileVersion version;
        ASSERT_TRUE(FileVersionOf(file_, version));
        platform_.SetNow(LastTouched(version) + TimeSerial(0, 0, seconds));
    }
    // Reads `key` of [a] `times` times; the number of times the file was parsed.
    long parsesOf(int times, const std::string& key, std::string& value) {
        const long before = IniFileReads();
        for (int i = 0; i < times; ++i) read("a", key, value);
        return IniFileReads() - before;
    }
    std::string native() const { return ToNativePath(file_); }
    void setWritten(std::filesystem::file_time_type written) const {
        std::filesystem::last_write_time(native(), written);
    }
};

TEST_F(ParsedSettingsTest, ASettledFileIsParsedOnceForManyReads) {
    writeSettled("[a]\r\nk=one\r\n");
    std::string value;
    EXPECT_EQ(parsesOf(50, "k", value), 1);
    EXPECT_EQ(value, "one");
    EXPECT_EQ(parsesOf(5, "missing", value), 0) << "a missing key is looked up in the parse kept";
    EXPECT_EQ(value, "default");
}

TEST_F(ParsedSettingsTest, AFileWrittenSecondsBeforeTheReadIsParsedAtEveryRead) {
    // Its time stamps may not tell this write from the next one within their tick.
    writeSettled("[a]\r\nk=one\r\n", 2);
    std::string value;
    EXPECT_EQ(parsesOf(3, "k", value), 3);
    writeSettled("[a]\r\nk=one\r\n", 3);
    EXPECT_EQ(parsesOf(3, "k", value), 1);
}

TEST_F(ParsedSettingsTest, EveryChangeByAnotherProgramIsSeenAtTheNextRead) {
    writeSettled("[a]\r\nk=one\r\n");
    std::string value;
    read("a", "k", value);
    const auto written = std::filesystem::last_write_time(native());

    // Rewritten in place with another length.
    std::ofstream(native(), std::ios::binary | std::ios::trunc) << "[a]\r\nk=three\r\n";
    read("a", "k", value);
    EXPECT_EQ(value, "three");

    // The same length, only the time differs.
    std::ofstream(native(), std::ios::binary | std::ios::trunc) << "[a]\r\nk=fours\r\n";
    setWritten(written + std::chrono::nanoseconds(1));
    read("a", "k", value);
    EXPECT_EQ(value, "fours");

    // Replaced by another file of the same length and time.
    const std::string other = native() + ".new";
    std::ofstream(other, std::ios::binary) << "[a]\r\nk=fives\r\n";
    std::filesystem::last_write_time(other, written + std::chrono::nanoseconds(1));
    std::filesystem::rename(other, native());
    read("a", "k", value);
    EXPECT_EQ(value, "fives");

    // Gone.
    std::filesystem::remove(native());
    read("a", "k", value);
    EXPECT_EQ(value, "default");
}
