#pragma once

#include "core/file_path.h"

#include <atomic>
#include <cstdint>

namespace morvane {

/// Files that another program holds open, so that they can be neither replaced nor removed; on Windows only.
/// A virus scanner lets go within moments, a running simulator does not, and holds many: the first one is
/// waited for two seconds, those that follow it a tenth each.
class HeldFiles {
public:
    /// Waits while the file is held. Whether what failed is worth another try: always when nobody holds it
    /// any more, as it may have been let go of just now.
    bool outlast(const FilePath& file);

private:
    std::atomic<std::int64_t> lastInVain_ = 0; ///< in milliseconds of a steady clock
};

} // namespace morvane
