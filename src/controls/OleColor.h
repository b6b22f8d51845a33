#pragma once
// Colours as the program keeps them: 24-bit numbers with red in the low byte
// (0x0000FF is red, 0xFF0000 blue), or a system colour 0x800000nn that names a
// colour of the desktop's palette.

#include <cstdint>

namespace orbidex {

using OleColor = uint32_t;

constexpr OleColor RGB(int red, int green, int blue) {
    return static_cast<OleColor>((red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16));
}
constexpr int RedOf(OleColor c) { return static_cast<int>(c & 0xFF); }
constexpr int GreenOf(OleColor c) { return static_cast<int>((c >> 8) & 0xFF); }
constexpr int BlueOf(OleColor c) { return static_cast<int>((c >> 16) & 0xFF); }
constexpr bool IsSystemColor(OleColor c) { return (c & 0x80000000u) != 0; }

// Plain colours
constexpr OleColor vbBlack = 0x000000;
constexpr OleColor vbRed = 0x0000FF;
constexpr OleColor vbGreen = 0x00FF00;
constexpr OleColor vbYellow = 0x00FFFF;
constexpr OleColor vbBlue = 0xFF0000;
constexpr OleColor vbMagenta = 0xFF00FF;
constexpr OleColor vbCyan = 0xFFFF00;
constexpr OleColor vbWhite = 0xFFFFFF;

// System colours: the desktop's palette decides how they look.
constexpr OleColor vbScrollBars = 0x80000000;
constexpr OleColor vbDesktop = 0x80000001;
constexpr OleColor vbActiveTitleBar = 0x80000002;
constexpr OleColor vbInactiveTitleBar = 0x80000003;
constexpr OleColor vbMenuBar = 0x80000004;
constexpr OleColor vbWindowBackground = 0x80000005;
constexpr OleColor vbWindowFrame = 0x80000006;
constexpr OleColor vbMenuText = 0x80000007;
constexpr OleColor vbWindowText = 0x80000008;
constexpr OleColor vbTitleBarText = 0x80000009;
constexpr OleColor vbActiveBorder = 0x8000000A;
constexpr OleColor vbInactiveBorder = 0x8000000B;
constexpr OleColor vbApplicationWorkspace = 0x8000000C;
constexpr OleColor vbHighlight = 0x8000000D;
constexpr OleColor vbHighlightText = 0x8000000E;
constexpr OleColor vbButtonFace = 0x8000000F;
constexpr OleColor vbButtonShadow = 0x80000010;
constexpr OleColor vbGrayText = 0x80000011;
constexpr OleColor vbButtonText = 0x80000012;
constexpr OleColor vbInactiveCaptionText = 0x80000013;
constexpr OleColor vb3DHighlight = 0x80000014;
constexpr OleColor vb3DDKShadow = 0x80000015;
constexpr OleColor vb3DLight = 0x80000016;
constexpr OleColor vbInfoText = 0x80000017;
constexpr OleColor vbInfoBackground = 0x80000018;

}  // namespace orbidex
