// The reference server on its own: what it takes over, what it leaves, how it
// answers a search, and the user list it keeps.
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "DiaryServer.h"
#include "EventLines.h"
#include "NetworkFixture.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"

using namespace orbidex;
using test::EventLine;

namespace {

// The names that appear in a folder ("+name": written, or moved in whole) and go
// from it ("-name": deleted or moved out), in the order the system saw them.
class FolderChanges {
public:
    explicit FolderChanges(const std::string& folder) : fd_(::inotify_init1(IN_NONBLOCK)) {
        ::inotify_add_watch(fd_, ToNativePath(folder).c_str(), IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE);
    }
    ~FolderChanges() { ::close(fd_); }
    FolderChanges(const FolderChanges&) = delete;
    FolderChanges& operator=(const FolderChanges&) = delete;

    /// The changes since the last call.
    std::vector<std::string> Take() {
        std::vector<std::string> changes;
        alignas(inotify_event) char buffer[8192];
        ssize_t length = 0;
        while ((length = ::read(fd_, buffer, sizeof buffer)) > 0) {
            for (const char* at = buffer; at < buffer + length;) {
                const auto* event = reinterpret_cast<const inotify_event*>(at);
                changes.push_back(std::string((event->mask & IN_MOVED_TO) != 0 ? "+" : "-") + event->name);
                at += sizeof(inotify_event) + event->len;
            }
        }
        return changes;
    }

private:
    int fd_;
};

}  // namespace

class DiaryServerTest : public test::NetworkFixture {
protected:
    std::string Mary(const std::string& name) const { return UserFolder("mary") + name; }
    std::vector<std::string> MaryFiles() const {
        std::vector<std::string> names = ListFolder(Mary("*"), false);
        std::sort(names.begin(), names.end());
        return names;
    }
    bool ServerLogged(const std::string& line) const {
        return std::find(serverLog_.begin(), serverLog_.end(), line) != serverLog_.end();
    }
    void HandOver(const std::string& name, const std::string& bytes) {
        WriteBytes(Mary(name), bytes);
        WriteBytes(Mary(name + ".OK"), "this was saved by the client on 2004-06-05 09:30:12\r\n");
    }
    std::string Search(const std::string& request) {
        WriteBytes(UserFolder("fred") + "REQUEST.TXT", request);
        WriteBytes(UserFolder("fred") + "REQUEST.TXT.OK", "Finished writing request to server\r\n");
        server_->Poll();
        EXPECT_EQ(ReadBytes(UserFolder("fred") + "RESULTS.TXT.OK"), "results complete\r\n");
        EXPECT_FALSE(FileExists(UserFolder("fred") + "REQUEST.TXT.OK"));
        return ReadBytes(UserFolder("fred") + "RESULTS.TXT");
    }
};

TEST_F(DiaryServerTest, HandedOverFilesGoIntoTheStoreAndOtherWorkStaysWhereItIs) {
    for (const char* name : {"D200406.dat_NET", "D200406.DAT", "D_tasks.dat", "allnotes.dat"})
        HandOver(name, std::string(name) + " bytes\r\n");
    WriteBytes(Mary("D200407.dat_NET"), "no .OK yet\r\n");
    WriteBytes(Mary("D200408.dat_NET.OK"), "a lost file\r\n");
    HandOver("_4CLIENT.ADD", "for the client\r\n");
    server_->Poll();

    for (const char* name : {"D200406.dat_NET", "D200406.DAT", "D_tasks.dat", "allnotes.dat"})
        EXPECT_EQ(ReadBytes(StoreFolder("mary") + name), std::string(name) + " bytes\r\n") << name;
    EXPECT_EQ(ReadBytes(Mary("SERVER.FIN")), "taken over D_tasks.dat\r\n") << "the last one, in the order of names";
    EXPECT_EQ(MaryFiles(), (std::vector<std::string>{"D200407.dat_NET", "SERVER.FIN", "USERS.TXT", "_4CLIENT.ADD",
                                                     "_4CLIENT.ADD.OK"}));
    EXPECT_TRUE(ServerLogged("mary\\D200408.dat_NET.OK stands without its file - removed"));
}

