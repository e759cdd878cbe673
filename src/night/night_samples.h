#pragma once

#include "core/file_path.h"
#include "core/literals.h"
#include "sets/sample_choice.h"

namespace morvane {

/// frm_SelectNightTexture: the key of the choice, and whether OK was pressed.
struct NightSampleChoice {
    QString selectedNightTexture;
    bool sampleConfirmed = false;
};

/// The samples of the night in the dialog's order. They have no seasons.
const std::vector<SampleChoice>& nightSamples();

/// The key of the sample that pages show at first, and that the list shows every set on.
inline const QString firstNightSample = u"large city"_s;

/// The base texture that stands for a sample, below "\Resources". Empty for an unknown key.
FilePath nightSampleTexture(const FilePath& appPath, const QString& key);

} // namespace morvane
