#include "pim/ListAndDetails.h"

#include "config/clsConfigDiary.h"
#include "controls/ListView.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"

namespace orbidex {

ListAndDetailsDefinition gListAndDetails;

namespace {

std::string_view withoutLeadingLineEnd(std::string_view record) {
    if (record.substr(0, 2) == "\r\n") return record.substr(2);
    if (!record.empty() && (record[0] == '\n' || record[0] == '\r')) return record.substr(1);
    return record;
}

}  // namespace

std::vector<std::vector<std::string>> ReadRecords(std::string_view text, std::string_view fieldDelimiter,
                                                  std::string_view recordDelimiter) {
    std::vector<std::vector<std::string>> records;
    if (fieldDelimiter.empty() || recordDelimiter.empty()) return records;
    size_t start = 0;
    for (size_t end = text.find(recordDelimiter); end != std::string_view::npos;
         start = end + recordDelimiter.size(), end = text.find(recordDelimiter, start)) {
        const std::string_view record = withoutLeadingLineEnd(text.substr(start, end - start));
        std::vector<std::string> fields = Split(record, fieldDelimiter);
        // Each field is closed by the delimiter, so the piece behind the last one is none.
        if (!fields.empty() && fields.back().empty()) fields.pop_back();
        if (!fields.empty()) records.push_back(std::move(fields));
    }
    return records;
}

void LoadRecordFileToListBox(ListView& list, const std::string& file, std::string_view fieldDelimiter,
                             std::string_view recordDelimiter) {
    std::string bytes;
    if (file.empty() || !FileExists(file) || !ReadWholeFile(file, bytes)) {
        glbLog.log("LoadFileToListBox : cant find " + file, 0);
        platform().MsgBox("Cant find " + file, vbOKOnly, "");
        return;
    }
    glbLog.log("LoadFileToListBox starting...", 3);
    list.ListItems.Clear();
    list.ColumnHeaders.Clear();
    for (int i = 0; i < gListAndDetails.numFields && i < static_cast<int>(gListAndDetails.fields.size()); ++i)
        list.ColumnHeaders.Add(gListAndDetails.fields[static_cast<size_t>(i)].caption,
                               gListAndDetails.fields[static_cast<size_t>(i)].listWidth);
    long added = 0;
    for (const std::vector<std::string>& record : ReadRecords(bytes, fieldDelimiter, recordDelimiter)) {
        ListItem& row = list.ListItems.Add(record.front());
        for (size_t k = 1; k < record.size(); ++k) row.SetSubItems(static_cast<long>(k), record[k]);
        if (++added % 50 == 0) platform().DoEvents();
    }
}

bool SaveListToFile(const ListView& list, const std::string& file) {
    glbLog.log("Saving List to file :" + file, 3);
    const std::string field(gListAndDetails.delimiter);
    std::string bytes;
    for (const auto& row : list.ListItems.Rows()) {
        bytes += row->Text() + field;
        for (long k = 1; k < gListAndDetails.numFields; ++k) bytes += row->SubItems(k) + field;
        bytes += kRecordDelimiter;
    }
    FileError error;
    if (!WriteWholeFile(file, bytes, &error)) {
        ShowFileError("SaveListToFile saving " + file, error);
        return false;
    }
    glbConfig.dataChanged = false;
    return true;
}

std::string getUniqueIDfromListView(const ListView& list) {
    std::string oldID = "X1999010100000";
    if (list.ListItems.Count() > 0) {
        oldID.clear();
        for (const auto& row : list.ListItems.Rows())
            if (row->Text() > oldID) oldID = row->Text();
    }
    if (oldID.empty()) {
        glbLog.log("getUniqueID was passed null ID", 1);
        return "";
    }
    glbLog.log("GetUniqueID : old ID = " + oldID, 3);
    const std::string day = FormatDate(Today(), "yyyymmdd");
    const long sequence = Mid(oldID, 2, 8) == day ? ValLong(Right(oldID, 4)) + 1 : 1;
    std::string digits = CStr(sequence);
    if (Len(digits) < 4) digits = StringOf(4 - Len(digits), '0') + digits;
    const std::string id = Left(oldID, 1) + day + digits;
    glbLog.log("getUniqueIDfromListView = " + id, 3);
    return id;
}

}  // namespace orbidex
