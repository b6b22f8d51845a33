// The main window's drags and drops: an event dragged out of the grid onto another
// cell, a day of the calendar or the task list; a task dragged from the list beside
// the calendar into the grid; files and text from other programs dropped on the
// grid and on the task and note lists.
#include <algorithm>
#include <cstdlib>

#include "diary/CalendarView.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/StringHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

// How far the mouse moves with its button down before a drag starts, in twips.
constexpr long kDragDistance = 75;

}  // namespace

void frmClientDiaryMain::bindDrops() {
    gridDays.OLEDropMode = vbOLEDropManual;
    lvCat.OLEDropMode = vbOLEDropManual;
    gridDays.onMouseDown = [this](int b, int s, long x, long y) { gridDays_MouseDown(b, s, x, y); };
    gridDays.onMouseMove = [this](int b, int s, long x, long y) { gridDays_MouseMove(b, s, x, y); };
    gridDays.onDragDrop = [this](Control& source, long x, long y) { gridDays_DragDrop(source, x, y); };
    gridDays.onOLEDragDrop = [this](const DataObject& data) { gridDays_OLEDragDrop(data); };
    MonthView1.onDateDragOver = [this](Control& source, VbDate day) { MonthView1_DragOver(source, day); };
    MonthView1.onDateDragDrop = [this](Control& source, VbDate day) { MonthView1_DragDrop(source, day); };
    lvCat.onMouseDown = [this](int b, int s, long x, long y) { lvCat_MouseDown(b, s, x, y); };
    lvCat.onMouseMove = [this](int b, int s, long x, long y) { lvCat_MouseMove(b, s, x, y); };
    lvCat.onDragDrop = [this](Control& source, long x, long y) { lvCat_DragDrop(source, x, y); };
    lvCat.onOLEDragDrop = [this](const DataObject& data) { lvCat_OLEDragDrop(data); };
}

void frmClientDiaryMain::dragWhenMoved(Control& control, int button, long x, long y) {
    if (dragText_.empty() || (button & vbLeftButton) == 0 || control.IsDragging()) return;
    if (std::labs(x - pressX_) + std::labs(y - pressY_) < kDragDistance) return;
    control.Drag(vbBeginDrag);
}

void frmClientDiaryMain::gridDays_MouseDown(int button, int, long x, long y) {
    dragText_.clear();
    if (button != vbLeftButton || glbScreen.Mode() != "CALENDAR") return;
    // The cell pressed holds the event that a drag takes along.
    glbCmd.MouseGridClicked(gridDays);
    if (!glbEvents.HasSelectedEvent()) return;
    dragText_ = glbEvents.events(gintcur).ID;
    pressX_ = x;
    pressY_ = y;
}

void frmClientDiaryMain::gridDays_MouseMove(int button, int, long x, long y) {
    dragWhenMoved(gridDays, button, x, y);
}

void frmClientDiaryMain::lvCat_MouseDown(int button, int, long x, long y) {
    dragText_.clear();
    ListItem* item = lvCat.MouseItem();
    if (button != vbLeftButton || glbScreen.Mode() != "CALENDAR" || item == nullptr) return;
    // The row pressed is the task that a drag takes along.
    lvCat.SetSelectedItem(item);
    dragText_ = item->Tag;
    pressX_ = x;
    pressY_ = y;
}

void frmClientDiaryMain::lvCat_MouseMove(int button, int, long x, long y) {
    dragWhenMoved(lvCat, button, x, y);
}

bool frmClientDiaryMain::currentCellFromPointer() {
    const long row = gridDays.MouseRow;
    if (row < gridDays.FixedRows || CalendarTimeSlots().hhmmGet(row).empty()) return false;
    gridDays.Row = row;
    // The day columns start at 2; beside them the first day takes the drop, beyond
    // them the last.
    const long col = gridDays.MouseCol;
    gridDays.Col = col < 0 ? gridDays.Cols - 1 : std::max(col, 2L);
    return true;
}

VbDate frmClientDiaryMain::currentCellDay() {
    return gridDays.Cols == 3 ? static_cast<VbDate>(MonthView1.Value)
                              : static_cast<VbDate>(gridDays.ColData(gridDays.Col));
}

void frmClientDiaryMain::redrawAfterDrop() {
    glbEvents.CalendarDateClicked(*this, MonthView1.Value);
    glbScreen.resize();
}

void frmClientDiaryMain::gridDays_DragDrop(Control& source, long, long) {
    if (dragText_.empty() || glbScreen.Mode() != "CALENDAR") return;
    if (currentCellFromPointer()) {
        if (source.Name() == "lvCat")
            glbCmd.MoveSelectedTaskToEvent(lvCat, gridDays);
        else if (source.Name() == "gridDays")
            glbCmd.MoveSelectedEventToNewTime(FormatDate(currentCellDay(), "yyyymmdd"),
                                              CalendarTimeSlots().hhmmGet(gridDays.Row));
        redrawAfterDrop();
    }
    dragText_.clear();
    glbLog.log(CStr(gintcur) + " gridDays_DragDrop (leaving) : gintcur=", 3);
}

void frmClientDiaryMain::gridDays_OLEDragDrop(const DataObject& data) {
    if (data.HasFiles() && glbCmd.ImportICalendarFiles(data.Files)) return;
    const std::string details = Trim(ReplaceLineBreaks(data.Text));
    if (details.empty() || glbScreen.Mode() != "CALENDAR" || !currentCellFromPointer()) return;
    timerSecond.Enabled = false;
    glbEvents.DiaryEventAdd(currentCellDay(), CalendarTimeSlots().hhmmGet(gridDays.Row), details);
    redrawAfterDrop();
    timerSecond.Enabled = true;
}

void frmClientDiaryMain::MonthView1_DragOver(Control& source, VbDate day) {
    if (dragText_.empty() || source.Name() != "gridDays") return;
    status.Panels(1).Text = "Release mouse button to move event to " + FormatDate(day, "mmm-dd-yyyy");
}

void frmClientDiaryMain::MonthView1_DragDrop(Control& source, VbDate day) {
    // Only an event from the grid moves; it keeps its time, so that only the day changes.
    if (!dragText_.empty() && source.Name() == "gridDays" && glbEvents.HasSelectedEvent()) {
        glbCmd.MoveSelectedEventToNewTime(FormatDate(day, "yyyymmdd"), glbEvents.events(gintcur).TimeEvent);
        redrawAfterDrop();
    }
    dragText_.clear();
}

void frmClientDiaryMain::lvCat_DragDrop(Control& source, long, long) {
    if (glbScreen.Mode() == "CALENDAR" && (source.Name() == "gridDays" || source.Name() == "lstDiary"))
        glbCmd.MoveCurrentEventToTask();
    dragText_.clear();
}

void frmClientDiaryMain::lvCat_OLEDragDrop(const DataObject& data) {
    const std::string kind = lvCat.Tag;
    if (kind == "TASK")
        glbCmd.TaskAddFromDroppedFiles(data);
    else if (kind == "NOTE")
        glbCmd.NoteAddFromDroppedFiles(data);
    else if (kind != "CALENDAR" && kind != "MESSAGE")
        platform().MsgBox("Drag Drop not setup for this data type yet", vbOKOnly, "");
}

}  // namespace orbidex
