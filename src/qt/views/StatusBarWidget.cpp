#include "qt/views/StatusBarWidget.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "controls/StatusBar.h"
#include "qt/QtText.h"

namespace orbidex {

StatusBarWidget::StatusBarWidget(StatusBar& control, QWidget* parent)
    : ControlWidget(control, parent), status_(control), strip_(new QWidget), layout_(new QHBoxLayout(strip_)),
      simple_(new QLabel) {
    layout_->setContentsMargins(2, 2, 2, 2);
    layout_->setSpacing(2);
    setInner(strip_);
    refresh();
}

QLabel* StatusBarWidget::panelLabel(long index) const {
    return index >= 1 && index <= panels_.size() ? panels_[static_cast<int>(index - 1)] : nullptr;
}

void StatusBarWidget::rebuild() {
    while (QLayoutItem* item = layout_->takeAt(0)) delete item;
    qDeleteAll(panels_);
    panels_.clear();
    for (long i = 1; i <= status_.Panels.Count(); ++i) {
        auto* label = new QLabel(strip_);
        label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        label->installEventFilter(this);
        panels_.push_back(label);
    }
    shownVersion_ = status_.StructureVersion();
}

void StatusBarWidget::syncFromModel() {
    if (shownVersion_ != status_.StructureVersion()) rebuild();
    // The bar's font first: a panel as wide as its text is measured in it.
    strip_->setAutoFillBackground(true);
    applyColors(strip_, QPalette::Window, QPalette::WindowText);
    applyFont(strip_);
    while (QLayoutItem* item = layout_->takeAt(0)) delete item;
    const bool simple = status_.Style == sbrSimple;
    simple_->setVisible(simple);
    if (simple) {
        simple_->setParent(strip_);
        simple_->setText(ToQString(status_.SimpleText));
        layout_->addWidget(simple_, 1);
    }
    for (long i = 1; i <= status_.Panels.Count(); ++i) {
        const Panel& panel = status_.Panels(i);
        QLabel* label = panels_[static_cast<int>(i - 1)];
        label->setVisible(!simple && panel.Visible);
        label->setText(ToQString(panel.Text));
        label->setToolTip(ToQString(panel.ToolTipText));
        label->setAlignment(Qt::AlignVCenter | (panel.Alignment == 1   ? Qt::AlignHCenter
                                                : panel.Alignment == 2 ? Qt::AlignRight
                                                                       : Qt::AlignLeft));
        const bool spring = panel.AutoSize == sbrSpring;
        if (panel.AutoSize == sbrContents) {  // as wide as its text, at least MinWidth
            const int textWidth = label->fontMetrics().horizontalAdvance(label->text()) + 12;
            label->setMinimumWidth(std::max(TwipsToPixels(panel.MinWidth), textWidth));
            label->setMaximumWidth(QWIDGETSIZE_MAX);
        } else {
            label->setMinimumWidth(TwipsToPixels(spring ? panel.MinWidth : panel.Width));
            label->setMaximumWidth(spring ? QWIDGETSIZE_MAX : TwipsToPixels(panel.Width));
        }
        if (!simple) layout_->addWidget(label, spring ? 1 : 0);
    }
    if (!simple) layout_->addStretch(0);
}

bool StatusBarWidget::eventFilter(QObject* watched, QEvent* event) {
    const int at = panels_.indexOf(qobject_cast<QLabel*>(watched));
    if (at >= 0 && model() != nullptr) {
        Panel* panel = status_.Panels.Item(at + 1);
        if (panel != nullptr && event->type() == QEvent::MouseButtonRelease) status_.UserClickPanel(*panel);
        if (panel != nullptr && event->type() == QEvent::MouseButtonDblClick) status_.UserDblClickPanel(*panel);
    }
    return ControlWidget::eventFilter(watched, event);
}

}  // namespace orbidex
