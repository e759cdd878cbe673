#pragma once

#include "core/file_path.h"
#include "core/literals.h"
#include "sets/sample_choice.h"

namespace morvane {

/// frm_SelectTexture: the keys of the choice, and whether OK was pressed.
struct GroundSampleChoice {
    QString selectedTextureType, selectedSeason;
    bool sampleConfirmed = false;
};

/// The key behind the sample that a page shows before the user chose one. The dialog does not offer it.
inline const QString defaultSample = u"default"_s;

/// The kinds of landscape in the dialog's order.
const std::vector<SampleChoice>& sampleTextureTypes();
/// "spring" to "winter".
const std::vector<SampleChoice>& sampleSeasons();

/// The base texture that stands for a kind of landscape in a season, below "\Resources"; with `isDutch` the
/// Dutch one where there is one. Empty for a key or a season without an entry.
FilePath sampleTexture(const FilePath& appPath, const QString& key, const QString& season, bool isDutch);

} // namespace morvane
