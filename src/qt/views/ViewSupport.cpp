#include "qt/views/ViewSupport.h"

#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <algorithm>

#include "controls/Control.h"
#include "controls/KeyCodes.h"
#include "qt/QtText.h"
#include "qt/views/DrawnIcon.h"

namespace orbidex {

namespace {

// Half way between two colours.
QColor midway(const QColor& a, const QColor& b) {
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

// Draws the tile of an image name: a square in the name's own colour with the
// name's first letter.
void drawTile(QPixmap& canvas, const QString& key) {
    const int hue = static_cast<int>(qHash(key) % 360);
    const int side = std::min(canvas.width(), canvas.height());
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor::fromHsv(hue, 150, 200));
    painter.setPen(QColor::fromHsv(hue, 200, 120));
    painter.drawRoundedRect(QRectF(0.5, 0.5, side - 1, side - 1), side / 5.0, side / 5.0);
    QFont font;
    font.setBold(true);
    font.setPixelSize(std::max(1, side * 2 / 3));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, key.left(1).toUpper());
}

}  // namespace

QColor ToQColor(OleColor color, const QPalette& palette) {
    if (!IsSystemColor(color)) return QColor(RedOf(color), GreenOf(color), BlueOf(color));
    switch (color & 0xFF) {
        case 0x01: return palette.color(QPalette::Dark);
        case 0x02: return palette.color(QPalette::Highlight);
        case 0x03: return palette.color(QPalette::Mid);
        case 0x04: return palette.color(QPalette::Window);
        case 0x05: return palette.color(QPalette::Base);
        case 0x06: return palette.color(QPalette::Shadow);
        case 0x07: return palette.color(QPalette::WindowText);
        case 0x08: return palette.color(QPalette::Text);
        case 0x09: return palette.color(QPalette::HighlightedText);
        case 0x0C: return palette.color(QPalette::Dark);
        case 0x0D: return palette.color(QPalette::Highlight);
        case 0x0E: return palette.color(QPalette::HighlightedText);
        case 0x10: return palette.color(QPalette::Dark);
        // Grey text must stay readable on the light shades the program puts behind
        // it (headings, weekends), where a theme's disabled text nearly vanishes.
        case 0x11: return midway(palette.color(QPalette::Text), palette.color(QPalette::Base));
        case 0x12: return palette.color(QPalette::ButtonText);
        case 0x13: return palette.color(QPalette::Disabled, QPalette::WindowText);
        case 0x14: return palette.color(QPalette::Light);
        case 0x15: return palette.color(QPalette::Shadow);
        case 0x16: return palette.color(QPalette::Midlight);
        case 0x17: return palette.color(QPalette::ToolTipText);
        case 0x18: return palette.color(QPalette::ToolTipBase);
        default: return palette.color(QPalette::Button);  // scroll bars, borders, button face
    }
}

QColor ToQColor(OleColor color) { return ToQColor(color, QGuiApplication::palette()); }

QFont ToQFont(const std::string& name, double size, bool bold, bool italic) {
    QFont font(QString::fromStdString(name));
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(size > 0 ? size : 8.25);
    font.setBold(bold);
    font.setItalic(italic);
    const QString family = font.family();
    if (family.contains(QLatin1String("Black"), Qt::CaseInsensitive)) font.setWeight(QFont::Black);
    if (family.contains(QLatin1String("Narrow"), Qt::CaseInsensitive)) font.setStretch(QFont::Condensed);
    return font;
}

QIcon IconNamed(const std::string& name) {
    static QHash<QString, QIcon> cache;
    const QString key = QString::fromStdString(name).toLower();
    if (key.isEmpty()) return QIcon();
    if (const auto it = cache.constFind(key); it != cache.constEnd()) return *it;
    // Drawn when first painted: most tiles are replaced by the program's own icons
    // before anybody sees them, and drawing one needs a font.
    const QIcon icon = DrawnIcon([key](QPixmap& canvas) { drawTile(canvas, key); });
    cache.insert(key, icon);
    return icon;
}

int ToVbKeyCode(const QKeyEvent& event) {
    const int key = event.key();
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z)) return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return vbKeyF1 + (key - Qt::Key_F1);
    switch (key) {
        case Qt::Key_Backspace: return vbKeyBack;
        case Qt::Key_Tab:
        case Qt::Key_Backtab: return vbKeyTab;
        case Qt::Key_Return:
        case Qt::Key_Enter: return vbKeyReturn;
        case Qt::Key_Shift: return vbKeyShift;
        case Qt::Key_Control: return vbKeyControl;
        case Qt::Key_Alt: return vbKeyMenu;
        case Qt::Key_Escape: return vbKeyEscape;
        case Qt::Key_Space: return vbKeySpace;
        case Qt::Key_PageUp: return vbKeyPageUp;
        case Qt::Key_PageDown: return vbKeyPageDown;
        case Qt::Key_End: return vbKeyEnd;
        case Qt::Key_Home: return vbKeyHome;
        case Qt::Key_Left: return vbKeyLeft;
        case Qt::Key_Up: return vbKeyUp;
        case Qt::Key_Right: return vbKeyRight;
        case Qt::Key_Down: return vbKeyDown;
        case Qt::Key_Insert: return vbKeyInsert;
        case Qt::Key_Delete: return vbKeyDelete;
        default: return 0;
    }
}

int ToVbShift(Qt::KeyboardModifiers modifiers) {
    int shift = 0;
    if (modifiers & Qt::ShiftModifier) shift |= vbShiftMask;
    if (modifiers & Qt::ControlModifier) shift |= vbCtrlMask;
    if (modifiers & Qt::AltModifier) shift |= vbAltMask;
    return shift;
}

int ToVbButton(Qt::MouseButtons buttons) {
    int button = 0;
    if (buttons & Qt::LeftButton) button |= vbLeftButton;
    if (buttons & Qt::RightButton) button |= vbRightButton;
    if (buttons & Qt::MiddleButton) button |= vbMiddleButton;
    return button;
}

QString ToWidgetText(const std::string& text) { return ToQString(text); }

std::string FromWidgetText(const QString& text) {
    QString withCrLf = text;
    withCrLf.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    withCrLf.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    withCrLf.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return FromQString(withCrLf);
}

int ToWidgetPosition(const std::string& text, long position) {
    int widget = 0;
    const auto end = std::min(static_cast<size_t>(std::max(position, 0L)), text.size());
    for (size_t i = 0; i < end; ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;  // CR LF counts once
        ++widget;
    }
    return widget;
}

long FromWidgetPosition(const std::string& text, int position) {
    long model = 0;
    for (int seen = 0; seen < position && static_cast<size_t>(model) < text.size(); ++seen) {
        if (text[static_cast<size_t>(model)] == '\r' && static_cast<size_t>(model) + 1 < text.size() &&
            text[static_cast<size_t>(model) + 1] == '\n')
            ++model;
        ++model;
    }
    return model;
}

}  // namespace orbidex
