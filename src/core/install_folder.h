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

/// What the program is started for.
enum class InstallUse {
    reading, ///< what a start looks after is done all the same, where it can be
    writing,
    trial, ///< nothing is written at all
};

/// Found by writing: what a system tells of a folder need not be so.
bool canWriteInto(FileSystem& files, const FilePath& folder);

/// Why the program cannot work in that folder, with what to do about it; empty when it can. One that nobody
/// may write into is good enough for reading.
QString installFolderProblem(FileSystem& files, const FilePath& folder, InstallUse use = InstallUse::writing);

} // namespace morvane
