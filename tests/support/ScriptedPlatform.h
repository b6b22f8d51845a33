#pragma once
// A platform for tests: a clock that only moves when told, message and input boxes
// answered from queues and written to a transcript, forms driven by scripts, and
// hooks that run inside DoEvents().

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "screen/PrintDocument.h"

namespace orbidex::test {

struct DialogRecord {
    enum Kind { Message, Input, Folder, Colour, Font } kind = Message;
    std::string title;
    std::string text;
    int buttons = 0;
    std::string answer;  ///< the button number or the text given back
};

class ScriptedPlatform : public Platform {
public:
    ScriptedPlatform();

    // The clock
    void SetNow(VbDate now) { now_ = now; }
    void AdvanceSeconds(double seconds);
    /// How far the clock moves at each DoEvents(): by default not at all, so that
    /// the event pump of a drawing leaves the time a test expects.  A test of a wait
    /// that loops on the clock sets a tick (or a hook that ends the wait).
    void SetDoEventsTick(double seconds) { doEventsTick_ = seconds; }

    // Answers: each question takes the first queued answer.  A question without one
    // is reported as a problem (OK-only messages need none).
    void QueueMsgBoxAnswer(int answer) { msgAnswers_.push_back(answer); }
    void QueueInputAnswer(const std::string& text) { inputAnswers_.push_back(text); }
    /// The folder the next folder picker gives ("" for Cancel).
    void QueueFolderAnswer(const std::string& folder) { folderAnswers_.push_back(folder); }
    /// The file picker answers with the queued files in turn (stored paths, "" to cancel).
    void QueuePickedFile(const std::string& file) { pickedFiles_.push_back(file); }
    /// The colour the next colour chooser gives (-1 for Cancel).
    void QueueColourAnswer(long colour) { colourAnswers_.push_back(colour); }
    /// The font the next font chooser gives ("" for Cancel).
    void QueueFontAnswer(const std::string& name, double size) { fontAnswers_.push_back({name, size}); }
    const std::vector<DialogRecord>& Transcript() const { return transcript_; }
    /// The texts of all message boxes shown so far.
    std::vector<std::string> MessageTexts() const;
    void ClearTranscript() { transcript_.clear(); }

    /// Runs `script` when the form named `formName` is shown (modally or not); the
    /// script acts as a user: sets controls, calls handlers.  Scripts for one form
    /// run in the order they were queued; a form shown without a script fails the
    /// problem unless AllowUnscriptedForms is set.
    void QueueFormScript(const std::string& formName, std::function<void(Form&)> script);
    void AllowUnscriptedForms(bool allow) { allowUnscripted_ = allow; }
    std::vector<std::string> FormsShown() const { return formsShown_; }

    /// Called with a description of anything a test did not arrange for: a question
    /// without an answer, a form without a script.  The test fixture makes it a failure.
    void SetProblemHandler(std::function<void(const std::string&)> handler) { onProblem_ = std::move(handler); }

    /// Runs at every DoEvents(), after the clock tick.
    void AddDoEventsHook(std::function<void()> hook) { hooks_.push_back(std::move(hook)); }
    long DoEventsCount() const { return doEventsCount_; }

    // The machine
    void SetProgramFolder(const std::string& storedFolder) { programFolder_ = storedFolder; }
    void SetExeName(const std::string& name) { exeName_ = name; }
    void SetUserName(const std::string& name) { userName_ = name; }
    void SetComputerName(const std::string& name) { computerName_ = name; }
    void SetAnotherInstanceRunning(bool running) { anotherInstance_ = running; }
    void SetScreen(ScreenSize screen) { screen_ = screen; }
    /// Decides what a started process does; by default it does nothing and succeeds.
    void SetProcessHandler(std::function<bool(const std::string&)> handler) { processHandler_ = std::move(handler); }
    std::vector<std::string> ProcessesStarted() const { return processes_; }
    void SetOpenDocumentResult(int code) { openDocumentResult_ = code; }
    std::vector<std::string> DocumentsOpened() const { return documents_; }
    /// Rnd() gives these values in turn, then repeats them; default 0.5.
    void SetRandomValues(std::vector<double> values) { randoms_ = std::move(values); }
    bool BusyCursor() const { return busy_; }
    long BeepCount() const { return beeps_; }
    std::vector<std::string> SoundsPlayed() const { return sounds_; }

