#pragma once

#include "sets/slider_values.h"
#include "sets/texture_sample.h"

#include <cstdint>

namespace morvane {

/// The work behind the colour page of the ground: a sample texture in the colours of six sliders, and their
/// saving as a favourite. The sliders and the painting are the page's.
class GroundTuning {
public:
    explicit GroundTuning(Session& session);

    std::int16_t tuningCloudNumber() const { return tuningCloudNumber_; }
    const QString& tuningCloudWord() const { return tuningCloudWord_; }
    const cDIBSection& tuningSourceDib() const { return tuningColourise_.sourceDib(); }
    const cDIBSection& tuningResultDib() const { return tuningColourise_.resultDib(); }

    /// The cloud cover at that place of the page, 0 to 4. Neither the sliders nor the sample change; any
    /// other index raises "Subscript out of range".
    void optCloudCover(int index);

    /// Loads the sample that a page shows at first.
    bool openDefaultSample();
    /// Asks for landscape and season (frm_SelectTexture) and loads their sample. The colours are those of the
    /// last preview. False when none was loaded: after a cancel, a failure that was told, or a choice without
    /// a sample.
    bool openSample();

    /// Recolours the sample by the sliders and makes their effective values the session's colours, so that
    /// they are the ones that a favourite is saved with.
    void showColourPreview(const SliderValues& sliders);
    /// Slider values drawn for the cloud cover; the page sets its sliders to them and asks for one preview.
    /// Lets events run.
    SliderValues randomGroundValues();

    /// Asks for name and description (frm_AddFav) and saves the favourite.
    void newFavTexture();

private:
    void saveFavourite(const QString& name);
    void makeSetFolders(const QString& name);

    Session& session_;
    std::int16_t tuningCloudNumber_ = 1;
    QString tuningCloudWord_;
    TextureSample tuningColourise_;
};

} // namespace morvane
