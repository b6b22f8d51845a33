// Another user sees only what the owner's sharing level lets through: random months
// at random levels, saved by fred's client, searched by mary's through the server.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "NetworkFixture.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecord.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "network/cComms.h"

using namespace orbidex;

namespace {

// Field texts: some empty, none holding a field or line end.
const char* const kWords[] = {"", "", "Ann", "lunch", "Room 4", "http://x", "T123", "High", "Done", "Office", "Call"};

// What an event is, by the markers the usage recorder and the file launcher write.
const std::pair<const char*, const char*> kKinds[] = {
    {"Phone", "Call"},        {"Meeting", "Meeting request for fred, "},
    {"PCFile", "Usage"},      {"PCFile", "PCUsage"},
    {"Autobackup", "PCFile"}, {"Edit", "PCFile"},
};

class RandomMonth {
public:
    explicit RandomMonth(unsigned seed) : rng_(seed) {}

    std::vector<cDiaryRecord> Events() {
        std::vector<cDiaryRecord> events(below(16));
        for (size_t i = 0; i < events.size(); ++i) {
            cDiaryRecord& e = events[i];
            const int day = 1 + below(30);
            e.DateEvent = "200406" + twoDigits(day);
            e.ID = "D" + e.DateEvent + "00" + twoDigits(static_cast<int>(i));
            e.TimeEvent = twoDigits(below(24)) + twoDigits(below(60));
            e.length = CStr(static_cast<long>(15 * below(9)));
            const auto& [reference, action] = kKinds[below(std::size(kKinds))];
            e.Reference = reference;
            e.Action = action;
            for (std::string* field : {&e.ContactID, &e.URL, &e.JobToDoID, &e.DateRemind, &e.TimeRemind, &e.Priority,
                                       &e.ActionToPerform, &e.details})
                *field = word();
            e.status = below(3) == 0 ? "Private" : word();
        }
        return events;
    }
    int Level() { return below(5); }

private:
    int below(size_t limit) { return static_cast<int>(rng_() % limit); }
    std::string word() { return kWords[below(std::size(kWords))]; }
    static std::string twoDigits(int n) { return (n < 10 ? "0" : "") + CStr(static_cast<long>(n)); }

    std::mt19937 rng_;
};

// The fields of an event line another user may see at each level, by the sharing
// levels' own rules: 1 the date, time and length; 2 also the reference, action,
// contact, address, reminder and place; 3 and 4 everything.
bool visibleAt(int level, size_t field) {
    static const std::vector<size_t> always = {0, 1, 3, 4};
    static const std::vector<size_t> fromTwo = {2, 5, 6, 7, 9, 10, 13};
    auto in = [&](const std::vector<size_t>& list) { return std::find(list.begin(), list.end(), field) != list.end(); };
    return in(always) || (level >= 2 && in(fromTwo)) || level >= 3;
}

bool sharedAt(int level, const cDiaryRecord& e) {
    if (level == 0 || e.status == "Private") return false;
    return level == 4 || !(e.IsDiaryEventPCUsage() || e.IsDiaryEventAfileAccess());
}

}  // namespace

class PrivacyTest : public test::NetworkFixture {};

TEST_F(PrivacyTest, AnotherUserSeesOnlyWhatTheOwnersLevelAllows) {
    ServerUp(true);
    const std::string month = DataPath() + "D200406.dat";
    const std::string tasks = DataPath() + "D_tasks.dat";
    long seen = 0;
    for (unsigned round = 0; round < 40; ++round) {
        RandomMonth random(round);
        const std::vector<cDiaryRecord> events = random.Events();
        const int level = random.Level();
        SCOPED_TRACE("round " + std::to_string(round) + " at level " + std::to_string(level));
        std::string file;
        std::map<std::string, const cDiaryRecord*> byId;
        for (const cDiaryRecord& e : events) {
            file += e.FormatDiaryRecordAsCSV(kFieldDelimiter, "") + "\r\n";
            byId[e.ID] = &e;
        }

        // fred saves in client mode: the month whole, the month as it stands, his tasks.
        Connect("fred");
        glbConfig.security = CStr(static_cast<long>(level));
        WriteBytes(month, file);
        WriteBytes(tasks, file);
        glbComms.SaveDiaryFileToServer(month, false);
        glbComms.SaveFileToMyNetworkDatapathForServer(month, false);
        glbComms.SaveFileToMyNetworkDatapathForServer(tasks, true);

        Connect("mary");
        const std::string results = glbComms.ClientDiaryRequest(" ", "fred, ", "20040601", "20040630");
        ASSERT_FALSE(results.empty());
        long shared = 0;
        for (const cDiaryRecord& e : events) shared += sharedAt(level, e) ? 1 : 0;
        long lines = 0;
        for (const std::string& line : SplitLines(results)) {
            if (StartsWith(line, ";")) {
                EXPECT_EQ(glbComms.GetUserNameFromResultsLine(line), "fred");
                continue;
            }
            ++lines;
            cDiaryRecord got;
            got.GetDiaryRecordFromText(line);
            ASSERT_EQ(byId.count(got.ID), 1U) << line;
            const cDiaryRecord& owned = *byId[got.ID];
            EXPECT_TRUE(sharedAt(level, owned)) << line;
            const std::vector<std::string> gotFields = Split(line, "\x1F");
            const std::vector<std::string> ownedFields =
                Split(owned.FormatDiaryRecordAsCSV(kFieldDelimiter, ""), "\x1F");
            ASSERT_EQ(gotFields.size(), 16U) << line;
            for (size_t f = 0; f < 15; ++f)
                EXPECT_EQ(gotFields[f], visibleAt(level, f) ? ownedFields[f] : "") << "field " << f + 1;
        }
        EXPECT_EQ(lines, shared) << "every shared event, and only those";
        seen += lines;
    }
    EXPECT_GT(seen, 40) << "the rounds shared something to look at";
}
