#pragma once
// What a printed page of the view on screen holds, decided by the diary and drawn by
// the window toolkit: a heading, the dates the view covers, and a table of cells with
// their colours, or an HTML page that is printed as it stands (the overview).

#include <string>
#include <vector>

#include "controls/OleColor.h"

namespace orbidex {

struct PrintCell {
    std::string text;
    OleColor foreColor = 0x000000;  ///< plain RGB, red in the low byte
    OleColor backColor = 0xFFFFFF;
    bool bold = false;
};

struct PrintDocument {
    std::string heading;
    std::string dates;                         ///< the days the view covers, or the day printed
    std::vector<long> columnWidths;            ///< in twips as on screen; the page shares its width by them
    std::vector<std::vector<PrintCell>> rows;  ///< the first `headingRows` repeat on every page
    long headingRows = 1;
    bool landscape = false;  ///< the orientation proposed: wide tables lie across the page
    std::string htmlFile;    ///< when not "", the page printed instead of the table
};

}  // namespace orbidex
