// The monthly files: the data folder, the names, loading one or two months, the
// test for a change behind the program's back, and the lists of files.
#include <algorithm>
#include <unordered_set>

#include "config/PrivateProfile.h"
#include "config/clsConfigDiary.h"
#include "diary/cDiaryRecords.h"
#include "foundation/DateHelpers.h"
#include "foundation/FileHelpers.h"
#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/VbDate.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "screen/frmClientDiaryMain.h"

namespace orbidex {

namespace {

// Where the product's installer puts the program; proposed when nothing else is known.
const char* const kInstallFolder = "C:\\Program Files\\brindlewick\\orbidex";

// File names in the order a Windows folder lists them: by name, without regard to case.
std::vector<std::string> sortedWithoutCase(std::vector<std::string> names) {
    std::sort(names.begin(), names.end(),
              [](const std::string& a, const std::string& b) { return UCase(a) < UCase(b); });
    return names;
}

VbDate firstOfNextMonth(VbDate date) {
    return DateSerial(Year(date), Month(date) + 1, 1);
}

}  // namespace

std::string cDiaryRecords::stampOf(const std::string& file) {
    VbDate written = 0;
    if (!FileTimeStamp(file, written)) return "";
    return FormatDate(written, "yyyy-mm-dd hh:mm:ss") + " " + std::to_string(FileLength(file));
}

std::string cDiaryRecords::diaryFileName(VbDate date) const {
    return gStrDataPath + "D" + FormatDate(date, "yyyymm") + ".dat";
}

std::string cDiaryRecords::GetDiaryFileNameForDate(VbDate date) {
    const std::string name = diaryFileName(date);
    if (!FileExists(name) && IsDiaryDate(date)) AppendToFile(name, "\r\n");
    return name;
}

void cDiaryRecords::InitDiary(frmClientDiaryMain* mainForm, const std::string& settingsFile) {
    mainForm_ = mainForm;
    settingsFile_ = settingsFile.empty() ? gStrIniFile : settingsFile;
    ValidateDataPath(gStrDataPath);
    // No separator between the two: installations have their data there already.
    if (gStrDataPath.empty()) gStrDataPath = platform().ProgramFolder() + "data\\";
    if (Right(gStrDataPath, 1) != "\\") gStrDataPath += "\\";
    gStrDiaryDataFile = GetDiaryFileNameForDate(Today());
    gStrTasksFile = gStrDataPath + "D_tasks.dat";
    gStrContactsFile = gStrDataPath + "D_contacts.dat";
    gStrNotesFile = gStrDataPath + "D_notes.dat";
}

void cDiaryRecords::ValidateDataPath(std::string path) {
    if (IsPathWritable(path)) return;
    std::string answer = platform().InputBox(
        "Enter the path of any existing Diary files from Brindlewick Software - if you havent used this program "
        "before click OK to use the applications current directory",
        "Brindlewick Software's Diary - Path for Datafiles", platform().ProgramFolder());
    if (answer.empty()) answer = platform().ProgramFolder();
    if (Right(answer, 1) != "\\") answer += "\\";
    if (IsPathWritable(answer)) {
        WritePrivateProfileString("diary", "dataPath", answer, settingsFile_.empty() ? gStrIniFile : settingsFile_);
    } else {
        platform().MsgBox("The path you chose does not exist , or is invalid. \r\nPlease run the config screen again.",
                          vbOKOnly, "Path not valid - run Config");
    }
}

long cDiaryRecords::readLinesInto(const std::string& bytes, long from) {
    long i = from;
    for (const std::string& line : SplitLines(bytes)) {
        if (i > totEvents()) SetUpperBound(i + 100);
        CreateRecordAt(i).GetDiaryRecordFromText(line);
        ++i;
    }
    return i;
}

void cDiaryRecords::LoadDiaryData(VbDate date) {
    platform().SetBusyCursor(true);
    // The array is read anew in file order: the selected event is found again by its ID.
    const bool selected = HasSelectedEvent();
    const std::string chosenId = selected ? events(gintcur).ID : "";
    const std::string chosenMonth = selected ? Left(events(gintcur).DateEvent, 6) : "";
    slots_.clear();
    SetUpperBound(100);
    gBoolExtraDiaryDataLoaded = false;
    gStrDiaryDataFile = GetDiaryFileNameForDate(date);
    fileStamp_ = "garbage";

    std::string bytes;
    if (!ReadWholeFile(gStrDiaryDataFile, bytes))
        glbLog.log("LoadDiaryData could not read " + gStrDiaryDataFile + " - the month shows no events", 0);
    const long count = readLinesInto(bytes, 0);

    fileStamp_ = stampOf(gStrDiaryDataFile);
    gLngWhichMonthIsLoaded = date;
    gStrFirstDatafile = gStrDiaryDataFile;
    setTotalEvents(count);
    SetUpperBound(count);
    glbLog.log("LoadDiaryData loaded " + CStr(count) + " records from " + gStrDiaryDataFile, 3);

    // Only the views of 7 and 14 days hold two months; the earlier month wins.
    for (int days : {14, 7}) {
        if (glbNumDaysToDisplay != days) continue;
        if (Month(date - days) != Month(date))
            LoadExtraDiaryData(date - days);
        else if (Month(date + days) != Month(date))
            LoadExtraDiaryData(date + days);
    }
    if (gintcur >= 0) gintcur = AsCurrentIndex(SelectDiaryRecordFromIDInMonth(chosenId, chosenMonth));
    platform().SetBusyCursor(false);
}

bool cDiaryRecords::HasLoaded(VbDate date) const {
    return gLngWhichMonthIsLoaded == date && gStrFirstDatafile == diaryFileName(date) &&
           fileStamp_ == stampOf(gStrFirstDatafile);
}

void cDiaryRecords::LoadExtraDiaryData(VbDate date) {
    if (gBoolExtraDiaryDataLoaded) {
        glbLog.log("WARNING - LoadExtraDiaryData function called for " + FormatDate(date, "yyyy-mm-dd") +
                       " but exited function without loading data because the flag 'gBoolExtraDiaryDataLoaded' was "
                       "set to TRUE'",
                   0);
        return;
    }
    const std::string file = GetDiaryFileNameForDate(date);
    std::string bytes;
    if (!ReadWholeFile(file, bytes)) return;
    const long from = loadedCount();
    SetUpperBound(from + 100);  // the first event lands in the empty top slot
    const long count = readLinesInto(bytes, from);
    gBoolExtraDiaryDataLoaded = true;
    gStrSecondDatafile = file;
    SetUpperBound(count);
    setTotalEvents(count);
}

void cDiaryRecords::CheckDataFileAndReloadIfNeccesary() {
    if (fileStamp_ == stampOf(gStrDiaryDataFile)) return;
    glbLog.log("Auto reloading datafile ... disk version changed", 0);
    LoadDiaryData(MainForm().MonthView1.Value);
}

long cDiaryRecords::ReadDiaryFileToArray(const std::string& file, std::vector<cDiaryRecord>& records,
                                         bool leaveOutUsage) {
    std::string bytes;
    ReadWholeFile(file, bytes);
    records.assign(1, cDiaryRecord());
    long index = 1;
    for (const std::string& line : SplitLines(bytes)) {
        if (Trim(line).empty()) continue;
        cDiaryRecord record;
        record.GetDiaryRecordFromText(line);
        if (leaveOutUsage) {
            if (record.IsDiaryEventPCUsage() || record.IsDiaryEventAfileAccess()) continue;
            if (static_cast<long>(records.size()) <= index) records.resize(static_cast<size_t>(index) + 100);
            records[static_cast<size_t>(index)] = record;
        }
        ++index;
    }
    records.resize(static_cast<size_t>(index) + 1);
    return index;
}

long cDiaryRecords::CreateDiaryDataFileList(VbDate fromDate, VbDate toDate, std::vector<std::string>& files,
                                            bool allFiles) {
    files.assign(1, "");
    if (allFiles) {
        const std::vector<std::string> names = sortedWithoutCase(ListFolder(gStrDataPath + "D*.DAT", false));
        if (names.empty()) {
            glbLog.log("hmmm.. cant seem to find any datafiles - aborting CreateDiaryDataFileList", 0);
            return 0;
        }
        for (size_t k = 0; k < names.size(); ++k) {
            const std::string name = UCase(names[k]);
            if (name == "D_TASKS.DAT" || (k > 0 && !EndsWith(name, ".DAT"))) continue;
            files.push_back(gStrDataPath + names[k]);
        }
    } else {
        // The months from the first to the last, their files made on the way.
        std::unordered_set<std::string> months{UCase(GetDiaryFileNameForDate(fromDate))};
        const std::string last = UCase(diaryFileName(toDate));
        for (VbDate month = firstOfNextMonth(fromDate); !months.contains(last) && month <= toDate;
             month = firstOfNextMonth(month))
            months.insert(UCase(GetDiaryFileNameForDate(month)));

        const std::vector<std::string> names = sortedWithoutCase(ListFolder(gStrDataPath + "D*.dat", false));
        if (names.empty()) {
            platform().MsgBox("There are no datafiles in the directory " + gStrDataPath, vbOKOnly, "");
            return 0;
        }
        for (const std::string& name : names)
            if (months.contains(UCase(gStrDataPath + name))) files.push_back(gStrDataPath + name);
    }
    const long count = static_cast<long>(files.size()) - 1;
    files.resize(files.size() + 1);  // the upper bound is count + 1
    return count;
}

std::string cDiaryRecords::GetNetworkFileName(const std::string& localFile) const {
    return GetFolderOfPath(localFile) + "X" + Right(GetFileNameOnly(localFile), 10);
}

std::string cDiaryRecords::GetDiaryDataPath() {
    const std::string program = platform().ProgramFolder();
    std::string path;
    if (FileExists(program + "\\Diary.ini")) {
        glbLog.log("Diary INI file found in current directory", 0);
        path = glbConfig.old_ReadINI("diary", "dataPath", program + "\\Diary.ini");
    }
    const std::string dataFolder = program + "\\data\\";
    if (path.empty() && FileExists(dataFolder + "orbidex.ini")) {
        glbLog.log("Diary INI file found in " + dataFolder, 0);
        path = glbConfig.old_ReadINI("diary", "dataPath", dataFolder + "orbidex.ini");
    }
    if (path.empty()) {
        std::string answer = platform().InputBox(
            "Please enter the folder where Brindlewick Software's Orbidex Desk is installed.\r\n\r\n"
            "If you dont have the diary installed, press cancel",
            "Path where Brindlewick Software's Diary is installed", kInstallFolder);
        if (answer.empty()) {
            path = program;
        } else {
            if (Right(answer, 1) == "\\") answer = Left(answer, Len(answer) - 1);
            path = glbConfig.old_ReadINI("diary", "dataPath", answer + "\\orbidex.ini");
            if (path.empty()) path = answer;
        }
    }
    glbLog.log("Diary Files are located in :" + path, 0);
    return path;
}

}  // namespace orbidex
