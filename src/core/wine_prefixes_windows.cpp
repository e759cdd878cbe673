#include "core/wine_prefixes.h"

namespace morvane {

std::vector<WinePrefix> winePrefixes(FileSystem&) {
    return {};
}

std::optional<WinePrefix> winePrefixAbove(FileSystem&, const FilePath&) {
    return std::nullopt;
}

} // namespace morvane
