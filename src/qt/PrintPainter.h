#pragma once
// Draws a printed page of the view (PrintDocument) on a printer or a PDF writer: the
// heading and the dates at the top of every page, the table shared out over the
// page's width by the columns' widths on screen, its heading rows again on each new
// page, and the page number at the foot.  An HTML page prints as it stands.

#include <QPagedPaintDevice>

#include "screen/PrintDocument.h"

namespace orbidex {

void PaintPrintDocument(const PrintDocument& document, QPagedPaintDevice& device);

}  // namespace orbidex
