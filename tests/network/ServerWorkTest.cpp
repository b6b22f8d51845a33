// Work that one user's client leaves for another, through the server: a meeting fred
// books for mary, changes and cancels reaches mary's monthly files at her next poll,
// and messages go both ways.  Both clients run in this process, one after the other,
// each with its own data folder.
#include <gtest/gtest.h>

#include "EventLines.h"
#include "NetworkFixture.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "network/cMessages.h"
#include "network/frmChat.h"
#include "screen/frmClientDiaryMain.h"
#include "screen/frmStickyNote.h"

using namespace orbidex;
using test::Fields;

namespace {

// A meeting as the booker's client writes it: fred books it for mary and himself.
std::string meeting(const std::string& id, const std::string& date, const std::string& time) {
    return Fields({id, date, "Meeting", time, "60", "Meeting request for mary, fred, ", "fred", "", "", "", "", "", "",
                   "Room 2", "Budget meeting"});
}

cDiaryRecord recordOf(const std::string& line) {
    cDiaryRecord record;
    record.GetDiaryRecordFromText(line);
    return record;
}

const std::string kMarysOwn = test::EventLine("D200406010001", "20040601", "0900", "Dentist") + "\r\n";

}  // namespace

class ServerWorkTest : public test::NetworkFixture {
protected:
    void SetUp() override {
        NetworkFixture::SetUp();
        ServerUp(true);
        glbConfig.ShowPopupMessages = 1;
        platform_.AllowUnscriptedForms(true);  // the note window and the chat
    }
    /// The messages of a log without their time, which the moving clock sets.
    std::vector<std::string> Messages(const std::string& user) const {
        std::vector<std::string> lines;
        for (const std::string& line : SplitLines(ReadBytes(Data(user) + "messages.log"))) {
            EXPECT_EQ(Left(line, 9), "20040605 ") << line;
            lines.push_back(Mid(line, 19));
        }
        return lines;
    }
    /// A change of a meeting in fred's diary, handed over as his client does it.
    void FredChanges(const std::string& before, const std::string& after) {
        As("fred");
        glbEvents.SendEventChanges(recordOf(before), recordOf(after));
        ASSERT_TRUE(glbComms.UpdateServerWithChangedFiles(Data("fred")));
        server_->Poll();
    }
    void MarysPoll() {
        As("mary");
        EXPECT_TRUE(glbComms.CheckForServerRequests());
    }
};

