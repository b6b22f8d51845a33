#pragma once
// One task: a to-do item with a date and time, a text, a status, a priority and an
// optional reminder.  It is born from and written back to one line of the task file:
// the first fifteen fields below, each followed by the byte 0x1F, in the order of
// the event line.  The other fields live and die with the object.

#include <string>
#include <string_view>

namespace orbidex {

class ListView;

class cTask {
public:
    // The line's fields, in line order.
    std::string ID;           ///< a letter, yyyymmdd, four digits
    std::string DateCreated;  ///< the task's date, yyyymmdd
    std::string Reference;
    std::string timeCreated;  ///< the task's time, hhmm
    std::string length;       ///< minutes, as digits
    std::string ActionID;
    std::string ContactID;
    std::string UrlID;  ///< a URL or a file to launch
    std::string JobToDoID;
    std::string RemindDate;  ///< yyyymmdd, or "" for no reminder
    std::string RemindTime;  ///< hhmm, or "" for no reminder
    std::string Priority;    ///< a first character "1" marks an urgent task
    std::string status;      ///< decides whether the task is active
    std::string ActionToPerform;
    std::string details;  ///< the task's text, one line

    // Held by the object only.
    std::string title;
    std::string dateDue;
    std::string dateAssigned;
    std::string Category;
    std::string userAssignedTo;
    std::string UserCreated;
    std::string UserOwner;
    bool showInOutput = true;  ///< whether a list may show the task

    // Kept for the interface; they do nothing.
    void CreateTemplate() {}
    void UseTemplate() {}
    bool Validate() const { return false; }

    /// Today's date and time, a length of 60, the user's name; every other field "".
    void SetDefault();
    /// The task's line: the fifteen fields, each followed by `delimiter`.  `lineEnd`
    /// is not used.  "" for a task without ID, reference, time and text.
    std::string FormatRecordAsCSV(std::string_view delimiter, std::string_view lineEnd) const;
    /// False once the status, trimmed and in capitals, is COMPLETED, DONE, OVER or
    /// FINISHED.
    bool isTaskActive() const;
    /// Fills the line's fields from `line`; an empty line gives SetDefault.  A field
    /// without its closing delimiter is reported by the failure routine, and the
    /// fields read before it stay.  A length below 0 becomes "30".  Other fields keep
    /// what they held.  False for a broken line.
    bool CreateTaskFromTextLine(const std::string& line, std::string_view delimiter);
    /// The same without the report: for counts that run at every drawing.
    bool ReadTextLine(const std::string& line, std::string_view delimiter);
    /// Adds this task's row to a task list, its tag `listLine`; a task without text
    /// is not listed.  Urgent tasks are bold, overdue ones red, finished ones grey.
    void AddToListView(ListView& listControl, const std::string& listLine) const;
};

/// The task that the user selected: the lists load it, the task editor fills it,
/// and cTasks.Edit and cTasks.Delete work on it.
extern cTask gCurrentTask;

}  // namespace orbidex
