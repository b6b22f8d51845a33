#include "qt/views/ControlWidgets.h"

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/DatePicker.h"
#include "controls/FlexGrid.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/ListView.h"
#include "controls/MonthView.h"
#include "controls/OptionButton.h"
#include "controls/RichTextBox.h"
#include "controls/ScrollBar.h"
#include "controls/StatusBar.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "controls/Toolbar.h"
#include "controls/TreeView.h"
#include "controls/WebBrowser.h"
#include "qt/views/CheckBoxWidget.h"
#include "qt/views/ComboBoxWidget.h"
#include "qt/views/CommandButtonWidget.h"
#include "qt/views/DatePickerWidget.h"
#include "qt/views/FlexGridWidget.h"
#include "qt/views/FrameWidget.h"
#include "qt/views/LabelWidget.h"
#include "qt/views/ListBoxWidget.h"
#include "qt/views/ListViewWidget.h"
#include "qt/views/MonthViewWidget.h"
#include "qt/views/OptionButtonWidget.h"
#include "qt/views/RichTextBoxWidget.h"
#include "qt/views/ScrollBarWidget.h"
#include "qt/views/StatusBarWidget.h"
#include "qt/views/TabStripWidget.h"
#include "qt/views/TextBoxWidget.h"
#include "qt/views/TimerWidget.h"
#include "qt/views/ToolbarWidget.h"
#include "qt/views/TreeViewWidget.h"
#include "qt/views/WebBrowserWidget.h"

namespace orbidex {

namespace {

template <typename Model, typename View>
ControlWidget* viewIf(Control& control, QWidget* parent) {
    auto* model = dynamic_cast<Model*>(&control);
    return model != nullptr ? new View(*model, parent) : nullptr;
}

}  // namespace

ControlWidget* CreateControlWidget(Control& control, QWidget* parent) {
    using Factory = ControlWidget* (*)(Control&, QWidget*);
    static const Factory factories[] = {
        viewIf<FlexGrid, FlexGridWidget>,       viewIf<ListView, ListViewWidget>,
        viewIf<ComboBox, ComboBoxWidget>,       viewIf<ListBox, ListBoxWidget>,
        viewIf<TextBox, TextBoxWidget>,         viewIf<RichTextBox, RichTextBoxWidget>,
        viewIf<CheckBox, CheckBoxWidget>,       viewIf<OptionButton, OptionButtonWidget>,
        viewIf<Label, LabelWidget>,             viewIf<Frame, FrameWidget>,
        viewIf<CommandButton, CommandButtonWidget>, viewIf<TabStrip, TabStripWidget>,
        viewIf<DatePicker, DatePickerWidget>,   viewIf<MonthView, MonthViewWidget>,
        viewIf<TreeView, TreeViewWidget>,       viewIf<Toolbar, ToolbarWidget>,
        viewIf<StatusBar, StatusBarWidget>,     viewIf<Timer, TimerWidget>,
        viewIf<WebBrowser, WebBrowserWidget>,   viewIf<ScrollBar, ScrollBarWidget>,
    };
    for (Factory factory : factories)
        if (ControlWidget* view = factory(control, parent)) return view;
    return nullptr;
}

}  // namespace orbidex
