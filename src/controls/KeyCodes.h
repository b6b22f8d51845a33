#pragma once
// Key codes as KeyDown and KeyUp pass them.  Letters and digits are their capital
// character codes ('A' is 65, '0' is 48).

namespace orbidex {

constexpr int vbKeyBack = 8;
constexpr int vbKeyTab = 9;
constexpr int vbKeyReturn = 13;
constexpr int vbKeyShift = 16;
constexpr int vbKeyControl = 17;
constexpr int vbKeyMenu = 18;
constexpr int vbKeyEscape = 27;
constexpr int vbKeySpace = 32;
constexpr int vbKeyPageUp = 33;
constexpr int vbKeyPageDown = 34;
constexpr int vbKeyEnd = 35;
constexpr int vbKeyHome = 36;
constexpr int vbKeyLeft = 37;
constexpr int vbKeyUp = 38;
constexpr int vbKeyRight = 39;
constexpr int vbKeyDown = 40;
constexpr int vbKeyInsert = 45;
constexpr int vbKeyDelete = 46;
constexpr int vbKeyF1 = 112;
constexpr int vbKeyF12 = 123;

}  // namespace orbidex
