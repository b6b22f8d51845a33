#include "qt/views/ComboBoxWidget.h"

#include <QComboBox>
#include <QLineEdit>

#include "controls/ComboBox.h"
#include "qt/QtText.h"

namespace orbidex {

namespace {

/// A combo box that tells when its list opens.
class DropDownComboBox : public QComboBox {
public:
    explicit DropDownComboBox(ComboBox& list) : list_(list) {}
    void showPopup() override {
        list_.UserDropDown();
        QComboBox::showPopup();
    }

private:
    ComboBox& list_;
};

}  // namespace

ComboBoxWidget::ComboBoxWidget(ComboBox& control, QWidget* parent)
    : ControlWidget(control, parent), list_(control), combo_(new DropDownComboBox(control)) {
    setDeferredRefresh(true);
    setInner(combo_);
    combo_->setInsertPolicy(QComboBox::NoInsert);
    connect(combo_, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        if (!syncing() && model() != nullptr) list_.UserSelect(index);
    });
    refresh();
}

void ComboBoxWidget::syncFromModel() {
    const bool editable = list_.Style != vbComboDropdownList;
    if (combo_->isEditable() != editable) {
        combo_->setEditable(editable);
        if (editable) {
            connect(combo_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
                if (!syncing() && model() != nullptr) list_.UserEdit(FromQString(text));
            });
        }
    }
    if (shownVersion_ != list_.ListVersion()) {
        combo_->clear();
        for (long i = 0; i < list_.ListCount(); ++i) combo_->addItem(ToQString(list_.List(i)));
        shownVersion_ = list_.ListVersion();
    }
    combo_->setCurrentIndex(static_cast<int>(list_.ListIndex));
    if (editable && combo_->currentText() != ToQString(list_.Text)) combo_->setEditText(ToQString(list_.Text));
    applyColors(combo_, QPalette::Base, QPalette::Text);
    applyFont(combo_);
}

}  // namespace orbidex