TEST_F(DiaryServerTest, AFileTheStoreCannotTakeStaysForTheNextPass) {
    // The store cannot be made at all, or cannot write this one file.
    WriteBytes(Share() + ".server", "a file where the store should be");
    HandOver("D200406.dat_NET", "June\r\n");
    server_->Poll();
    EXPECT_EQ(ReadBytes(Mary("D200406.dat_NET")), "June\r\n");
    EXPECT_TRUE(FileExists(Mary("D200406.dat_NET.OK")));
    EXPECT_FALSE(FileExists(Mary("SERVER.FIN")));
    EXPECT_EQ(serverLog_.back(), "could not keep mary\\D200406.dat_NET - it stays for the next pass");

    DeleteFile(Share() + ".server");
    MakePathAux(StoreFolder("mary") + "D200406.dat_NET\\");
    server_->Poll();
    EXPECT_EQ(ReadBytes(Mary("D200406.dat_NET")), "June\r\n");
    EXPECT_EQ(ReadBytes(Mary("D200406.dat_NET.OK")), "this was saved by the client on 2004-06-05 09:30:12\r\n");
    EXPECT_FALSE(FileExists(Mary("SERVER.FIN")));
    EXPECT_FALSE(FileExists(StoreFolder("mary") + "D200406.dat_NET.taken"));
    EXPECT_EQ(std::count(serverLog_.begin(), serverLog_.end(),
                         "could not keep mary\\D200406.dat_NET - it stays for the next pass"),
              1)
        << "a failure that lasts is logged once, when it starts";

    std::filesystem::remove(ToNativePath(StoreFolder("mary") + "D200406.dat_NET"));
    server_->Poll();
    EXPECT_EQ(ReadBytes(StoreFolder("mary") + "D200406.dat_NET"), "June\r\n");
    EXPECT_EQ(ReadBytes(Mary("SERVER.FIN")), "taken over D200406.dat_NET\r\n");
}

TEST_F(DiaryServerTest, ASearchIsAnsweredFromTheSharedMonthsInItsRange) {
    const std::string may = EventLine("D200405300001", "20040530", "1200", "Lunch in May");
    const std::string early = EventLine("D200406010001", "20040601", "1200", "Lunch too early");
    const std::string lunch = EventLine("D200406150001", "20040615", "1230", "LUNCH with Ann");
    const std::string meeting = EventLine("D200406160001", "20040616", "0900", "Budget meeting");
    const std::string july = EventLine("D200407010001", "20040701", "1300", "lunch in July");
    HandOver("D200405.dat_NET", may + "\r\n");
    HandOver("D200406.dat_NET", early + "\r\n\r\n" + lunch + "\r\n" + meeting + "\r\n");
    HandOver("D200407.dat_NET", july + "\r\n");
    HandOver("D200406.dat", EventLine("D200406150002", "20040615", "1400", "Private lunch") + "\r\n");
    server_->Poll();

    const std::string header = "; results of user.mary diary\\";
    EXPECT_EQ(Search("[search]\r\ndetail=lunch\r\ndateStart=20040610\r\ndateEnd=20040715\r\n"
                     "users=MARY, nobody, mary, \r\n\r\n"),
              header + "D200406.dat_NET\r\n" + lunch + "\r\n" + header + "D200407.dat_NET\r\n" + july + "\r\n");
    EXPECT_EQ(Search("[search]\r\ndetail= \r\ndateStart=20040601\r\ndateEnd=20040630\r\nusers=mary, \r\n\r\n"),
              header + "D200406.dat_NET\r\n" + early + "\r\n" + lunch + "\r\n" + meeting + "\r\n");
    // Nothing found is still an answer: the asker's own section, empty.
    EXPECT_EQ(Search("[search]\r\ndetail=lunch\r\ndateStart=20040601\r\ndateEnd=20040630\r\nusers=nobody, \r\n"),
              "; results of user.fred diary\\\r\n");
    static constexpr char kGarbage[] = "\x00\xff[search\r\n=\r\nusers\r\n";
    EXPECT_EQ(Search(std::string(kGarbage, sizeof kGarbage - 1)), "; results of user.fred diary\\\r\n");
}

