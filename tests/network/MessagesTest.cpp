// The message log as the user sees it: the list of a day, a message opened from the
// list, the log deleted, and a line written in the chat window.
#include <gtest/gtest.h>

#include "NetworkFixture.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/cMessages.h"
#include "network/frmChat.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

class MessagesTest : public test::NetworkFixture {
protected:
    void SetUp() override {
        NetworkFixture::SetUp();
        ServerUp(true);
        Connect("fred");
        platform_.AllowUnscriptedForms(true);
        MainForm().MonthView1.Value = DateSerial(2004, 6, 5);
    }
    std::vector<std::string> Shown() {
        glbMessages.DisplayMessages(glbMessages.fname(), List(), 1);
        std::vector<std::string> texts;
        for (long i = 1; i <= List().ListItems.Count(); ++i) texts.push_back(List().ListItems(i).Text);
        return texts;
    }
    ListView& List() { return MainForm().lvCat; }
};

TEST_F(MessagesTest, TheListShowsTheDaysMessagesButNotTheReceipts) {
    WriteBytes(DataPath() + "messages.log",
               "20040604 17:00:00;RX;mary;Yesterday's\r\n"
               "20040605 09:00:00;RX;mary;Lunch at one?\r\n"
               "20040605 09:01:00;TX;mary, ;Yes; at the usual place\r\n"
               "20040605 09:02:00;RX;mary;CONFIRM: meeting cancelled\r\n"
               "20040605 09:03:00;RX;mary;RECEIVED: Meeting request for 20040610 at 1400 : Budget\r\n"
               "20040605 09:04:00;TX;FRED;RECEIVED: Meeting request for 20040611 at 0900 : Review\r\n"
               "20040605 09:05:00;EV;mary;added event to your database :Budget\r\n"
               "20040605 09:06:00;EV;fred;added event to your database :Review\r\n"
               "20040605 09:07:00;RX;mary;\r\n"
               "a broken line\r\n");
    glbMessageWaiting = true;
    EXPECT_EQ(Shown(), (std::vector<std::string>{
                           "RX:mary Lunch at one?",
                           "TX:mary,  Yes",
                           "RX:mary RECEIVED: Meeting request for 20040610 at 1400 : Budget",
                           "EV:mary added event to your database :Budget",
                       }));
    EXPECT_FALSE(glbMessageWaiting);
    ASSERT_EQ(List().ColumnHeaders.Count(), 1);
    EXPECT_EQ(List().ColumnHeaders(1).Text(), "Messages - Sat, 5-Jun-04");
    EXPECT_EQ(List().ListItems(1).Tag(), "20040605 09:00:00;RX;mary;Lunch at one?");

    const std::string line = "20040605 09:00:00;RX;mary;x";
    for (auto [filter, date, shown] : {std::tuple{0, DateSerial(1999, 1, 1), true},
                                       {1, DateSerial(2004, 6, 5), true},
                                       {1, DateSerial(2004, 6, 6), false},
                                       {2, DateSerial(2003, 6, 1), true},
                                       {2, DateSerial(2004, 7, 5), false},
                                       {3, DateSerial(2004, 1, 1), true},
                                       {3, DateSerial(2005, 6, 5), false},
                                       {4, DateSerial(2004, 6, 5), false}})
        EXPECT_EQ(glbMessages.IsMessageInDateRange(line, filter, date), shown) << filter << " " << date;

    MainForm().MonthView1.Value = DateSerial(2004, 6, 6);
    EXPECT_EQ(Shown(), std::vector<std::string>{"No messages on 6-Jun"});
    EXPECT_EQ(List().ListItems(1).Key(), "NULL");
}

TEST_F(MessagesTest, AMessageOpensFromTheListAndAReceivedOneCanBeAnswered) {
    WriteBytes(DataPath() + "messages.log",
               "20040605 09:00:00;RX;mary;Lunch at one?\r\n20040605 09:05:00;EV;mary;added event to your "
               "database :Budget\r\n");
    Shown();
    platform_.QueueMsgBoxAnswer(vbYes);
    glbMessages.ShowMessageFromList(List().ListItems(1));
    glbMessages.ShowMessageFromList(List().ListItems(2));
    ASSERT_EQ(platform_.Transcript().size(), 2U);
    EXPECT_EQ(platform_.Transcript()[0].title, "Message Details - Reply ?");
    EXPECT_EQ(platform_.Transcript()[0].text,
              "On 20040605 09:00:00 you received a message from mary\r\n\r\nLunch at one?\r\nDo you want to reply to "
              "this message?");
    EXPECT_EQ(platform_.Transcript()[1].title, "Message Details - EV");
    EXPECT_EQ(platform_.Transcript()[1].text,
              "On 20040605 09:05:00 the user mary added an event to your database\r\n\r\nadded event to your "
              "database :Budget");
    EXPECT_EQ(ChatForm().Caption(), "Chatting to mary");
    EXPECT_TRUE(glbChatMode);

    // The greeting, then each line sent after the time and the sender.
    ChatForm().txtTalk.UserEdit("See you\r\nthere", 14);
    EXPECT_FALSE(FileExists(UserFolder("fred") + "message.txt")) << "not ended by Enter";
    const std::string sentAt = FormatDate(platform_.Now(), "hh:mm:ss");
    ChatForm().txtTalk.UserEdit("See you\r\nthere\r\n", 16);
    EXPECT_EQ(ChatForm().txtTalk.Text(), "");
    const std::string chat = ChatForm().rtbChat.Text;
    EXPECT_EQ(chat.substr(0, 16), "Send a Message\r\n");
    EXPECT_TRUE(EndsWith(chat, "logon\r\n\r\n" + sentAt + " fred: See you  there")) << chat;
    EXPECT_EQ(ChatForm().rtbChat.Runs().back().format.color, vbBlue);
    EXPECT_TRUE(EndsWith(ReadBytes(UserFolder("fred") + "message.txt"), "\r\nSee you  there\r\n"));
    ChatForm().cmdCancel_Click();
    EXPECT_FALSE(glbChatMode);

    platform_.QueueMsgBoxAnswer(vbYes);
    glbMessages.DeleteMessages();
    EXPECT_FALSE(FileExists(DataPath() + "messages.log"));
}
