#include "qt/views/MonthCalendar.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>
#include <algorithm>

namespace orbidex {

namespace {

constexpr int kTitlePadding = 8;
constexpr int kHeaderPadding = 4;
constexpr int kCellPadding = 6;
constexpr int kWheelNotch = 120;

QDate firstOfMonth(QDate date) {
    return {date.year(), date.month(), 1};
}

bool isWeekend(QDate date) {
    return date.dayOfWeek() >= Qt::Saturday;
}

}  // namespace

MonthCalendar::MonthCalendar(QWidget* parent)
    : QWidget(parent),
      first_(1, 1, 1),
      last_(9999, 12, 31),
      page_(firstOfMonth(QDate::currentDate())),
      current_(QDate::currentDate()) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    measure();
    updateTitle();
}

void MonthCalendar::setDateRange(QDate first, QDate last) {
    first_ = first;
    last_ = last;
    setCurrentPage(page_.year(), page_.month());
    if (current_.isValid()) current_ = std::clamp(current_, first_, last_);
}

void MonthCalendar::setFirstDayOfWeek(Qt::DayOfWeek day) {
    if (day == firstDayOfWeek_) return;
    firstDayOfWeek_ = day;
    update();
}

void MonthCalendar::setWeekNumbersShown(bool shown) {
    if (shown == weekNumbers_) return;
    weekNumbers_ = shown;
    updateGeometry();
    update();
}

void MonthCalendar::setCurrentPage(int year, int month) {
    const QDate page = std::clamp(QDate(year, month, 1), firstOfMonth(first_), firstOfMonth(last_));
    if (page == page_) return;
    page_ = page;
    updateTitle();
    update();
}

void MonthCalendar::setCurrentDate(QDate date) {
    current_ = date;
    update();
}

void MonthCalendar::setChosenRange(QDate start, QDate end) {
    chosenStart_ = start;
    chosenEnd_ = end;
    update();
}

void MonthCalendar::setBoldDays(std::vector<QDate> days) {
    bold_ = std::move(days);
    update();
}

void MonthCalendar::setToday(QDate today) {
    today_ = today;
    update();
}

// Geometry --------------------------------------------------------------------------

void MonthCalendar::measure() {
    boldFont_ = font();
    boldFont_.setBold(true);
    const QFontMetrics metrics(font());
    const QFontMetrics boldMetrics(boldFont_);
    textHeight_ = metrics.height();
    ascent_ = metrics.ascent();
    descent_ = metrics.descent();
    cellHeight_ = textHeight_ + kCellPadding / 2;
    // Digits are measured one by one: a number is as wide as its digits.
    for (int digit = 0; digit < 10; ++digit) {
        digitWidth_[digit] = metrics.horizontalAdvance(QChar(u'0' + digit));
        boldDigitWidth_[digit] = boldMetrics.horizontalAdvance(QChar(u'0' + digit));
    }
    cellWidth_ = 2 * *std::max_element(boldDigitWidth_.begin(), boldDigitWidth_.end()) + kCellPadding;
    const QLocale locale;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        initials_[day - 1] = locale.dayName(day, QLocale::ShortFormat).left(1);
        initialWidth_[day - 1] = metrics.horizontalAdvance(initials_[day - 1]);
    }
}

int MonthCalendar::titleHeight() const {
    return textHeight_ + kTitlePadding;
}

int MonthCalendar::headerHeight() const {
    return textHeight_ + kHeaderPadding;
}

int MonthCalendar::columnLeft(int column) const {
    return column * width() / columns();
}

int MonthCalendar::rowTop(int row) const {
    const int top = titleHeight() + headerHeight();
    return top + row * std::max(0, height() - top) / kRows;
}

QDate MonthCalendar::firstDateShown() const {
    // A month that starts on the first day of the week still shows a week before it.
    int before = (page_.dayOfWeek() - firstDayOfWeek_ + kDaysInWeek) % kDaysInWeek;
    if (before == 0) before = kDaysInWeek;
    return page_.addDays(-before);
}

QDate MonthCalendar::dateOfCell(int row, int column) const {
    return firstDateShown().addDays(row * kDaysInWeek + column);
}

QRect MonthCalendar::cellRect(int row, int column) const {
    const int gridColumn = column + (weekNumbers_ ? 1 : 0);
    const int left = columnLeft(gridColumn);
    const int top = rowTop(row);
    return {left, top, columnLeft(gridColumn + 1) - left, rowTop(row + 1) - top};
}

QRect MonthCalendar::dayRect(QDate date) const {
    const qint64 index = firstDateShown().daysTo(date);
    if (index < 0 || index >= kRows * kDaysInWeek) return {};
    return cellRect(static_cast<int>(index / kDaysInWeek), static_cast<int>(index % kDaysInWeek));
}

