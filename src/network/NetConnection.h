#pragma once
// Connecting the user's folder on the server share.  On this system a share is
// mounted by the system, not by the program: the folder is there or it is not.

#include <string>

namespace orbidex {

/// The code of a folder that cannot be reached.
inline constexpr long kNetworkFolderNotFound = 67;

/// Trims `networkPath` and takes one trailing "\" off it, in the caller's variable,
/// then connects it (`localName`, when not empty, names a local device for it).
/// 0 on success, kNetworkFolderNotFound when the folder is missing.  Logs either
/// way.
long NetConnection(std::string& networkPath, const std::string& localName);

}  // namespace orbidex
