#include "ground/ground_tuning.h"
#include "ground/sample_textures.h"
#include "imaging/pixel_patterns.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(GroundTuning, aFavouriteIsOfTheCoverOfThePageAndDutch) {
    test::SmallInstall install;
    GroundTuning tuning(install.session);
    EXPECT_THROW(tuning.optCloudCover(5), Error);
    tuning.optCloudCover(3);
    install.user.onModal = [&](Screen) { install.session.state<FavouriteAnswer>() = {u"Storm"_s, {}, true}; };
    tuning.newFavourite();
    install.reload();
    const auto set = findGroundSet(install.session, u"2-Storm"_s);
    EXPECT_EQ(set->CloudCover, "Mostly Cloudy");
    EXPECT_TRUE(set->IsDutch && !set->Installed);
    EXPECT_EQ(install.session.state<GroundSelection>().SelectedGroundCover, "Mostly Cloudy");
}

TEST(TextureSample, aSampleThatCannotBeReadIsStillRecoloured) {
    test::SmallInstall install;
    Session& session = install.session;
    TextureSample sample(session, session.state<GroundSelection>().colours);
    const FilePath file = sampleTexture(session.AppPath, defaultSample, u"summer"_s, false);
    ASSERT_TRUE(sample.openImage(file));
    const QByteArray plain = test::bytesOf(sample.resultDib());
    session.state<GroundSelection>().colours.red = 20;
    test::writeFile(file, "no picture");
    EXPECT_FALSE(sample.openImage(file));
    EXPECT_NE(test::bytesOf(sample.resultDib()), plain); // else the set in hand would show the one before
    EXPECT_EQ(install.user.told().size(), 1);
}

} // namespace
} // namespace morvane
