#pragma once
// The note list: one raw line per note in a cData table on the note list file (data
// folder + "allnotes.dat"), each naming its body file in the folder "notes\".  The
// folder is the real store: the list can be rebuilt from it.

#include <optional>
#include <string>

#include "pim/cData.h"
#include "pim/cNote.h"

namespace orbidex {

class ListItem;
class ListView;

class cNotes {
public:
    long Count() const { return table_.Count(); }
    /// Opens the note editor on gCurrentNote and stores its line; a note the list
    /// does not hold is added instead, after saying so.
    void Edit();
    /// Deletes the line at `index`; 0 stands for gCurrentNote, whose index is then
    /// stored in `index`.  The body file stays in the notes folder, so that a rebuild
    /// of the list brings the note back.
    void Delete(long& index);
    /// The title a text gives: its first line (all of the text when that line has
    /// fewer than two characters), line breaks as blanks, only blanks, digits,
    /// letters, "@" and "[" kept.
    static std::string GetNoteTitleFromDetails(const std::string& text);
    /// Adds `note` (saving its text), or without one what the user enters in the
    /// note editor, under a new ID, then lists the notes in `listControl`.  Nothing
    /// is added while glbConfig.dialogCancelled is set.
    void Add(ListView& listControl, const cNote* note = nullptr);
    /// Only says that it is not done.
    void ImportFromFile(const std::string& path);
    /// Writes the list as an HTML table to `fileName` (program folder + "note.htm"
    /// when empty).
    void ExportToFile(std::string fileName);
    /// After the user agrees, forgets the list and adds a note for each file of the
    /// notes folder, titled by its name when `keepFileNameAsTitle`, otherwise by its
    /// text.
    void RecreateNotesListFromNotesFolder(bool keepFileNameAsTitle);
    /// The note of the first line from 1 whose ID is `id`; for an unknown `id` the
    /// note of line 0.  Its text is not loaded.
    cNote FindByID(const std::string& id);
    /// Adds a note whose text is the file at `path` (after a line end) and copies the
    /// file into the notes folder.  A body file of that name that belongs to another
    /// note is kept: the new note gets a free name.
    void CreateNoteAndADDFromFile(const std::string& path, bool keepFileNameAsTitle);
    /// The note of a list row (the first 13 characters of its tag are its ID); none
    /// for no row.
    std::optional<cNote> GetFromList(const ListItem* listItem);
    /// An unfinished filter: changes nothing and says so.
    void filter();
    /// Adds a row to `lvResults` for each note whose line or text holds `keyword`,
    /// without regard to case unless `caseSensitive`.
    void Search(ListView& lvResults, const std::string& keyword, bool caseSensitive = false);
    /// Binds the table to `fileName` and loads it.
    void init(const std::string& fileName);
    /// The columns of the note list: " " and "Title".
    void InitNoteList(ListView& listControl);
    /// Adds `value` as a cell of `listItem` when the column of `heading` is shown.
    static void AddHeadingIfVisible(ListItem& listItem, const std::string& value, const std::string& heading);
    /// Fills the list with the notes and tells their number in the status bar.
    void DisplayInListView(ListView& listControl);
    /// Saves the table and hands the file to the server.
    void SaveToFile();
    void LoadFromFile() { table_.LoadFromFile(); }

    /// The table itself, for what reads the lines as they stand.
    const cData& Table() const { return table_; }

private:
    /// The index of the first line with the note's title, date and file; -1 for none.
    long NoteIndexOf(const cNote* note) const;
    static void AddToSearchResults(ListView& listControl, const cNote& note);

    cData table_;
};

extern cNotes glbNotes;

}  // namespace orbidex
