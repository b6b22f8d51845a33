#pragma once
// Text and sizes where the diary's models meet Qt widgets.

#include <QString>
#include <string>

namespace orbidex {

/// Windows-1252 bytes to a QString; "\r\n" line ends become "\n".
QString ToQString(const std::string& bytes);
/// A QString to Windows-1252 bytes.
std::string FromQString(const QString& text);
/// Twips (1/1440 inch) to pixels of the primary screen and back.
int TwipsToPixels(long twips);
long PixelsToTwips(int pixels);

}  // namespace orbidex
