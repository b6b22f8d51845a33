// The main of every test program: a fixed locale and time zone, Qt without a screen,
// then GoogleTest.
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

int main(int argc, char** argv) {
    setenv("LANG", "C.UTF-8", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("TZ", "Europe/London", 1);
    tzset();
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
