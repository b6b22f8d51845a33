#include "pim/PimSupport.h"

#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "network/cComms.h"
#include "platform/Platform.h"

namespace orbidex {

void ReportDataError(const std::string& source, const DataError& error) {
    const std::string text =
        "Error in " + source + " Error=" + CStr(static_cast<long>(error.number)) + " = " + error.description;
    glbLog.log(text, 0);
    platform().MsgBox(text, vbOKOnly, "");
}

std::string MyUserName() { return glbComms.GetMyUserName(); }

}  // namespace orbidex
