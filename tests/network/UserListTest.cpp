// The lists of users from USERS.TXT, the users ticked and chosen in them, and the
// lines a booking writes for the server.
#include <gtest/gtest.h>

#include "EventLines.h"
#include "NetworkFixture.h"
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "diary/cDiaryRecord.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "network/cComms.h"

using namespace orbidex;

namespace {

// A row as "name|status|marks", marks b (bold), blue, red, green, ticked.
std::string RowOf(const ListItem& item) {
    std::string marks;
    if (item.Bold) marks += "b";
    if (item.ForeColor == vbBlue) marks += " blue";
    if (item.ForeColor == vbRed) marks += " red";
    if (item.ForeColor == RGB(0, 128, 0)) marks += " green";
    if (item.Checked) marks += " ticked";
    return item.Text() + "|" + item.SubItems(1) + "|" + marks;
}

std::vector<std::string> Rows(ListView& list) {
    std::vector<std::string> rows;
    for (long i = 1; i <= list.ListItems.Count(); ++i) rows.push_back(RowOf(list.ListItems(i)));
    return rows;
}

const char kUsers[] =
    "ann,Logged On\r\n"
    "  fred , offline \r\n"
    "\r\n"
    "   \r\n"
    "bob\r\n"
    ",comma first\r\n"
    "mary,N/A\r\n"
    "sue,HUH\r\n"
    "tom,\r\n";

}  // namespace

class UserListTest : public test::NetworkFixture {
protected:
    void SetUp() override {
        NetworkFixture::SetUp();
        ServerUp(true);
        Connect("fred");
        ASSERT_TRUE(glbServerAlive);
        // The server keeps its own list; the test writes one of every sort of line.
        WriteBytes(UserFolder("fred") + "USERS.TXT", kUsers);
        list.Checkboxes = true;
    }
    ListView list{"lvUsers"};
};

TEST_F(UserListTest, EachLineBecomesARowMarkedByItsStatus) {
    server_.reset();  // the test's own list stays as it is
    ServerUp(false);
    glbComms.ListUsers(list, true);
    EXPECT_EQ(list.ColumnHeaders.Count(), 2);
    EXPECT_EQ(list.ColumnHeaders(1).Text(), "User Name");
    EXPECT_EQ(list.ColumnHeaders(2).Width(), 1900);
    EXPECT_EQ(Rows(list), (std::vector<std::string>{
                              "ann|Logged On|b ticked",
                              "fred|offline|b red ticked",
                              "bob|Offline| red ticked",
                              ",comma first|Offline| red ticked",
                              "mary|N/A| red ticked",
                              "sue|HUH| green ticked",
                              "tom|Offline| red ticked",
                          }));
    EXPECT_EQ(list.ListItems(1).Tag(), "ann");

    // Without the server the local copy serves, and nobody's state is known.
    WriteBytes(DataPath() + "users.txt", "ann,Logged On\r\nfred,Logged On\r\n");
    glbServerAlive = false;
    glbComms.ListUsers(list, false);
    EXPECT_EQ(list.ColumnHeaders.Count(), 1);
    EXPECT_EQ(Rows(list), (std::vector<std::string>{"ann|| ticked", "fred||b blue ticked"}));

    // A list box takes each line as it stands.
    ListBox box("lstUsers");
    box.AddItem("left over");
    glbComms.ListUsers(box, true);
    EXPECT_EQ(box.ListCount(), 2);
    EXPECT_EQ(box.List(1), "fred,Logged On");
}

TEST_F(UserListTest, TickedAndSelectedUsersAreUserLists) {
    for (const char* name : {"ann", "fred (you)", "mary"}) list.ListItems.Add(name);
    EXPECT_EQ(glbComms.GetTickedListOfUsers(list), "");
    for (long i = 1; i <= 3; ++i) list.ListItems(i).Checked = true;
    EXPECT_EQ(glbComms.GetTickedListOfUsers(list), "ann, fred (you), mary, ");
    EXPECT_EQ(glbComms.GetTickedUsers(list), "ann, mary, ");

    list.MultiSelect = true;
    list.ListItems(2).Selected = true;
    list.ListItems(3).Selected = true;
    EXPECT_EQ(glbComms.GetSelectedUsers(list, false), "mary, ");
    EXPECT_EQ(glbComms.GetSelectedUsers(list, true), "fred, mary, ");

    ListBox box("lstDisplay");
    for (const char* name : {"ann", "bob"}) box.AddItem(name);
    box.MultiSelect = vbMultiSelectSimple;
    box.SetSelected(1, true);
    EXPECT_EQ(glbComms.GetSelectedUsers(box, false), "bob, ");
}

TEST_F(UserListTest, ABookingWritesOneLineForEachUserNamed) {
    server_.reset();
    ServerUp(false);
    cDiaryRecord meeting;
    meeting.GetDiaryRecordFromText(test::EventLine("", "20040610", "1400", "Budget", "Meeting", "60"));
    const std::string event = meeting.FormatAsText(kFieldDelimiter, true);
    struct Case {
        std::string users;
        std::string lines;
    } cases[] = {
        {"mary, fred, ", "mary\x1F" + event + "\r\nfred\x1F" + event + "\r\n"},
        {" ann ,, bob", "ann\x1F" + event + "\r\nbob\x1F" + event + "\r\n"},
        {"", ""},
    };
    for (const Case& c : cases) {
        DeleteServerFile(UserFolder("fred") + "ADD.TXT");
        platform_.QueueMsgBoxAnswer(vbOK);
        glbComms.MakeMeetingBooking(meeting, c.users);
        EXPECT_EQ(ReadBytes(UserFolder("fred") + "ADD.TXT"), c.lines) << c.users;
        EXPECT_EQ(ReadBytes(UserFolder("fred") + "ADD.TXT.OK"), "done\r\n") << c.users;
        EXPECT_EQ(platform_.MessageTexts().back(), "Finished creating appointments for " + c.users +
                                                       "\r\nThey will be notified in the next few minutes");
    }
}
