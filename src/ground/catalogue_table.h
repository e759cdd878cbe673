#pragma once

#include <array>
#include <cstddef>

namespace morvane {

/// One row of the fixed table: which name patterns a category has, and under which resource row they lie.
struct CatalogueCategory {
    const char16_t* resourceName;
    const char16_t* tempPath;
    const char16_t* patterns; ///< separated by blanks, in the order of the walk
    bool extraWinter;         ///< walks the winter files once more, whatever the winter flag says
};

/// The two classes of the add-on's industrial areas that have base images of their own; category 13 walks
/// generic ones besides.
inline constexpr char16_t industrialPatterns[] = u"034*2 038*2";

inline constexpr std::size_t industrialCategory = 13;

/// All fifteen, number 1 first. Category 13 is walked in runs of its own and has no patterns here.
const std::array<CatalogueCategory, 15>& catalogueTable();

} // namespace morvane
