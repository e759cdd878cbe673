#pragma once

#include "core/session.h"
#include "sets/catalogue_file.h"

#include <vector>

namespace morvane {

/// The base files of a night set: every bitmap of the two night folders below "\Resources", without
/// categories or seasons, and the Dutch ones whether or not their switch is on. A missing folder adds
/// nothing. Raises "Path not found" for a name that is no single folder name.
std::vector<CatalogueFile> popNightTextureList(Session& session, const QString& setName);

} // namespace morvane
