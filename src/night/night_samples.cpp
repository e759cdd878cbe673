#include "night/night_samples.h"

namespace morvane {

namespace {

// In the order of the samples.
constexpr const char16_t* sampleFiles[] = {u"008b2lm1.bmp", u"029b2lm1.bmp", u"035b2lm1.bmp", u"045b2lm1.bmp",
                                           u"049b2lm1.bmp"};

} // namespace

const std::vector<SampleChoice>& nightSamples() {
    static const std::vector<SampleChoice> samples = {
        {u"rural"_s, u"Rural"_s},
        {u"large city"_s, u"Large City"_s},
        {u"medium city"_s, u"Medium City"_s},
        {u"small city"_s, u"Small City"_s},
        {u"large city center"_s, u"Large City Center"_s},
    };
    return samples;
}

FilePath nightSampleTexture(const FilePath& appPath, const QString& key) {
    const std::size_t index = indexOfSample(nightSamples(), key);
    if (index == nightSamples().size()) return {};
    return appPath / u"Resources\\GENERIC WORLD NIGHT" / sampleFiles[index];
}

} // namespace morvane
