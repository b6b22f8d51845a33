#include "qt/views/ScrollBarWidget.h"

#include <QScrollBar>
#include <algorithm>

#include "controls/ScrollBar.h"

namespace orbidex {

ScrollBarWidget::ScrollBarWidget(ScrollBar& control, QWidget* parent)
    : ControlWidget(control, parent), scroll_(control), bar_(new QScrollBar) {
    setInner(bar_);
    connect(bar_, &QScrollBar::valueChanged, this, [this](int value) {
        if (!syncing() && model() != nullptr) scroll_.UserScroll(value);
    });
    refresh();
}

void ScrollBarWidget::syncFromModel() {
    bar_->setOrientation(scroll_.Vertical ? Qt::Vertical : Qt::Horizontal);
    bar_->setRange(static_cast<int>(std::min<long>(scroll_.Min, scroll_.Max)),
                   static_cast<int>(std::max<long>(scroll_.Min, scroll_.Max)));
    bar_->setSingleStep(static_cast<int>(scroll_.SmallChange));
    bar_->setPageStep(static_cast<int>(scroll_.LargeChange));
    bar_->setValue(static_cast<int>(scroll_.Value));
}

}  // namespace orbidex
