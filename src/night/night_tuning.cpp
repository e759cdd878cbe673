#include "night/night_tuning.h"

#include "night/night_samples.h"

namespace morvane {

namespace {

/// From low up to, and not including, high; in the order of the draws and of the sliders.
constexpr struct {
    int low, high;
} ranges[] = {{-30, 70}, {-10, 30}, {0, 45}, {-5, 50}, {-25, 65}, {-35, 45}};

} // namespace

const std::array<LightsBias, 4>& lightsBiases() {
    // The captions do not tell the colours of all rows: "Green Lights" are blue, "White Lights" green and
    // blue. They have always stood so.
    static const std::array<LightsBias, 4> biases{{
        {u"White Lights"_s, {13, 0, 80, 91, -28, 0}},
        {u"Orange Lights"_s, {0, 65, -26, 0, -22, 0}},
        {u"Red Light"_s, {20, 50, 0, 0, -22, 0}},
        {u"Green Lights"_s, {0, -30, -30, 80, 0, 0}},
    }};
    return biases;
}

bool NightTuning::openDefaultSample() {
    session_.state<NightSampleChoice>().selectedNightTexture = firstNightSample;
    return sample_.openImage(nightSampleTexture(session_.AppPath, firstNightSample));
}

bool NightTuning::openSample() {
    NightSampleChoice& choice = session_.state<NightSampleChoice>();
    choice.sampleConfirmed = false;
    session_.user.showModal(Screen::frm_SelectNightTexture);
    if (!choice.sampleConfirmed) return false;
    const FilePath sample = nightSampleTexture(session_.AppPath, choice.selectedNightTexture);
    return !sample.isEmpty() && sample_.openImage(sample);
}

SliderValues NightTuning::randomValues() {
    SliderValues values{};
    for (std::size_t field = 0; field < values.size(); ++field)
        drawOne(session_, ranges[field].low, ranges[field].high, values[field]);
    return values;
}

QString NightTuning::sampleCaption() const {
    return captionOf(nightSamples(), session_.state<NightSampleChoice>().selectedNightTexture);
}

} // namespace morvane
