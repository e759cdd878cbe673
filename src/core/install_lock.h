#pragma once

#include "core/file_path.h"

#include <QLockFile>

namespace morvane {

/// A lock of an install folder: a file in it that names its holder. It goes with the process; one that a
/// killed process left behind is taken over at once.
class InstallLock {
public:
    InstallLock(const FilePath& installFolder, const QString& fileName);

    /// False when another process holds it. A folder that takes no such file (read-only, full) counts as
    /// locked by us: what is written there next fails by itself, and says why.
    bool tryTake();
    /// The last `tryTake` took over what a process had left behind that never came to its end: it was killed,
    /// or the machine lost its power.
    bool wasLeftBehind() const { return wasLeftBehind_; }
    void release() { file_.unlock(); }
    /// Program and process, "morvane-cli (process 4711)"; "another program" when that cannot be told.
    QString holder() const;

private:
    bool tryTakeFile();

    QLockFile file_;
    bool wasLeftBehind_ = false;
};

} // namespace morvane
