#pragma once
// A browser pane: it shows the file (stored path, with an optional "#anchor") or
// the address it was last sent to.

#include <string>

#include "controls/Control.h"

namespace orbidex {

class WebBrowser : public Control {
public:
    using Control::Control;

    /// The file or address shown now.
    const std::string& LocationURL() const { return location_; }
    /// Shows the file or address; the same one again is shown anew (it may have
    /// been rewritten).
    void Navigate2(const std::string& url);
    void Navigate(const std::string& url) { Navigate2(url); }
    void Refresh() { Navigate2(location_); }
    /// How many times the pane was sent somewhere (views compare it).
    unsigned long NavigationCount() const { return navigations_; }

    std::function<void(const std::string& url)> onNavigateComplete2;
    /// The user followed a link in the page.
    void UserNavigate(const std::string& url);

private:
    std::string location_;
    unsigned long navigations_ = 0;
};

}  // namespace orbidex
