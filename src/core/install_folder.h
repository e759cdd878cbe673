#pragma once

#include "core/file_path.h"

namespace morvane {

class FileSystem;

/// The folder of the program's data: MORVANE_HOME when the environment has it; else the folder of the
/// executable where a store or a registry file lies in it; else the value "DataFolder" that an installer left
/// in the system's registry; else the user's own.
QString defaultInstallFolder();

/// "Morvane" among the user's data: `~/.local/share/Morvane`, `%LOCALAPPDATA%\Morvane`.
QString userInstallFolder();

/// Why the program cannot work in that folder, with what to do about it; empty when it can.
QString installFolderProblem(FileSystem& files, const FilePath& folder);

} // namespace morvane
