#pragma once
// One diary event: a flat record of text fields, born from and written back to one
// line of a monthly file.  No field is converted on the way in or out.

#include <string>
#include <string_view>
#include <vector>

#include "diary/Currency.h"

namespace orbidex {

/// The byte that closes every field of an event line.
inline constexpr std::string_view kFieldDelimiter = "\x1F";

class cDiaryRecord {
public:
    // Fields, in the order of the record.  The event line holds 15 of them (see
    // FormatDiaryRecordAsCSV); the others live in memory only.
    std::string ID;         ///< "D" + yyyymmdd + four digits
    std::string DateEvent;  ///< "yyyymmdd"
    std::string TimeEvent;  ///< "hhmm", 24 hours
    std::string DateCreated;
    std::string timeCreated;
    std::string UserCreatedBy;
    std::string UserOwnedBy;
    Currency AmountDebit;
    Currency AmountCredit;
    std::string details;  ///< the text of the event, one line
    std::string group;
    std::string length;           ///< minutes, as decimal text
    std::string Reference;        ///< also the marker of generated events
    std::string Action;           ///< also a marker
    std::string ActionToPerform;  ///< the location
    std::string ContactID;
    std::string URL;
    std::string JobToDoID;
    std::string Priority;
    std::string status;      ///< "Private" marks a private event
    std::string DateRemind;  ///< "yyyymmdd" or ""
    std::string TimeRemind;  ///< "hhmm" or ""

    bool IsPrivate() const { return isPrivate_; }
    void IsPrivate(bool value) { isPrivate_ = value; }
    // The save flags read False for good: their setters keep the value they find.
    bool IsSavedOnClient() const { return isSavedOnClient_; }
    void IsSavedOnClient(bool) { isSavedOnClient_ = IsSavedOnClient(); }
    bool IsSavedOnServer() const { return isSavedOnServer_; }
    void IsSavedOnServer(bool) { isSavedOnServer_ = IsSavedOnServer(); }
    bool IsConfirmedSave() const { return isConfirmedSave_; }
    void IsConfirmedSave(bool) { isConfirmedSave_ = IsConfirmedSave(); }

    /// A new event: an empty date means today, an empty time now; a positive amount
    /// is a debit, any other a credit; `length` becomes "1".
    void init(const std::string& newDetails, const std::string& date, const std::string& time,
              const std::string& reference, Currency amount, const std::string& extra);
    /// The reasons why the record cannot be kept, each ending in CR LF; "" if none.
    std::string Validation() const;
    /// Copies every field but the extra text.  A null source blanks this record.
    void AssignRecord(const cDiaryRecord* source);
    void AssignRecord(const cDiaryRecord& source) { AssignRecord(&source); }

    /// Reads an event line.  Never fails: a short line fills the remaining fields
    /// from its start again, a wholly empty one leaves every field "".
    void GetDiaryRecordFromText(const std::string& line);
    /// The event line: the 15 fields, each followed by `delimiter`, then `terminator`;
    /// "" for a record without ID, reference, time and details.
    std::string FormatDiaryRecordAsCSV(std::string_view delimiter, std::string_view terminator) const;
    /// What another user may see of `record` at a security level "0" to "4".
    std::string FormatDiaryRecordForNetwork(const cDiaryRecord& record, std::string_view delimiter,
                                            std::string_view terminator, const std::string& securityLevel) const;
    /// The line form for test records; the long form adds the two amounts.
    std::string FormatAsText(std::string_view delimiter, bool shortForm) const;
    /// The cells of one table row; the caller opens the row.
    std::string FormatDiaryRecordAsHTML() const;

    // Comma-separated lines.  A field may stand in double quotes and then hold commas;
    // every double quote is dropped.
    /// The standard heading of each column of a heading line, from index 1: "DATE",
    /// "TIME", "URL" (the location), "DETAILS", or "" for a column that is passed
    /// over.  An unknown heading is shown to the user, who is told it is ignored.
    void ParseCSVHeader(const std::string& line, std::vector<std::string>& names) const;
    /// A new event from one line under those headings: dated today (unless a "DATE"
    /// column says otherwise), timed now, with a placeholder ID of today.
    void ParseCSVRecord(const std::string& line, const std::vector<std::string>& names);

    /// 0 no reminder, 1 due today, 2 still to come, 3 past.
    int IsThisEventIsReminder() const;
    bool IsDiaryEventAfileAccess() const;
    bool IsDiaryEventPCUsage() const;
    bool IsDiaryEventPrivate() const;
    bool isDiaryRecordMeeting() const;

    // Members kept for the interface; they do nothing.
    bool IsFileUsage() const { return false; }
    bool IsPCUsage() const { return false; }
    void ImportFieldsFromText() {}
    void Edit() {}
    /// Only tells the user that deleting from here is not done.
    void Delete();

private:
    std::string joinFields(std::string_view delimiter, bool withAmounts) const;

    bool isPrivate_ = false;
    bool isSavedOnClient_ = false;
    bool isSavedOnServer_ = false;
    bool isConfirmedSave_ = false;
    std::string extraText_;  ///< set by init, read by nobody
};

/// The record the event dialogs edit.
extern cDiaryRecord gCurrentEvent;
/// Spare records, blank at the start.
extern cDiaryRecord glbSearchEvent;
extern cDiaryRecord glbOldEvent;

}  // namespace orbidex
