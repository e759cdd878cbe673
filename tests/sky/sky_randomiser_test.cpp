#include "sky/sky_randomiser.h"

#include "sets/slider_values.h"
#include "sky/sky_install.h"
#include "sky/sky_ranges.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct SkyRandomiser : testing::Test {
    SliderValues draw(int cloudIndex, const QString& baseSet, int group) {
        SliderValues values;
        values.fill(77); // nothing of before may stay
        randomizeSkyValues(install.session, cloudIndex, values, baseSet, group);
        return values;
    }
    /// The ends that many draws reach.
    test::SkyRange seen(int cloudIndex, const QString& baseSet, int group) {
        test::SkyRange range{draw(cloudIndex, baseSet, group), {}};
        range.highest = range.lowest;
        for (int i = 0; i < 1200; ++i) {
            const SliderValues values = draw(cloudIndex, baseSet, group);
            for (std::size_t field = 0; field < values.size(); ++field) {
                range.lowest[field] = std::min(range.lowest[field], values[field]);
                range.highest[field] = std::max(range.highest[field], values[field]);
            }
        }
        return range;
    }
    void expectRange(int cloudIndex, const QString& baseSet,
                     const std::function<test::SkyRange(int)>& wanted) {
        for (int group = 1; group <= 10; ++group) {
            SCOPED_TRACE(testing::Message() << cloudIndex << ' ' << baseSet.toStdString() << ' ' << group);
            const auto [lowest, highest] = seen(cloudIndex, baseSet, group);
            EXPECT_EQ(lowest, wanted(group).lowest);
            EXPECT_EQ(highest, wanted(group).highest);
        }
    }

    test::SmallInstall install;
};

TEST_F(SkyRandomiser, everyFieldFillsItsRangeAndNeverLeavesIt) {
    install.random.numbers = test::mixedNumbers(99991);
    const std::pair<QString, char> bases[] = {{u"Default"_s, 'A'},  {u" Default Softer "_s, 'A'},
                                              {u"Horizons"_s, 'A'}, {u"Pro Sky"_s, 'A'},
                                              {u"Sunny"_s, 'B'},    {u"Tropical"_s, 'B'}};
    for (const auto& [base, family] : bases)
        for (int cloudIndex = 1; cloudIndex <= 5; ++cloudIndex)
            expectRange(cloudIndex, base,
                        [&, kind = family](int group) { return test::skyRange(cloudIndex, kind, group); });
    EXPECT_TRUE(install.user.messages.empty());
}

TEST_F(SkyRandomiser, withoutAFamilyOnlyAnOvercastSkyHasRules) {
    install.random.numbers = test::mixedNumbers(99991);
    for (const QString& base : {u"Overcast"_s, u"Average"_s, u"default"_s}) {
        for (int cloudIndex = 1; cloudIndex <= 4; ++cloudIndex)
            for (int group = 1; group <= 10; ++group)
                EXPECT_EQ(draw(cloudIndex, base, group), SliderValues{});
        expectRange(5, base, [](int group) { return test::skyRange(5, 'A', group); });
    }
    for (const int cloudIndex : {-1, 0, 6})
        EXPECT_EQ(draw(cloudIndex, u"Default"_s, 10), SliderValues{});
    for (const int group : {-1, 0, 11, 32})
        EXPECT_EQ(draw(5, u"Default"_s, group), SliderValues{});
}

TEST_F(SkyRandomiser, fieldsAreDrawnOneAfterTheOther) {
    install.random.numbers.clear();
    for (const double fraction : {0.11, 0.21, 0.31, 0.41, 0.51, 0.61})
        install.random.numbers.insert(install.random.numbers.end(), 5, fraction); // a draw has five rounds
    EXPECT_EQ(draw(3, u"Horizons"_s, 9), (SliderValues{-26, -12, 3, -4, -15, 12}));
    EXPECT_EQ(install.random.draws, 30);
}

} // namespace
} // namespace morvane
