#include "config/frmDiaryPickFields.h"

#include <utility>

#include "config/clsConfigDiary.h"
#include "dialogs/EditorSupport.h"
#include "diary/cDiaryRecord.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

struct Field {
    const char* key;
    const char* name;
    std::string cDiaryRecord::*caption;
};

// The fields of a record, in the order of the list's columns.
const Field kFieldTable[frmDiaryPickFields::kFields] = {
    {"Date", "Date", &cDiaryRecord::DateEvent},
    {"Time", "Time", &cDiaryRecord::TimeEvent},
    {"Reference", "Reference", &cDiaryRecord::Reference},
    {"Length", "Length", &cDiaryRecord::length},
    {"ActionID", "Action", &cDiaryRecord::Action},
    {"ContactID", "Contact", &cDiaryRecord::ContactID},
    {"UrlID", "Web address or file", &cDiaryRecord::URL},
    {"JobtodoID", "Job to do", &cDiaryRecord::JobToDoID},
    {"RemindDate", "Reminder date", &cDiaryRecord::DateRemind},
    {"RemindTime", "Reminder time", &cDiaryRecord::TimeRemind},
    {"Priority", "Priority", &cDiaryRecord::Priority},
    {"Status", "Status", &cDiaryRecord::status},
    {"ActionToPerform", "Action to perform", &cDiaryRecord::ActionToPerform},
    {"ID", "Identifier", &cDiaryRecord::ID},
    {"details", "Details", &cDiaryRecord::details},
};

constexpr long kTop = 900;
constexpr long kRowStep = 360;
constexpr long kTickWidth = 2640;
constexpr long kCaptionWidth = 3000;

}  // namespace

const char* frmDiaryPickFields::KeyOf(int index) {
    return kFieldTable[index].key;
}

const char* frmDiaryPickFields::FieldName(int index) {
    return kFieldTable[index].name;
}

frmDiaryPickFields::frmDiaryPickFields(std::string section) : Form("frmDiaryPickFields"), section_(std::move(section)) {
    Caption = section_ == "TaskHeadings" ? "Task Headings" : "Diary Headings in List mode";
    Width = 6300;
    Height = kTop + kFields * kRowStep + 180 + 375 + 600;
    placeControls();
    for (int i = 0; i < kFields; ++i) chkField(i).onClick = [this, i] { chkField_Click(i); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmDiaryPickFields::placeControls() {
    lblHelp.Caption = section_ == "TaskHeadings"
                          ? "Tick the fields the task list shows, and give each its column's heading."
                          : "Tick the fields the list of events shows, and give each its column's heading.";
    lblHelp.WordWrap = true;
    lblHelp.Move(120, 120, Width - 360, 480);
    lblShown.Caption = "Field shown";
    lblShown.Move(120, kTop - 300, kTickWidth, 255);
    lblCaption.Caption = "Heading of its column";
    lblCaption.Move(120 + kTickWidth + 120, kTop - 300, kCaptionWidth, 255);
    for (int i = 0; i < kFields; ++i) {
        const long top = kTop + i * kRowStep;
        chkField(i).Caption = FieldName(i);
        chkField(i).Move(120, top, kTickWidth, 315);
        txtCaption(i).Move(120 + kTickWidth + 120, top, kCaptionWidth, 315);
    }
    PlaceOkCancel(cmdOK, cmdCancel, Width, kTop + kFields * kRowStep + 180);
}

cDiaryRecord& frmDiaryPickFields::headings() {
    return section_ == "TaskHeadings" ? gTaskHeadings : gListViewHeadings;
}

void frmDiaryPickFields::Form_Load() {
    loading_ = true;
    for (int i = 0; i < kFields; ++i) {
        read_[i] = glbConfig.GetValue(section_, KeyOf(i));
        const bool shown = read_[i] != kHidden;
        txtCaption(i).Text = shown && !read_[i].empty() ? read_[i] : std::string(FieldName(i));
        chkField(i).Value = shown ? vbChecked : vbUnchecked;
        txtCaption(i).Enabled = shown;
    }
    loading_ = false;
}

void frmDiaryPickFields::chkField_Click(int index) {
    if (loading_) return;
    const bool shown = chkField(index).Value == vbChecked;
    txtCaption(index).Enabled = shown;
    if (shown && Trim(txtCaption(index).Text()).empty()) txtCaption(index).Text = FieldName(index);
}

std::string frmDiaryPickFields::valueOf(int index) {
    if (chkField(index).Value != vbChecked) return kHidden;
    const std::string caption = Trim(txtCaption(index).Text());
    // A heading of its own "<hide>" would hide the column the user just ticked.
    if (caption.empty() || caption == kHidden) return FieldName(index);
    return caption;
}

void frmDiaryPickFields::cmdOK_Click() {
    bool anyShown = false;
    for (int i = 0; i < kFields; ++i) anyShown = anyShown || chkField(i).Value == vbChecked;
    if (!anyShown) {
        platform().MsgBox("Tick at least one field for the list to show.", vbOKOnly + vbExclamation, Caption());
        return;
    }
    for (int i = 0; i < kFields; ++i) {
        const std::string value = valueOf(i);
        if (value != read_[i]) glbConfig.SetVal(section_, KeyOf(i), value);
        headings().*kFieldTable[i].caption = value;
    }
    Unload();
}

void frmDiaryPickFields::cmdCancel_Click() {
    Unload();
}

}  // namespace orbidex