TEST_F(ServerWorkTest, AMeetingBookedChangedAndCancelledByFredFollowsInMarysDiary) {
    As("mary");
    WriteBytes(Data("mary") + "D200406.dat", kMarysOwn);
    glbEvents.LoadDiaryData(DateSerial(2004, 6, 5));
    const std::string june = Data("mary") + "D200406.dat";
    const std::string july = Data("mary") + "D200407.dat";

    // Booked: the server leaves the event lines of fred's bookings for mary.
    const std::string booked = meeting("D200406040003", "20040610", "1400");
    WriteBytes(UserFolder("mary") + "_4CLIENT.ADD", booked + "\r\n\r\n" + meeting("", "20040702", "0930") + "\r\n");
    MarysPoll();
    const std::string inJune = meeting("D200406100001", "20040610", "1400");
    EXPECT_EQ(ReadBytes(june), kMarysOwn + inJune + "\r\n");
    EXPECT_EQ(ReadBytes(july), "\r\n" + meeting("D200407020001", "20040702", "0930") + "\r\n")
        << "also a month that is not on screen";
    EXPECT_FALSE(FileExists(UserFolder("mary") + "_4CLIENT.ADD"));
    server_->Poll();
    EXPECT_EQ(ReadBytes(StoreFolder("mary") + "D200407.dat_NET"), meeting("D200407020001", "20040702", "0930") + "\r\n")
        << "each month handed back";
    EXPECT_TRUE(glbRefreshNeeded);
    EXPECT_TRUE(glbMessageWaiting);
    EXPECT_EQ(gStrDiaryDataFile, june) << "the month on screen is the file in hand again";
    EXPECT_GE(glbEvents.SelectDiaryRecordFromID("D200406100001"), 0) << "and its events in memory are read anew";

    // Changed to another month: out of June, into July, and answered.
    const std::string moved = meeting("D200406040003", "20040715", "1100");
    FredChanges(booked, moved);
    MarysPoll();
    EXPECT_EQ(ReadBytes(june), kMarysOwn);
    EXPECT_EQ(ReadBytes(june + ".BAK"), kMarysOwn + inJune + "\r\n");
    const std::string inJuly = meeting("D200407150001", "20040715", "1100");
    EXPECT_EQ(ReadBytes(july), "\r\n" + meeting("D200407020001", "20040702", "0930") + "\r\n" + inJuly + "\r\n");
    EXPECT_EQ(ReadBytes(Stored("data\\deleted_events.txt")), inJune + "\r\n");
    EXPECT_EQ(StickyNote().Caption(), "Change of Meeting : mary");
    EXPECT_EQ(StickyNote().txtNote.Text(),
              "fred has changed the meeting :\r\n\r\nBudget meeting\r\n\r\nfrom 20040610 at 1400 to 20040715 at "
              "1100\r\n\r\n");

    // Cancelled: an empty date and time in the new form.
    cDiaryRecord cancelled = recordOf(moved);
    cancelled.DateEvent.clear();
    cancelled.TimeEvent.clear();
    FredChanges(moved, cancelled.FormatDiaryRecordAsCSV(kFieldDelimiter, ""));
    MarysPoll();
    EXPECT_EQ(ReadBytes(july), "\r\n" + meeting("D200407020001", "20040702", "0930") + "\r\n");
    EXPECT_EQ(StickyNote().Caption(), "Meeting Cancellation : mary");

    EXPECT_EQ(Messages("mary"), (std::vector<std::string>{
                                    "EV;fred;added event to your database :Budget meeting",
                                    "TX;fred;RECEIVED: Meeting request for 20040610 at 1400 : Budget meeting",
                                    "EV;fred;added event to your database :Budget meeting",
                                    "TX;fred;RECEIVED: Meeting request for 20040702 at 0930 : Budget meeting",
                                    "TX;fred;CONFIRM: meeting details changed",
                                    "EV;fred;fred has cancelled the meeting :    Budget meeting    which was on "
                                    "20040715 at 1100",
                                    "TX;fred;CONFIRM: meeting cancelled",
                                }));
    // Every answer reaches fred, each file of them once his client took the one before.
    As("fred");
    for (int poll = 0; poll < 4; ++poll) {
        server_->Poll();
        glbComms.CheckForServerRequests();
    }
    EXPECT_EQ(Messages("fred"), (std::vector<std::string>{
                                    "RX;mary;RECEIVED: Meeting request for 20040610 at 1400 : Budget meeting",
                                    "RX;mary;RECEIVED: Meeting request for 20040702 at 0930 : Budget meeting",
                                    "RX;mary;CONFIRM: meeting details changed",
                                    "RX;mary;CONFIRM: meeting cancelled",
                                }));
}

TEST_F(ServerWorkTest, AMessageAndItsAnswerStandInBothLogsInOrder) {
    As("fred");
    glbComms.TransmitText("mary, ", "Lunch at one?");
    const std::vector<std::string> sent = SplitLines(ReadBytes(UserFolder("fred") + "message.txt"));
    ASSERT_EQ(sent.size(), 3U);
    EXPECT_EQ(sent[0], "mary,  , ");
    EXPECT_EQ(Left(sent[1], 9), "20040605 ");
    EXPECT_EQ(sent[2], "Lunch at one?");
    EXPECT_EQ(ReadBytes(UserFolder("fred") + "message.txt.OK"), "Finished writing request to server\r\n");
    server_->Poll();

    // Outside the chat: six rings, a message waiting, and the pop-up.
    MarysPoll();
    EXPECT_EQ(platform_.BeepCount(), 6);
    EXPECT_TRUE(glbMessageWaiting);
    EXPECT_EQ(StickyNote().Caption(), "New Message : mary");
    EXPECT_EQ(StickyNote().txtNote.Text(), "fred: Lunch at one?\r\n");
    EXPECT_FALSE(FileExists(UserFolder("mary") + "_4CLIENT.MESSAGE"));
    EXPECT_FALSE(FileExists(UserFolder("mary") + "_4CLIENT.MESSAGE.OK"));
    glbComms.TransmitText("fred", "Yes, see you there");
    server_->Poll();

    // In the chat the answer is written into the conversation, in red.
    As("fred");
    glbMessages.EnterChatMode(MainForm(), "mary, ");
    ASSERT_TRUE(glbChatMode);
    EXPECT_EQ(ChatForm().Caption(), "Chatting to mary, ");
    EXPECT_TRUE(glbComms.CheckForServerRequests());
    EXPECT_TRUE(EndsWith(ChatForm().rtbChat.Text(), "\r\n mary: \r\nYes, see you there"));
    EXPECT_EQ(ChatForm().rtbChat.Runs().back().format.color, vbRed);
    EXPECT_EQ(platform_.BeepCount(), 9) << "three rings in the chat";

    EXPECT_EQ(Messages("fred"), (std::vector<std::string>{"TX;mary, ;Lunch at one?", "RX;mary;Yes, see you there"}));
    EXPECT_EQ(Messages("mary"), (std::vector<std::string>{"RX;fred;Lunch at one?", "TX;fred;Yes, see you there"}));
}

