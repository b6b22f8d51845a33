#pragma once
// The options dialog: the two data paths and the settings the user changes, on the
// tabs "Data Files", "Display", "Calendar", "Task", "Notes", "Staff", "Security" and
// "Advanced".  OK checks the paths and writes every control to its key of the
// settings file; Cancel, or closing the window, writes nothing.  The caller reads the
// settings again after.

#include <string>

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/ScrollBar.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"

namespace orbidex {

/// A path as the dialog's boxes show it, in this system's form; "" stays "".  The
/// boxes take either form back.
std::string ShownPath(const std::string& storedPath);

class frmOptions : public Form {
public:
    frmOptions();

    void Form_Load() override;
    /// Shows the tab of that caption, or "Data Files" for a tab that local mode closes.
    void OpenOnTab(const std::string& caption);

    /// Fills the controls from the settings.
    void LoadMainForm();
    /// "" when the paths can be used, else the reason; a reason that begins
    /// "WARNING" may be overruled.  A trailing "\" is cut from both paths.
    std::string ValidateDataPaths(std::string& localPath, std::string& networkPath, bool runLocal);
    /// Checks the paths and writes every control to its key; false when nothing was
    /// written (paths refused, or the user would not go on).
    bool SaveAllDiarySettings();
    /// The default settings file, with the paths found anew, then saved.
    void RestoreDefaultDiarySettings();

    void tabOpt_Click();
    /// The folder picker for the path box of the button (0 local, 1 network).
    void cmdDataPath_Click(int index);
    void cmdDefaultLocalPath_Click();
    void cmdAutomapClient_Click();
    void cmdDefault_Click();
    /// The columns of the event list, and of the task list, in their dialog.
    void cmdCalendarHeadings_Click();
    void cmdTaskHeadings_Click();
    void cmdNoteHeadings_Click();
    void cmbCal_Click(int index);
    void VScroll1_Change();
    void VScroll2_Change();
    void cmdOK_Click();
    void cmdCancel_Click();

    TabStrip tabOpt{this, "tabOpt"};
    ControlArray<Frame> frameOpt{this, "frameOpt"};
    ControlArray<Label> lblOpt{this, "lblOpt"};

    // "Data Files": the local path (0) and the network path (1)
    ControlArray<TextBox> Text1{this, "Text1"};
    ControlArray<CommandButton> cmdDataPath{this, "cmdDataPath"};
    CommandButton cmdDefaultLocalPath{this, "cmdDefaultLocalPath"};
    CommandButton cmdAutomapClient{this, "cmdAutomapClient"};
    CheckBox chkRunLocal{this, "chkRunLocal"};

    // "Display"
    CheckBox chkShowToolbar{this, "chkShowToolbar"};
    CheckBox chkShowToolbarText{this, "chkShowToolbarText"};
    CheckBox chkShowShortCut{this, "chkShowShortCut"};
    CheckBox chkShortCutSmallIcon{this, "chkShortCutSmallIcon"};
    CheckBox chkShowFolders{this, "chkShowFolders"};

    // "Calendar"
    ComboBox cmbGridOrList{this, "cmbGridOrList"};
    ComboBox cmbDayWeekMonth{this, "cmbDayWeekMonth"};
    ControlArray<ComboBox> cmbCal{this, "cmbCal"};  ///< rows (0) and columns (1) of months
    CheckBox chkShowCalendar{this, "chkShowCalendar"};
    ComboBox cmbFileEvents{this, "cmbFileEvents"};
    ComboBox cmbStartTime{this, "cmbStartTime"};
    ComboBox cmbStopTime{this, "cmbStopTime"};
    ComboBox cmbSlots{this, "cmbSlots"};
    CheckBox chkWordwrap{this, "chkWordwrap"};
    CheckBox chkAutosize{this, "chkAutosize"};
    Label lblHeightMin{this, "lblHeightMin"};
    ScrollBar VScroll1{this, "VScroll1"};
    Label lblHeightMax{this, "lblHeightMax"};
    ScrollBar VScroll2{this, "VScroll2"};
    CommandButton cmdCalendarHeadings{this, "cmdCalendarHeadings"};

    // "Task" and "Notes"
    CommandButton cmdTaskHeadings{this, "cmdTaskHeadings"};
    CommandButton cmdNoteHeadings{this, "cmdNoteHeadings"};

    // "Staff"
    CheckBox chkShowShaded{this, "chkShowShaded"};
    CheckBox chkShowLocation{this, "chkShowLocation"};
    CheckBox chkShowDetails{this, "chkShowDetails"};
    CheckBox chkShowTotals{this, "chkShowTotals"};
    CheckBox chkAlwaysRefresh{this, "chkAlwaysRefresh"};

    // "Security"
    ListBox lstSecurity{this, "lstSecurity"};
    TextBox txtPassword{this, "txtPassword"};

    // "Advanced"
    TextBox txtTimeOut{this, "txtTimeOut"};
    CheckBox chkShowPopupMessages{this, "chkShowPopupMessages"};
    CheckBox chkRetryAfterOutage{this, "chkRetryAfterOutage"};
    TextBox txtToolsPath{this, "txtToolsPath"};

    CommandButton cmdDefault{this, "cmdDefault"};
    CommandButton cmdOK{this, "cmdOK"};
    CommandButton cmdCancel{this, "cmdCancel"};

private:
    void placeControls();
    void placeDataFilesTab(Frame& tab);
    void placeCalendarTab(Frame& tab);
    void placeHeadingsTab(Frame& tab, CommandButton& button, const std::string& buttonCaption, const std::string& tip,
                          const std::string& text);
    void placeSecurityTab(Frame& tab);
    void placeAdvancedTab(Frame& tab);
    void fillLists();
    void bindEvents();
    /// Writes the controls' values to the settings.
    void writeSettings(const std::string& localPath, const std::string& networkPath);
    /// A caption from the label array on the page `tab`; a caption higher than one
    /// line wraps.
    Label& caption(Frame& tab, const std::string& text, long left, long top, long width, long height = 255);
    /// Months down times months across make no more than 12.
    bool calendarFits();

    long shownTab_ = 1;     ///< the tab whose page is up
    bool loading_ = false;  ///< the controls are being filled from the settings
    int nextLabel_ = 0;     ///< the next free caption of lblOpt
};

}  // namespace orbidex
