// The real program in this process with its Qt windows: the colours, the headings of
// the event list, the perpetual calendar, the about box and the help page as the user
// sees them over the calendar.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QTest>

#include "CalendarFixture.h"
#include "ProgramWindowFixture.h"
#include "ViewTestSupport.h"
#include "config/frmDiaryPickFields.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "qt/views/CheckBoxWidget.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

class DisplayWindowTest : public test::ProgramWindowFixture {
protected:
    void WriteData() override {
        std::string month;
        const test::Event events[] = {{"E1", "20040605", "0930", "Dentist"},
                                      {"E2", "20040605", "1100", "Coffee with Ann", "60"},
                                      {"E3", "20040605", "1400", "Budget review"}};
        for (const test::Event& event : events) month += event.Line() + "\r\n";
        WriteWholeFile(data_ + "D200406.dat", month);
    }
    /// Opens the Tools menu's entry and photographs its window over the calendar.
    void Photograph(const QString& entry, const QString& name, test::WindowTestPlatform::Driver then = {}) {
        platform_.OnNextModal([this, name, then](Form& form, QWidget& window) {
            test::SaveScreenshotOver(*main_, window, name);
            if (then)
                then(form, window);
            else
                form.Unload();
        });
        QAction* action = MenuEntry(entry);
        ASSERT_NE(action, nullptr) << entry.toStdString();
        EXPECT_TRUE(action->isEnabled());
        action->trigger();
    }
};

TEST_F(DisplayWindowTest, ColoursPerpetualCalendarAndAbout) {
    Photograph(QStringLiteral("&Choose Colours..."), QStringLiteral("colours"));
    Photograph(QStringLiteral("Perpetual Calendar"), QStringLiteral("perpetual-calendar"));
    Photograph(QStringLiteral("&About Orbidex..."), QStringLiteral("about"));
}

TEST_F(DisplayWindowTest, HeadingUntickedLeavesTheEventListAtOnce) {
    MenuEntry(QStringLiteral("View Events in List mode"))->trigger();
    Photograph(QStringLiteral("&Diary Headings in List mode..."), QStringLiteral("headings"),
               [this](Form& form, QWidget& window) {
                   auto& dialog = static_cast<frmDiaryPickFields&>(form);
                   QTest::mouseClick(ViewOf<CheckBoxWidget>(window, dialog.chkField(1))->checkBox(), Qt::LeftButton);
                   Press(window, dialog.cmdOK);
               });
    ListView& list = MainForm().lvDiary;
    ASSERT_EQ(list.ColumnHeaders.Count(), 4);
    EXPECT_EQ(list.ColumnHeaders(3).Text(), "Length") << "Time is gone";
}

TEST_F(DisplayWindowTest, NoteHeadingsFromTheNotesMenuAreWrittenToTheSettings) {
    Photograph(QStringLiteral("Choose Notes Headings"), QStringLiteral("note-headings"),
               [this](Form& form, QWidget& window) {
                   auto& dialog = static_cast<frmDiaryPickFields&>(form);
                   QTest::mouseClick(ViewOf<CheckBoxWidget>(window, dialog.chkField(5))->checkBox(), Qt::LeftButton);
                   Press(window, dialog.cmdOK);
               });
    std::string settings;
    ASSERT_TRUE(ReadWholeFile(gStrIniFile, settings));
    EXPECT_NE(settings.find("\r\nCategory=Category\r\nFilename=<hide>\r\ntitle=Title\r\n"), std::string::npos);
}

TEST_F(DisplayWindowTest, HelpContentsInTheBrowserPane) {
    MakeFolder(folder_.Stored() + "\\help");
    std::string page;
    ASSERT_TRUE(ReadWholeFile(ORBIDEX_HELP_DIR "/help-diary.html", page));
    WriteWholeFile(folder_.Stored() + "\\help\\help-diary.html", page);
    MenuEntry(QStringLiteral("Contents..."))->trigger();
    test::ProcessEvents();
    EXPECT_TRUE(MainForm().web.Visible);
    test::SaveScreenshot(*main_, QStringLiteral("help"));
}
