#pragma once

#include "core/run_size.h"
#include "sets/catalogue_file.h"

#include <vector>

namespace morvane {

class Session;

/// What making so many sets, one or more, of these base files is going to take, where sets lie in `folder`.
/// Some of the files are made to measure it, where the intermediate bitmaps are. Raises what reading the
/// stock raises.
RunSize measuredRun(Session& session, const std::vector<CatalogueFile>& catalogue, int sets,
                    const FilePath& folder);

} // namespace morvane
