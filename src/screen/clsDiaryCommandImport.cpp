// Importing events from a file, exporting the diary as HTML pages, and the scratch pad.
#include <algorithm>

#include "accessories/frmClipboard.h"
#include "diary/cDiaryFileUtils.h"
#include "diary/cDiaryRecords.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "platform/Platform.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

const char* const kImportFilter = "Comma-separated files (*.csv *.CSV);;Diary event files (*.dat *.DAT);;All files (*)";

}  // namespace

void clsDiaryCommand::ImportAppointments() {
    const std::string file = platform().PickFileToOpen("Import Appointments", kImportFilter);
    if (file.empty()) return;
    timerOn(false);
    glbEvents.ImportData(file);
    timerOn(true);
}

std::string clsDiaryCommand::exportPages() {
    platform().SetBusyCursor(true);
    const std::vector<std::string> pages = glbFileUtils.ExportDiaryFilesToHTML();
    platform().SetBusyCursor(false);
    if (pages.empty()) {
        platform().MsgBox("There are no events in the diary to export.", vbOKOnly, "Export Appointments");
        return "";
    }
    const VbDate shown = form_ != nullptr ? static_cast<VbDate>(form_->MonthView1.Value) : Today();
    const std::string month = UCase(gStrDataPath + "D" + FormatDate(shown, "yyyymm") + ".html");
    const auto found =
        std::find_if(pages.begin(), pages.end(), [&](const std::string& page) { return UCase(page) == month; });
    return found != pages.end() ? *found : pages.back();
}

void clsDiaryCommand::ExportAppointments() {
    if (platform().MsgBox("Create HTM versions of Diary Files\r\nDo you want to continue ?", vbYesNo + vbQuestion,
                          "Export Appointments") != vbYes)
        return;
    const std::string page = exportPages();
    if (page.empty() || form_ == nullptr) return;
    form_->mnuViewBrowser.Checked = true;
    form_->web.Visible = true;
    // The page takes most of the main area, unless the user has sized the pane.
    if (glbScreen.BrowserHeight() == 0) glbScreen.SetBrowserHeight(form_->ScaleHeight * 2 / 3);
    form_->web.Navigate2(page);
    glbScreen.resize();
}

void clsDiaryCommand::ViewEventsInBrowser() {
    const std::string page = exportPages();
    if (!page.empty()) platform().OpenDocument(page);
}

void clsDiaryCommand::ShowScratchPad() {
    frmClipboard& pad = ScratchPad();
    pad.LaunchedBy = "DIARY";
    pad.Show(false);
}

}  // namespace orbidex
