#pragma once

#include "core/file_path.h"

namespace morvane {

class FileSystem;

/// The folder of the program's data: MORVANE_HOME when the environment has it; else the folder of the
/// executable where a store lies in it, and on Windows in any case; elsewhere "Morvane" among the user's data
/// (`~/.local/share/Morvane`), as an executable in a system folder has no data beside it.
QString defaultInstallFolder();

/// The last of these.
QString userInstallFolder();

/// Why the program cannot work in that folder, with what to do about it; empty when it can.
QString installFolderProblem(FileSystem& files, const FilePath& folder);

} // namespace morvane