    // Platform
    VbDate Now() override { return now_; }
    double Rnd() override;
    int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText) override;
    std::string PickFileToOpen(const std::string& title, const std::string& filter) override;
    /// Keeps the document, for Printed().
    void PrintPreview(const PrintDocument& document) override;
    /// The documents shown in a print preview, in order.
    const std::vector<PrintDocument>& Printed() const { return printed_; }
    /// Answers from the same queue as PickFileToOpen.
    std::string PickFileToSave(const std::string& title, const std::string& filter,
                               const std::string& proposedName) override;
    void SetBusyCursor(bool busy) override { busy_ = busy; }
    void DoEvents() override;
    void Beep() override { ++beeps_; }
    void PlaySoundFile(const std::string& storedPath) override { sounds_.push_back(storedPath); }
    std::string ClipboardText() override { return clipboard_; }
    void SetClipboardText(const std::string& text) override { clipboard_ = text; }
    std::string ProgramFolder() override { return programFolder_; }
    std::string ExeName() override { return exeName_; }
    std::string UserName() override { return userName_; }
    std::string ComputerName() override { return computerName_; }
    bool AnotherInstanceRunning() override { return anotherInstance_; }
    ScreenSize Screen() override { return screen_; }
    bool RunAndWait(const std::string& commandLine) override;
    bool StartProcess(const std::string& commandLine) override;
    int OpenDocument(const std::string& fileOrUrl) override;
    std::string PickFolder(const std::string& title, const std::string& startFolder) override;
    bool PickColour(const std::string& title, long& current) override;
    bool PickFont(const std::string& title, std::string& name, double& size) override;
    void ShowModal(Form& form) override;
    void ShowModeless(Form& form) override;
    void HideForm(Form&) override {}
    [[noreturn]] void EndProgram(int exitCode) override;

private:
    static constexpr long kRunawayDoEvents = 1000000;

    void runFormScript(Form& form);
    void problem(const std::string& description);

    VbDate now_;
    double doEventsTick_ = 0;
    std::deque<int> msgAnswers_;
    std::deque<std::string> inputAnswers_;
    std::deque<std::string> folderAnswers_;
    std::deque<std::string> pickedFiles_;
    std::deque<long> colourAnswers_;
    std::deque<std::pair<std::string, double>> fontAnswers_;
    std::vector<PrintDocument> printed_;
    std::vector<DialogRecord> transcript_;
    std::map<std::string, std::deque<std::function<void(Form&)>>> formScripts_;
    std::vector<std::string> formsShown_;
    bool allowUnscripted_ = false;
    std::function<void(const std::string&)> onProblem_;
    std::vector<std::function<void()>> hooks_;
    long doEventsCount_ = 0;
    std::string programFolder_;
    std::string exeName_ = "orbidex";
    std::string userName_ = "fred";
    std::string computerName_ = "PC1";
    bool anotherInstance_ = false;
    ScreenSize screen_{15360, 11520};  // 1024 x 768 pixels at 15 twips a pixel
    std::function<bool(const std::string&)> processHandler_;
    std::vector<std::string> processes_;
    int openDocumentResult_ = 42;
    std::vector<std::string> documents_;
    std::vector<double> randoms_{0.5};
    size_t nextRandom_ = 0;
    bool busy_ = false;
    long beeps_ = 0;
    std::vector<std::string> sounds_;
    std::string clipboard_;
};

}  // namespace orbidex::test
