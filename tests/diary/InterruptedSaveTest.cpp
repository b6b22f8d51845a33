// A month's save stopped in the middle of its write, by a crash or by a full disk:
// the file on disk is always the whole old month or the whole new one, byte for byte.
#include <algorithm>
#include <csignal>
#include <cstdio>

#include "ChildProcess.h"
#include "DiaryFixture.h"
#include "EventLines.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"

using namespace orbidex;
using orbidex::test::ChildEnd;
using orbidex::test::EventLine;
using orbidex::test::RunInChild;

namespace {

constexpr int kDays = 30;
constexpr int kEventsADay = 100;  // 3,000 events, about 240 kB
constexpr int kAdded = 50;

std::string juneEvent(int day, int number, const std::string& details) {
    char id[16];
    char date[9];
    std::snprintf(id, sizeof id, "D200406%02d%04d", day, number);
    std::snprintf(date, sizeof date, "200406%02d", day);
    return EventLine(id, date, "0900", details);
}

std::string joined(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + "\r\n";
    return bytes;
}

}  // namespace

class InterruptedSaveTest : public orbidex::test::DiaryFixture {
protected:
    // A large June on disk and loaded, then changed in memory: one event edited and
    // some added, all in identifier order, so the save writes them as they stand.
    void SetUp() override {
        DiaryFixture::SetUp();
        std::vector<std::string> lines;
        for (int day = 1; day <= kDays; ++day)
            for (int number = 1; number <= kEventsADay; ++number)
                lines.push_back(juneEvent(day, number, "Meeting " + std::to_string(number)));
        oldBytes_ = joined(lines);
        LoadJune(lines);

        lines[17] = juneEvent(1, 18, "Meeting moved to the big room");
        glbEvents.CreateRecordAt(17).GetDiaryRecordFromText(lines[17]);
        const long top = glbEvents.totEvents();
        glbEvents.SetUpperBound(top + kAdded);
        for (int i = 0; i < kAdded; ++i) {
            lines.push_back(juneEvent(kDays, 9000 + i, "Added " + std::to_string(i)));
            glbEvents.CreateRecordAt(top + i).GetDiaryRecordFromText(lines.back());
        }
        newBytes_ = joined(lines);
    }

    // Saves in a copy of this process that may write no file beyond `bytes`.  The copy
    // exits with the number of messages it showed.
    ChildEnd SaveStoppedAt(long long bytes, bool killed) {
        if (ReadBytes(Data("D200406.dat")) != oldBytes_) WriteBytes(Data("D200406.dat"), oldBytes_);
        return RunInChild(
            [this, killed] {
                if (killed) gLogLevel = -2;  // no log line may take the stop
                glbEvents.SaveDiaryArray(kFieldDelimiter, nullptr);
                return static_cast<int>(platform_.MessageTexts().size());
            },
            {bytes, killed});
    }

    std::string oldBytes_;
    std::string newBytes_;
};

TEST_F(InterruptedSaveTest, ACrashAtAnyByteOfTheWriteLeavesTheWholeOldMonth) {
    const auto size = static_cast<long long>(newBytes_.size());
    std::vector<long long> stops = {0, 1, 4095, 4096, 4097, size - 1};
    for (int i = 1; i < 16; ++i) stops.push_back(size * i / 16 + i);
    for (long long stop : stops) {
        const ChildEnd end = SaveStoppedAt(stop, true);
        EXPECT_EQ(end.signal, SIGXFSZ) << "the save was not stopped at byte " << stop;
        EXPECT_TRUE(ReadBytes(Data("D200406.dat")) == oldBytes_) << "stopped at byte " << stop;
    }

    // What the crashes left behind is never taken for a month.
    std::vector<std::string> files;
    EXPECT_EQ(glbEvents.CreateDiaryDataFileList(June(1), June(1), files, true), 1);
    EXPECT_EQ(files[1], Data("D200406.dat"));

    // With room for the whole month the save ends and the file is the new month.
    EXPECT_EQ(SaveStoppedAt(size, true).exitCode, 0);
    EXPECT_TRUE(ReadBytes(Data("D200406.dat")) == newBytes_);
}

TEST_F(InterruptedSaveTest, AFullDiskKeepsTheOldMonthAndTellsTheUser) {
    const std::string file = Data("D200406.dat");
    for (long long room : {4096LL, static_cast<long long>(newBytes_.size()) - 1}) {
        DeleteFile(Stored("data\\OX_LOG.log"));
        EXPECT_EQ(SaveStoppedAt(room, false).exitCode, 1) << "one message at " << room;
        EXPECT_TRUE(ReadBytes(file) == oldBytes_) << room;
        EXPECT_EQ(LogMessages(), (std::vector<std::string>{
                                     "SaveDiaryArray could not write " + file + " - it keeps its previous content",
                                     "Error in SaveDiaryArray Error=61 = Disk full"}));
        // Nothing half written stays beside the month, and nothing is handed over.
        std::vector<std::string> names = ListFolder(DataPath() + "*", false);
        std::sort(names.begin(), names.end());
        EXPECT_EQ(names, (std::vector<std::string>{"D200406.dat", "OX_LOG.log"})) << room;
    }
}
