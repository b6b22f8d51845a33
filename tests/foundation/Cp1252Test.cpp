#include <gtest/gtest.h>

#include "foundation/Cp1252.h"

using namespace orbidex;

TEST(Cp1252, EveryByteSurvivesARoundTrip) {
    std::string all;
    for (int b = 0; b < 256; ++b) all.push_back(static_cast<char>(b));
    EXPECT_EQ(Cp1252FromUtf8(Utf8FromCp1252(all)), all);
}

TEST(Cp1252, MapsTheCodePageCharacters) {
    EXPECT_EQ(Utf8FromCp1252("\x80"), "\xE2\x82\xAC");  // euro sign
    EXPECT_EQ(Utf8FromCp1252("caf\xE9"), "caf\xC3\xA9");
    EXPECT_EQ(Cp1252FromUtf8("\xE2\x80\x9Cq\xE2\x80\x9D"), "\x93q\x94");
    EXPECT_EQ(Cp1252FromUtf8("\xE4\xB8\xAD"), "?");  // no byte for it
    EXPECT_EQ(Cp1252FromUtf8("a\xC3"), "a?");         // cut short
}