TEST_F(ServerWorkTest, BrokenWorkFromTheServerNeverCostsALocalEvent) {
    As("mary");
    WriteBytes(Data("mary") + "D200406.dat", kMarysOwn);
    const std::string dentist = test::EventLine("", "20040601", "0900", "Dentist");
    const std::string toNoDay = "; 20040605 09:30:12 fred\r\nOLD " + dentist + "\r\nNEW " +
                                test::EventLine("", "20040631", "0900", "Dentist") + "\r\n";
    struct Case {
        const char* what;
        const char* file;
        std::string bytes;
        std::string june;  ///< mary's June afterwards
    } cases[] = {
        {"a record cut short", "_4CLIENT.CHANGE", "; 20040605 09:30:12 fred\r\nOLD " + dentist + "\r\n", kMarysOwn},
        {"a record with an empty line", "_4CLIENT.CHANGE", "; 20040605 09:30:12 fred\r\n\r\nNEW " + dentist + "\r\n",
         kMarysOwn},
        {"foreign bytes", "_4CLIENT.CHANGE", "\xFF\x01\x1F\r\n\x1F\x1F\x1F\r\nNEW \xFE\r\n", kMarysOwn},
        {"a change to a day that does not exist", "_4CLIENT.CHANGE", toNoDay, kMarysOwn},
        {"an event with no date", "_4CLIENT.ADD", "only one field\r\n", kMarysOwn},
        {"a day that does not exist", "_4CLIENT.ADD", meeting("", "2004063x", "1200") + "\r\n", kMarysOwn},
        {"a message without text", "_4CLIENT.MESSAGE", "x\r\nfred\r\n\r\n", kMarysOwn},
    };
    for (const Case& c : cases) {
        // Without its ".OK" too: the file alone is the work.
        WriteBytes(UserFolder("mary") + c.file, c.bytes);
        glbComms.CheckForServerRequests();
        EXPECT_EQ(ReadBytes(Data("mary") + "D200406.dat"), c.june) << c.what;
        EXPECT_FALSE(FileExists(UserFolder("mary") + c.file)) << c.what;
    }
    EXPECT_EQ(ReadBytes(Data("mary") + "messages.log").find("RX;"), std::string::npos);
    // A file that went between the look and the reading is nothing to do.
    for (auto vanished : {&cDiaryComms::EventChangedByAnotherUser, &cDiaryComms::RecieveMessage})
        EXPECT_FALSE((glbDiaryComms.*vanished)("_4CLIENT.GONE"));
    EXPECT_FALSE(glbComms.GetEventAddedByAnotherUser("_4CLIENT.GONE"));
}

TEST_F(ServerWorkTest, AMeetingTheTargetMonthCannotTakeStaysAsItWasAndIsNotAnswered) {
    As("mary");
    const std::string june = Data("mary") + "D200406.dat";
    const std::string july = Data("mary") + "D200407.dat";
    const std::string inJune = meeting("D200406100001", "20040610", "1400");
    const std::string marysJune = inJune + "\r\n" + kMarysOwn;
    WriteBytes(june, marysJune);
    ASSERT_TRUE(MakeFolder(july));

    // A booking for July and a move of the June meeting to July: neither is written.
    WriteBytes(UserFolder("mary") + "_4CLIENT.ADD", meeting("", "20040702", "0930") + "\r\n");
    MarysPoll();
    FredChanges(meeting("D200406040003", "20040610", "1400"), meeting("D200406040003", "20040715", "1100"));
    MarysPoll();
    EXPECT_EQ(ReadBytes(june), kMarysOwn + inJune + "\r\n") << "taken out and put back";
    EXPECT_TRUE(FolderExists(july));
    EXPECT_TRUE(
        LogHas("A meeting could not be written to " + july + ", it is not answered: 20040702 0930 Budget meeting"));
    EXPECT_TRUE(LogHas("A changed meeting could not be written to " + july +
                       ", it is not answered: 20040715 1100 Budget meeting"));
    EXPECT_TRUE(LogHas("The meeting as it was is put back into " + june + ": 20040610 1400 Budget meeting"));
    EXPECT_EQ(Messages("mary"), std::vector<std::string>{}) << "no receipt, no confirmation, nothing said added";
    server_->Poll();
    for (const char* month : {"D200406.dat_NET", "D200407.dat_NET"})
        EXPECT_FALSE(FileExists(StoreFolder("mary") + month)) << "no month handed back: " << month;
}