QDate MonthCalendar::dateAt(QPoint pos) const {
    if (!rect().contains(pos) || pos.y() < rowTop(0)) return {};
    for (int row = 0; row < kRows; ++row)
        for (int column = 0; column < kDaysInWeek; ++column)
            if (cellRect(row, column).contains(pos)) {
                const QDate date = dateOfCell(row, column);
                return date >= first_ && date <= last_ ? date : QDate();
            }
    return {};  // the column of week numbers
}

int MonthCalendar::weekNumberOfRow(int row) const {
    const QDate rowStart = dateOfCell(row, 0);
    // The Monday of the row's week names it.
    return rowStart.addDays((Qt::Monday - rowStart.dayOfWeek() + kDaysInWeek) % kDaysInWeek).weekNumber();
}

QRect MonthCalendar::previousButton() const {
    const int side = titleHeight() - 4;
    return {2, 2, side, side};
}

QRect MonthCalendar::nextButton() const {
    const int side = titleHeight() - 4;
    return {width() - side - 2, 2, side, side};
}

QSize MonthCalendar::sizeHint() const {
    return {columns() * cellWidth_, titleHeight() + headerHeight() + kRows * cellHeight_};
}

QSize MonthCalendar::minimumSizeHint() const {
    return {columns() * (cellWidth_ - kCellPadding + 2), titleHeight() + headerHeight() + kRows * textHeight_};
}

// Pages and the current day -----------------------------------------------------------

bool MonthCalendar::canTurn(int months) const {
    const QDate target = page_.addMonths(months);
    return target >= firstOfMonth(first_) && target <= last_;
}

void MonthCalendar::turnPage(int months) {
    if (!canTurn(months)) return;
    page_ = page_.addMonths(months);
    updateTitle();
    update();
    emit currentPageChanged(page_.year(), page_.month());
}

void MonthCalendar::moveCurrentTo(QDate date) {
    date = std::clamp(date, first_, last_);
    if (date == current_) return;
    current_ = date;
    update();
    if (firstOfMonth(date) != page_) {
        page_ = firstOfMonth(date);
        updateTitle();
        emit currentPageChanged(page_.year(), page_.month());
    }
    emit clicked(date);
}

void MonthCalendar::updateTitle() {
    title_ = QLocale().standaloneMonthName(page_.month()) + QLatin1Char(' ') + QString::number(page_.year());
    setAccessibleName(title_);
}

// Events ----------------------------------------------------------------------------

void MonthCalendar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        measure();
        updateGeometry();
    }
    QWidget::changeEvent(event);
}

void MonthCalendar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    const QPoint pos = event->position().toPoint();
    if (previousButton().contains(pos))
        turnPage(-1);
    else if (nextButton().contains(pos))
        turnPage(1);
    else
        pressed_ = dateAt(pos);
    event->accept();
}

void MonthCalendar::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mouseReleaseEvent(event);
    const QDate date = pressed_;
    pressed_ = QDate();
    if (date.isValid() && dateAt(event->position().toPoint()) == date) {
        current_ = date;
        update();
        emit clicked(date);
    }
    event->accept();
}

void MonthCalendar::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mouseDoubleClickEvent(event);
    const QPoint pos = event->position().toPoint();
    const QDate date = dateAt(pos);
    if (!date.isValid()) return mousePressEvent(event);  // the buttons turn at each press
    pressed_ = QDate();                                  // the release that follows is not another click
    current_ = date;
    update();
    emit activated(date);
    event->accept();
}

void MonthCalendar::keyPressEvent(QKeyEvent* event) {
    const QDate from = current_.isValid() ? current_ : page_;
    switch (event->key()) {
        case Qt::Key_Left:
            moveCurrentTo(from.addDays(-1));
            break;
        case Qt::Key_Right:
            moveCurrentTo(from.addDays(1));
            break;
        case Qt::Key_Up:
            moveCurrentTo(from.addDays(-kDaysInWeek));
            break;
        case Qt::Key_Down:
            moveCurrentTo(from.addDays(kDaysInWeek));
            break;
        case Qt::Key_Home:
            moveCurrentTo(page_);
            break;
        case Qt::Key_End:
            moveCurrentTo(page_.addDays(page_.daysInMonth() - 1));
            break;
        case Qt::Key_PageUp:
            moveCurrentTo(from.addMonths(-1));
            break;
        case Qt::Key_PageDown:
            moveCurrentTo(from.addMonths(1));
            break;
        case Qt::Key_Enter:
        case Qt::Key_Return:
            if (current_.isValid()) emit activated(current_);
            break;
        default:
            return QWidget::keyPressEvent(event);
    }
    event->accept();
}

void MonthCalendar::wheelEvent(QWheelEvent* event) {
    // A notch of a wheel turns one page; a touchpad's small steps add up to one.
    wheelDelta_ += event->angleDelta().y();
    for (; wheelDelta_ >= kWheelNotch; wheelDelta_ -= kWheelNotch) turnPage(-1);
    for (; wheelDelta_ <= -kWheelNotch; wheelDelta_ += kWheelNotch) turnPage(1);
    event->accept();
}

