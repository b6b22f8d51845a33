#pragma once
// Menus of a form in Qt: the menu bar of its top-level entries, and pop-up menus.
// Each entry's caption ("&File", "-" for a line), tick, state and visibility follow
// the model; choosing an entry raises its Click.

#include <QObject>

class QMenu;
class QMenuBar;
class QWidget;

namespace orbidex {

class Form;
class Menu;

class MenuBuilder : public QObject {
    Q_OBJECT
public:
    explicit MenuBuilder(QObject* parent = nullptr) : QObject(parent) {}

    /// Fills `bar` with the form's top-level entries (hidden ones, the pop-up menus,
    /// stay hidden) and keeps it up to date.
    void FillMenuBar(QMenuBar& bar, Form& form);
    /// A menu of `menu`'s entries as they are now, for showing once.
    static QMenu* BuildPopup(Menu& menu, QWidget* parent);
};

}  // namespace orbidex
