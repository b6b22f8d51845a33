#pragma once
// Draws a StatusBar: its panels side by side in their widths (a spring panel takes
// what is left), or the simple text across the bar.

#include <QList>

#include "qt/views/ControlWidget.h"

class QHBoxLayout;
class QLabel;

namespace orbidex {

class StatusBar;

class StatusBarWidget : public ControlWidget {
    Q_OBJECT
public:
    StatusBarWidget(StatusBar& model, QWidget* parent = nullptr);
    /// The label of panel `index` (from 1), or null.
    QLabel* panelLabel(long index) const;

protected:
    void syncFromModel() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void rebuild();

    StatusBar& status_;
    QWidget* strip_;
    QHBoxLayout* layout_;
    QLabel* simple_;
    QList<QLabel*> panels_;
    unsigned long shownVersion_ = ~0UL;
};

}  // namespace orbidex
