#pragma once
// The program's images by name ("calendar", "new", "server", ...): the desktop
// theme's icon of the same meaning when the theme has one, else the program's own
// drawing.  The views draw an unknown name as a tile with its first letter; the main
// window has them draw these icons instead.

#include <QIcon>
#include <string>

class QWidget;

namespace orbidex {

/// The icon for an image name; a name the program has no drawing of gives the tile.
QIcon ProgramIcon(const std::string& name);
/// Makes the tool bars, trees and list views inside `window` show ProgramIcon in
/// place of the tiles, also for what they draw later.
void UseProgramIcons(QWidget& window);

}  // namespace orbidex
