// The display settings dialogs, the perpetual calendar and the about box opened from
// the window, and the window drawn again with what they changed.
#include <string>

#include "config/clsConfigDiary.h"
#include "config/frmColour.h"
#include "config/frmDiaryPickFields.h"
#include "diary/cDiaryRecords.h"
#include "screen/clsDiaryCommand.h"
#include "screen/clsDiaryScreen.h"
#include "screen/frmAbout.h"
#include "screen/frmCalendarView.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

void clsDiaryCommand::ShowColours() {
    if (form_ == nullptr) return;
    timerOn(false);
    {
        frmColour dialog;
        dialog.Show(true);
    }
    glbConfig.ReadAllSettings();
    glbEvents.InitDiary(form_, "");
    glbScreen.SwitchMode(glbScreen.Mode(), true);
    glbScreen.resize();
    timerOn(true);
}

void clsDiaryCommand::ShowHeadings(const std::string& section) {
    if (form_ == nullptr) return;
    timerOn(false);
    {
        frmDiaryPickFields dialog(section);
        dialog.Show(true);
    }
    if (section == "TaskHeadings") {
        glbConfig.ReadAllSettings();
        glbScreen.SwitchMode(glbScreen.Mode(), true);
        glbScreen.resize();
    } else if (section == "ListViewHeadings") {
        glbEvents.DiaryTopLevelDisplay(form_->MonthView1.Value);
    }
    // The note list draws its own columns (the title alone): nothing to draw again.
    timerOn(true);
}

void clsDiaryCommand::ViewYear() {
    if (form_ == nullptr) return;
    frmCalendarView calendar;
    calendar.onDayChosen = [this](VbDate day) {
        if (glbScreen.Mode() != "CALENDAR") glbScreen.SwitchMode("CALENDAR");
        form_->MonthView1.Value = day;
        form_->MonthView1_DateClick(day);
    };
    calendar.Load();
    calendar.ShowYear(form_->MonthView1.Value);
    calendar.Show(true);
}

void clsDiaryCommand::ShowAbout() {
    frmAbout about;
    about.Show(true);
}

}  // namespace orbidex