// Painting --------------------------------------------------------------------------

void MonthCalendar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    paintTitle(painter);
    paintWeekDays(painter);
    if (weekNumbers_) paintWeekNumbers(painter);
    painter.setFont(font());
    for (int row = 0; row < kRows; ++row)
        for (int column = 0; column < kDaysInWeek; ++column) paintDay(painter, row, column);
}

void MonthCalendar::paintTitle(QPainter& painter) {
    const QRect title(0, 0, width(), titleHeight());
    painter.fillRect(title, palette().color(QPalette::Highlight));
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.setFont(boldFont_);
    painter.drawText(title, Qt::AlignCenter, title_);
    paintChevron(painter, previousButton(), true, canTurn(-1));
    paintChevron(painter, nextButton(), false, canTurn(1));
}

void MonthCalendar::paintChevron(QPainter& painter, const QRect& button, bool toLeft, bool enabled) {
    QColor colour = palette().color(QPalette::HighlightedText);
    if (!enabled) colour.setAlpha(90);
    const QRectF box = QRectF(button).adjusted(button.width() * 0.3, button.height() * 0.25, -button.width() * 0.3,
                                               -button.height() * 0.25);
    QPainterPath chevron;
    chevron.moveTo(toLeft ? box.topRight() : box.topLeft());
    chevron.lineTo(toLeft ? box.left() : box.right(), box.center().y());
    chevron.lineTo(toLeft ? box.bottomRight() : box.bottomLeft());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, std::max(1.5, button.height() / 8.0), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(chevron);
    painter.restore();
}

void MonthCalendar::drawCentred(QPainter& painter, const QRect& rect, const QString& text, int width) const {
    const int x = rect.left() + (rect.width() - width) / 2;
    const int y = rect.top() + (rect.height() + ascent_ - descent_) / 2;
    painter.drawText(QPoint(x, y), text);
}

void MonthCalendar::drawNumber(QPainter& painter, const QRect& rect, int number, bool bold) const {
    const QString text = QString::number(number);
    int width = 0;
    for (const QChar digit : text) width += (bold ? boldDigitWidth_ : digitWidth_)[digit.unicode() - u'0'];
    drawCentred(painter, rect, text, width);
}

void MonthCalendar::paintWeekDays(QPainter& painter) {
    painter.setFont(font());
    const int top = titleHeight();
    for (int column = 0; column < kDaysInWeek; ++column) {
        const int day = (firstDayOfWeek_ - 1 + column) % kDaysInWeek + 1;
        const QRect cell = cellRect(0, column);
        const QRect header(cell.left(), top, cell.width(), headerHeight());
        painter.setPen(day >= Qt::Saturday ? QColor(Qt::red) : palette().color(QPalette::Text));
        drawCentred(painter, header, initials_[day - 1], initialWidth_[day - 1]);
    }
}

void MonthCalendar::paintWeekNumbers(QPainter& painter) {
    const QRect column(0, titleHeight(), columnLeft(1), height() - titleHeight());
    painter.fillRect(column, palette().color(QPalette::Window));
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    for (int row = 0; row < kRows; ++row) {
        const QRect cell = cellRect(row, 0);
        drawNumber(painter, QRect(0, cell.top(), column.width(), cell.height()), weekNumberOfRow(row), false);
    }
}

void MonthCalendar::paintDay(QPainter& painter, int row, int column) {
    const QDate date = dateOfCell(row, column);
    const QRect cell = cellRect(row, column);
    const bool chosen = date == current_ || (chosenStart_.isValid() && date >= chosenStart_ && date <= chosenEnd_);
    const bool inMonth = firstOfMonth(date) == page_;
    QColor text = palette().color(QPalette::Text);
    if (chosen) {
        painter.fillRect(cell, palette().color(QPalette::Highlight));
        text = palette().color(QPalette::HighlightedText);
    } else if (!inMonth || date < first_ || date > last_) {
        text = palette().color(QPalette::Disabled, QPalette::Text);
    } else if (isWeekend(date)) {
        text = Qt::red;
    }
    if (date == today_) {
        painter.setPen(chosen ? text : palette().color(QPalette::Highlight));
        painter.drawRect(cell.adjusted(0, 0, -1, -1));
    }
    if (date == current_ && hasFocus()) {
        painter.setPen(QPen(text, 1, Qt::DotLine));
        painter.drawRect(cell.adjusted(2, 2, -3, -3));
    }
    const bool bold = std::find(bold_.begin(), bold_.end(), date) != bold_.end();
    painter.setFont(bold ? boldFont_ : font());
    painter.setPen(text);
    drawNumber(painter, cell, date.day(), bold);
}

}  // namespace orbidex
