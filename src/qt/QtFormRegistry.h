#pragma once
// Which Qt window shows which form: a factory per form name.

#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <string>

namespace orbidex {

class Form;

class QtFormRegistry {
public:
    using Factory = std::function<QWidget*(Form&)>;

    void Register(const std::string& formName, Factory factory) { factories_[formName] = std::move(factory); }
    /// A new window for the form, or nullptr when no window is registered for it.
    QWidget* Create(Form& form) const;

private:
    std::map<std::string, Factory> factories_;
};

/// Registers the windows of all of the program's forms.
void RegisterProgramWindows(QtFormRegistry& registry);

}  // namespace orbidex
