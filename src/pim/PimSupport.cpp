#include "pim/PimSupport.h"

#include "foundation/ProgramState.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"
#include "platform/Platform.h"

namespace orbidex {

void ReportDataError(const std::string& source, const DataError& error) {
    const std::string text =
        "Error in " + source + " Error=" + CStr(static_cast<long>(error.number)) + " = " + error.description;
    glbLog.log(text, 0);
    platform().MsgBox(text, vbOKOnly, "");
}

std::string MyUserName() {
    std::string path = glbClientsNetworkDatapath;
    if (EndsWith(path, "\\")) path.pop_back();
    return Mid(path, InStrRev(path, "\\") + 1);
}

}  // namespace orbidex
