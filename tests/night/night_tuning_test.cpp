#include "imaging/slider_steps.h"
#include "night/night_samples.h"
#include "night/night_selection.h"
#include "night/night_texture_sets.h"
#include "night/night_tuning.h"
#include "sets/favourite_name.h"
#include "sets/sample_choice.h"
#include "sets/slider_values.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct NightTuningTest : testing::Test {
    NightTuningTest() { test::addNightStock(install); }

    test::SmallInstall install;
    Session& session = install.session;
    NightTuning tuning{session};
};

/// Captions and colours do not agree, as far as the last but two go.
TEST_F(NightTuningTest, lightsStandWhereTheyAlwaysStood) {
    const QString rows[] = {u"White Lights: 13% default 80% 91% -28% default"_s,
                            u"Orange Lights: default 65% -26% default -22% default"_s,
                            u"Red Light: 20% 50% default default -22% default"_s,
                            u"Green Lights: default -30% -30% 80% default default"_s};
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        QStringList labels;
        for (const int value : lightsBiases()[i].sliders)
            labels << sliderLabel(value);
        EXPECT_EQ(lightsBiases()[i].caption + u": "_s + labels.join(u' '), rows[i]);
    }
}

TEST_F(NightTuningTest, randomValuesKeepTheirRanges) {
    const std::pair<double, SliderValues> cases[] = {
        {0, {-30, -10, 0, -5, -25, -35}}, {0.5, {20, 10, 22, 22, 20, 5}}, {0.9999, {69, 29, 44, 49, 64, 44}}};
    for (const auto& [fraction, expected] : cases) {
        install.random.numbers = {fraction};
        SliderValues values{};
        getRandomNightValues(session, values);
        EXPECT_EQ(values, expected) << fraction;
    }
}

TEST_F(NightTuningTest, samplesHaveTheirFiles) {
    const std::pair<QString, QString> samples[] = {{u"rural"_s, u"008b2lm1.bmp"_s},
                                                   {u"large city"_s, u"029b2lm1.bmp"_s},
                                                   {u"medium city"_s, u"035b2lm1.bmp"_s},
                                                   {u"small city"_s, u"045b2lm1.bmp"_s},
                                                   {u"large city center"_s, u"049b2lm1.bmp"_s}};
    ASSERT_EQ(nightSamples().size(), std::size(samples));
    for (const auto& [key, file] : samples)
        EXPECT_EQ(nightSampleTexture(session.AppPath, key).relative(),
                  u"Resources\\GENERIC WORLD NIGHT\\"_s + file);
    EXPECT_TRUE(nightSampleTexture(session.AppPath, u"ocean"_s).isEmpty());
}

TEST_F(NightTuningTest, aFavouriteIsARowAndEmptyFolders) {
    tuning.showColourPreview(lightsBiases()[3].sliders);
    install.user.onModal = [this](Screen screen) {
        ASSERT_EQ(screen, Screen::frm_AddFav);
        EXPECT_EQ(session.state<FavouriteAnswer>().favKind, FavouriteKind::night);
        session.state<FavouriteAnswer>().favName = u"  Cold: lights "_s;
        session.state<FavouriteAnswer>().favDescription = u" blue "_s;
        session.state<FavouriteAnswer>().favConfirmed = true;
    };
    tuning.newFavNightTexture();
    EXPECT_EQ(test::nightSets(session), u"1-Cold_ lights"_s);
    const auto set = findNightSet(session, u"1-Cold_ lights"_s);
    EXPECT_EQ(set->ColorSettings, u"0:-6:-6:16:0:0"_s);
    EXPECT_EQ(set->Actvated + set->Description, u"Falseblue"_s);
    EXPECT_EQ(session.state<NightSelection>().SelectedNightSet, set->TextureSet);
    EXPECT_TRUE(session.state<NightSelection>().RefreshNightList);
    EXPECT_EQ(install.user.calls.last(), u"show frm_NightTextures"_s);
    EXPECT_EQ(install.files.listFolders(install.home() / u"Night Texture Sets" / set->TextureSet),
              QStringList({u"Dutch"_s, u"Texture"_s}));

    install.user.onModal = [](Screen) {}; // cancelled
    tuning.newFavNightTexture();
    EXPECT_EQ(session.rows<clsNightTextureSets>()->Count(), 1);
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST_F(NightTuningTest, aSampleIsOpenedInTheColoursOfTheLastPreview) {
    tuning.openDefaultSample();
    EXPECT_EQ(session.state<NightSampleChoice>().selectedNightTexture, firstNightSample);
    tuning.showColourPreview({0, 0, 0, 0, 100, 0});
    install.user.onModal = [&](Screen screen) {
        ASSERT_EQ(screen, Screen::frm_SelectNightTexture);
        session.state<NightSampleChoice>().selectedNightTexture = u"rural"_s;
        session.state<NightSampleChoice>().sampleConfirmed = true;
    };
    const int before = tuning.sourceDib().DIBSectionBitsPtr()[3];
    EXPECT_TRUE(tuning.openSample());
    EXPECT_NE(tuning.sourceDib().DIBSectionBitsPtr()[3], before);
    EXPECT_GT(tuning.resultDib().DIBSectionBitsPtr()[3], tuning.sourceDib().DIBSectionBitsPtr()[3]);
    install.user.onModal = [](Screen) {};
    EXPECT_FALSE(tuning.openSample());
}

} // namespace
} // namespace morvane
