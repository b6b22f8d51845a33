#pragma once
// What every view needs where the models meet Qt: colours, fonts, icons by name,
// key codes, and positions in texts whose lines end in CR LF.

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QString>
#include <string>

#include "controls/OleColor.h"

class QKeyEvent;

namespace orbidex {

/// A colour of the models; system colours come from `palette`.
QColor ToQColor(OleColor color, const QPalette& palette);
QColor ToQColor(OleColor color);

/// A font by the models' description.  Fonts the machine lacks are stood in for
/// by a sans-serif face; "Black" and "Narrow" in a name keep their weight and width.
QFont ToQFont(const std::string& name, double size, bool bold, bool italic = false);

/// An icon for an image name: a small tile in a colour of its own, with the name's
/// first letter.  The same name gives the same icon.
QIcon IconNamed(const std::string& name);

/// The key code and shift state of a key event, as KeyDown passes them (0 for keys
/// without one).
int ToVbKeyCode(const QKeyEvent& event);
int ToVbShift(Qt::KeyboardModifiers modifiers);
int ToVbButton(Qt::MouseButtons buttons);

/// Text of a model (Windows-1252, CR LF) for a widget, and back.
QString ToWidgetText(const std::string& text);
std::string FromWidgetText(const QString& text);
/// A position in a model's text and the same position in the widget's text, where
/// each CR LF is one character.
int ToWidgetPosition(const std::string& text, long position);
long FromWidgetPosition(const std::string& text, int position);

}  // namespace orbidex
