// The note list's file, the body files and the changes to both.
#include "pim/cNotes.h"

#include "config/clsConfigDiary.h"
#include "dialogs/frmEditNote.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "network/cComms.h"
#include "pim/PimSupport.h"
#include "screen/clsDiaryCommand.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

cNotes glbNotes;

namespace {

// The note editor, modal: it reads gCurrentNote, writes it and its body file on OK
// and sets the dialog flags of glbConfig.
void showNoteEditor() {
    frmEditNote dialog;
    dialog.Show(true);
}

std::string today() {
    return FormatDate(Today(), "yyyymmdd");
}

void fillIfBlank(std::string& field, const std::string& value) {
    if (field.empty()) field = value;
}

std::string plusOne(const std::string& counter) {
    return CStr(Val(counter) + 1);
}

}  // namespace

void cNotes::init(const std::string& fileName) {
    table_.init(fileName);
    table_.LoadFromFile();
}

void cNotes::SaveToFile() {
    table_.SaveToFile();
    glbComms.SaveFileToMyNetworkDatapathForServer(table_.fname(), true);
}

long cNotes::NoteIndexOf(const cNote* note) const {
    if (note == nullptr) return -1;
    for (long i = 0; i <= Count(); ++i) {
        // A blank entry of the table is no note: it would match the empty note that
        // stands for "none selected".
        if (table_.Item(i).empty()) continue;
        cNote candidate;
        candidate.CreateNoteFromTextLine(table_.Item(i), kFieldDelimiter);
        if (candidate.title == note->title && candidate.DateCreated == note->DateCreated &&
            candidate.Filename == note->Filename)
            return i;
    }
    return -1;
}

std::string cNotes::GetNoteTitleFromDetails(const std::string& text) {
    const long lineEnd = InStr(text, "\r");
    const std::string firstLine = lineEnd >= 3 ? Left(text, lineEnd) : text;
    return KeepPlainCharacters(ReplaceLineBreaks(firstLine));
}

void cNotes::Add(ListView& listControl, const cNote* note) {
    glbConfig.dialogEditing = false;
    gCurrentNote = cNote();
    if (note == nullptr) {
        gCurrentNote.SetDefault();
        showNoteEditor();
    } else {
        gCurrentNote = *note;
        if (!gCurrentNote.details.empty()) gCurrentNote.SaveDetails(gCurrentNote.details);
    }
    // Set only by the dialogs' buttons: a note handed in after a cancelled dialog is
    // not added.
    if (glbConfig.dialogCancelled) return;

    if (!table_.ReloadIfChangedOnDisk()) return;
    gCurrentNote.ID = table_.getUniqueID(table_.fname(), Today());
    fillIfBlank(gCurrentNote.DateCreated, today());
    fillIfBlank(gCurrentNote.DateAccessed, today());
    fillIfBlank(gCurrentNote.DateModified, today());
    const std::string user = MyUserName();
    for (std::string* field :
         {&gCurrentNote.UserAccessed, &gCurrentNote.UserCreated, &gCurrentNote.UserModified, &gCurrentNote.UserOwner})
        fillIfBlank(*field, user);
    table_.Add(gCurrentNote.FormatRecordAsCSV(kFieldDelimiter, "\r\n"));
    table_.SaveToFile();
    DisplayInListView(listControl);
}

void cNotes::Edit() {
    if (!table_.ReloadIfChangedOnDisk()) return;
    const long index = NoteIndexOf(&gCurrentNote);
    if (index < 0) {
        platform().MsgBox("No note selected", vbOKOnly, "");
        glbCmd.NoteAdd();
        return;
    }
    glbConfig.dialogEditing = true;
    showNoteEditor();
    if (glbConfig.dialogCancelled) return;
    glbConfig.dialogEditing = false;
    gCurrentNote.UserModified = MyUserName();
    gCurrentNote.UserAccessed = gCurrentNote.UserModified;
    gCurrentNote.NumTimesAccessed = plusOne(gCurrentNote.NumTimesAccessed);
    gCurrentNote.NumTimesModified = plusOne(gCurrentNote.NumTimesModified);
    table_.Item(index, gCurrentNote.FormatRecordAsCSV(kFieldDelimiter, "\r\n"));
    table_.SaveToFile();
}

void cNotes::Delete(long& index) {
    platform().SetBusyCursor(true);
    if (index == 0) {
        if (!table_.ReloadIfChangedOnDisk()) {
            platform().SetBusyCursor(false);
            return;
        }
        index = NoteIndexOf(&gCurrentNote);
        if (index < 1) {
            platform().MsgBox("cant delete - Invalid note selected", vbOKOnly, "");
            platform().SetBusyCursor(false);
            return;
        }
    }
    table_.Delete(index);
    platform().SetBusyCursor(false);
}

void cNotes::ImportFromFile(const std::string&) {
    platform().MsgBox("This is not yet done", vbOKOnly, "");
}

void cNotes::CreateNoteAndADDFromFile(const std::string& path, bool keepFileNameAsTitle) {
    cNote note;
    note.UserOwner = "";
    std::string text;
    if (!FileExists(path) || !ReadWholeFile(path, text))
        ReportDataError("cNotes.CreateNoteAndADDFromFile", FolderExists(path) ? kPathFileAccess : kFileNotFound);
    note.details = "\r\n" + text;
    const std::string name = GetFileNameOnly(path);
    note.title = keepFileNameAsTitle ? name : GetNoteTitleFromDetails(note.details);
    // A file from elsewhere never takes the body file of another note.
    const bool fromElsewhere = !EqualsText(GetFolderOfPath(path), NotesFolder());
    note.Filename = fromElsewhere ? cNote::FreeBodyName(name) : name;
    VbDate stamp = 0;
    if (FileTimeStamp(path, stamp)) note.DateCreated = FormatDate(stamp, "yyyymmdd");
    note.DateModified = today();
    Add(MainForm().lvCat, &note);
    // The body is then the exact copy of the file.
    if (fromElsewhere) CopyFile(path, note.BodyFile());
}

void cNotes::RecreateNotesListFromNotesFolder(bool keepFileNameAsTitle) {
    const int answer = platform().MsgBox(
        "Are you sure you want to re-create the note index?\r\nWarning- this will delete all the color settings and "
        "category settings for the notes",
        vbYesNo, "Confirm Recreate Notes index");
    if (answer != vbYes) return;
    // No dialog is involved: a dialog cancelled before must not keep the notes out.
    glbConfig.dialogCancelled = false;
    DeleteFile(table_.fname());
    table_.LoadFromFile();
    const std::vector<std::string> files = ListFolder(NotesFolder() + "*.*", false);
    for (const std::string& file : files) CreateNoteAndADDFromFile(NotesFolder() + file, keepFileNameAsTitle);
    platform().MsgBox(
        "Finished Adding " + CStr(static_cast<long>(files.size())) + " notes from the files in " + NotesFolder(),
        vbOKOnly, "");
}

cNote cNotes::FindByID(const std::string& id) {
    cNote note;
    note.CreateNoteFromTextLine(table_.Item(table_.FindByID(id)), kFieldDelimiter);
    return note;
}

void cNotes::filter() {
    cNote note;
    for (long i = 0; i <= Count(); ++i) note.CreateNoteFromTextLine(table_.Item(i), kFieldDelimiter);
    platform().MsgBox(kFilterMessage, vbOKOnly, "");
}

}  // namespace orbidex
