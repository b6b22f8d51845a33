// The task list's file and its changes: loading, adding, editing, deleting and
// numbering tasks.
#include "pim/cTasks.h"

#include "config/clsConfigDiary.h"
#include "dialogs/frmEditTask.h"
#include "foundation/FileHelpers.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "pim/PimSupport.h"
#include "screen/clsDiaryCommand.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

cTasks glbTasks;

namespace {

// The task editor, modal: it reads gCurrentTask, writes it on OK and sets the
// dialog flags of glbConfig.
void showTaskEditor() {
    frmEditTask dialog;
    dialog.Show(true);
}

}  // namespace

void cTasks::init(const std::string& fileName) {
    table_.init(fileName);
    table_.LoadFromFile();
}

void cTasks::SaveToFile() {
    table_.SaveToFile();
    glbComms.SaveFileToMyNetworkDatapathForServer(table_.fname(), true);
}

long cTasks::FindTaskIndex(const cTask* task) const {
    if (task == nullptr) return -1;
    cTask candidate;
    for (long i = 0; i <= Count(); ++i) {
        candidate.CreateTaskFromTextLine(table_.Item(i), kFieldDelimiter);
        if (candidate.details == task->details && candidate.DateCreated == task->DateCreated &&
            candidate.timeCreated == task->timeCreated)
            return i;
    }
    return -1;
}

void cTasks::Add(ListView& listControl, const cTask* task) {
    glbConfig.dialogEditing = false;
    gCurrentTask = cTask();
    gCurrentTask.SetDefault();
    if (task == nullptr) {
        showTaskEditor();
    } else {
        gCurrentTask = *task;
    }
    // Set only by the dialogs' buttons: a task handed in after a cancelled dialog is
    // not added.
    if (glbConfig.dialogCancelled) return;

    if (!table_.ReloadIfChangedOnDisk()) return;
    gCurrentTask.ID = table_.getUniqueID(table_.fname(), Today());
    table_.Add(gCurrentTask.FormatRecordAsCSV(kFieldDelimiter, "\r\n"));
    table_.SaveToFile();
    DisplayInListView(listControl, true);
}

long cTasks::AddTasks(const std::vector<cTask>& tasks, std::vector<std::string>& notAdded) {
    if (!table_.ReloadIfChangedOnDisk()) return 0;
    std::string id;
    long added = 0;
    for (cTask task : tasks) {
        if (FindTaskIndex(&task) >= 0) {
            notAdded.push_back(task.DateCreated + " " + task.details + " - already in the task list");
            continue;
        }
        id = id.empty() ? table_.getUniqueID(table_.fname(), Today()) : table_.createNextID(Today(), id);
        task.ID = id;
        table_.Add(task.FormatRecordAsCSV(kFieldDelimiter, "\r\n"));
        ++added;
    }
    if (added > 0) table_.SaveToFile();
    return added;
}

void cTasks::Edit() {
    if (!table_.ReloadIfChangedOnDisk()) return;
    const long index = FindTaskIndex(&gCurrentTask);
    if (index < 0) {
        glbCmd.TaskAdd(Today());
        return;
    }
    glbConfig.dialogEditing = true;
    showTaskEditor();
    if (glbConfig.dialogCancelled) return;
    glbConfig.dialogEditing = false;
    table_.Item(index, gCurrentTask.FormatRecordAsCSV(kFieldDelimiter, "\r\n"));
    table_.SaveToFile();
}

void cTasks::Delete(long& index) {
    platform().SetBusyCursor(true);
    if (index == 0) {
        if (!table_.ReloadIfChangedOnDisk()) {
            platform().SetBusyCursor(false);
            return;
        }
        index = FindTaskIndex(&gCurrentTask);
        // The busy cursor stays on here, as it always has.
        if (index < 1) {
            platform().MsgBox("cant delete - Invalid task selected", vbOKOnly, "");
            return;
        }
    }
    table_.Delete(index);
    platform().SetBusyCursor(false);
}

void cTasks::ImportFromFile(const std::string&) {
    platform().MsgBox("This is not yet done", vbOKOnly, "");
}

void cTasks::CreateTaskAndAddFromFile(const std::string& path) {
    cTask task;
    task.SetDefault();
    task.details = "Edit " + GetFileNameOnly(path) + " in " + GetFolderOfPath(path);
    task.UrlID = path;
    Add(MainForm().lvCat, &task);
}

cTask cTasks::FindByID(const std::string& id) {
    cTask task;
    task.CreateTaskFromTextLine(table_.Item(table_.FindByID(id)), kFieldDelimiter);
    return task;
}

void cTasks::filter(const std::string& text) {
    cTask task;
    for (long i = 0; i <= Count(); ++i) {
        const std::string line = table_.Item(i);
        task.CreateTaskFromTextLine(line, kFieldDelimiter);
        task.showInOutput = InStr(line, text) > 0;
        table_.Item(i, line);
    }
    platform().MsgBox(kFilterMessage, vbOKOnly, "");
}

void cTasks::ReIndex() {
    if (!table_.ReloadIfChangedOnDisk()) return;
    table_.Sort();
    if (Count() > 9998) {
        const std::string text = "This will not work for more than 10,000 tasks - contact author for fix";
        platform().MsgBox(text, vbOKOnly, "");
        glbLog.log(text, 0);
        return;
    }
    cTask task;
    for (long i = 0; i <= Count(); ++i) {
        if (table_.Item(i).empty()) continue;
        task.CreateTaskFromTextLine(table_.Item(i), kFieldDelimiter);
        task.ID = "D" + task.DateCreated + FormatNumber(i, "0000");
        table_.Item(i, task.FormatRecordAsCSV(kFieldDelimiter, "\r\n"));
    }
    table_.Sort();
    table_.SaveToFile();
}

}  // namespace orbidex
