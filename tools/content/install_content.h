#pragma once

#include "core/file_system.h"

#include <functional>

namespace morvane {

/// What a complete install and a sample simulator are made of. The source data come from `data`, the
/// repository's data folder.
struct ContentRequest {
    FilePath home;
    FilePath simulator;        ///< empty for none: the program then asks the pilot for the real one
    FilePath simulatorProgram; ///< the stand-in that becomes the sample simulator's fs9.exe
    FilePath data;
    int density = 1;
    bool isVersionTwo = false; ///< an install of before, with the files that ask for its upgrade
    /// Told the share of the work that is done, 0 to 100, some hundred times.
    std::function<void(int)> onProgress = [](int) {};
};

/// True when `home` holds an install of that density as this version of the tool makes it.
bool isContentCurrent(FileSystem& files, const ContentRequest& request);

/// Makes the install and the simulator. Both folders must be missing or empty, else it raises "Permission
/// denied" and touches neither: a pilot's own simulator can be named by mistake. The version mark is written
/// last, so that a run that was cut short is never taken for a whole one. A density that the stock has not
/// raises before a folder is made. Returns the number of base images. Needs a QGuiApplication: the skin's
/// pictures hold words.
int makeContent(FileSystem& files, const ContentRequest& request);

/// Brings what an older version of the tool laid down in `home` up to date, in its own density: base images,
/// their bodies, pictures and the help. Files that are not as they were delivered are the pilot's and stay;
/// so do the store, the sets, the saved flights and the registry. A run that is cut leaves each file old or
/// new, and the next one goes on; the first file that could not be replaced is raised behind all others.
/// Returns the number of files that were replaced or added, 0 where the install is not older. Raises for a
/// folder that this tool has not filled.
int updateContent(FileSystem& files, const ContentRequest& present);

} // namespace morvane
