// The real program in this process with its Qt windows: the diary exported and its
// month shown in the browser pane, whose index leads to the other months; and the
// scratch pad typed into through its window.  Screenshots of both.
#include <gtest/gtest.h>

#include <QTabBar>
#include <QTest>
#include <QTextBrowser>
#include <QTextEdit>

#include "EventLines.h"
#include "ProgramWindowFixture.h"
#include "ViewTestSupport.h"
#include "accessories/frmClipboard.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "qt/views/RichTextBoxWidget.h"
#include "qt/views/TabStripWidget.h"
#include "qt/views/WebBrowserWidget.h"
#include "screen/frmClientDiaryMain.h"

using namespace orbidex;

namespace {

std::string eventLine(const std::string& id, const std::string& date, const std::string& time,
                      const std::string& details) {
    return test::EventLine(id, date, time, details, "Office") + "\r\n";
}

}  // namespace

class ExportAndScratchPadWindowTest : public test::ProgramWindowFixture {
protected:
    void WriteData() override {
        const struct {
            const char* month;
            std::vector<std::string> lines;
        } months[] = {
            {"200311", {eventLine("D200311100001", "20031110", "1000", "Annual review")}},
            {"200405",
             {eventLine("D200405030001", "20040503", "0900", "Bank holiday walk"),
              eventLine("D200405200001", "20040520", "1400", "Dentist")}},
            {"200406",
             {eventLine("D200406010001", "20040601", "0900", "Team stand-up"),
              eventLine("D200406010002", "20040601", "1230", "Lunch with Ann & Bob at the Cafe Rouge"),
              eventLine("D200406040001", "20040604", "1500", "Quarterly figures to the board"),
              eventLine("D200406050001", "20040605", "1000", "Garden centre"),
              eventLine("D200406070001", "20040607", "0830", "Car to the garage"),
              eventLine("D200406070002", "20040607", "1400", "Call the bank about the loan"),
              eventLine("D200406150001", "20040615", "1900", "Choir practice")}},
            {"200407", {eventLine("D200407020001", "20040702", "1100", "Summer fair")}},
        };
        for (const auto& month : months) {
            std::string bytes;
            for (const std::string& line : month.lines) bytes += line;
            WriteWholeFile(data_ + "D" + month.month + ".dat", bytes);
        }
    }
};

TEST_F(ExportAndScratchPadWindowTest, TheExportedMonthOpensInTheBrowserPaneAndItsIndexLeadsToTheOtherMonths) {
    platform_.answers.push_back(vbYes);
    QAction* exportEntry = MenuEntry(QStringLiteral("&Export Appointments ..."));
    ASSERT_NE(exportEntry, nullptr);
    ASSERT_TRUE(exportEntry->isEnabled());
    exportEntry->trigger();
    test::ProcessEvents();
    EXPECT_EQ(platform_.messages,
              std::vector<std::string>{"Create HTM versions of Diary Files\r\nDo you want to continue ?"});
    EXPECT_EQ(MainForm().web.LocationURL(), data_ + "D200406.html");
    EXPECT_TRUE(MainForm().mnuViewBrowser.Checked);

    QTextBrowser* pane = ViewOf<WebBrowserWidget>(*main_, MainForm().web)->browser();
    ASSERT_TRUE(pane->isVisible());
    const QString shown = pane->toPlainText();
    EXPECT_TRUE(shown.contains(QStringLiteral("Diary Events for Jun-2004")));
    EXPECT_TRUE(shown.contains(QStringLiteral("Lunch with Ann & Bob at the Cafe Rouge")));
    EXPECT_TRUE(shown.contains(QStringLiteral("Monday, 7-Jun-2004")));
    test::SaveScreenshot(*main_, QStringLiteral("export-month"));

    // The index's link to May shows May's page in the pane.
    emit pane->anchorClicked(QUrl(QStringLiteral("D200405.html")));
    test::ProcessEvents();
    EXPECT_EQ(MainForm().web.LocationURL(), data_ + "D200405.html");
    EXPECT_TRUE(pane->toPlainText().contains(QStringLiteral("Bank holiday walk")));
}

TEST_F(ExportAndScratchPadWindowTest, TheScratchPadKeepsWhatIsTypedInEachTab) {
    const std::string folder = folder_.Stored() + "\\";
    WriteWholeFile(folder + "scratch.ini",
                   "[TabDefinitions]\r\nScratch Pad 1,~scratchpad001.tmp\r\nShopping,"
                   "~tab2.tmp\r\nIdeas,~tab3.tmp\r\nPhone numbers,~tab4.tmp\r\n");
    WriteWholeFile(folder + "~scratchpad001.tmp", "Ring the garage before Friday\r\n");
    QAction* entry = MenuEntry(QStringLiteral("Scrap Paper"));
    ASSERT_NE(entry, nullptr);
    entry->trigger();
    test::ProcessEvents();
    QWidget* pad = platform_.WindowOf(ScratchPad());
    ASSERT_NE(pad, nullptr);
    ASSERT_TRUE(pad->isVisible());
    EXPECT_EQ(pad->windowTitle().toStdString(), "Scrap Paper for " + GetPCUserName());

    QTabBar* tabs = ViewOf<TabStripWidget>(*pad, ScratchPad().tabClip)->tabBar();
    ASSERT_EQ(tabs->count(), 4);
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    QTextEdit* text = ViewOf<RichTextBoxWidget>(*pad, ScratchPad().txtClip)->textEdit();
    QTest::keyClicks(text, QStringLiteral("Milk"));
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, QStringLiteral("Bread, eggs and cheese"));
    test::ProcessEvents();
    test::SaveScreenshot(*pad, QStringLiteral("scratch-pad"));

    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    EXPECT_EQ(text->toPlainText(), QStringLiteral("Ring the garage before Friday\n"));
    std::string shopping;
    ReadWholeFile(folder + "~tab2.tmp", shopping);
    EXPECT_EQ(shopping, "Milk\r\nBread, eggs and cheese");
    pad->close();
    test::ProcessEvents();
    EXPECT_FALSE(ScratchPad().Visible);
}
