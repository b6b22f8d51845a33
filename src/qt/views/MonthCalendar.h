#pragma once
// One month drawn as a calendar: a title line with the month, the year and two
// buttons to the months before and after, the initials of the week days, an
// optional column of ISO week numbers, and six rows of seven days (those of the
// months around it in grey).  The chosen range is drawn on the highlight colour,
// bold days in bold, today framed, and the current day with a focus frame while the
// calendar has the keyboard.  It draws itself: no child widgets, no item views.

#include <QDate>
#include <QFont>
#include <QRect>
#include <QWidget>
#include <array>
#include <vector>

namespace orbidex {

class MonthCalendar : public QWidget {
    Q_OBJECT
public:
    static constexpr int kRows = 6;
    static constexpr int kDaysInWeek = 7;

    explicit MonthCalendar(QWidget* parent = nullptr);

    /// The days the user may reach; the pages turn within their months.
    void setDateRange(QDate first, QDate last);
    void setFirstDayOfWeek(Qt::DayOfWeek day);
    void setWeekNumbersShown(bool shown);
    /// Shows the month `month` of `year` (within the date range) without a signal.
    void setCurrentPage(int year, int month);
    int yearShown() const { return page_.year(); }
    int monthShown() const { return page_.month(); }
    /// The day the keyboard moves from (drawn chosen, framed while focused).
    void setCurrentDate(QDate date);
    QDate currentDate() const { return current_; }
    /// The range drawn chosen; null dates for none.
    void setChosenRange(QDate start, QDate end);
    void setBoldDays(std::vector<QDate> days);
    /// The day framed as today; a null date frames none.
    void setToday(QDate today);

    /// The day shown in the cell of `row` (0-5) and `column` (0-6, from the first day of week).
    QDate dateOfCell(int row, int column) const;
    /// Where that cell is drawn.
    QRect cellRect(int row, int column) const;
    /// Where `date` is drawn, or an empty rectangle when it is not shown.
    QRect dayRect(QDate date) const;
    /// The day drawn at `pos`, or a null date (title, week days, week numbers).
    QDate dateAt(QPoint pos) const;
    /// The ISO week number shown at the start of `row`.
    int weekNumberOfRow(int row) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// A single click on a day, or the keyboard moved the current day.
    void clicked(QDate date);
    /// A double click on a day, or Enter on the current day.
    void activated(QDate date);
    void currentPageChanged(int year, int month);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// Cell sizes for the font; measured at each change of font.
    void measure();
    int titleHeight() const;
    int headerHeight() const;
    int columns() const { return kDaysInWeek + (weekNumbers_ ? 1 : 0); }
    /// The left edge of grid column `column` (the week numbers' column counts).
    int columnLeft(int column) const;
    int rowTop(int row) const;
    QDate firstDateShown() const;
    QRect previousButton() const;
    QRect nextButton() const;
    bool canTurn(int months) const;
    /// Turns the page by `months` and tells so.
    void turnPage(int months);
    /// Moves the current day by the keyboard: turns the page when it leaves the month.
    void moveCurrentTo(QDate date);
    /// The month and year, drawn in the title line and read out by accessibility tools.
    void updateTitle();

    void paintTitle(QPainter& painter);
    void paintWeekDays(QPainter& painter);
    void paintWeekNumbers(QPainter& painter);
    void paintDay(QPainter& painter, int row, int column);
    /// Draws `text` of width `width` centred in `rect`.
    void drawCentred(QPainter& painter, const QRect& rect, const QString& text, int width) const;
    /// Draws `number` centred in `rect`.
    void drawNumber(QPainter& painter, const QRect& rect, int number, bool bold) const;
    void paintChevron(QPainter& painter, const QRect& button, bool toLeft, bool enabled);

    QDate first_;
    QDate last_;
    QDate page_;  ///< the first day of the month shown
    QString title_;
    QDate current_;
    QDate chosenStart_;
    QDate chosenEnd_;
    QDate today_;
    std::vector<QDate> bold_;
    Qt::DayOfWeek firstDayOfWeek_ = Qt::Monday;
    bool weekNumbers_ = false;
    QFont boldFont_;
    int cellWidth_ = 0;   ///< the width a day needs in this font
    int cellHeight_ = 0;  ///< the height a day needs
    int textHeight_ = 0;
    int ascent_ = 0;
    int descent_ = 0;
    /// Widths of the digits in the font and in bold.
    std::array<int, 10> digitWidth_{};
    std::array<int, 10> boldDigitWidth_{};
    /// The initials of the week days, Monday first, and their widths.
    std::array<QString, 7> initials_;
    std::array<int, 7> initialWidth_{};
    QDate pressed_;       ///< the day under the last press, until its release
    int wheelDelta_ = 0;  ///< wheel turns not yet a whole notch
};

}  // namespace orbidex