TEST_F(DiaryServerTest, ARequestWithoutItsBlockIsDroppedAndTheServerGoesOn) {
    WriteBytes(UserFolder("fred") + "REQUEST.TXT.OK", "Finished writing request to server\r\n");
    server_->Poll();
    EXPECT_FALSE(FileExists(UserFolder("fred") + "REQUEST.TXT.OK"));
    EXPECT_FALSE(FileExists(UserFolder("fred") + "RESULTS.TXT"));
    EXPECT_EQ(serverLog_.back(), "fred\\REQUEST.TXT.OK stands without its request - removed");
}

TEST_F(DiaryServerTest, TheUserListFollowsTheLogOnsAndSurvivesARestart) {
    MakeFolder(Share() + ".hidden");
    WriteBytes(Mary("ALIVE.TXT"), "user logged on at 2004-Jun-05 09:30:12\r\n");
    server_->Poll();
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "USERS.TXT"), "fred,Offline\r\nmary,Logged On\r\n");

    MakeFolder(UserFolder("ann"));
    server::DiaryServer restarted(Share());
    restarted.Poll();
    for (const char* user : {"ann", "fred", "mary"})
        EXPECT_EQ(ReadBytes(UserFolder(user) + "USERS.TXT"), "ann,Offline\r\nfred,Offline\r\nmary,Logged On\r\n");

    // A log-on and a log-off in one pass: the log-off stands.
    WriteBytes(Mary("ALIVE.TXT"), "user logged on at 2004-Jun-05 09:31:00\r\n");
    WriteBytes(Mary("DEAD.TXT"), "user logged off at 2004-Jun-05 09:31:01\r\n");
    restarted.Poll();
    EXPECT_EQ(ReadBytes(UserFolder("ann") + "USERS.TXT"), "ann,Offline\r\nfred,Offline\r\nmary,Offline\r\n");
}

TEST_F(DiaryServerTest, MessagesAndChangedMeetingsGoToTheUsersTheyNameOneFileAtATime) {
    MakeFolder(UserFolder("ann"));
    auto send = [this](const std::string& from, const std::string& to, const std::string& text) {
        WriteBytes(UserFolder(from) + "message.txt", to + " , \r\n20040605 09:30:12\r\n" + text + "\r\n");
        WriteBytes(UserFolder(from) + "message.txt.OK", "Finished writing request to server\r\n");
    };
    const std::string meeting =
        test::Fields({"D200406100001", "20040610", "Meeting", "1400", "60", "Meeting request for ann, mary, nobody, ",
                      "fred", "", "", "", "", "", "", "", "Budget meeting"});
    const std::string change = "OLD " + meeting + "\r\nNEW " + meeting + "\r\n";
    HandOver("_CHANGE_REQUEST.TXT", "a broken line\r\n; 20040605 09:31:00 by PC User mary\r\n" + change);
    // Two clients write to mary in the same pass; mary's own list names her too.
    send("fred", "mary, ann, nobody, ", "Lunch at one?");
    send("ann", "mary, ", "Coming too");
    server_->Poll();

    const std::string fromFred = "20040605 09:30:12\r\nfred\r\nLunch at one?\r\n";
    EXPECT_EQ(ReadBytes(Mary("_4CLIENT.MESSAGE")), "20040605 09:30:12\r\nann\r\nComing too\r\n" + fromFred);
    EXPECT_EQ(ReadBytes(Mary("_4CLIENT.MESSAGE.OK")), "for mary\r\n");
    EXPECT_EQ(ReadBytes(UserFolder("ann") + "_4CLIENT.MESSAGE"), fromFred);
    // The change goes to those it was booked for and to its booker, the changer named
    // in place of the PC user; the changer has it already.
    for (const char* user : {"ann", "fred"})
        EXPECT_EQ(ReadBytes(UserFolder(user) + "_4CLIENT.CHANGE"), "; 20040605 09:31:00 mary\r\n" + change) << user;
    EXPECT_FALSE(FileExists(Mary("_4CLIENT.CHANGE")));
    for (const char* user : {"fred", "ann"}) EXPECT_FALSE(FileExists(UserFolder(user) + "message.txt")) << user;
    EXPECT_TRUE(ServerLogged("_4CLIENT.MESSAGE for nobody, who has no folder - dropped"));

    // A message that comes while mary's file stands waits until her client took it.
    send("fred", "mary", "Room 2");
    server_->Poll();
    EXPECT_EQ(ReadBytes(Mary("_4CLIENT.MESSAGE")), "20040605 09:30:12\r\nann\r\nComing too\r\n" + fromFred);
    DeleteFile(Mary("_4CLIENT.MESSAGE"));
    server_->Poll();
    EXPECT_EQ(ReadBytes(Mary("_4CLIENT.MESSAGE")), "20040605 09:30:12\r\nfred\r\nRoom 2\r\n");
}

