// The layout of the main window, in twips: the left strip (shortcut bar, tree), the
// column with the month calendar and the side list, and the main area with its
// heading over the grid or the list, and the browser pane.
#include <algorithm>

#include "config/clsConfigDiary.h"
#include "foundation/VbString.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

constexpr long kSplitterSize = 75;
constexpr long kGap = 60;
constexpr long kHeadingHeight = 375;
constexpr long kLabelHeight = 255;
constexpr long kMonthWidth = 3600;  ///< one month of the calendar
constexpr long kMonthHeight = 2700;
constexpr long kMinColumnWidth = 1500;
constexpr long kMinMainWidth = 1500;
constexpr long kMinPaneHeight = 600;

struct Area {
    long left = 0;
    long top = 0;
    long right = 0;
    long bottom = 0;
    long width() const { return std::max(0L, right - left); }
    long height() const { return std::max(0L, bottom - top); }
};

long clampTo(long value, long low, long high) {
    return std::max(low, std::min(value, std::max(low, high)));
}

// The client area less the tool bar along the top and the status bar along the bottom.
Area clientArea(const frmClientDiaryMain& form) {
    Area area;
    area.right = form.InsideWidth();
    area.bottom = form.InsideHeight();
    if (form.Toolbar1.Visible) area.top = form.Toolbar1.Height;
    if (form.status.Visible) area.bottom -= form.status.Height;
    return area;
}

// The shortcut bar and the tree; gives back where the rest begins.
long layOutLeftStrip(frmClientDiaryMain& form, const Area& area) {
    long left = area.left;
    if (form.lvView.Visible) {
        form.lvView.Move(0, area.top, form.lvView.Width, area.height());
        left = form.lvView.Width + 10;
    }
    if (form.tv.Visible) {
        form.tv.Move(form.tv.Left, area.top, form.tv.Width, area.height());
        left = form.tv.Left + form.tv.Width + 10;
    }
    return left;
}

}  // namespace

void clsDiaryScreen::SetColumnWidth(long width) {
    columnWidth_ = std::max(kMinColumnWidth, width);
}

void clsDiaryScreen::SetBrowserHeight(long height) {
    browserHeight_ = std::max(kMinPaneHeight, height);
}

void clsDiaryScreen::resize() {
    if (form_ == nullptr) return;
    frmClientDiaryMain& form = *form_;
    Area area = clientArea(form);
    if (area.width() == 0 || area.height() == 0) return;
    area.left = layOutLeftStrip(form, area);

    // The column of the month calendar, the side list (or the users) and the totals.
    const bool column = form.MonthView1.Visible || form.lvUsers.Visible;
    form.imgSplitter.Visible = column;
    if (column) {
        const long months = std::max(1L, static_cast<long>(form.MonthView1.MonthColumns));
        const long monthRows = std::max(1L, static_cast<long>(form.MonthView1.MonthRows));
        const long width = clampTo(columnWidth_ > 0 ? columnWidth_ : kMonthWidth * months, kMinColumnWidth,
                                   area.width() - kSplitterSize - kMinMainWidth);
        long top = area.top;
        long bottom = area.bottom;
        if (form.MonthView1.Visible) {
            form.MonthView1.Move(area.left, top, width, kMonthHeight * monthRows);
            top += kMonthHeight * monthRows + kGap;
        }
        if (form.Label1.Visible) {
            form.Label2.Move(area.left, bottom - kLabelHeight, width, kLabelHeight);
            form.Label1.Move(area.left, bottom - 2 * kLabelHeight, width, kLabelHeight);
            bottom -= 2 * kLabelHeight + kGap;
        }
        if (form.lblUsers.Visible) {
            form.lblUsers.Move(area.left, top, width, kLabelHeight);
            top += kLabelHeight;
        }
        ListView& side = form.lvUsers.Visible ? form.lvUsers : form.lvCat;
        if (side.Visible) side.Move(area.left, top, width, std::max(0L, bottom - top));
        form.imgSplitter.Move(area.left + width, area.top, kSplitterSize, area.height());
        area.left += width + kSplitterSize;
    }

    // The main area: the heading, then the view, and the browser pane under it when
    // both are shown.
    if (form.lblHeading.Visible) {
        form.lblHeading.Move(area.left, area.top, area.width(), kHeadingHeight);
        area.top += kHeadingHeight;
    }
    Control* view = form.gridDays.Visible             ? static_cast<Control*>(&form.gridDays)
                    : form.lvDiary.Visible            ? static_cast<Control*>(&form.lvDiary)
                    : (form.lvCat.Visible && !column) ? static_cast<Control*>(&form.lvCat)
                                                      : nullptr;
    const bool split = view != nullptr && form.web.Visible;
    form.imgVert.Visible = split;
    if (split) {
        const long pane = clampTo(browserHeight_ > 0 ? browserHeight_ : area.height() / 3, kMinPaneHeight,
                                  area.height() - kSplitterSize - kMinPaneHeight);
        view->Move(area.left, area.top, area.width(), std::max(0L, area.height() - pane - kSplitterSize));
        form.imgVert.Move(area.left, area.bottom - pane - kSplitterSize, area.width(), kSplitterSize);
        form.web.Move(area.left, area.bottom - pane, area.width(), pane);
    } else if (view != nullptr) {
        view->Move(area.left, area.top, area.width(), area.height());
    } else if (form.web.Visible) {
        form.web.Move(area.left, area.top, area.width(), area.height());
    }
}

void clsDiaryScreen::ResizeGridColumns(FlexGrid& grid) {
    if (glbConfig.Autosize != 1) return;
    const long columns = grid.Cols;
    if (columns <= 2) return;
    const long fixed = grid.ColWidth(0) + grid.ColWidth(1);
    const double share = static_cast<double>(grid.Width - fixed - 150) / static_cast<double>(columns - 2);
    const long width = std::max(40L, static_cast<long>(RoundHalfEven(share)));
    for (long c = 2; c < columns; ++c) grid.SetColWidth(c, width);
    if (glbConfig.DayWeekMonth < 15) {
        const long last = columns - 1;
        grid.SetColWidth(last, std::max(40L, grid.ColWidth(last) - 250));
    }
}

}  // namespace orbidex
