// What a drop between the views does: an event moved to another date and time, a
// task copied into the grid as an event, an event copied to the task list, and
// files or text from other programs made into tasks and notes.
#include "config/clsConfigDiary.h"
#include "controls/DataObject.h"
#include "controls/ListView.h"
#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

// A task or note line holds no line break: the dropped text's become blanks.
std::string firstCharacters(const std::string& text) {
    return ReplaceLineBreaks(Left(text, 80));
}

}  // namespace

void clsDiaryCommand::MoveSelectedEventToNewTime(const std::string& date, const std::string& time) {
    if (!glbEvents.HasSelectedEvent()) return;
    cDiaryRecord old;
    old.AssignRecord(glbEvents.events(gintcur));
    // Dropped where it stands: nothing moves, and the event keeps its identifier.
    if (old.DateEvent == date && old.TimeEvent == time) return;
    timerOn(false);
    cDiaryRecord moved;
    moved.AssignRecord(old);
    moved.TimeEvent = time;
    moved.DateEvent = date;
    // A reminder moves to the new moment, whatever lead it had.
    if (!moved.DateRemind.empty()) {
        moved.DateRemind = date;
        moved.TimeRemind = time;
    } else {
        moved.DateRemind.clear();
        moved.TimeRemind.clear();
    }
    glbEvents.DiaryEventMove(old, moved);
    timerOn(true);
}

void clsDiaryCommand::MoveSelectedTaskToEvent(ListView& list, FlexGrid& grid) {
    const ListItem* item = list.SelectedItem();
    if (form_ == nullptr || item == nullptr) return;
    timerOn(false);
    // A task line reads as an event: its first fifteen fields are an event's.
    cDiaryRecord event;
    event.GetDiaryRecordFromText(item->Tag);
    const VbDate day =
        grid.Cols == 3 ? static_cast<VbDate>(form_->MonthView1.Value) : static_cast<VbDate>(grid.ColData(grid.Col));
    event.DateEvent = FormatDate(day, "yyyymmdd");
    event.TimeEvent = CalendarTimeSlots().hhmmGet(grid.Row);
    // Appended to its month's file under the next identifier of that file.
    glbEvents.AddDiaryRecord(event);
    glbEvents.LoadDiaryData(form_->MonthView1.Value);
    timerOn(true);
}

void clsDiaryCommand::MoveCurrentEventToTask() {
    if (form_ == nullptr || !glbEvents.HasSelectedEvent()) return;
    const cDiaryRecord& event = glbEvents.events(gintcur);
    cTask task;
    task.SetDefault();
    task.details = event.details;
    task.Reference = event.Reference;
    task.ActionID = event.Action;
    task.ActionToPerform = event.ActionToPerform;
    // An event read from its file knows no date of its making: the task is for its day.
    task.DateCreated = event.DateCreated.empty() ? event.DateEvent : event.DateCreated;
    task.RemindDate = event.DateRemind;
    glbTasks.Add(form_->lvCat, &task);
    ShowTasks(true);
    glbScreen.resize();
}

void clsDiaryCommand::TaskAddFromDroppedFiles(const DataObject& data) {
    if (form_ == nullptr) return;
    glbConfig.dialogCancelled = false;  // a dialog cancelled before does not refuse the drop
    if (data.HasFiles()) {
        for (const std::string& file : data.Files) glbTasks.CreateTaskAndAddFromFile(file);
    } else if (data.HasText()) {
        cTask task;
        task.SetDefault();
        task.details = ReplaceLineBreaks(data.Text);
        task.title = firstCharacters(data.Text);
        task.DateCreated = FormatDate(Today(), "yyyymmdd");
        task.timeCreated = FormatDate(Now(), "hhmm");
        glbTasks.Add(form_->lvCat, &task);
    } else {
        platform().MsgBox("Not sure what format you dropped - try using text", vbOKOnly, "");
    }
    ShowTasks(true);
}

void clsDiaryCommand::NoteAddFromDroppedFiles(const DataObject& data) {
    if (form_ == nullptr) return;
    glbConfig.dialogCancelled = false;  // a dialog cancelled before does not refuse the drop
    if (data.HasFiles()) {
        for (const std::string& file : data.Files) glbNotes.CreateNoteAndADDFromFile(file, false);
    } else if (data.HasText()) {
        cNote note;
        note.SetDefault();
        note.details = data.Text;
        // The body file (written by the list's Add) is named after the plain characters
        // of the title, so that no character of the text makes a name the folder refuses.
        note.title = KeepPlainCharacters(firstCharacters(data.Text));
        note.CreateNewFileName();
        note.title = firstCharacters(data.Text);
        note.DateCreated = FormatDate(Today(), "yyyymmdd");
        note.DateModified = note.DateCreated;
        glbNotes.Add(form_->lvCat, &note);
    } else {
        platform().MsgBox("Not sure what format you dropped - try using text", vbOKOnly, "");
    }
    glbScreen.SwitchMode("NOTE");
}

}  // namespace orbidex
