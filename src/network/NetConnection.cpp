#include "network/NetConnection.h"

#include "foundation/FileSystem.h"
#include "foundation/VbString.h"
#include "foundation/cLog.h"

namespace orbidex {

long NetConnection(std::string& networkPath, const std::string& localName) {
    networkPath = Trim(networkPath);
    if (Right(networkPath, 1) == "\\") networkPath = Left(networkPath, Len(networkPath) - 1);
    // A local device name has no meaning here: the system mounts shares itself.
    (void)localName;
    const long result = !networkPath.empty() && FolderExists(networkPath) ? 0 : kNetworkFolderNotFound;
    if (result == 0)
        glbLog.log("Net Connection Successful! to " + networkPath, 0);
    else
        glbLog.log("ERROR: " + CStr(result) + " - Net Connection Failed to " + networkPath, 0);
    return result;
}

}  // namespace orbidex