TEST_F(DiaryServerTest, WorkLeftByAPassThatStoppedIsFinishedFirst) {
    // A pass stopped after moving fred's month, message and booking out of his folder.
    const std::string store = StoreFolder("fred");
    MakePathAux(store);
    WriteBytes(store + "D200406.dat_NET.taken", "June\r\n");
    WriteBytes(store + "message.txt.taken", "mary, \r\n20040605 09:30:12\r\nLunch?\r\n");
    WriteBytes(store + "ADD.TXT.taken", std::string("mary\x1F") + "booked\r\n");
    // The client handed a newer June over meanwhile: it is taken after the old one.
    WriteBytes(UserFolder("fred") + "D200406.dat_NET", "newer June\r\n");
    WriteBytes(UserFolder("fred") + "D200406.dat_NET.OK", "this was saved by the client on 2004-06-05 09:31:00\r\n");
    server_->Poll();

    EXPECT_EQ(ReadBytes(store + "D200406.dat_NET"), "newer June\r\n");
    EXPECT_EQ(ReadBytes(Mary("_4CLIENT.MESSAGE")), "20040605 09:30:12\r\nfred\r\nLunch?\r\n");
    EXPECT_EQ(ReadBytes(Mary("_4CLIENT.ADD")), "booked\r\n");
    for (const char* name : {"D200406.dat_NET", "message.txt", "ADD.TXT"}) {
        EXPECT_FALSE(FileExists(store + name + ".taken")) << name;
        EXPECT_TRUE(ServerLogged(std::string("finished fred\\") + name + " left by a pass that stopped")) << name;
    }
}

TEST_F(DiaryServerTest, ATakenFileThatCannotBeReadIsLoggedOnceAndWorkOfItsKindWaits) {
    // Files cannot be made unreadable for a test running as root: a link to a file
    // whose reading always fails stands in.
    MakePathAux(StoreFolder("fred"));
    std::filesystem::create_symlink("/proc/self/mem", ToNativePath(StoreFolder("fred") + "message.txt.taken"));
    WriteBytes(UserFolder("fred") + "message.txt", "mary, \r\n20040605 09:30:12\r\nLunch?\r\n");
    WriteBytes(UserFolder("fred") + "message.txt.OK", "done\r\n");
    server_->Poll();
    server_->Poll();
    EXPECT_EQ(std::count(serverLog_.begin(), serverLog_.end(),
                         "could not read fred\\message.txt.taken - it waits for the next pass"),
              1);
    EXPECT_TRUE(FileExists(UserFolder("fred") + "message.txt")) << "the newer message waits behind it";
    EXPECT_FALSE(FileExists(Mary("_4CLIENT.MESSAGE")));
}

