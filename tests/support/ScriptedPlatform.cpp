#include "ScriptedPlatform.h"

#include <cstdio>

#include "controls/Form.h"
#include "foundation/VbDate.h"

namespace orbidex::test {

ScriptedPlatform::ScriptedPlatform() : now_(DateSerial(2004, 6, 5) + TimeSerial(9, 30, 12)) {}

void ScriptedPlatform::AdvanceSeconds(double seconds) { now_ += seconds / 86400.0; }

double ScriptedPlatform::Rnd() {
    const double v = randoms_[nextRandom_ % randoms_.size()];
    ++nextRandom_;
    return v;
}

std::vector<std::string> ScriptedPlatform::MessageTexts() const {
    std::vector<std::string> texts;
    for (const DialogRecord& r : transcript_)
        if (r.kind == DialogRecord::Message) texts.push_back(r.text);
    return texts;
}

int ScriptedPlatform::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    int answer = vbOK;
    if (!msgAnswers_.empty()) {
        answer = msgAnswers_.front();
        msgAnswers_.pop_front();
    } else if ((buttons & 7) != vbOKOnly) {
        problem("Unanswered question: [" + title + "] " + prompt);
        answer = vbCancel;
    }
    transcript_.push_back({DialogRecord::Message, title, prompt, buttons, std::to_string(answer)});
    return answer;
}

std::string ScriptedPlatform::InputBox(const std::string& prompt, const std::string& title,
                                       const std::string& defaultText) {
    std::string answer;
    if (!inputAnswers_.empty()) {
        answer = inputAnswers_.front();
        inputAnswers_.pop_front();
    } else {
        problem("Unanswered input box: [" + title + "] " + prompt + " (default " + defaultText + ")");
    }
    transcript_.push_back({DialogRecord::Input, title, prompt, 0, answer});
    return answer;
}

std::string ScriptedPlatform::PickFolder(const std::string& title, const std::string& startFolder) {
    std::string answer;
    if (!folderAnswers_.empty()) {
        answer = folderAnswers_.front();
        folderAnswers_.pop_front();
    } else {
        problem("Unanswered folder picker: [" + title + "] from " + startFolder);
    }
    transcript_.push_back({DialogRecord::Folder, title, startFolder, 0, answer});
    return answer;
}

std::string ScriptedPlatform::PickFileToOpen(const std::string& title, const std::string& filter) {
    std::string file;
    if (!pickedFiles_.empty()) {
        file = pickedFiles_.front();
        pickedFiles_.pop_front();
    } else {
        problem("Unanswered file picker: [" + title + "] " + filter);
    }
    transcript_.push_back({DialogRecord::Input, title, filter, 0, file});
    return file;
}

bool ScriptedPlatform::PickColour(const std::string& title, long& current) {
    long answer = -1;
    if (!colourAnswers_.empty()) {
        answer = colourAnswers_.front();
        colourAnswers_.pop_front();
    } else {
        problem("Unanswered colour chooser: [" + title + "]");
    }
    transcript_.push_back({DialogRecord::Colour, title, std::to_string(current), 0, std::to_string(answer)});
    if (answer < 0) return false;
    current = answer;
    return true;
}

bool ScriptedPlatform::PickFont(const std::string& title, std::string& name, double& size) {
    std::pair<std::string, double> answer;
    if (!fontAnswers_.empty()) {
        answer = fontAnswers_.front();
        fontAnswers_.pop_front();
    } else {
        problem("Unanswered font chooser: [" + title + "]");
    }
    transcript_.push_back({DialogRecord::Font, title, name, 0, answer.first});
    if (answer.first.empty()) return false;
    name = answer.first;
    size = answer.second;
    return true;
}

void ScriptedPlatform::PrintPreview(const PrintDocument& document) { printed_.push_back(document); }

std::string ScriptedPlatform::PickFileToSave(const std::string& title, const std::string& filter,
                                             const std::string& proposedName) {
    return PickFileToOpen(title, filter + " [" + proposedName + "]");
}

void ScriptedPlatform::DoEvents() {
    ++doEventsCount_;
    // A wait that never ends would hang the test: stop it with a problem instead.
    if (doEventsCount_ % kRunawayDoEvents == 0) {
        problem("DoEvents called " + std::to_string(doEventsCount_) + " times: a wait that never ends?");
        throw ProgramEnded{-1};
    }
    AdvanceSeconds(doEventsTick_);
    for (size_t i = 0; i < hooks_.size(); ++i) hooks_[i]();
}

bool ScriptedPlatform::RunAndWait(const std::string& commandLine) {
    processes_.push_back(commandLine);
    return processHandler_ ? processHandler_(commandLine) : true;
}

bool ScriptedPlatform::StartProcess(const std::string& commandLine) { return RunAndWait(commandLine); }

int ScriptedPlatform::OpenDocument(const std::string& fileOrUrl) {
    documents_.push_back(fileOrUrl);
    return openDocumentResult_;
}

void ScriptedPlatform::QueueFormScript(const std::string& formName, std::function<void(Form&)> script) {
    formScripts_[formName].push_back(std::move(script));
}

void ScriptedPlatform::runFormScript(Form& form) {
    formsShown_.push_back(form.Name());
    auto it = formScripts_.find(form.Name());
    if (it == formScripts_.end() || it->second.empty()) {
        if (!allowUnscripted_) problem("Form shown without a script: " + form.Name());
        return;
    }
    auto script = std::move(it->second.front());
    it->second.pop_front();
    script(form);
}

void ScriptedPlatform::ShowModal(Form& form) { runFormScript(form); }

void ScriptedPlatform::ShowModeless(Form& form) { runFormScript(form); }

void ScriptedPlatform::problem(const std::string& description) {
    if (onProblem_)
        onProblem_(description);
    else
        std::fprintf(stderr, "ScriptedPlatform: %s\n", description.c_str());
}

void ScriptedPlatform::EndProgram(int exitCode) { throw ProgramEnded{exitCode}; }

}  // namespace orbidex::test
