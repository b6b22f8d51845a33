#include "qt/PrintPainter.h"

#include <QPainter>
#include <QTextDocument>
#include <algorithm>
#include <numeric>

#include "foundation/FileSystem.h"
#include "qt/QtText.h"

namespace orbidex {

namespace {

constexpr double kHeadingPoints = 14;
constexpr double kDatesPoints = 10;
constexpr double kTablePoints = 8;
constexpr double kFootPoints = 7;

QColor colourOf(OleColor colour) {
    return QColor(RedOf(colour), GreenOf(colour), BlueOf(colour));
}

QFont fontOf(double points, bool bold = false) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

class TablePrinter {
public:
    TablePrinter(const PrintDocument& document, QPagedPaintDevice& device)
        : document_(document), device_(device), painter_(&device) {
        pad_ = std::max(1, device.logicalDpiX() / 50);
        const std::vector<long>& widths = document.columnWidths;
        const double total = std::max(1L, std::accumulate(widths.begin(), widths.end(), 0L));
        int x = 0;
        for (long width : widths) {
            lefts_.push_back(x);
            x += static_cast<int>(width * device.width() / total);
        }
        lefts_.push_back(device.width());
    }

    void Print() {
        startPage();
        for (size_t r = 0; r < document_.rows.size(); ++r) {
            const int height = rowHeight(document_.rows[r]);
            if (y_ + height > bottom() && y_ > tableTop_) {
                device_.newPage();
                startPage();
                for (size_t h = 0; h < static_cast<size_t>(document_.headingRows) && h < r; ++h)
                    drawRow(document_.rows[h], rowHeight(document_.rows[h]));
            }
            drawRow(document_.rows[r], height);
        }
    }

private:
    int bottom() const { return device_.height() - footHeight_; }

    void startPage() {
        ++page_;
        y_ = 0;
        y_ += drawLine(ToQString(document_.heading), fontOf(kHeadingPoints, true), Qt::AlignLeft);
        y_ += drawLine(ToQString(document_.dates), fontOf(kDatesPoints), Qt::AlignLeft);
        y_ += pad_ * 4;
        tableTop_ = y_;
        painter_.setFont(fontOf(kFootPoints));
        footHeight_ = painter_.fontMetrics().height() + pad_ * 4;
        painter_.setPen(Qt::black);
        painter_.drawText(QRect(0, device_.height() - painter_.fontMetrics().height(), device_.width(),
                                painter_.fontMetrics().height()),
                          Qt::AlignRight, QStringLiteral("Page %1").arg(page_));
    }

    int drawLine(const QString& text, const QFont& font, Qt::Alignment align) {
        if (text.isEmpty()) return 0;
        painter_.setFont(font);
        painter_.setPen(Qt::black);
        const QRect box(0, y_, device_.width(), painter_.fontMetrics().height());
        painter_.drawText(box, static_cast<int>(align), text);
        return box.height() + pad_;
    }

    QRect textBox(size_t column, int top, int height) const {
        return QRect(lefts_[column] + pad_, top + pad_, lefts_[column + 1] - lefts_[column] - 2 * pad_,
                     height - 2 * pad_);
    }

    int rowHeight(const std::vector<PrintCell>& row) {
        int height = 0;
        for (size_t c = 0; c < row.size() && c + 1 < lefts_.size(); ++c) {
            painter_.setFont(fontOf(kTablePoints, row[c].bold));
            const QRect box = textBox(c, 0, device_.height());
            const QRect needed = painter_.boundingRect(box, wrapFlags(box, text(row[c])), text(row[c]));
            height = std::max(height, needed.height());
        }
        painter_.setFont(fontOf(kTablePoints));
        height = std::max(height, painter_.fontMetrics().height());
        // A cell taller than a page is cut at the page's foot.
        return std::min(height + 2 * pad_, bottom() - tableTop_);
    }

    void drawRow(const std::vector<PrintCell>& row, int height) {
        for (size_t c = 0; c < row.size() && c + 1 < lefts_.size(); ++c) {
            const QRect cell(lefts_[c], y_, lefts_[c + 1] - lefts_[c], height);
            painter_.fillRect(cell, colourOf(row[c].backColor));
            painter_.setPen(QColor(0xC0, 0xC0, 0xC0));
            painter_.drawRect(cell);
            painter_.setFont(fontOf(kTablePoints, row[c].bold));
            painter_.setPen(colourOf(row[c].foreColor));
            const QRect box = textBox(c, y_, height);
            painter_.drawText(box, wrapFlags(box, text(row[c])) | Qt::AlignLeft | Qt::AlignTop, text(row[c]));
        }
        y_ += height;
    }

    static QString text(const PrintCell& cell) { return ToQString(cell.text); }

    // Words wrap at their ends; a word wider than its column breaks inside, so that no
    // letter is cut off.
    int wrapFlags(const QRect& box, const QString& text) {
        const QRect words = painter_.boundingRect(box, Qt::TextWordWrap, text);
        return words.width() > box.width() ? Qt::TextWrapAnywhere : Qt::TextWordWrap;
    }

    const PrintDocument& document_;
    QPagedPaintDevice& device_;
    QPainter painter_;
    std::vector<int> lefts_;
    int pad_ = 1;
    int y_ = 0;
    int tableTop_ = 0;
    int footHeight_ = 0;
    int page_ = 0;
};

}  // namespace

void PaintPrintDocument(const PrintDocument& document, QPagedPaintDevice& device) {
    if (!document.htmlFile.empty()) {
        std::string bytes;
        ReadWholeFile(document.htmlFile, bytes);
        QTextDocument page;
        page.setDefaultFont(fontOf(kTablePoints + 1));
        page.setHtml(ToQString(bytes));
        page.print(&device);
        return;
    }
    TablePrinter(document, device).Print();
}

}  // namespace orbidex
