#pragma once
// The base of every control's view: a widget bound to one model.  It draws the
// model again at each change the model tells of, and hands to the model what the
// user does: mouse buttons, keys, focus, and drops of other controls, files and
// text.  The kinds of control add their own drawing and their own clicks.

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <vector>

#include "controls/Control.h"

namespace orbidex {

class ControlWidget : public QWidget {
    Q_OBJECT
public:
    ControlWidget(Control& model, QWidget* parent);
    ~ControlWidget() override;

    /// The model, or null once it is gone.
    Control* model() const { return model_; }
    /// The widget that draws the model (a child filling this one).
    QWidget* inner() const { return inner_; }
    /// With this on, the view takes its place, size and visibility from the model's
    /// Left, Top, Width, Height and Visible (windows of forms); otherwise its
    /// layout decides.
    void setPlacedByForm(bool placed);
    /// The widget that the controls held by this one go into, or null.
    virtual QWidget* childArea() { return nullptr; }
    /// Draws the model again.
    void refresh();

    /// The MIME type of a drag of a control within the program.
    static QString controlMimeType();
    /// The control being dragged within the program, or null.
    static Control* draggedControl();
    /// Marks `control` as the one being dragged for as long as it lives.
    class DragScope {
    public:
        explicit DragScope(Control& control);
        ~DragScope();
        DragScope(const DragScope&) = delete;
        DragScope& operator=(const DragScope&) = delete;
    };

protected:
    /// Draws what belongs to the kind of control.
    virtual void syncFromModel() = 0;
    /// A drop of another control at `pos` (pixels within this view).
    virtual void controlDropped(Control& source, QPoint pos);
    virtual void controlDraggedOver(Control& source, QPoint pos);
    /// Files or text from another program are about to be dropped at `pos`.
    virtual void dataDroppedAt(QPoint pos) { (void)pos; }

    /// Makes `inner` fill this widget.  Mouse events and drops are taken from
    /// `mousePart` and keys and focus from `keyPart` (both `inner` when null): one
    /// part each, so that an event passed on from a child to its parent counts once.
    void setInner(QWidget* inner, QWidget* mousePart = nullptr, QWidget* keyPart = nullptr);
    /// Drops on `part` (a piece of a compound widget) count as drops on the view.
    void takeDropsOn(QWidget* part);
    /// Release of the left button over the view raises Click, a double click DblClick.
    void setPlainClicks(bool on) { plainClicks_ = on; }
    /// The view raises MouseDown, MouseUp and MouseMove itself.
    void setOwnMouse(bool on) { ownMouse_ = on; }
    /// Changes of the model are drawn once the program returns to the event loop
    /// (or lets it run), all together: for lists that the program fills item by item.
    void setDeferredRefresh(bool on) { deferred_ = on; }
    /// While the model is hidden its changes are not drawn; the view draws the model
    /// whole when it is shown: for views that are costly to fill (lists, trees) and
    /// that a mode or a setting may keep hidden for good.
    void setDrawnWhenShown(bool on) { drawnWhenShown_ = on; }
    /// True while the view draws the model: widget signals then come from the
    /// program, not from the user.
    bool syncing() const { return syncing_; }
    /// A position within `part` in twips from this view's corner.
    long twipsX(QWidget* part, QPoint pos) const;
    long twipsY(QWidget* part, QPoint pos) const;
    /// Gives `widget` the model's font.
    void applyFont(QWidget* widget) const;
    /// Gives `widget` the model's colours in the two palette roles.
    void applyColors(QWidget* widget, QPalette::ColorRole backRole, QPalette::ColorRole foreRole) const;
    /// Starts dragging the model, if a mouse button is down.
    void startDrag();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Takes the model's place, size (when placed by the form) and visibility.
    void place();
    void onNotice(ViewNotice notice);
    bool mouseEvent(QWidget* part, QEvent* event);
    bool keyEvent(QEvent* event);
    bool dragOrDrop(QWidget* part, QEvent* event);

    Control* model_;
    QWidget* inner_ = nullptr;
    QPointer<QWidget> mousePart_;
    QPointer<QWidget> keyPart_;
    std::vector<QPointer<QWidget>> dropParts_;
    bool placedByForm_ = false;
    bool plainClicks_ = false;
    bool ownMouse_ = false;
    bool syncing_ = false;
    bool deferred_ = false;
    bool drawnWhenShown_ = false;
    bool refreshPending_ = false;
    QPoint pressPos_;
    bool pressed_ = false;
};

}  // namespace orbidex
