#pragma once

#include "core/session.h"
#include "sets/catalogue_file.h"

#include <utility>
#include <vector>

namespace morvane {

/// The name of a category of the ground's catalogue, 1 to 14; of any other number that of the textures which
/// belong to none.
QString categoryName(int category);
inline constexpr int noCategory = 15; ///< behind those that have a name

/// The category of the ground that a night texture lights, by its class: "029b2lm1.bmp" is a city's.
int categoryOfNight(const QString& fileName);

/// The base files of a night set with the categories that they light, sorted by these. Raises as
/// popNightTextureList.
std::vector<std::pair<int, CatalogueFile>> nightFilesByCategory(Session& session, const QString& setName);

/// "Spring" to "Winter".
QStringList seasonNames();

} // namespace morvane
