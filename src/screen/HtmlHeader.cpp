#include "screen/HtmlHeader.h"

#include "foundation/FileSystem.h"
#include "foundation/ProgramState.h"
#include "foundation/cLog.h"

namespace orbidex {

namespace {

// One line of the block per entry, whatever its length.
// clang-format off
constexpr const char* kStyleLines[] = {
    "<STYLE>",
    "BODY {  font-size:8pt; FONT-FAMILY:Verdana;  }",
    "NORMAL {    font-size:8pt; FONT-FAMILY:Verdana;  }",
    "A:link {        font-size:8pt; COLOR: blue;TEXT-DECORATION:none}",
    "A:visited { color: #003399; font-size:8pt;TEXT-DECORATION:none }",
    "A:hover {   color:#FF3300;TEXT-DECORATION:underline}",
    "TD {    font-size:8pt; valign=top; FONT-FAMILY:Verdana;  }",
    "H1 {    font-size:220%; FONT-WEIGHT:NORMAL; padding: 10px 0px 0px 0px; margin:0px; }",
    "H2 {    font-size:160%; FONT-WEIGHT:NORMAL; margin:0px 0px 0px 0px; padding:0px; }",
    "H3 {    font-size:120%; FONT-WEIGHT:BOLD; margin:0px 0px 0px 0px; padding:1px; letter-spacing:0.05em; }",
    "H4 {    font-size:140%; FONT-WEIGHT:NORMAL; margin:0px 0px 0px 0px; padding:1px; }",
    "H5 {    font-size:7pt; FONT-FAMILY:Arial; color:#00008B ; FONT-WEIGHT:NORMAL; margin:0px 0px 0px 0px; padding: 0px 0px 0px 0px; }",
    "</STYLE>",
};
// clang-format on

}  // namespace

std::string GetDefaultStyle() {
    std::string style;
    for (const char* line : kStyleLines) style += std::string(line) + "\r\n";
    const std::string file = gStrDataPath + "style.css";
    if (!FileExists(file)) {
        WriteWholeFile(file, style);
        glbLog.log("Creating deafult style.css file, because none existed. = " + file, 0);
    }
    return style;
}

std::string GetHtmlHeader(const std::string& title) {
    return "<HTML><head>\r\n<title>" + title + "</title>\r\n" + GetDefaultStyle() +
           "\r\n</head>\r\n\r\n<BODY>\r\n<H2>" + title + "</h2>\r\n";
}

}  // namespace orbidex
