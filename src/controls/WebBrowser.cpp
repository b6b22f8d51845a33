#include "controls/WebBrowser.h"

namespace orbidex {

void WebBrowser::Navigate2(const std::string& url) {
    location_ = url;
    ++navigations_;
    Changed();
    Raise(onNavigateComplete2, location_);
}

void WebBrowser::UserNavigate(const std::string& url) { Navigate2(url); }

}  // namespace orbidex
