#pragma once
// One note: a free text with a title, a colour and a category.  Its line in the note
// list holds eight fields, each followed by the byte 0x1F; its text lives in a body
// file of its own in the folder "notes\" below the data folder, which the line names.

#include <string>
#include <string_view>

namespace orbidex {

class ListView;

class cNote {
public:
    // The line's fields, in line order.
    std::string ID;            ///< a letter, yyyymmdd, four digits
    std::string DateCreated;   ///< yyyymmdd; heading "Created"
    std::string DateModified;  ///< yyyymmdd; heading "Modified"
    std::string Reference;
    std::string Color;     ///< a colour name of clsConfigDiary.BuildColorList
    std::string Category;  ///< a word of the list of references
    std::string Filename;  ///< the body file's name inside "notes\"
    std::string title;

    // Held by the object only.
    std::string DateAccessed;
    std::string details;  ///< the text, from and to the body file
    std::string UserCreated;
    std::string UserOwner;
    std::string UserModified;
    std::string UserAccessed;
    std::string NumTimesModified;  ///< decimal text
    std::string NumTimesAccessed;  ///< decimal text
    std::string ContactID;
    std::string TaskID;
    std::string EventID;
    std::string FileID;
    std::string NoteParentID;
    std::string NoteRootID;

    // Kept for the interface; they do nothing.
    void Find() {}
    void Delete() {}
    void Save() {}

    /// Without a Filename: the first 80 characters of the title (or, with no title,
    /// the present moment as yyyymmdd-hhmmss), line breaks as blanks, + ".txt".  A
    /// name that another body file has already gets " (2)", " (3)", ... before ".txt".
    void CreateNewFileName();
    /// Writes `text` and a line end as the body file, replacing it; a note without a
    /// Filename gets one first.  The notes folder is made when missing.  A failure is
    /// reported.  False when the text was not written.
    bool SaveDetails(const std::string& text);
    /// The whole body file; "" (reported) when it is missing or can't be read.
    std::string LoadDetails();
    /// Sets the title, then the body file's name.
    void Add(const std::string& newTitle);
    /// The note's line: the eight fields, each followed by `delimiter`.  `lineEnd` is
    /// not used.
    std::string FormatRecordAsCSV(std::string_view delimiter, std::string_view lineEnd) const;
    /// Fills the eight fields from `line`, which may begin with one extra delimiter;
    /// an empty line changes nothing.  A field without its closing delimiter is
    /// reported, and the fields read before it stay.  The text is not loaded.  False
    /// for a broken line.
    bool CreateNoteFromTextLine(const std::string& line, std::string_view delimiter);
    /// The same without the report.
    bool ReadTextLine(const std::string& line, std::string_view delimiter);
    /// Adds this note's row to the note list, coloured by its Color; a note without
    /// ID is not listed.
    void AddToListView(ListView& listControl, const std::string& listLine) const;
    /// Today as DateCreated, the user's name as creator and owner, the ID, Reference,
    /// Category, title, text and ContactID emptied; the other fields stay.
    void SetDefault();

    /// The body file's full name: data folder + "notes\" + Filename.
    std::string BodyFile() const;
    /// `wanted` when no file or folder of the notes folder has that name; otherwise
    /// the first free of "name (2).ext", "name (3).ext", ...
    static std::string FreeBodyName(const std::string& wanted);
};

/// The note that the user selected.
extern cNote gCurrentNote;
/// The captions of the note list's columns, one per field, or "<hide>".
extern cNote gNoteHeadings;

/// The folder of the body files: data folder + "notes\".
std::string NotesFolder();

}  // namespace orbidex
