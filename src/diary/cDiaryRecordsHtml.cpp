// The month's page of events for the browser pane.  The export to HTML writes it; until
// that export is part of the program, the page is left as it is.
#include "diary/cDiaryRecords.h"

namespace orbidex {

void cDiaryRecords::ConvertEventsToHTML(const std::vector<cDiaryRecord>&, long, const std::string&, VbDate,
                                        const std::string&, bool) {}

}  // namespace orbidex
