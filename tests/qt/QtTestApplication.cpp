// One QApplication for all the view tests, made before the first test runs.
#include <gtest/gtest.h>

#include <QApplication>

#include "qt/ProgramStyle.h"

namespace {

class QtApplicationEnvironment : public ::testing::Environment {
public:
    void SetUp() override {
        static int argc = 1;
        static char name[] = "qt_tests";
        static char* argv[] = {name, nullptr};
        // The views are tested without a screen, whatever the environment says.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        app_ = new QApplication(argc, argv);
        QApplication::setStyle(QStringLiteral("Fusion"));
        orbidex::UseProgramStyle();
    }
    void TearDown() override {
        delete app_;
        app_ = nullptr;
    }

private:
    QApplication* app_ = nullptr;
};

[[maybe_unused]] const auto* const kEnvironment = ::testing::AddGlobalTestEnvironment(new QtApplicationEnvironment);

}  // namespace
