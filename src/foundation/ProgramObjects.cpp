// The long-lived objects of the program, put back to their start by ResetProgramState.
#include "accessories/frmClipboard.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryFileUtils.h"
#include "diary/cDiaryRecord.h"
#include "diary/cDiaryRecords.h"
#include "diary/cDiaryRecurring.h"
#include "foundation/ProgramState.h"
#include "network/StaffGrid.h"
#include "network/cComms.h"
#include "network/cDiaryComms.h"
#include "network/cMessages.h"
#include "network/frmChat.h"
#include "pim/ListAndDetails.h"
#include "pim/cNotes.h"
#include "pim/cTasks.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"
#include "screen/frmStickyNote.h"
#include "search/frmSearchResults.h"

namespace orbidex {

void ResetProgramObjects() {
    glbConfig = clsConfigDiary();
    gListViewHeadings = cDiaryRecord();
    gTaskHeadings = cDiaryRecord();
    glbCmd = clsDiaryCommand();
    glbScreen = clsDiaryScreen();
    glbEvents = cDiaryRecords();
    glbComms = cComms();
    glbDiaryComms = cDiaryComms();
    glbRecurring = cDiaryRecurring();
    glbFileUtils = cDiaryFileUtils();
    gCurrentEvent = cDiaryRecord();
    glbSearchEvent = cDiaryRecord();
    glbOldEvent = cDiaryRecord();
    glbTasks = cTasks();
    glbNotes = cNotes();
    gCurrentTask = cTask();
    gCurrentNote = cNote();
    gNoteHeadings = cNote();
    gListAndDetails = ListAndDetailsDefinition();
    ResetScratchPad();
    ResetMainForm();
    glbMessages = cMessages();
    glbStaffCellIds.clear();
    ResetChatForm();
    ResetStickyNote();
    ResetSearchResultsForm();
}

}  // namespace orbidex
