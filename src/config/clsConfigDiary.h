#pragma once
// The settings: the INI file orbidex.ini, read into these fields at start-up and again
// after the option dialogs, and written key by key.  The companion toolbar program
// shares the file, so every read and every write goes to the file itself; the fields
// are only a cache of what was last read.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "config/IniDocument.h"
#include "diary/cDiaryRecord.h"
#include "screen/clsTimeSlots.h"

namespace orbidex {

class ComboBox;
class Form;

class clsConfigDiary {
public:
    clsConfigDiary();

    // Settings, named after their keys.  Numbers read leniently take the leading
    // number of the text; those read strictly keep their value when the text is no
    // number (see ReadAllSettings).
    int16_t DayWeekMonth = 0;  ///< days the calendar view shows: 1, 7, 14 or 31
    int16_t rows = 0;          ///< month calendar layout
    int16_t cols = 0;
    int16_t ShowCalendar = 0;
    std::string FlatControls;
    std::string GridOrList;  ///< "GRID", or anything else for the list
    // Colours: 24-bit, red in the low byte.
    int32_t normal_BackColor = 0;
    int32_t heading_BackColor = 0;
    int32_t multi_BackColor = 0;
    int32_t weekend_BackColor = 0;
    int32_t spanning_BackColor = 0;
    int32_t PCFile_ForeColor = 0;
    int32_t PCFile_BackColor = 0;
    int32_t normal_ForeColor = 0;
    int32_t heading_ForeColor = 0;
    int32_t multi_ForeColor = 0;
    int32_t weekend_ForeColor = 0;
    int32_t spanning_ForeColor = 0;
    int32_t today_ForeColor = 0;
    /// The time slot table, made anew by every ReadAllSettings: a view fetches it
    /// from here each time instead of keeping it.
    std::shared_ptr<clsTimeSlots> timeSlots;
    std::string ShowShortCut;
    std::string ShowFolders;
    std::string ShowToolbarText;
    std::string ShowToolbar;
    std::string ShortCutSmallIcon;
    int32_t reminders = 0;  ///< reminder interval in minutes, [intervals] reminders
    std::string datapath;   ///< the server's shared folder, [Network] dataPath
    std::string toolsPath;
    std::string security;
    std::string runLocalModeOnly;  ///< "1": run without a server
    int16_t ShowShaded = 0;
    int16_t ShowLocation = 0;
    int16_t ShowDetails = 0;
    int16_t ShowTotals = 0;
    int16_t AlwaysRefresh = 0;
    int16_t RetryAfterOutage = 0;
    int16_t waitTime = 0;  ///< seconds to wait for the server, 1 to 20
    int16_t ShowPopupMessages = 0;
    int16_t Wordwrap = 0;
    int16_t Autosize = 0;
    int16_t RowHeightMin = 0;  ///< twips
    int16_t RowHeightMax = 0;
    int16_t DisplayFileEvents = 0;
    /// Minutes the tasks are reckoned to take, shown beside the task count.
    int32_t taskMinutes = 0;

    /// The settings file.
    std::string fname;

    // Flags by which the modal dialogs report back.
    bool dialogCancelled = false;
    bool dialogEditing = false;
    bool dataChanged = false;

    // A table of descriptive entries, the start of a settings editor: AddEntry fills
    // it, nothing reads it.
    static constexpr int16_t MaxEntries = 1000;
    std::string curSection;
    std::string curEntry;
    std::string curValue;
    std::string curDescription;
    std::vector<std::string> entrySection;
    std::vector<std::string> entryName;
    std::vector<std::string> entryValue;
    std::vector<std::string> entryDescription;
    int16_t entryCount = 0;

    /// One key of the settings file, read from the file (missing and empty are the
    /// same: "" and a warning in the log at level 3).
    std::string GetValue(const std::string& section, const std::string& key);
    /// Writes one key to the settings file at once; the result is not checked.  Only
    /// the first run makes the settings file: a key for a missing file is not written.
    void SetVal(const std::string& section, const std::string& key, const std::string& value);
    /// The same read as GetValue, on any INI file.
    std::string old_ReadINI(const std::string& section, const std::string& key, const std::string& file);

    /// The full load: refuses a second running copy, runs the first start when there
    /// is no settings file, then reads every setting into the fields and globals.
    void ReadAllSettings();
    /// The second half of the load: paths, colours, column captions, row heights.
    void ReadAllDiaryIniSettings_Orig();
    /// Writes the settings the program changes itself: paths, network, calendar,
    /// appointments, time slots and view.
    void SaveAllSettings();

    /// Restores a form's place from the section named after it; `useScreenSize`
    /// gives a form without a stored size 3/4 of the screen.
    void GetFormSettings(Form& form, const std::string& iniFile, bool useScreenSize);
    /// Stores a form's place, unless it is maximised or minimised, and its state.
    void SaveFormSettings(const Form& form, const std::string& iniFile);

    /// Fills the combo box with the colour names, each padded to 13 characters.
    void BuildColorList(ComboBox& combo);
    /// The colour of a name from BuildColorList's list: dark (a text colour) or pale
    /// (a background).  The name is trimmed and put in capitals, in the argument too.
    /// An unknown name gives 0.
    int32_t GetColorFromString(std::string& name, bool pale);

    void AddEntry(const std::string& section, const std::string& entry, const std::string& value,
                  const std::string& description);
    /// Fills three sample entries; nothing calls it.
    void CreateDefaults();
    /// The settings editor that was never finished: does nothing.
    void EditAllProperties() {}

    // The first start, when there is no settings file.
    /// Asks a client whether to connect to a server (Cancel ends the program), writes
    /// the default file and the choice, all in one write: a first run that cannot
    /// write leaves no file, and the next start runs it again.
    void StartingForFirstTime();
    /// Writes the settings file anew, in one write: its comment header, then every
    /// default.
    void CreateDefaultIniFile();
    void UpdateDefaultDiarySettings();
    void UpdateDefaultTessalineSettings();
    void UpdateDefaultIniColours();
    /// Runs the path detector beside the program and returns the server folder it
    /// found ("" for none), also keeping it as the server path.
    std::string DetectNetworkPath();

private:
    /// The read of every key: asks twice, then logs the warning and gives "".
    std::string readIni(const std::string& section, const std::string& key, const std::string& file);
    void endIfAnotherCopyRuns();
    void readTimeSlots();
    void readNetworkSettings();
    void readColours();
    void readHeadings(const std::string& section, cDiaryRecord& record);
    void readCalendarAndView();
    void setEach(const std::string& section, const std::vector<std::pair<std::string, std::string>>& values);
    /// Writes one key into an existing INI file, or into the new settings file while
    /// it is being made; a failure is logged.
    bool writeKey(const std::string& section, const std::string& key, const std::string& value,
                  const std::string& file);
    /// Writes the settings file that was being made, and ends its making.
    void writeNewFile();

    /// The settings file being made: its keys gather here until it is written whole.
    std::optional<IniDocument> newFile_;
};

extern clsConfigDiary glbConfig;

/// Column captions (or "<hide>") of the event list and of the task list, one per
/// field of the record.
extern cDiaryRecord gListViewHeadings;
extern cDiaryRecord gTaskHeadings;

}  // namespace orbidex
