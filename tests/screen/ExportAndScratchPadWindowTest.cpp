// The real program in this process with its Qt windows: the diary exported and its
// month shown in the browser pane, whose index leads to the other months; and the
// scratch pad typed into through its window.  Screenshots of both.
#include <gtest/gtest.h>

#include <QTabBar>
#include <QTest>
#include <QTextBrowser>
#include <QTextEdit>
#include <map>

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

class ExportAndScratchPadWindowTest : public test::ProgramWindowFixture {
protected:
    void WriteData() override {
        const char* const events[][4] = {
            {"D200311100001", "20031110", "1000", "Annual review"},
            {"D200405030001", "20040503", "0900", "Bank holiday walk"},
            {"D200405200001", "20040520", "1400", "Dentist"},
            {"D200406010001", "20040601", "0900", "Team stand-up"},
            {"D200406010002", "20040601", "1230", "Lunch with Ann & Bob at the Cafe Rouge"},
            {"D200406040001", "20040604", "1500", "Quarterly figures to the board"},
            {"D200406050001", "20040605", "1000", "Garden centre"},
            {"D200406070001", "20040607", "0830", "Car to the garage"},
            {"D200406070002", "20040607", "1400", "Call the bank about the loan"},
            {"D200406150001", "20040615", "1900", "Choir practice"},
            {"D200407020001", "20040702", "1100", "Summer fair"},
        };
        std::map<std::string, std::string> months;  // "200406" -> the lines of D200406.dat
        for (const auto& [id, date, time, details] : events)
            months[std::string(date, 6)] += test::EventLine(id, date, time, details, "Office") + "\r\n";
        for (const auto& [month, lines] : months) WriteWholeFile(data_ + "D" + month + ".dat", lines);
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