// ann's queue in the store cannot be written: mary gets the work at once, ann once
// the obstacle is gone, and nobody twice.
TEST_F(DiaryServerTest, WorkAQueueCannotTakeWaitsInTheStoreForThatUserOnly) {
    MakeFolder(UserFolder("ann"));
    const std::string meeting =
        test::Fields({"D200406100001", "20040610", "Meeting", "1400", "60", "Meeting request for ann, mary, ", "fred",
                      "", "", "", "", "", "", "Room 2", "Budget meeting"});
    const std::string change = "OLD " + meeting + "\r\nNEW " + meeting + "\r\n";
    const struct {
        std::string file, confirm, bytes, queue, left, delivered;
    } cases[] = {
        {"ADD.TXT", "ADD.TXT.OK", "ann\x1F" + meeting + "\r\nmary\x1F" + meeting + "\r\n", "_4CLIENT.ADD",
         "ann\x1F" + meeting + "\r\n", meeting + "\r\n"},
        {"message.txt", "message.txt.OK", "ann, mary, \r\n20040605 09:30:12\r\nLunch?\r\n", "_4CLIENT.MESSAGE",
         "ann, \r\n20040605 09:30:12\r\nLunch?\r\n", "20040605 09:30:12\r\nfred\r\nLunch?\r\n"},
        {"_CHANGE_REQUEST.TXT", "_CHANGE_REQUEST.TXT.OK", "; 20040605 09:31:00 by PC User fred\r\n" + change,
         "_4CLIENT.CHANGE", "; 20040605 09:31:00 by PC User fred\r\n" + change + "FOR ann, \r\n",
         "; 20040605 09:31:00 fred\r\n" + change},
    };
    for (const auto& work : cases) {
        SCOPED_TRACE(work.file);
        const std::string taken = StoreFolder("fred") + work.file + ".taken";
        const std::string blocked = StoreFolder("ann") + work.queue + "\\";
        MakePathAux(blocked);
        WriteBytes(UserFolder("fred") + work.file, work.bytes);
        WriteBytes(UserFolder("fred") + work.confirm, "done\r\n");
        serverLog_.clear();
        server_->Poll();
        EXPECT_EQ(ReadBytes(taken), work.left);
        EXPECT_EQ(ReadBytes(Mary(work.queue)), work.delivered);
        EXPECT_FALSE(FileExists(UserFolder("ann") + work.queue));
        EXPECT_FALSE(FileExists(UserFolder("fred") + work.file));
        EXPECT_TRUE(ServerLogged(work.queue + " for ann could not be written - it waits for the next pass"));

        // The same work handed over again waits in fred's folder behind what is left.
        WriteBytes(UserFolder("fred") + work.file, work.bytes);
        WriteBytes(UserFolder("fred") + work.confirm, "done\r\n");
        server_->Poll();
        EXPECT_EQ(ReadBytes(taken), work.left);
        EXPECT_EQ(ReadBytes(UserFolder("fred") + work.file), work.bytes);
        EXPECT_EQ(std::count(serverLog_.begin(), serverLog_.end(),
                             work.queue + " for ann could not be written - it waits for the next pass"),
                  1);

        std::filesystem::remove(ToNativePath(blocked));
        server_->Poll();
        EXPECT_FALSE(FileExists(taken));
        EXPECT_FALSE(FileExists(UserFolder("fred") + work.file));
        EXPECT_TRUE(ServerLogged("finished fred\\" + work.file + " left by a pass that stopped"));
        // ann gets what was left, then the second hand-over; mary's second copy waits
        // until her client took the first.  Nothing more comes for either after that.
        EXPECT_EQ(ReadBytes(UserFolder("ann") + work.queue), work.delivered + work.delivered);
        EXPECT_EQ(ReadBytes(Mary(work.queue)), work.delivered);
        DeleteFile(Mary(work.queue));
        server_->Poll();
        EXPECT_EQ(ReadBytes(Mary(work.queue)), work.delivered);
        for (const char* user : {"ann", "mary"}) DeleteFile(UserFolder(user) + work.queue);
        server_->Poll();
        for (const char* user : {"ann", "mary"}) EXPECT_FALSE(FileExists(UserFolder(user) + work.queue)) << user;
    }
}

