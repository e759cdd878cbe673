#include "ground/ground_tuning.h"

#include "ground/ground_randomiser.h"
#include "ground/sample_textures.h"
#include "sets/cloud_cover.h"
#include "sets/options_in_force.h"

namespace morvane {

GroundTuning::GroundTuning(Session& session) : TextureTuning(session) {
    optCloudCover(0);
}

void GroundTuning::optCloudCover(int index) {
    const CloudCover* cover = cloudCover(index + 1);
    if (!cover) throw Error(ErrorCode::subscript);
    tuningCloudNumber_ = toInteger(cover->number);
    tuningCloudWord_ = cover->word;
}

bool GroundTuning::openDefaultSample() {
    return sample_.openImage(sampleTexture(session_.AppPath, defaultSample, u"summer"_s,
                                           session_.state<OptionsInForce>().IsDutch));
}

bool GroundTuning::openSample() {
    GroundSampleChoice& choice = session_.state<GroundSampleChoice>();
    choice.selectedSeason = u"summer"_s;
    choice.sampleConfirmed = false;
    session_.user.showModal(Screen::frm_SelectTexture);
    if (!choice.sampleConfirmed) return false;
    const FilePath sample = sampleTexture(session_.AppPath, choice.selectedTextureType, choice.selectedSeason,
                                          session_.state<OptionsInForce>().IsDutch);
    return !sample.isEmpty() && sample_.openImage(sample);
}

SliderValues GroundTuning::randomValues() {
    SliderValues sliders{};
    getRandomGroundValues(session_, tuningCloudNumber_, sliders);
    return sliders;
}

QString GroundTuning::sampleCaption() const {
    const GroundSampleChoice& choice = session_.state<GroundSampleChoice>();
    return captionOf(sampleTextureTypes(), choice.selectedTextureType) + u", "_s +
           captionOf(sampleSeasons(), choice.selectedSeason);
}

void GroundTuning::complete(clsTextureSet& record) const {
    record.CloudCover = tuningCloudWord_;
}

} // namespace morvane
