#pragma once
// The one seam between the diary and the machine it runs on: clock, message boxes,
// event pump, processes, the program's own identity and the showing of forms.
// Everything above this header is plain C++; QtPlatform and ScriptedPlatform
// implement it.

#include <string>

namespace orbidex {

struct PrintDocument;

class Form;

/// A VB date: days since 1899-12-30, the fraction the time of day.
using VbDate = double;

/// Button sets, icons and answers of a message box, with their VB values.
enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
    vbDefaultButton3 = 512,
};

enum MsgBoxResult : int {
    vbOK = 1,
    vbCancel = 2,
    vbAbort = 3,
    vbRetry = 4,
    vbIgnore = 5,
    vbYes = 6,
    vbNo = 7,
};

/// Thrown by Platform::EndProgram under test platforms; the real platform ends the
/// process instead.  Never caught by the diary's own code.
struct ProgramEnded {
    int exitCode = 0;
};

struct ScreenSize {
    long widthTwips = 0;
    long heightTwips = 0;
};

class Platform {
public:
    virtual ~Platform() = default;

    // Clock
    virtual VbDate Now() = 0;
    /// A uniform random number in [0, 1).
    virtual double Rnd() = 0;

    // Dialog boxes and the event pump
    virtual int MsgBox(const std::string& prompt, int buttons, const std::string& title) = 0;
    /// The text typed, or "" when the user cancels.
    virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) = 0;
    virtual void SetBusyCursor(bool busy) = 0;
    virtual void DoEvents() = 0;
    /// The event pump of a wait: lets the window run for about `milliseconds`
    /// without keeping the processor busy.  By default one DoEvents().
    virtual void WaitForEvents(int milliseconds) {
        (void)milliseconds;
        DoEvents();
    }
    /// The file the user picks to open, in stored form, among the files that match
    /// `filter` ("Comma-separated files (*.csv);;All files (*)"); "" when the user
    /// cancels.
    virtual std::string PickFileToOpen(const std::string& title, const std::string& filter) {
        (void)title;
        (void)filter;
        return "";
    }
    /// The file the user names to write, in stored form, proposing `proposedName`;
    /// "" when the user cancels.
    virtual std::string PickFileToSave(const std::string& title, const std::string& filter,
                                       const std::string& proposedName) {
        (void)title;
        (void)filter;
        (void)proposedName;
        return "";
    }
    /// Shows the print preview of `document`, from which the user prints it or saves
    /// it as PDF.  By default nothing.
    virtual void PrintPreview(const PrintDocument& document) { (void)document; }
    virtual void Beep() = 0;
    virtual void PlaySoundFile(const std::string& storedPath) = 0;
    virtual std::string ClipboardText() = 0;
    virtual void SetClipboardText(const std::string& text) = 0;

    // The program and its machine.  Folders are in stored form ("\"), without a
    // trailing separator.
    virtual std::string ProgramFolder() = 0;
    virtual std::string ExeName() = 0;
    virtual std::string UserName() = 0;
    virtual std::string ComputerName() = 0;
    /// True when another copy of this program already runs; a copy that crashed
    /// does not count.
    virtual bool AnotherInstanceRunning() = 0;
    virtual ScreenSize Screen() = 0;

    // Processes and documents
    /// Starts the command line and waits for it to end, pumping events.  False when
    /// the program could not be started.
    virtual bool RunAndWait(const std::string& commandLine) = 0;
    /// Starts the command line without waiting.  False when it could not start.
    virtual bool StartProcess(const std::string& commandLine) = 0;
    /// Opens a file (stored form) or an address with the program associated with
    /// it.  Returns a code above 32 on success, or the failure code (2 file not
    /// found, 3 path not found, 5 access denied, 31 no association).
    virtual int OpenDocument(const std::string& fileOrUrl) = 0;
    /// A folder the user picks (stored form, without a trailing separator), starting
    /// in `startFolder` when it is not ""; "" when the user cancels.
    virtual std::string PickFolder(const std::string& title, const std::string& startFolder) {
        (void)title;
        (void)startFolder;
        return "";
    }
    /// A colour the user picks in the desktop's colour chooser, starting on
    /// `current` (24-bit, red in the low byte); false, `current` untouched, when the
    /// user cancels.
    virtual bool PickColour(const std::string& title, long& current) {
        (void)title;
        (void)current;
        return false;
    }
    /// A font the user picks in the desktop's font chooser, starting on `name` and
    /// `size` (points); false, both untouched, when the user cancels.
    virtual bool PickFont(const std::string& title, std::string& name, double& size) {
        (void)title;
        (void)name;
        (void)size;
        return false;
    }

    // Forms
    virtual void ShowModal(Form& form) = 0;
    virtual void ShowModeless(Form& form) = 0;
    virtual void HideForm(Form& form) = 0;

    /// Ends the program at once: no further event or clean-up runs.
    [[noreturn]] virtual void EndProgram(int exitCode) = 0;
};

/// Installs the platform in use; the caller keeps ownership.
void SetPlatform(Platform* platform);
/// The platform in use.  Calling it before SetPlatform is a programming error.
Platform& platform();
/// True once a platform is installed.
bool PlatformInstalled();

}  // namespace orbidex