TEST_F(DiaryServerTest, EachLineOfABookingGoesToTheUserItNames) {
    const std::string meeting =
        test::Fields({"D200406100001", "20040610", "Meeting", "1400", "60", "Meeting request for fred, mary, ", "fred",
                      "", "", "", "", "", "", "Room 2", "Budget meeting"});
    const std::string booking = "fred\x1F" + meeting + "\r\n" + "MARY\x1F" + meeting + "\r\n" + "nobody\x1F" + meeting +
                                "\r\n" + "a line without a user\r\n" + "\x1F" + meeting + "\r\n" + "mary\x1F\r\n";
    WriteBytes(UserFolder("fred") + "ADD.TXT", booking);
    // Without its ".OK" the booking may still be written: it waits.
    server_->Poll();
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "ADD.TXT"), booking);

    WriteBytes(UserFolder("fred") + "ADD.TXT.OK", "done\r\n");
    server_->Poll();
    for (const char* user : {"fred", "mary"}) {
        EXPECT_EQ(ReadBytes(UserFolder(user) + "_4CLIENT.ADD"), meeting + "\r\n") << user;
        EXPECT_EQ(ReadBytes(UserFolder(user) + "_4CLIENT.ADD.OK"), std::string("for ") + user + "\r\n");
    }
    for (const char* name : {"ADD.TXT", "ADD.TXT.OK"}) EXPECT_FALSE(FileExists(UserFolder("fred") + name)) << name;
    EXPECT_TRUE(ServerLogged("meeting from fred for MARY"));
    EXPECT_TRUE(ServerLogged("_4CLIENT.ADD for nobody, who has no folder - dropped"));

    // A second booking waits in the store until mary's client has taken the first.
    WriteBytes(UserFolder("fred") + "ADD.TXT",
               "mary\x1F"
               "second\r\n");
    WriteBytes(UserFolder("fred") + "ADD.TXT.OK", "done\r\n");
    server_->Poll();
    EXPECT_EQ(ReadBytes(Mary("_4CLIENT.ADD")), meeting + "\r\n");
    DeleteFile(Mary("_4CLIENT.ADD"));
    server_->Poll();
    EXPECT_EQ(ReadBytes(Mary("_4CLIENT.ADD")), "second\r\n");
}

// A client that sees an answer may ask again at once: the question the answer is for
// has to be gone by then, or the new question goes with it and is never answered.
TEST_F(DiaryServerTest, AQuestionIsGoneBeforeItsAnswerAppears) {
    WriteBytes(Mary("CHAT.TXT"), "Hi there server! please make a CHAT.TXT.OK if you are there\r\n");
    HandOver("D200406.dat_NET", "June\r\n");
    WriteBytes(UserFolder("fred") + "REQUEST.TXT", "[search]\r\ndetail= \r\nusers=mary, \r\n\r\n");
    WriteBytes(UserFolder("fred") + "REQUEST.TXT.OK", "Finished writing request to server\r\n");
    FolderChanges mary(UserFolder("mary"));
    FolderChanges fred(UserFolder("fred"));
    server_->Poll();
    const std::vector<std::string> maryChanges = mary.Take();
    const std::vector<std::string> fredChanges = fred.Take();

    const struct {
        const std::vector<std::string>& changes;
        std::vector<std::string> question;
        std::string answer;
    } exchanges[] = {
        {maryChanges, {"CHAT.TXT"}, "CHAT.TXT.OK"},
        {maryChanges, {"D200406.dat_NET", "D200406.dat_NET.OK"}, "SERVER.FIN"},
        {fredChanges, {"REQUEST.TXT", "REQUEST.TXT.OK"}, "RESULTS.TXT.OK"},
    };
    for (const auto& exchange : exchanges) {
        const auto& changes = exchange.changes;
        const auto answered = std::find(changes.begin(), changes.end(), "+" + exchange.answer);
        ASSERT_NE(answered, changes.end()) << exchange.answer;
        for (const std::string& name : exchange.question)
            EXPECT_NE(std::find(changes.begin(), answered, "-" + name), answered)
                << name << " still stood when " << exchange.answer << " appeared";
    }
    // A hand-over's ".OK" goes before its file: a copy handed over again meanwhile is
    // either the one taken or stands with its own ".OK".
    EXPECT_LT(std::find(maryChanges.begin(), maryChanges.end(), "-D200406.dat_NET.OK"),
              std::find(maryChanges.begin(), maryChanges.end(), "-D200406.dat_NET"));
}
