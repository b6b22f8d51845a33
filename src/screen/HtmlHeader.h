#pragma once
// The head of every HTML page the program writes (print files, exports, the
// overview), with the style block that is also kept as style.css in the data folder.

#include <string>

namespace orbidex {

/// The style block, each line ending in CR LF.  A data folder without style.css
/// gets the file first.
std::string GetDefaultStyle();
/// The page's start up to its heading: title, style, body, the title as heading.
std::string GetHtmlHeader(const std::string& title);

}  // namespace orbidex
