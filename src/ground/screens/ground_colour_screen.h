#pragma once

#include "ground/ground_tuning.h"
#include "sets/screens/texture_colour_page.h"

namespace morvane {

/// The colour page of the ground, with the five cloud covers.
class frm_GroundColorize : public TextureColourPage<GroundTuning> {
    Q_OBJECT
public:
    explicit frm_GroundColorize(Shell& shell);

private:
    void chooseOption(int index) override { tuning_.optCloudCover(index); }
};

} // namespace morvane
