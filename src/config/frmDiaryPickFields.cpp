#include "config/frmDiaryPickFields.h"

#include <span>
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
    /// The field of the list's heading record that takes the caption; none for notes.
    std::string cDiaryRecord::*caption;
    /// What a key missing from the settings file stands for; none: shown under its name.
    const char* missing;
};

// The fields of an event or a task, in the order of the list's columns.
const Field kRecordFields[] = {
    {"Date", "Date", &cDiaryRecord::DateEvent, nullptr},
    {"Time", "Time", &cDiaryRecord::TimeEvent, nullptr},
    {"Reference", "Reference", &cDiaryRecord::Reference, nullptr},
    {"Length", "Length", &cDiaryRecord::length, nullptr},
    {"ActionID", "Action", &cDiaryRecord::Action, nullptr},
    {"ContactID", "Contact", &cDiaryRecord::ContactID, nullptr},
    {"UrlID", "Web address or file", &cDiaryRecord::URL, nullptr},
    {"JobtodoID", "Job to do", &cDiaryRecord::JobToDoID, nullptr},
    {"RemindDate", "Reminder date", &cDiaryRecord::DateRemind, nullptr},
    {"RemindTime", "Reminder time", &cDiaryRecord::TimeRemind, nullptr},
    {"Priority", "Priority", &cDiaryRecord::Priority, nullptr},
    {"Status", "Status", &cDiaryRecord::status, nullptr},
    {"ActionToPerform", "Action to perform", &cDiaryRecord::ActionToPerform, nullptr},
    {"ID", "Identifier", &cDiaryRecord::ID, nullptr},
    {"details", "Details", &cDiaryRecord::details, nullptr},
};

// The fields of a note, in the order of its line.  The note list draws its own
// columns (the title alone), so a note field without a key shows as that list does.
const Field kNoteFields[] = {
    {"ID", "Identifier", nullptr, frmDiaryPickFields::kHidden},
    {"Created", "Created", nullptr, frmDiaryPickFields::kHidden},
    {"Modified", "Modified", nullptr, frmDiaryPickFields::kHidden},
    {"Reference", "Reference", nullptr, frmDiaryPickFields::kHidden},
    {"Color", "Colour", nullptr, frmDiaryPickFields::kHidden},
    {"Category", "Category", nullptr, frmDiaryPickFields::kHidden},
    {"Filename", "File name", nullptr, frmDiaryPickFields::kHidden},
    {"title", "Title", nullptr, "Title"},
};

constexpr long kTop = 900;
constexpr long kRowStep = 360;
constexpr long kTickWidth = 2640;
constexpr long kCaptionWidth = 3000;

}  // namespace

struct PickedSection {
    const char* name;
    const char* caption;
    const char* help;
    std::span<const Field> fields;
    cDiaryRecord* headings;  ///< the record the list is drawn from, or none
};

namespace {

const PickedSection kSections[] = {
    {"ListViewHeadings", "Diary Headings in List mode",
     "Tick the fields the list of events shows, and give each its column's heading.", kRecordFields,
     &gListViewHeadings},
    {"TaskHeadings", "Task Headings", "Tick the fields the task list shows, and give each its column's heading.",
     kRecordFields, &gTaskHeadings},
    {"NoteHeadings", "Note Headings",
     "Tick the fields of a note and give each its heading. The note list itself shows only the title of each "
     "note.",
     kNoteFields, nullptr},
};

/// The section called `name`; the event list's for a name it does not know.
const PickedSection& sectionNamed(const std::string& name) {
    for (const PickedSection& section : kSections)
        if (name == section.name) return section;
    return kSections[0];
}

}  // namespace

int frmDiaryPickFields::Fields() const {
    return static_cast<int>(section_.fields.size());
}

const char* frmDiaryPickFields::KeyOf(int index) const {
    return section_.fields[index].key;
}

const char* frmDiaryPickFields::FieldName(int index) const {
    return section_.fields[index].name;
}

frmDiaryPickFields::frmDiaryPickFields(std::string section)
    : Form("frmDiaryPickFields"), section_(sectionNamed(section)), read_(section_.fields.size()) {
    Caption = section_.caption;
    Width = 6300;
    Height = kTop + Fields() * kRowStep + 180 + 375 + 600;
    placeControls();
    for (int i = 0; i < Fields(); ++i) chkField(i).onClick = [this, i] { chkField_Click(i); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmDiaryPickFields::placeControls() {
    lblHelp.Caption = section_.help;
    lblHelp.WordWrap = true;
    lblHelp.Move(120, 120, Width - 360, 480);
    lblShown.Caption = "Field shown";
    lblShown.Move(120, kTop - 300, kTickWidth, 255);
    lblCaption.Caption = "Heading of its column";
    lblCaption.Move(120 + kTickWidth + 120, kTop - 300, kCaptionWidth, 255);
    for (int i = 0; i < Fields(); ++i) {
        const long top = kTop + i * kRowStep;
        chkField(i).Caption = FieldName(i);
        chkField(i).Move(120, top, kTickWidth, 315);
        txtCaption(i).Move(120 + kTickWidth + 120, top, kCaptionWidth, 315);
    }
    PlaceOkCancel(cmdOK, cmdCancel, Width, kTop + Fields() * kRowStep + 180);
}

void frmDiaryPickFields::Form_Load() {
    loading_ = true;
    for (int i = 0; i < Fields(); ++i) {
        read_[i] = glbConfig.GetValue(section_.name, KeyOf(i));
        const char* missing = section_.fields[i].missing;
        const std::string value = read_[i].empty() && missing != nullptr ? std::string(missing) : read_[i];
        const bool shown = value != kHidden;
        txtCaption(i).Text = shown && !value.empty() ? value : std::string(FieldName(i));
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
    for (int i = 0; i < Fields(); ++i) anyShown = anyShown || chkField(i).Value == vbChecked;
    if (!anyShown) {
        platform().MsgBox("Tick at least one field for the list to show.", vbOKOnly + vbExclamation, Caption());
        return;
    }
    for (int i = 0; i < Fields(); ++i) {
        const std::string value = valueOf(i);
        if (value != read_[i]) glbConfig.SetVal(section_.name, KeyOf(i), value);
        if (section_.headings != nullptr) section_.headings->*section_.fields[i].caption = value;
    }
    Unload();
}

void frmDiaryPickFields::cmdCancel_Click() {
    Unload();
}

}  // namespace orbidex
