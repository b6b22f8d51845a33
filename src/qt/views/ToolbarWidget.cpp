#include "qt/views/ToolbarWidget.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "controls/Toolbar.h"
#include "qt/QtText.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

ToolbarWidget::ToolbarWidget(Toolbar& control, QWidget* parent)
    : ControlWidget(control, parent), toolbar_(control), bar_(new QToolBar) {
    bar_->setMovable(false);
    bar_->setIconSize(QSize(24, 24));
    setInner(bar_);
    refresh();
}

void ToolbarWidget::rebuild() {
    bar_->clear();
    actions_.clear();
    for (long i = 1; i <= toolbar_.Buttons.Count(); ++i) {
        Button* button = toolbar_.Buttons.Item(i);
        QAction* action = nullptr;
        if (button->Style == tbrSeparator || button->Style == tbrPlaceholder) {
            action = bar_->addSeparator();
        } else {
            action = bar_->addAction(QString());
            connect(action, &QAction::triggered, this, [this, button] {
                if (syncing() || model() == nullptr) return;
                toolbar_.UserClickButton(*button);
                refresh();  // the model decides what stays pressed
            });
            if (button->Style == tbrDropdown) {
                auto* menu = new QMenu(bar_);
                action->setMenu(menu);
                if (auto* tool = qobject_cast<QToolButton*>(bar_->widgetForAction(action)))
                    tool->setPopupMode(QToolButton::MenuButtonPopup);
            }
        }
        actions_.insert(button, action);
    }
    shownVersion_ = toolbar_.StructureVersion();
}

void ToolbarWidget::syncFromModel() {
    if (shownVersion_ != toolbar_.StructureVersion()) rebuild();
    bar_->setToolButtonStyle(toolbar_.ShowCaptions ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
    for (auto it = actions_.cbegin(); it != actions_.cend(); ++it) {
        const Button* button = it.key();
        QAction* action = it.value();
        action->setVisible(button->Visible);
        if (action->isSeparator()) continue;
        action->setText(ToQString(button->Caption));
        action->setIcon(button->Image().empty() ? QIcon() : IconNamed(button->Image));
        action->setToolTip(ToQString(button->ToolTipText().empty() ? button->Caption() : button->ToolTipText()));
        action->setEnabled(button->Enabled);
        const bool pressed = button->Value == tbrPressed;
        action->setCheckable(pressed || button->Style == tbrCheck || button->Style == tbrButtonGroup);
        action->setChecked(pressed);
        if (QMenu* menu = action->menu()) {
            menu->clear();
            for (long m = 1; m <= button->ButtonMenuCount(); ++m) {
                ButtonMenu* entry = button->ButtonMenus(m);
                QAction* item = menu->addAction(ToQString(entry->Text));
                item->setEnabled(entry->Enabled);
                item->setVisible(entry->Visible);
                connect(item, &QAction::triggered, this, [this, entry] {
                    if (!syncing() && model() != nullptr) toolbar_.UserClickButtonMenu(*entry);
                });
            }
        }
    }
    applyColors(bar_, QPalette::Window, QPalette::WindowText);
    applyFont(bar_);
}

}  // namespace orbidex
