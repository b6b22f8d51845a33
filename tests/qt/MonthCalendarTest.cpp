#include <gtest/gtest.h>

#include <QImage>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "ViewTestSupport.h"
#include "controls/MonthView.h"
#include "foundation/DateHelpers.h"
#include "foundation/VbDate.h"
#include "qt/views/MonthCalendar.h"
#include "qt/views/MonthViewWidget.h"

namespace orbidex {
namespace {

/// A calendar shown at a usual size, what it tells written down as one line.
class MonthCalendarTest : public ::testing::Test {
protected:
    void SetUp() override {
        calendar.setDateRange(QDate(kFirstDiaryYear, 1, 1), QDate(kLastDiaryYear, 12, 31));
        calendar.resize(280, 200);
        calendar.show();
        test::ProcessEvents();
        QObject::connect(&calendar, &MonthCalendar::clicked, [this](QDate date) { tell("clicked " + text(date)); });
        QObject::connect(&calendar, &MonthCalendar::activated, [this](QDate date) { tell("activated " + text(date)); });
        QObject::connect(&calendar, &MonthCalendar::currentPageChanged,
                         [this](int year, int month) { tell(pageText(year, month)); });
    }
    static std::string text(QDate date) { return date.toString(Qt::ISODate).toStdString(); }
    static std::string pageText(int year, int month) {
        return "page " + std::to_string(year) + "-" + std::to_string(month);
    }
    void tell(const std::string& what) { told += (told.empty() ? "" : ", ") + what; }
    /// What the calendar told since the last call, one after the other.
    std::string heard() { return std::exchange(told, {}); }
    QDate dateOfCell(int row, int column) { return calendar.dateAt(calendar.cellRect(row, column).center()); }
    QImage drawn() {
        QImage image(calendar.size(), QImage::Format_RGB32);
        calendar.render(&image);
        return image;
    }

