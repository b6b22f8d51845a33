#pragma once
// The platform of the real program: Qt's clock, dialogs, event loop and windows.

#include <QHash>
#include <QPointer>
#include <QWidget>

#include "platform/Platform.h"
#include "qt/QtFormRegistry.h"

class QEventLoop;

namespace orbidex {

class QtPlatform : public Platform {
public:
    explicit QtPlatform(QtFormRegistry& forms);
    ~QtPlatform() override;

    VbDate Now() override;
    double Rnd() override;
    int MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultText) override;
    std::string PickFileToOpen(const std::string& title, const std::string& filter) override;
    void PrintPreview(const PrintDocument& document) override;
    std::string PickFileToSave(const std::string& title, const std::string& filter,
                               const std::string& proposedName) override;
    void SetBusyCursor(bool busy) override;
    void DoEvents() override;
    void WaitForEvents(int milliseconds) override;
    void Beep() override;
    void PlaySoundFile(const std::string& storedPath) override;
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;
    std::string ProgramFolder() override;
    std::string ExeName() override;
    std::string UserName() override;
    std::string ComputerName() override;
    bool AnotherInstanceRunning() override;
    ScreenSize Screen() override;
    bool RunAndWait(const std::string& commandLine) override;
    bool StartProcess(const std::string& commandLine) override;
    int OpenDocument(const std::string& fileOrUrl) override;
    std::string PickFolder(const std::string& title, const std::string& startFolder) override;
    bool PickColour(const std::string& title, long& current) override;
    bool PickFont(const std::string& title, std::string& name, double& size) override;
    void ShowModal(Form& form) override;
    void ShowModeless(Form& form) override;
    void HideForm(Form& form) override;
    [[noreturn]] void EndProgram(int exitCode) override;

    /// The window built for a form, or nullptr.
    QWidget* WindowOf(const Form& form) const;

private:
    QWidget* windowFor(Form& form);

    QtFormRegistry& forms_;
    QHash<const Form*, QPointer<QWidget>> windows_;
    QHash<const Form*, QEventLoop*> modalLoops_;
    bool busy_ = false;
    int instanceLock_ = -1;
};

}  // namespace orbidex
