#include "qt/views/TabStripWidget.h"

#include <QTabBar>

#include "controls/TabStrip.h"
#include "qt/QtText.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

TabStripWidget::TabStripWidget(TabStrip& control, QWidget* parent)
    : ControlWidget(control, parent), tabs_(control), bar_(new QTabBar) {
    setInner(bar_);
    bar_->setExpanding(false);
    bar_->setDrawBase(true);
    connect(bar_, &QTabBar::currentChanged, this, [this](int index) {
        if (syncing() || model() == nullptr) return;
        if (Tab* tab = tabs_.Tabs.Item(index + 1)) tabs_.UserClickTab(*tab);
        refresh();  // the model may keep another tab
    });
    refresh();
}

void TabStripWidget::syncFromModel() {
    if (shownVersion_ != tabs_.StructureVersion()) {
        while (bar_->count() > 0) bar_->removeTab(0);
        for (long i = 1; i <= tabs_.Tabs.Count(); ++i) bar_->addTab(QString());
        shownVersion_ = tabs_.StructureVersion();
    }
    for (long i = 1; i <= tabs_.Tabs.Count(); ++i) {
        const Tab& tab = tabs_.Tabs(i);
        const int at = static_cast<int>(i - 1);
        bar_->setTabText(at, ToQString(tab.Caption));
        bar_->setTabToolTip(at, ToQString(tab.ToolTipText));
        bar_->setTabIcon(at, tab.Image().empty() ? QIcon() : IconNamed(tab.Image));
    }
    if (Tab* selected = tabs_.SelectedItem()) bar_->setCurrentIndex(static_cast<int>(selected->Index() - 1));
    applyFont(bar_);
}

}  // namespace orbidex
