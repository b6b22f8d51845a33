#include "DiaryFixture.h"
#include "diary/ProfileKeys.h"

using namespace orbidex;

class ProfileKeysTest : public orbidex::test::DiaryFixture {};

TEST_F(ProfileKeysTest, AKeyIsReplacedWhereItStandsOrAddedAtTheEndOfItsSection) {
    const std::string file = Data("test.ini");
    WriteBytes(file, "; header\r\n[Diary]\r\n DataPath = \\old\\ \r\nother=1\r\n\r\n[network]\r\nsecurity=3\r\n");
    EXPECT_EQ(ReadProfileKey(file, "diary", "datapath"), "\\old\\");
    EXPECT_EQ(ReadProfileKey(file, "Network", "SECURITY"), "3");
    EXPECT_EQ(ReadProfileKey(file, "diary", "security"), "") << "keys belong to their section";
    EXPECT_EQ(ReadProfileKey(Data("missing.ini"), "diary", "dataPath"), "");

    WriteProfileKey(file, "diary", "dataPath", "\\new\\");
    WriteProfileKey(file, "DIARY", "added", "x");
    WriteProfileKey(file, "colour", "normal_BackColor", "255");
    EXPECT_EQ(ReadBytes(file),
              "; header\r\n[Diary]\r\ndataPath=\\new\\\r\nother=1\r\nadded=x\r\n\r\n[network]\r\nsecurity=3\r\n"
              "[colour]\r\nnormal_BackColor=255\r\n");

    WriteProfileKey(Data("new.ini"), "diary", "dataPath", "\\d\\");
    EXPECT_EQ(ReadBytes(Data("new.ini")), "[diary]\r\ndataPath=\\d\\\r\n");
}
