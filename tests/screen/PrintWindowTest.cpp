// The print of the week and of the month, from the real start-up in this process:
// each view drawn as the print preview draws it into a PDF on A4 and on Letter in
// both orientations, its text read back from the PDF (pdftotext), and the first page
// of the week and the month saved as pictures under screenshots/ (pdftoppm).
#include <gtest/gtest.h>

#include <QDir>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <map>

#include "EventLines.h"
#include "ProgramWindowFixture.h"
#include "foundation/FileSystem.h"
#include "qt/PrintPainter.h"
#include "qt/views/ControlWidget.h"
#include "screen/clsDiaryCommand.h"

using namespace orbidex;

namespace {

// The output of a tool of the PDF utilities, "" when it fails.
QString RunTool(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0) return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

// The text without blanks and line breaks, the ligature "fi" as two letters.
QString Squeezed(QString text) {
    text.remove(QRegularExpression(QStringLiteral("\\s")));
    return text.replace(QChar(0xFB01), QStringLiteral("fi"));
}

}  // namespace

class PrintWindowTest : public test::ProgramWindowFixture {
protected:
    void WriteData() override {
        WriteWholeFile(data_ + "D200406.dat",
                       "\r\n" + test::EventLine("D200406010001", "20040601", "0900", "Team meeting") + "\r\n" +
                           test::EventLine("D200406020001", "20040602", "1030",
                                           "Quarterly budget review with the whole finance team", "Office", "90") +
                           "\r\n" + test::EventLine("D200406050001", "20040605", "1400", "Ring the bank") + "\r\n" +
                           test::EventLine("D200406240001", "20040624", "1100", "Dentist") + "\r\n");
    }

    /// The view as printed into a PDF of that page size and orientation; its text.
    QString PrintToPdf(const QString& name, QPageSize::PageSizeId size, QPageLayout::Orientation orientation) {
        const QString pdf = QDir(QString::fromStdString(folder_.Native())).filePath(name + QStringLiteral(".pdf"));
        {
            QPdfWriter writer(pdf);
            writer.setPageLayout(QPageLayout(QPageSize(size), orientation, QMarginsF(12, 12, 12, 12)));
            PaintPrintDocument(glbCmd.PrintDocumentOfView(), writer);
        }
        pdfs_[name] = pdf;
        return RunTool(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    }
    /// The first page of a PDF printed before as screenshots/<name>.png.
    void SavePage(const QString& name) {
        QDir().mkpath(QStringLiteral("screenshots"));
        RunTool(QStringLiteral("pdftoppm"), QStringLiteral("-png -r 80 -f 1 -l 1 -singlefile").split(QLatin1Char(' '))
                                                << pdfs_[name] << QStringLiteral("screenshots/") + name);
        EXPECT_TRUE(QFile::exists(QStringLiteral("screenshots/") + name + QStringLiteral(".png")))
            << name.toStdString();
    }

    std::map<QString, QString> pdfs_;
};

TEST_F(PrintWindowTest, TheWeekAndTheMonthPrintTheirHeadingDatesAndEventsOnEveryPageSize) {
    const struct {
        const char* view;
        bool landscape;     // proposed to the printer
        const char* texts;  // the heading, the dates, the events, "|" between them
    } views[] = {
        {"Weekly View", false,
         "Events for Week beginning 31-May-2004|Monday, 31 May 2004 to Sunday, 6 June 2004|Team meeting|Ring the bank|"
         "Quarterly budget review"},
        {"Monthly View", true,
         "Events for Month of Jun-2004|Tuesday, 1 June 2004 to Wednesday, 30 June 2004|Team meeting|Ring the bank|"
         "Dentist"},
    };
    const struct {
        const char* name;
        QPageSize::PageSizeId size;
        QPageLayout::Orientation orientation;
    } pages[] = {
        {"a4-portrait", QPageSize::A4, QPageLayout::Portrait},
        {"a4-landscape", QPageSize::A4, QPageLayout::Landscape},
        {"letter-portrait", QPageSize::Letter, QPageLayout::Portrait},
        {"letter-landscape", QPageSize::Letter, QPageLayout::Landscape},
    };
    for (const auto& view : views) {
        MenuEntry(QString::fromUtf8(view.view), QStringLiteral("&View"))->trigger();
        EXPECT_EQ(glbCmd.PrintDocumentOfView().landscape, view.landscape) << view.view;
        for (const auto& page : pages) {
            const QString name =
                QStringLiteral("print-%1-%2")
                    .arg(QString::fromUtf8(view.view).section(' ', 0, 0).toLower(), QString::fromUtf8(page.name));
            const QString text = PrintToPdf(name, page.size, page.orientation);
            ASSERT_FALSE(text.isEmpty()) << name.toStdString();
            // A cell's text wraps within its column, inside words where they are wider:
            // the texts are compared without their blanks and line breaks.
            const QString words = Squeezed(text);
            const QStringList parts = QString::fromUtf8(view.texts).split(QLatin1Char('|')) << QStringLiteral("Page 1");
            QStringList missing;
            for (const QString& part : parts)
                if (!words.contains(Squeezed(part))) missing << part;
            EXPECT_EQ(missing.join(QLatin1Char('|')).toStdString(), "") << name.toStdString();
        }
    }
    SavePage(QStringLiteral("print-weekly-a4-landscape"));
    SavePage(QStringLiteral("print-monthly-a4-landscape"));
    SavePage(QStringLiteral("print-weekly-letter-portrait"));
}
