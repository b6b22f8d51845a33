#pragma once
// The generic editor of small record files: a list on one side and, for the selected
// record, fields built at run time from a definition that the caller fills before
// it opens the form.  These are the definition and the form's helpers for the list:
// loading the record file, saving it, and the key of a new record.
//
// A record file holds records of fields, each field followed by the byte 0x1F and
// each record by the byte 0x1E.  No line end follows a record, so records may run
// into each other on one line, and a rich text field may hold line breaks.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "diary/cDiaryRecord.h"

namespace orbidex {

class ListView;

/// The byte that closes every record of a record file.
inline constexpr std::string_view kRecordDelimiter = "\x1E";

/// The kinds of field the form can show.
enum ListAndDetailsFieldType {
    fieldText = 1,      ///< a text box with a label in front
    fieldDate = 2,      ///< a date picker, stored as yyyymmdd
    fieldTime = 3,      ///< a time picker, stored as hhmm
    fieldCash = 4,      ///< not shown: a message says to use a text field
    fieldCheck = 5,     ///< a check box
    fieldKey = 6,       ///< a label holding the record's key, "0" when empty
    fieldRichText = 7,  ///< the form's one multi-line text
};

struct ListAndDetailsField {
    std::string caption;
    int fieldType = fieldText;
    long maxLength = 0;
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    long listWidth = 1440;  ///< width of the field's list column
};

struct ListAndDetailsDefinition {
    std::string formTitle;
    std::string fileName;
    int numFields = 0;
    int keyField = 0;
    std::string delimiter{kFieldDelimiter};
    std::array<ListAndDetailsField, 23> fields;
};

/// The definition the caller fills before it opens the list-and-details form.
extern ListAndDetailsDefinition gListAndDetails;

/// The records of a record file's text, each as its fields.  A record's line breaks
/// stay in its fields, the line end that may follow a record is not part of the next,
/// and text after the last record delimiter is no record.
std::vector<std::vector<std::string>> ReadRecords(std::string_view text, std::string_view fieldDelimiter,
                                                  std::string_view recordDelimiter);

/// Fills `list` from the record file: columns from gListAndDetails, then a row per
/// record, its first field as the row's text and the others as cells.  A missing
/// file is logged and shown and leaves the list as it was.
void LoadRecordFileToListBox(ListView& list, const std::string& file, std::string_view fieldDelimiter,
                             std::string_view recordDelimiter);
/// Rewrites the record file from the rows: the row's text and the cells of the
/// other fields of gListAndDetails, each followed by 0x1F, then 0x1E.  Clears
/// glbConfig.dataChanged and gives true; a file that cannot be written is shown as
/// a file error, keeps the flag and gives false.
bool SaveListToFile(const ListView& list, const std::string& file);
/// The key of a new row: the highest key in the list (or "X1999010100000" for an
/// empty list) gives the letter, today's date and the next sequence of the day.
std::string getUniqueIDfromListView(const ListView& list);

}  // namespace orbidex
