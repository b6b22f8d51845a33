#include "dialogs/frmListAndDetailsSubForm.h"

#include <algorithm>

#include "config/clsConfigDiary.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "pim/ListAndDetails.h"
#include "platform/Platform.h"

namespace orbidex {

namespace {

constexpr long kMinListWidth = 4200;
constexpr long kCaptionCharWidth = 105;  ///< twips of one character of a column's caption
constexpr long kCaptionPadding = 240;
constexpr long kLabelColumn = 1000;
constexpr long kButtonRow = 480;
constexpr long kMargin = 120;

const ListAndDetailsField& field(int i) {
    return gListAndDetails.fields[static_cast<size_t>(i)];
}

int fieldCount() {
    return std::clamp(gListAndDetails.numFields, 0, static_cast<int>(gListAndDetails.fields.size()));
}

// The text of field `i` of a row: the row's own text for the first.
std::string columnOf(const ListItem& row, int i) {
    return i == 0 ? row.Text() : row.SubItems(i);
}

// The width of a field's column: none for a hidden one, otherwise at least room for
// its caption, so that every heading reads whole.
long columnWidth(const ListAndDetailsField& definition) {
    if (definition.listWidth <= 0) return 0;
    return std::max(definition.listWidth, Len(Trim(definition.caption)) * kCaptionCharWidth + kCaptionPadding);
}

}  // namespace

frmListAndDetailsSubForm::frmListAndDetailsSubForm() : Form("frmListAndDetailsSubForm"), listWidth_(kMinListWidth) {
    lstList.FullRowSelect = true;
    lstList.HideSelection = false;
    lstList.LastColumnFills = true;
    hidden_variables.Visible = false;
    lbl_numFields.SetContainer(&hidden_variables);
    lbl_fname.SetContainer(&hidden_variables);
    const std::pair<CommandButton*, const char*> buttons[] = {
        {&cmdAdd, "&Add..."}, {&cmdDelete, "&Delete"}, {&cmdUpdate, "&Update"}, {&cmdSave, "&Save"}, {&cmdOK, "OK"}};
    for (const auto& [button, caption] : buttons) button->Caption = caption;
    cmdOK.Default = true;
    cmdUpdate.Enabled = false;

    lstList.onItemClick = [this](ListItem& item) { lstList_ItemClick(item); };
    lstList.onClick = [this] { lstList_Click(); };
    richTextBox.onChange = [this] { field_Change(); };
    cmdAdd.onClick = [this] { cmdAdd_Click(); };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
    cmdUpdate.onClick = [this] { cmdUpdate_Click(); };
    cmdSave.onClick = [this] { cmdSave_Click(); };
    cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmListAndDetailsSubForm::BuildForm() {
    Caption = gListAndDetails.formTitle;
    lbl_numFields.Caption = CStr(static_cast<long>(gListAndDetails.numFields));
    lbl_fname.Caption = gListAndDetails.fileName;
    richTextBox.Visible = false;
    lstList.ColumnHeaders.Clear();
    // The list is as wide as its columns, and the fields stand to its right.
    long columns = 2 * kMargin;
    for (int i = 0; i < fieldCount(); ++i) {
        lstList.ColumnHeaders.Add(field(i).caption, columnWidth(field(i)));
        columns += columnWidth(field(i));
    }
    listWidth_ = std::max(kMinListWidth, columns);
    detailsLeft_ = listWidth_ + kMargin;
    long right = detailsLeft_, bottom = 0;
    filling_ = true;
    for (int i = 0; i < fieldCount(); ++i) {
        const ListAndDetailsField& definition = field(i);
        if (!buildField(i)) continue;
        Label& caption = lbl(i);
        caption.Caption = definition.caption;
        caption.Move(detailsLeft_ + definition.left, definition.top + 45, kLabelColumn - 60, 255);
        caption.Visible = definition.fieldType != fieldKey;
        right = std::max(right, detailsLeft_ + definition.left + kLabelColumn + definition.width);
        bottom = std::max(bottom, definition.top + definition.height);
    }
    filling_ = false;
    Width = right + 2 * kMargin;
    Height = bottom + kButtonRow + 3 * kMargin;
    Form_Resize();
}

bool frmListAndDetailsSubForm::buildField(int i) {
    const ListAndDetailsField& definition = field(i);
    const long left = detailsLeft_ + definition.left + kLabelColumn;
    Control* control = nullptr;
    switch (definition.fieldType) {
        case fieldText: {
            TextBox& box = txt(i);
            box.MaxLength = definition.maxLength;
            box.onChange = [this] { field_Change(); };
            control = &box;
            break;
        }
        case fieldDate:
            control = &dtDate(i);
            break;
        case fieldTime:
            dtTime(i).Format = dtpTime;
            control = &dtTime(i);
            break;
        case fieldCheck:
            chk(i).onClick = [this] { field_Change(); };
            control = &chk(i);
            break;
        case fieldKey:
            labelID(i).Visible = false;
            control = &labelID(i);
            break;
        case fieldRichText:
            richTextBox.Visible = true;
            control = &richTextBox;
            break;
        case fieldCash:
            platform().MsgBox(
                "Cash field type should be displayed same as text field type - it is only processed differently",
                vbOKOnly, "");
            return false;
        default:
            platform().MsgBox("Unknown fieldType in field number :" + CStr(static_cast<long>(i)), vbOKOnly, "");
            return false;
    }
    control->Move(left, definition.top, definition.width, definition.height);
    showFieldValue(i, "");
    return true;
}

void frmListAndDetailsSubForm::LoadFileToListBox() {
    shownRow_ = nullptr;
    const std::string& file = gListAndDetails.fileName;
    if (!file.empty() && !FileExists(file)) {
        glbLog.log("LoadFileToListBox : " + file + " is not there yet - an empty list", 3);
    } else {
        LoadRecordFileToListBox(lstList, file, gListAndDetails.delimiter, kRecordDelimiter);
        widenColumns();
    }
    if (lstList.ListItems.Count() == 0) return;
    ListItem& first = lstList.ListItems(1);
    lstList.SetSelectedItem(&first);
    lstList_ItemClick(first);
}

void frmListAndDetailsSubForm::widenColumns() {
    for (int i = 0; i < fieldCount() && i < lstList.ColumnHeaders.Count(); ++i)
        lstList.ColumnHeaders(i + 1).Width = columnWidth(field(i));
}

void frmListAndDetailsSubForm::Form_Resize() {
    const long height = ScaleHeight > 0 ? static_cast<long>(ScaleHeight) : static_cast<long>(Height);
    const long buttonsTop = std::max(kMargin, height - kButtonRow);
    lstList.Move(kMargin, kMargin, listWidth_ - kMargin, std::max(0L, buttonsTop - 2 * kMargin));
    long left = kMargin;
    for (CommandButton* button : {&cmdAdd, &cmdDelete, &cmdUpdate, &cmdSave, &cmdOK}) {
        button->Move(left, buttonsTop, 1000, 375);
        left += 1080;
    }
}

std::string frmListAndDetailsSubForm::fieldValue(int i) {
    switch (field(i).fieldType) {
        case fieldText:
            return txt(i).Text;
        case fieldDate:
            return FormatDate(dtDate(i).Value, "yyyymmdd");
        case fieldTime:
            return FormatDate(dtTime(i).Value, "hhmm");
        case fieldCheck:
            return chk(i).Value == vbChecked ? "1" : "0";
        case fieldKey:
            return labelID(i).Caption;
        case fieldRichText:
            return richTextBox.Text;
        default:
            return "";
    }
}

void frmListAndDetailsSubForm::showFieldValue(int i, const std::string& value) {
    switch (field(i).fieldType) {
        case fieldText:
            txt(i).Text = value;
            break;
        case fieldDate:
            dtDate(i).Value = value.empty() ? Today() : DateFromYYYYMMDD(value);
            break;
        case fieldTime:
            dtTime(i).Value = TimeSerial(ValInt(Mid(value, 1, 2)), ValInt(Mid(value, 3, 2)), 0);
            break;
        case fieldCheck:
            chk(i).Value = value == "1" ? vbChecked : vbUnchecked;
            break;
        case fieldKey:
            labelID(i).Caption = value.empty() ? "0" : value;
            break;
        case fieldRichText:
            richTextBox.Text = value;
            break;
        default:
            break;
    }
}

void frmListAndDetailsSubForm::controlsFromRow(const ListItem& row) {
    filling_ = true;
    for (int i = 0; i < fieldCount(); ++i) showFieldValue(i, columnOf(row, i));
    filling_ = false;
}

void frmListAndDetailsSubForm::rowFromControls(ListItem& row) {
    for (int i = 0; i < fieldCount(); ++i) {
        const std::string value = fieldValue(i);
        if (i == 0)
            row.Text = value;
        else
            row.SetSubItems(i, value);
    }
}

void frmListAndDetailsSubForm::lstList_ItemClick(ListItem& item) {
    if (shownRow_ != nullptr && shownRow_ != &item && cmdUpdate.Enabled) rowFromControls(*shownRow_);
    controlsFromRow(item);
    shownRow_ = &item;
    cmdUpdate.Enabled = false;
}

void frmListAndDetailsSubForm::lstList_Click() {
    if (lstList.SelectedItem() == nullptr) platform().MsgBox("Nothing selected", vbOKOnly, "");
}

void frmListAndDetailsSubForm::field_Change() {
    if (filling_) return;
    cmdUpdate.Enabled = true;
    glbConfig.dataChanged = true;
}

void frmListAndDetailsSubForm::cmdUpdate_Click() {
    if (shownRow_ != nullptr)
        rowFromControls(*shownRow_);
    else
        glbLog.log("UpdateFieldChangesToListView: Nothing selected - what gives ?", 0);
    cmdUpdate.Enabled = false;
    SaveListToFile(lstList, gListAndDetails.fileName);
}

void frmListAndDetailsSubForm::cmdSave_Click() {
    // The save clears dataChanged, unless the file could not be written.
    cmdUpdate_Click();
}

void frmListAndDetailsSubForm::cmdAdd_Click() {
    const std::string name = Trim(platform().InputBox("Enter the name of the item to add", "Adding Record", ""));
    if (name.empty()) return;
    if (shownRow_ != nullptr && cmdUpdate.Enabled) rowFromControls(*shownRow_);
    ListItem& row = lstList.ListItems.Add(getUniqueIDfromListView(lstList));
    // The name typed goes into the first text field, the record's name.
    bool named = false;
    for (int i = 1; i < fieldCount(); ++i) {
        const bool nameField = !named && field(i).fieldType == fieldText;
        row.SetSubItems(i, nameField ? name : "");
        named = named || nameField;
    }
    lstList.SetSelectedItem(&row);
    shownRow_ = nullptr;
    lstList_ItemClick(row);
    glbConfig.dataChanged = true;
}

void frmListAndDetailsSubForm::cmdDelete_Click() {
    ListItem* row = lstList.SelectedItem();
    if (row == nullptr) return;
    if (row == shownRow_) shownRow_ = nullptr;
    lstList.ListItems.Remove(row->Index());
    cmdUpdate.Enabled = false;
    glbConfig.dataChanged = true;
    filling_ = true;
    for (int i = 0; i < fieldCount(); ++i) showFieldValue(i, "");
    filling_ = false;
}

bool frmListAndDetailsSubForm::saveList() {
    if (shownRow_ != nullptr && cmdUpdate.Enabled) rowFromControls(*shownRow_);
    cmdUpdate.Enabled = false;
    return SaveListToFile(lstList, gListAndDetails.fileName);
}

void frmListAndDetailsSubForm::cmdOK_Click() {
    // A list that could not be written keeps the window open, so it is not lost.
    if (saveList()) Unload();
}

void frmListAndDetailsSubForm::Form_Unload(int& cancel) {
    if (!glbConfig.dataChanged) return;
    const bool save = platform().MsgBox("Data has not been saved - do you want to save the changes?", vbYesNo,
                                        "Save Changes") == vbYes;
    if (save && !saveList()) {
        cancel = 1;
        return;
    }
    glbConfig.dataChanged = false;
}

}  // namespace orbidex
