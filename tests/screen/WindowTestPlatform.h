#pragma once
// The real platform for the window tests: a fixed clock, a program folder of the
// test's own, message boxes answered from a queue (OK when it is empty), documents
// and processes only noted, and modal windows driven by the test once they are up.

#include <gtest/gtest.h>

#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ViewTestSupport.h"
#include "controls/Form.h"
#include "foundation/VbDate.h"
#include "qt/QtPlatform.h"
#include "screen/PrintDocument.h"

namespace orbidex::test {

class WindowTestPlatform : public QtPlatform {
public:
    /// What a test does in a modal window while its event loop runs.
    using Driver = std::function<void(Form& form, QWidget& window)>;

    WindowTestPlatform(QtFormRegistry& forms, std::string folder) : QtPlatform(forms), folder_(std::move(folder)) {}
    VbDate Now() override { return DateSerial(2004, 6, 5) + TimeSerial(9, 30, 12); }
    std::string ProgramFolder() override { return folder_; }
    bool AnotherInstanceRunning() override { return false; }
    int MsgBox(const std::string& prompt, int, const std::string&) override {
        messages.push_back(prompt);
        if (answers.empty()) return vbOK;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
    int OpenDocument(const std::string& file) override {
        documents.push_back(file);
        return 42;
    }
    /// Keeps the heading of each document instead of showing the modal preview.
    void PrintPreview(const PrintDocument& document) override { printed.push_back(document.heading); }
    bool StartProcess(const std::string&) override { return true; }
    [[noreturn]] void EndProgram(int exitCode) override { throw ProgramEnded{exitCode}; }

    /// Runs `drive` in the next modal window, once it is shown.  A window the driver
    /// leaves open fails the test and is closed, so that a test never hangs.
    void OnNextModal(Driver drive) { drivers_.push_back(std::move(drive)); }
    void ShowModal(Form& form) override {
        auto open = std::make_shared<bool>(true);
        if (!drivers_.empty()) {
            Driver drive = std::move(drivers_.front());
            drivers_.pop_front();
            QTimer::singleShot(0, [this, &form, drive, open] {
                if (!*open) return;
                ProcessEvents();
                if (QWidget* window = WindowOf(form)) drive(form, *window);
                if (*open && form.Visible) {
                    ADD_FAILURE() << form.Name() << " was left open";
                    form.Unload();
                }
            });
        }
        QtPlatform::ShowModal(form);
        *open = false;
    }

    std::vector<std::string> messages;
    std::deque<int> answers;
    std::vector<std::string> documents;
    std::vector<std::string> printed;

private:
    std::string folder_;
    std::deque<Driver> drivers_;
};

}  // namespace orbidex::test
