#include "qt/ProgramIcons.h"

#include <QAbstractItemView>
#include <QActionEvent>
#include <QFile>
#include <QHash>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QToolBar>
#include <QTreeWidget>

#include "qt/ProgramDrawings.h"
#include "qt/views/ListViewWidget.h"
#include "qt/views/ViewSupport.h"

namespace orbidex {

namespace {

// Image names and the names the desktop's icon themes give the same thing.
struct ThemeName {
    const char* image;
    const char* theme;
};

constexpr ThemeName kThemeNames[] = {
    {"new", "document-new"},
    {"find", "edit-find"},
    {"delete", "edit-delete"},
    {"print", "document-print"},
    {"today", "go-jump-today"},
    {"days", "view-calendar-day"},
    {"week", "view-calendar-week"},
    {"month", "view-calendar-month"},
    {"year", "view-calendar"},
    {"calendar", "x-office-calendar"},
    {"showall", "view-list-details"},
    {"current", "view-filter"},
    {"server", "network-server"},
    {"disconnect", "network-offline"},
    {"grid", "view-grid"},
    {"list", "view-list"},
    {"properties", "document-properties"},
    {"task", "view-task"},
    {"note", "note"},
    {"staff", "system-users"},
    {"meeting", "system-users"},
    {"leaf", "text-x-generic"},
    {"closed", "folder"},
    {"open", "folder-open"},
    {"overview", "go-home"},
    {"clock", "appointment-soon"},
    {"bridge", "view-task"},
    {"general", "appointment-new"},
    {"tessaline", "preferences-system"},
    {"autobackup", "document-save"},
};

// The tiles the views draw for the program's names, by the key of their icon.
const QHash<qint64, QString>& tileNames() {
    static const QHash<qint64, QString> names = [] {
        QHash<qint64, QString> byKey;
        for (const ThemeName& entry : kThemeNames) byKey.insert(IconNamed(entry.image).cacheKey(), entry.image);
        return byKey;
    }();
    return names;
}

// The program's icon for a tile the views drew, or a null icon for any other icon.
QIcon replacementFor(const QIcon& icon) {
    if (icon.isNull()) return {};
    const auto it = tileNames().constFind(icon.cacheKey());
    return it == tileNames().constEnd() ? QIcon() : ProgramIcon(it->toStdString());
}

// Tool bars: each action whose icon becomes a tile gets the program's icon.
class ToolBarIcons : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionChanged) {
            QAction* action = static_cast<QActionEvent*>(event)->action();
            const QIcon icon = replacementFor(action->icon());
            if (!icon.isNull()) action->setIcon(icon);
        }
        return QObject::eventFilter(watched, event);
    }
};

// Item views of the list views: the icon is swapped as each row is drawn.
class IconDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const QIcon icon = replacementFor(option->icon);
        if (!icon.isNull()) option->icon = icon;
    }
};

// A list view builds a new item view when its style changes: each one gets the delegate.
class ListViewIcons : public QObject {
public:
    ListViewIcons(ListViewWidget* list) : QObject(list), list_(list) {
        list->installEventFilter(this);
        apply();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ChildAdded)
            QMetaObject::invokeMethod(
                this, [this] { apply(); }, Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }

private:
    void apply() {
        if (list_.isNull()) return;
        QAbstractItemView* view = list_->itemView();
        if (view != nullptr && dynamic_cast<IconDelegate*>(view->itemDelegate()) == nullptr)
            view->setItemDelegate(new IconDelegate(view));
    }

    QPointer<ListViewWidget> list_;
};

void replaceTreeIcons(QTreeWidgetItem* item) {
    const QIcon icon = replacementFor(item->icon(0));
    if (!icon.isNull()) item->setIcon(0, icon);
    for (int i = 0; i < item->childCount(); ++i) replaceTreeIcons(item->child(i));
}

void useInTree(QTreeWidget* tree) {
    auto swap = [tree] {
        for (int i = 0; i < tree->topLevelItemCount(); ++i) replaceTreeIcons(tree->topLevelItem(i));
    };
    QAbstractItemModel* model = tree->model();
    QObject::connect(model, &QAbstractItemModel::dataChanged, tree, swap);
    QObject::connect(model, &QAbstractItemModel::rowsInserted, tree, swap);
    QObject::connect(model, &QAbstractItemModel::modelReset, tree, swap);
    swap();
}

}  // namespace

QIcon ProgramIcon(const std::string& name) {
    static QHash<QString, QIcon> cache;
    const QString key = QString::fromStdString(name).toLower();
    if (const auto it = cache.constFind(key); it != cache.constEnd()) return *it;
    QIcon icon = IconNamed(name);
    if (QFile::exists(DrawingFile(key))) icon = ProgramDrawing(key);
    for (const ThemeName& entry : kThemeNames)
        if (key == QLatin1String(entry.image)) icon = QIcon::fromTheme(QLatin1String(entry.theme), icon);
    cache.insert(key, icon);
    return icon;
}

void UseProgramIcons(QWidget& window) {
    for (QToolBar* bar : window.findChildren<QToolBar*>()) {
        bar->installEventFilter(new ToolBarIcons(bar));
        for (QAction* action : bar->actions()) {
            const QIcon icon = replacementFor(action->icon());
            if (!icon.isNull()) action->setIcon(icon);
        }
    }
    for (QTreeWidget* tree : window.findChildren<QTreeWidget*>()) useInTree(tree);
    for (ListViewWidget* list : window.findChildren<ListViewWidget*>()) new ListViewIcons(list);
}

}  // namespace orbidex
