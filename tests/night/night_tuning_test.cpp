#include "night/night_samples.h"
#include "night/night_tuning.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(NightTuning, randomValuesKeepTheirRanges) {
    test::SmallInstall install;
    NightTuning tuning(install.session);
    const std::pair<double, SliderValues> cases[] = {{0, {-30, -10, 0, -5, -25, -35}},
                                                     {0.9999, {69, 29, 44, 49, 64, 44}}};
    for (const auto& [fraction, expected] : cases) {
        install.random.numbers = {fraction};
        EXPECT_EQ(tuning.randomValues(), expected) << fraction;
    }
}

/// "Green Lights" are blue: the captions do not tell the colours of all rows.
TEST(NightTuning, lightsAndSamplesStandWhereTheyAlwaysStood) {
    QString rows;
    for (const LightsBias& bias : lightsBiases()) {
        rows += bias.caption;
        for (const int value : bias.sliders)
            rows += u' ' + QString::number(value);
    }
    EXPECT_EQ(qChecksum(rows.toUtf8()), 24965) << rows.toStdString();
    QString files;
    for (const SampleChoice& sample : nightSamples())
        files += nightSampleTexture({}, sample.key).relative();
    EXPECT_EQ(qChecksum(files.toUtf8()), 25114) << files.toStdString();
    EXPECT_TRUE(nightSampleTexture({}, u"ocean"_s).isEmpty());
}

} // namespace
} // namespace morvane
