#pragma once

#include "ground/ground_sets.h"
#include "sets/texture_tuning.h"

#include <cstdint>

namespace morvane {

/// The colour page of the ground; what ground and night have in common is TextureTuning.
class GroundTuning : public TextureTuning<GroundKind> {
public:
    explicit GroundTuning(Session& session);

    std::int16_t tuningCloudNumber() const { return tuningCloudNumber_; }
    const QString& tuningCloudWord() const { return tuningCloudWord_; }

    /// The cloud cover at that place of the page, 0 to 4. Neither the sliders nor the sample change; any
    /// other index raises "Subscript out of range".
    void optCloudCover(int index);

    /// Loads the sample that a page shows at first.
    bool openDefaultSample();
    /// Asks for landscape and season (frm_SelectTexture) and loads their sample. The colours are those of the
    /// last preview. False when none was loaded: after a cancel, a failure that was told, or a choice without
    /// a sample.
    bool openSample();
    /// Slider values drawn for the cloud cover; the page sets its sliders to them and asks for one preview.
    /// Lets events run.
    SliderValues randomValues();
    /// What the page calls the sample in hand.
    QString sampleCaption() const;

private:
    void complete(clsTextureSet& record) const override;

    std::int16_t tuningCloudNumber_ = 1;
    QString tuningCloudWord_;
};

} // namespace morvane
