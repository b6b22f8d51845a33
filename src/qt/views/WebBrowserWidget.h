#pragma once
// Draws a WebBrowser pane: a file of the program (a page with an optional
// "#anchor") is shown in the pane; a web address is offered as a link that opens
// in the desktop's browser.  Links within the program's pages go to the model.

#include "qt/views/ControlWidget.h"

class QTextBrowser;

namespace orbidex {

class WebBrowser;

class WebBrowserWidget : public ControlWidget {
    Q_OBJECT
public:
    WebBrowserWidget(WebBrowser& model, QWidget* parent = nullptr);
    QTextBrowser* browser() const { return browser_; }

protected:
    void syncFromModel() override;

private:
    void showLocation(const std::string& location);

    WebBrowser& web_;
    QTextBrowser* browser_;
    unsigned long shownCount_ = 0;
};

}  // namespace orbidex