    MonthCalendar calendar;
    std::string told;
};

struct MonthCase {
    const char* name;
    QDate page;
    Qt::DayOfWeek firstDay;
    const char* weeks;  ///< the week numbers of the six rows, "" when they are not shown
    QDate firstShown;   ///< the day of the top left cell
    QDate row1Start;
    QDate row5Start;
    QDate edgeDay;         ///< a day at the month's edge ...
    Qt::Key edgeKey;       ///< ... and the arrow that leaves the month
    const char* edgeTold;  ///< what the calendar tells then
};

TEST_F(MonthCalendarTest, DaysWeeksAndWhatTheMouseAndKeysTell) {
    const MonthCase cases[] = {
        {"June 2004, Monday first", QDate(2004, 6, 1), Qt::Monday, "", QDate(2004, 5, 31), QDate(2004, 6, 7),
         QDate(2004, 7, 5), QDate(2004, 6, 30), Qt::Key_Right, "page 2004-7, clicked 2004-07-01"},
        {"March 2004 starts on the first day of the week: a week of February above it", QDate(2004, 3, 1), Qt::Monday,
         "9 10 11 12 13 14", QDate(2004, 2, 23), QDate(2004, 3, 1), QDate(2004, 3, 29), QDate(2004, 3, 1), Qt::Key_Up,
         "page 2004-2, clicked 2004-02-23"},
        {"February of a leap year, Sunday first", QDate(2004, 2, 1), Qt::Sunday, "5 6 7 8 9 10", QDate(2004, 1, 25),
         QDate(2004, 2, 1), QDate(2004, 2, 29), QDate(2004, 2, 29), Qt::Key_Down, "page 2004-3, clicked 2004-03-07"},
        {"January 2010 opens in week 53 of 2009", QDate(2010, 1, 1), Qt::Monday, "53 1 2 3 4 5", QDate(2009, 12, 28),
         QDate(2010, 1, 4), QDate(2010, 2, 1), QDate(2010, 1, 1), Qt::Key_Left, "page 2009-12, clicked 2009-12-31"},
    };
    for (const MonthCase& c : cases) {
        SCOPED_TRACE(c.name);
        const bool weekNumbers = *c.weeks != 0;
        calendar.setFirstDayOfWeek(c.firstDay);
        calendar.setWeekNumbersShown(weekNumbers);
        calendar.setCurrentPage(c.page.year(), c.page.month());
        calendar.setCurrentDate(c.page.addDays(14));
        EXPECT_EQ(calendar.yearShown(), c.page.year());
        EXPECT_EQ(calendar.monthShown(), c.page.month());

        EXPECT_EQ(dateOfCell(0, 0), c.firstShown);
        EXPECT_EQ(dateOfCell(1, 0), c.row1Start);
        EXPECT_EQ(dateOfCell(5, 0), c.row5Start);
        EXPECT_EQ(dateOfCell(5, 6), c.firstShown.addDays(41));
        EXPECT_EQ(calendar.dateAt(calendar.cellRect(5, 6).bottomRight()), c.firstShown.addDays(41));
        EXPECT_EQ(calendar.dayRect(c.row1Start), calendar.cellRect(1, 0));
        EXPECT_TRUE(calendar.dayRect(c.firstShown.addDays(42)).isEmpty()) << "not shown";
        EXPECT_FALSE(calendar.dateAt(QPoint(calendar.width() / 2, 3)).isValid()) << "the title";
        EXPECT_FALSE(calendar.dateAt(QPoint(calendar.width() / 2, calendar.cellRect(0, 0).top() - 2)).isValid())
            << "the week days";
        if (weekNumbers) {
            std::string weeks;
            for (int row = 0; row < MonthCalendar::kRows; ++row)
                weeks += (row == 0 ? "" : " ") + std::to_string(calendar.weekNumberOfRow(row));
            EXPECT_EQ(weeks, c.weeks);
            EXPECT_FALSE(calendar.dateAt(QPoint(3, calendar.cellRect(2, 0).center().y())).isValid()) << "a week number";
            EXPECT_GT(calendar.cellRect(0, 0).left(), 10) << "the days stand right of the week numbers";
        } else {
            EXPECT_EQ(calendar.cellRect(0, 0).left(), 0);
        }

        const QDate day = c.firstShown.addDays(2 * 7 + 3);
        const QPoint at = calendar.cellRect(2, 3).center();
        QTest::mouseClick(&calendar, Qt::LeftButton, {}, at);
        EXPECT_EQ(heard(), "clicked " + text(day));
        EXPECT_EQ(calendar.currentDate(), day);
        // Through the window, as a user's double click comes: press, release, press, release.
        QTest::mouseDClick(calendar.windowHandle(), Qt::LeftButton, {}, at);
        EXPECT_EQ(heard(), "clicked " + text(day) + ", activated " + text(day));
        QTest::keyClick(&calendar, Qt::Key_Return);
        QTest::keyClick(&calendar, Qt::Key_Enter);
        EXPECT_EQ(heard(), "activated " + text(day) + ", activated " + text(day));
        QTest::keyClick(&calendar, Qt::Key_PageDown);
        const QDate nextMonth = c.page.addMonths(1);
        EXPECT_EQ(heard(), pageText(nextMonth.year(), nextMonth.month()) + ", clicked " + text(day.addMonths(1)));

        calendar.setCurrentPage(c.page.year(), c.page.month());
        calendar.setCurrentDate(c.edgeDay);
        QTest::keyClick(&calendar, c.edgeKey);
        EXPECT_EQ(heard(), c.edgeTold);
    }
}

TEST_F(MonthCalendarTest, TheButtonsTheWheelAndHomeEndTurnWithinTheDiarysYears) {
    calendar.setCurrentPage(kFirstDiaryYear, 2);
    calendar.setCurrentDate(QDate(kFirstDiaryYear, 2, 10));
    const QPoint previous(6, 6);
    const QPoint next(calendar.width() - 6, 6);
    QTest::mouseClick(&calendar, Qt::LeftButton, {}, next);
    QTest::mouseClick(&calendar, Qt::LeftButton, {}, previous);
    QTest::mouseClick(&calendar, Qt::LeftButton, {}, previous);
    EXPECT_EQ(heard(), "page 1900-3, page 1900-2, page 1900-1");
    QTest::mouseClick(&calendar, Qt::LeftButton, {}, previous);
    EXPECT_EQ(heard(), "") << "no month before the first";
    EXPECT_FALSE(dateOfCell(0, 0).isValid()) << "31 December 1899 is out of reach";

    calendar.setCurrentDate(QDate(kFirstDiaryYear, 1, 1));
    QTest::keyClick(&calendar, Qt::Key_Left);
    QTest::keyClick(&calendar, Qt::Key_PageUp);
    QTest::keyClick(&calendar, Qt::Key_Home);
    EXPECT_EQ(heard(), "");
    QTest::keyClick(&calendar, Qt::Key_End);
    EXPECT_EQ(heard(), "clicked 1900-01-31");

    // A notch of the wheel turns a page; a touchpad's small steps add up to a notch.
    for (const int delta : {-120, -60, -40, -20}) {
        QWheelEvent down(calendar.rect().center(), calendar.mapToGlobal(calendar.rect().center()), {}, {0, delta},
                         Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&calendar, &down);
    }
    EXPECT_EQ(heard(), "page 1900-2, page 1900-3");

    calendar.setCurrentPage(kLastDiaryYear, 12);
    QTest::mouseClick(&calendar, Qt::LeftButton, {}, next);
    calendar.setCurrentDate(QDate(kLastDiaryYear, 12, 31));
    QTest::keyClick(&calendar, Qt::Key_Right);
    EXPECT_EQ(heard(), "") << "no month after the last";
}

TEST_F(MonthCalendarTest, ChosenDaysAreOnTheHighlightAndOtherMonthsInGrey) {
    calendar.setFirstDayOfWeek(Qt::Monday);
    calendar.setCurrentPage(2004, 6);
    calendar.setCurrentDate(QDate(2004, 6, 16));
    calendar.setChosenRange(QDate(2004, 6, 14), QDate(2004, 6, 16));
    EXPECT_EQ(calendar.accessibleName(), QStringLiteral("June 2004"));
    const QPalette& palette = calendar.palette();
    QImage image = drawn();
    const QRect chosen = calendar.dayRect(QDate(2004, 6, 15));
    const QRect plain = calendar.dayRect(QDate(2004, 6, 17));
    const QRect july = calendar.dayRect(QDate(2004, 7, 8));
    EXPECT_EQ(image.pixelColor(chosen.topLeft() + QPoint(1, 1)), palette.color(QPalette::Highlight));
    EXPECT_EQ(image.pixelColor(plain.topLeft() + QPoint(1, 1)), palette.color(QPalette::Base));
    EXPECT_EQ(image.pixelColor(july.topLeft() + QPoint(1, 1)), palette.color(QPalette::Base));

    // The colours a cell's text is drawn in, and how many pixels it covers.
    const auto inked = [&](const QRect& cell, const QColor& colour) {
        int count = 0;
        for (int y = cell.top(); y <= cell.bottom(); ++y)
            for (int x = cell.left(); x <= cell.right(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
        return count;
    };
    const QColor grey = palette.color(QPalette::Disabled, QPalette::Text);
    const QColor black = palette.color(QPalette::Text);
    ASSERT_NE(grey, black);
    EXPECT_GT(inked(july, grey), 0) << "8 July is grey";
    EXPECT_EQ(inked(july, black), 0);
    EXPECT_GT(inked(chosen, palette.color(QPalette::HighlightedText)), 0);
    EXPECT_GT(inked(plain, black), 0);
    const int plainInk = inked(plain, black);

    calendar.setBoldDays({QDate(2004, 6, 17)});
    image = drawn();
    EXPECT_GT(inked(plain, black), plainInk) << "17 June is bold";
}

TEST(MonthViewWidgetTest, FourMonthsWithWeekNumbersFollowTheTurnedPage) {
    MonthView month("MonthView1");
    month.MonthRows = 2;
    month.MonthColumns = 2;
    month.ShowWeekNumbers = true;
    month.Value = DateSerial(2004, 6, 5);
    month.SetDayBold(DateSerial(2004, 6, 10), true);
    auto view = test::Shown<MonthViewWidget>(month, QSize(560, 400));
    const std::vector<MonthCalendar*>& calendars = view->calendars();
    ASSERT_EQ(calendars.size(), 4u);
    EXPECT_EQ(calendars[3]->monthShown(), 9);
    test::SaveScreenshot(*view, QStringLiteral("month-calendar-weeks"));

    // The next-month button of the second calendar turns all four.
    QTest::mouseClick(calendars[1], Qt::LeftButton, {}, QPoint(calendars[1]->width() - 6, 6));
    EXPECT_EQ(calendars[0]->monthShown(), 7);
    EXPECT_EQ(calendars[3]->monthShown(), 10);
    EXPECT_EQ(month.Value, DateSerial(2004, 6, 5)) << "turning a page chooses no day";

    // A day of the fourth calendar, through the view's own geometry.
    const QPoint at = calendars[3]->mapTo(view.get(), calendars[3]->dayRect(QDate(2004, 10, 20)).center());
    EXPECT_EQ(view->dateAt(at), QDate(2004, 10, 20));
    VbDate doubleClicked = 0;
    month.onDateDblClick = [&](VbDate day) { doubleClicked = day; };
    QTest::mouseDClick(calendars[3], Qt::LeftButton, {}, calendars[3]->dayRect(QDate(2004, 10, 20)).center());
    EXPECT_EQ(month.Value, DateSerial(2004, 10, 20));
    EXPECT_EQ(doubleClicked, DateSerial(2004, 10, 20));
    EXPECT_EQ(calendars[0]->monthShown(), 7) << "the day chosen is shown already";
}

}  // namespace
}  // namespace orbidex
