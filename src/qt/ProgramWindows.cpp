// The Qt window of each form of the program.
#include "qt/MainWindow.h"
#include "qt/ProgramIcons.h"
#include "qt/QtFormRegistry.h"
#include "qt/views/ControlWidget.h"
#include "qt/views/FormWindow.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

void RegisterProgramWindows(QtFormRegistry& registry) {
    registry.Register("frmClientDiaryMain",
                      [](Form& form) { return new MainWindow(static_cast<frmClientDiaryMain&>(form)); });

    // The editing dialogs: every control is drawn at its place by the form's window.
    for (const char* dialog :
         {"frmEditEvent", "frmRescheduleEvent", "frmEventMultiple", "frmDateGenerator", "frmEditTask", "frmEditNote",
          "frmTemplateEdit", "frmTemplateList", "frmListAndDetailsSubForm", "frmClipboard", "frmInfoSearch",
          "frmOptions", "frmBookMeeting", "frmColour", "frmDiaryPickFields", "frmCalendarView",
          "frmAbout"})
        registry.Register(dialog, [](Form& form) { return new FormWindow(form); });

    // The windows shown without waiting: the chat and the note.
    for (const char* window : {"frmChat", "frmStickyNote"})
        registry.Register(window, [](Form& form) { return new FormWindow(form); });

    // The search results show the kind of each event by the program's icons.
    registry.Register("frmSearchResults", [](Form& form) {
        auto* window = new FormWindow(form);
        UseProgramIcons(*window);
        return window;
    });
}

}  // namespace orbidex
