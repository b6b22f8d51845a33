#include "qt/views/MenuBuilder.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <memory>

#include "controls/Control.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "qt/QtText.h"

namespace orbidex {

namespace {

void applyEntry(QAction& action, const Menu& entry) {
    action.setText(ToQString(entry.Caption));
    action.setEnabled(entry.Enabled);
    action.setVisible(entry.Visible);
    action.setCheckable(entry.Checked);
    action.setChecked(entry.Checked);
    action.setShortcut(QKeySequence(QString::fromStdString(entry.Shortcut)));
}

/// Keeps `action` drawn as `entry` says, for as long as both live.
void follow(QAction* action, Menu& entry) {
    auto alive = std::make_shared<Menu*>(&entry);
    QPointer<QAction> link(action);
    entry.SetViewCallback(
        [link, alive](ViewNotice notice) {
            if (notice == ViewNotice::Destroyed) *alive = nullptr;
            if (notice == ViewNotice::Changed && !link.isNull() && *alive != nullptr) applyEntry(*link, **alive);
        },
        action);
    QObject::connect(action, &QObject::destroyed, [alive, action] {
        if (*alive != nullptr) (*alive)->ReleaseView(action);
    });
    QObject::connect(action, &QAction::triggered, [alive] {
        if (*alive != nullptr && (*alive)->Items().empty()) (*alive)->UserClick();
    });
}

/// Adds `entry` to `menu`: a line, a sub-menu, or an action that clicks the entry.
void addEntry(QMenu& menu, Menu& entry, bool keepUpToDate) {
    if (entry.IsSeparator()) {
        QAction* line = menu.addSeparator();
        line->setVisible(entry.Visible);
        return;
    }
    QAction* action = nullptr;
    if (!entry.Items().empty()) {
        QMenu* sub = menu.addMenu(QString());
        for (Menu* item : entry.Items()) addEntry(*sub, *item, keepUpToDate);
        action = sub->menuAction();
    } else {
        action = menu.addAction(QString());
    }
    applyEntry(*action, entry);
    action->setObjectName(QString::fromStdString(entry.Name()));
    if (keepUpToDate) {
        follow(action, entry);
    } else {
        Menu* target = &entry;  // a pop-up lives only while it is shown
        QObject::connect(action, &QAction::triggered, action, [target] {
            if (target->Items().empty()) target->UserClick();
        });
    }
}

}  // namespace

void MenuBuilder::FillMenuBar(QMenuBar& bar, Form& form) {
    bar.clear();
    for (Control* control : form.Controls()) {
        auto* menu = dynamic_cast<Menu*>(control);
        if (menu == nullptr || menu->ParentMenu() != nullptr) continue;  // hidden ones (pop-ups) stay hidden
        QMenu* top = bar.addMenu(QString());
        for (Menu* item : menu->Items()) addEntry(*top, *item, true);
        applyEntry(*top->menuAction(), *menu);
        follow(top->menuAction(), *menu);
    }
}

QMenu* MenuBuilder::BuildPopup(Menu& menu, QWidget* parent) {
    auto* popup = new QMenu(parent);
    for (Menu* item : menu.Items()) addEntry(*popup, *item, false);
    return popup;
}

}  // namespace orbidex
