#pragma once

#include "core/file_path.h"
#include "core/literals.h"
#include "imaging/recolouring.h"
#include "imaging/sky_group.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace morvane {

/// One texture of a sheet: as it was before, and as it is in the set.
struct SheetTexture {
    QString name; ///< "021a2su1.bmp"
    FilePath base;
    FilePath own = {}; ///< empty where the set has no such file: it is then seen made from the base
    std::size_t row = 0, column = 0;
    bool keepsColours = false; ///< a set leaves it as it is, as the sky's files of sunrise and sunset
};

/// Textures of one name in each of the columns; a row with a single cell has the whole width for it.
struct SheetRow {
    QString name;
    std::vector<std::vector<std::size_t>> cells; ///< indexes of textures

    std::size_t count() const;
    std::size_t largestCell() const;
};

/// A whole set as pictures, or what lies in the simulator.
struct Sheet {
    QString title, cover; ///< `cover` is empty where there is none
    QString state;        ///< "activated", of the whole
    QString baseCaption, ownCaption;
    QStringList columns;
    std::vector<SheetRow> rows;
    std::vector<SheetTexture> textures;
    QString colourHeading;
    std::vector<std::pair<QString, QString>> colours; ///< names and values
    /// What makes a set's texture from the base: one of the two, or none where nothing is known.
    std::shared_ptr<const Recolouring> recolouring = {};
    std::optional<SkyGroups> skyGroups = {};

    /// "1,157 textures, activated".
    QString summary() const;
    /// "Forests, Summer".
    QString placeOf(const SheetTexture& texture) const;
};

} // namespace morvane
