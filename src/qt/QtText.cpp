#include "qt/QtText.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

#include "foundation/Cp1252.h"

namespace orbidex {

namespace {

double logicalDpi() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->logicalDotsPerInch() : 96.0;
}

}  // namespace

QString ToQString(const std::string& bytes) {
    return QString::fromUtf8(Utf8FromCp1252(bytes)).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string FromQString(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    return Cp1252FromUtf8(std::string_view(utf8.constData(), static_cast<size_t>(utf8.size())));
}

int TwipsToPixels(long twips) { return static_cast<int>(std::lround(static_cast<double>(twips) * logicalDpi() / 1440.0)); }

long PixelsToTwips(int pixels) { return std::lround(static_cast<double>(pixels) * 1440.0 / logicalDpi()); }

}  // namespace orbidex
