#include "qt/views/WebBrowserWidget.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QTextBrowser>
#include <QUrl>

#include "controls/WebBrowser.h"
#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "qt/QtText.h"

namespace orbidex {

namespace {

bool isWebAddress(const std::string& location) {
    const std::string lower = LCase(location);
    return StartsWith(lower, "http:") || StartsWith(lower, "https:") || StartsWith(lower, "www.") ||
           StartsWith(lower, "mailto:");
}

}  // namespace

WebBrowserWidget::WebBrowserWidget(WebBrowser& control, QWidget* parent)
    : ControlWidget(control, parent), web_(control), browser_(new QTextBrowser) {
    browser_->setOpenLinks(false);
    setInner(browser_, browser_->viewport(), browser_);
    connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) {
        if (model() == nullptr) return;
        if (!url.isLocalFile() && !url.isRelative()) {
            QDesktopServices::openUrl(url);
            return;
        }
        const QUrl resolved = browser_->document()->baseUrl().resolved(url);
        std::string target = ToStoredPath(resolved.toLocalFile().toStdString());
        if (resolved.hasFragment()) target += "#" + resolved.fragment().toStdString();
        web_.UserNavigate(target);
    });
    refresh();
}

void WebBrowserWidget::showLocation(const std::string& location) {
    if (location.empty()) {
        browser_->clear();
        return;
    }
    if (isWebAddress(location)) {
        const QString address = ToQString(location);
        browser_->setHtml(QStringLiteral("<p>This page opens in your web browser:</p><p><a href=\"%1\">%2</a></p>")
                              .arg(address.toHtmlEscaped(), address.toHtmlEscaped()));
        return;
    }
    // The page is read here, each time (it may have been rewritten), as the
    // Windows-1252 text the program writes.
    const size_t hash = location.find('#');
    const std::string file = location.substr(0, hash);
    std::string bytes;
    if (!ReadWholeFile(file, bytes)) {
        browser_->setHtml(QStringLiteral("<p>The page %1 cannot be found.</p>").arg(ToQString(file).toHtmlEscaped()));
        return;
    }
    const QFileInfo native(QString::fromStdString(ToNativePath(file)));
    browser_->setSearchPaths({native.absolutePath()});
    browser_->document()->setBaseUrl(QUrl::fromLocalFile(native.absoluteFilePath()));
    browser_->setHtml(ToQString(bytes));
    if (hash != std::string::npos) browser_->scrollToAnchor(QString::fromStdString(location.substr(hash + 1)));
}

void WebBrowserWidget::syncFromModel() {
    if (shownCount_ != web_.NavigationCount()) {
        shownCount_ = web_.NavigationCount();
        showLocation(web_.LocationURL());
    }
}

}  // namespace orbidex
