#pragma once
// The base of every form: its place in twips, its caption, the load and unload
// handlers, and its showing through the platform.  A form owns its control models
// as members; the window toolkit builds a window for it when it is shown.

#include <string>
#include <utility>

namespace orbidex {

class Form {
public:
    explicit Form(std::string name) : name_(std::move(name)) {}
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    /// The form's name, as the settings file and the window toolkit know it.
    const std::string& Name() const { return name_; }

    /// Runs Form_Load once, at the first use.
    void Load();
    bool IsLoaded() const { return loaded_; }
    /// Loads the form and shows it, modally (returning when it is unloaded or
    /// hidden) or not.
    void Show(bool modal);
    /// Hides the form and marks it unloaded; a modal form returns to its caller.
    void Unload();
    bool IsUnloaded() const { return unloaded_; }
    void Hide();

    virtual void Form_Load() {}
    /// Called when the user closes the window; setting `cancel` keeps it open.
    virtual void Form_Unload(int& cancel) { (void)cancel; }

    std::string Caption;
    long Left = 0;
    long Top = 0;
    long Width = 0;
    long Height = 0;
    int WindowState = 0;  ///< 0 normal, 1 minimised, 2 maximised
    bool Visible = false;

private:
    std::string name_;
    bool loaded_ = false;
    bool unloaded_ = false;
};

}  // namespace orbidex
