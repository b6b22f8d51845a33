// The tasks and the notes: adding, editing and deleting them from the window, the
// lists that show them, and the row the user clicked.
#include "controls/ListView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

// Asks before a task or a note goes: "task" or "note", and what it is.
bool userAgreesToDelete(const std::string& kind, const std::string& what) {
    const std::string title = kind == "task" ? "Deleting Task" : "Deleting Note";
    const std::string text = "Deleting " + kind + " : " + what + "\r\n\r\nDo you want to delete this " + kind;
    return platform().MsgBox(text, vbYesNo, title) == vbYes;
}

}  // namespace

void clsDiaryCommand::ShowTasks(bool onlyActive) {
    if (form_ == nullptr) return;
    const std::string& mode = glbScreen.Mode();
    if (mode != "TASK" && mode != "CALENDAR") return;
    glbTasks.DisplayInListView(form_->lvCat, onlyActive);
    if (mode == "TASK") {
        form_->Toolbar1.Buttons("current").Value = onlyActive ? tbrPressed : tbrUnpressed;
        form_->Toolbar1.Buttons("showall").Value = onlyActive ? tbrUnpressed : tbrPressed;
    } else {
        // The calendar's "Tasks" label counts them.
        glbEvents.DisplayStats(*form_, form_->status, form_->MonthView1.Value);
    }
}

void clsDiaryCommand::TaskAdd(VbDate) {
    timerOn(false);
    // The task list is drawn where a mode shows one; another mode's list stays.
    ListView unseen;
    glbTasks.Add(unseen);
    ShowTasks(true);
    timerOn(true);
}

void clsDiaryCommand::TaskEdit() {
    timerOn(false);
    glbTasks.Edit();
    ShowTasks(true);
    timerOn(true);
}

void clsDiaryCommand::TaskDelete() {
    if (!gCurrentTask.ID.empty() && !userAgreesToDelete("task", gCurrentTask.details)) return;
    timerOn(false);
    long index = 0;
    glbTasks.Delete(index);
    platform().SetBusyCursor(false);  // the list leaves it on when it refuses
    if (index >= 1) gCurrentTask = cTask();  // gone: nothing is selected
    ShowTasks(true);
    timerOn(true);
}

bool clsDiaryCommand::OpenTask(const std::string& id) {
    const cTask task = glbTasks.FindByID(id);
    if (id.empty() || task.ID != id) return false;
    gCurrentTask = task;
    TaskEdit();
    return true;
}

void clsDiaryCommand::NoteAdd() {
    timerOn(false);
    glbNotes.Add(MainForm().lvCat);
    glbScreen.SwitchMode("NOTE");
    timerOn(true);
}

void clsDiaryCommand::NoteEdit() {
    timerOn(false);
    glbNotes.Edit();
    glbNotes.DisplayInListView(MainForm().lvCat);
    glbScreen.SwitchMode("NOTE");
    timerOn(true);
}

void clsDiaryCommand::NoteDelete() {
    if (!gCurrentNote.ID.empty() && !userAgreesToDelete("note", gCurrentNote.title)) return;
    timerOn(false);
    long index = 0;
    glbNotes.Delete(index);
    if (index >= 1) gCurrentNote = cNote();  // gone: nothing is selected
    glbNotes.DisplayInListView(MainForm().lvCat);
    glbScreen.SwitchMode("NOTE");
    timerOn(true);
}

bool clsDiaryCommand::OpenNote(const std::string& id) {
    const cNote note = glbNotes.FindByID(id);
    if (id.empty() || note.ID != id) return false;
    gCurrentNote = note;
    NoteEdit();
    return true;
}

void clsDiaryCommand::RecreateNotes(bool keepFileNameAsTitle) {
    timerOn(false);
    glbNotes.RecreateNotesListFromNotesFolder(keepFileNameAsTitle);
    // The new notes were listed in the window's list: the present mode draws its own.
    glbScreen.SwitchMode(glbScreen.Mode(), true);
    timerOn(true);
}

void clsDiaryCommand::ReIndexTasks() {
    timerOn(false);
    glbTasks.ReIndex();
    ShowTasks(true);
    timerOn(true);
}

void clsDiaryCommand::ShowTasksInBrowser() {
    const std::string file = gStrDataPath + "tasks-exported.htm";
    glbTasks.ExportToFile(file, "", true, true, true);
    platform().OpenDocument(file);
}

void clsDiaryCommand::selectTask(const ListItem* item) {
    const std::optional<cTask> task = glbTasks.GetFromList(item);
    if (!task) return;
    gCurrentTask = *task;
    for (Menu& entry : form_->mnuTaskMenu) form_->EnableEntry(entry, !task->ID.empty());
    form_->status.Panels(1).Text = task->details;
}

void clsDiaryCommand::selectNote(const ListItem* item) {
    const std::optional<cNote> note = glbNotes.GetFromList(item);
    if (!note) return;
    gCurrentNote = *note;
    for (Menu& entry : form_->mnuNotesMenu) form_->EnableEntry(entry, !note->ID.empty());
    form_->status.Panels(1).Text = note->title;
}

}  // namespace orbidex
