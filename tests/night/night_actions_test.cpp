#include "imaging/picture_reader.h"
#include "night/night_generation.h"
#include "night/night_samples.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "night/night_tuning.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::addNightSet;
using test::contentsBelow;
using test::nightSets;

struct NightActions : testing::Test {
    NightActions() {
        test::addNightStock(install);
        addNightSet(install, u"Default"_s, true);
    }

    test::SmallInstall install;
    Session& session = install.session;
};

TEST_F(NightActions, activationMakesEveryFileInTheColoursOfTheSet) {
    addNightSet(install, u"2-Red"_s, false);
    const FilePath sets = install.home() / u"Night Texture Sets";
    ASSERT_TRUE(clickNightRow(session, u"2-Red"_s));
    NightGeneration(session).activateInHand();
    EXPECT_EQ(nightSets(session), u"Default+ 2-Red+"_s);
    EXPECT_EQ(contentsBelow(sets).keys().join(u' '),
              u"2-Red/Dutch/005a2lm2.bmp 2-Red/Dutch/008b2lm1.bmp 2-Red/Texture/008b2lm1.bmp "
              "2-Red/Texture/029b2lm1.bmp 2-Red/Texture/045b2lm1.bmp"_s);
    const Picture base =
        loadPicture(install.files, install.home() / u"Resources\\GENERIC WORLD NIGHT\\029b2lm1.bmp");
    const Picture made = loadPicture(install.files, sets / u"2-Red\\Texture\\029b2lm1.bmp");
    EXPECT_GT(made.rows[5], base.rows[5]) << "the set is redder"; // the second pixel, off the marks
    EXPECT_TRUE(install.user.told().isEmpty());
    const Message& first = install.user.messages.front();
    EXPECT_EQ(first.title + u'|' + first.text,
              u"Creating Night Texture Sets|Colorizing texture set 1 of 1 texture sets.  Process 1 of 2 Be "
              "aware that this may take 3 - 5 minutes per set dependant on your system specification. "
              "\nPlease wait............"_s);
    EXPECT_TRUE(install.user.calls.contains(u"hide frm_NightTextures"_s));
    EXPECT_EQ(install.user.calls.last(), u"show frm_NightTextures"_s);
    EXPECT_TRUE(session.state<NightSelection>().RefreshNightList);
}

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
