#pragma once
// The task list: one raw line per task in a cData table on the task file
// (data folder + "D_tasks.dat").  Every operation builds a cTask from a line when it
// needs one and writes the line back when it changed it; every change saves the
// whole file at once, sorted, so there is nothing to save at exit.

#include <optional>
#include <vector>
#include <string>

#include "pim/cData.h"
#include "pim/cTask.h"

namespace orbidex {

class ListItem;
class ListView;

class cTasks {
public:
    /// The table's count of lines.
    long Count() const { return table_.Count(); }
    /// The tasks the calendar's task list shows: active ones with text.  The
    /// calendar's "Tasks - n" label reads it.
    long CountActive() const;

    /// Opens the task editor on gCurrentTask and stores the result in its line; a
    /// task the table does not hold is added instead (clsDiaryCommand.TaskAdd).
    void Edit();
    /// Deletes the line at `index`; 0 stands for gCurrentTask, whose index is then
    /// stored in `index`.  A task that is not found (or stands at index 0, the first
    /// line of a table just loaded) is refused with a message.
    void Delete(long& index);
    /// Adds `task`, or without one what the user enters in the task editor, under a
    /// new ID; then lists the active tasks in `listControl`.  Nothing is added while
    /// glbConfig.dialogCancelled is set.
    void Add(ListView& listControl, const cTask* task = nullptr);
    /// Adds the tasks under new IDs, each unless a task of the same text, date and
    /// time is in the list already, and writes the file once.  The answer is the
    /// number added; `notAdded` gets a line for each task left out.
    long AddTasks(const std::vector<cTask>& tasks, std::vector<std::string>& notAdded);
    /// Only says that it is not done.
    void ImportFromFile(const std::string& path);
    /// Writes the tasks as an HTML table to `fileName` (program folder + "task.htm"
    /// when empty): with the page's head and foot when `withHeader`, only active
    /// ones when `onlyActive`, the text alone when `brief`.  `title` is not used.
    void ExportToFile(std::string fileName, const std::string& title, bool withHeader, bool onlyActive, bool brief);
    void CreateSampleList() {}
    /// Adds a task to edit the file at `path`, which it launches.
    void CreateTaskAndAddFromFile(const std::string& path);
    /// The task of the first line from 1 whose ID is `id`; for an unknown `id` the
    /// task of line 0.
    cTask FindByID(const std::string& id);
    /// The task of a list row (the first 13 characters of its tag are its ID); none
    /// for no row.
    std::optional<cTask> GetFromList(const ListItem* listItem);
    /// An unfinished filter: changes nothing and says so.
    void filter(const std::string& text);
    /// Adds a row to `lvResults` for each task whose line holds `keyword`, with
    /// regard to case unless `caseSensitive` is false.
    void Search(ListView& lvResults, const std::string& keyword, bool caseSensitive = true);
    void DisplayInHtml() {}
    /// Binds the table to `fileName` and loads it.
    void init(const std::string& fileName);
    /// The columns of a task list: those of gTaskHeadings, or one " Task Details "
    /// column beside the calendar.
    void InitTaskList(ListView& listControl);
    /// Adds `value` as a cell of `listItem` when the column of `heading` is shown.
    static void AddHeadingIfVisible(ListItem& listItem, const std::string& value, const std::string& heading);
    /// Fills the list, with active tasks only when `onlyActive`; in the task mode the
    /// status bar tells how many of how many are shown.
    void DisplayInListView(ListView& listControl, bool onlyActive);
    /// Gives every task the ID "D" + its date + its line's index, and saves.
    void ReIndex();
    /// Saves the table and hands the file to the server.
    void SaveToFile();
    void LoadFromFile() { table_.LoadFromFile(); }

    const std::string& timeview() const { return timeview_; }
    void timeview(const std::string& value) { timeview_ = value; }

    /// The table itself, for what reads the lines as they stand.
    const cData& Table() const { return table_; }

private:
    /// The index of the first line with the task's text, date and time; -1 for none.
    long FindTaskIndex(const cTask* task) const;
    static void AddToSearchResults(ListView& listControl, const cTask& task);

    cData table_;
    std::string timeview_;
};

extern cTasks glbTasks;

}  // namespace orbidex
