#include "sky/sky_randomiser.h"

#include "sets/slider_values.h"
#include "sky/sky_install.h"

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

    test::SmallInstall install;
};

/// The sums hold both ends of every field of every group.
TEST_F(SkyRandomiser, everyFieldReachesItsEnds) {
    constexpr int zero = 39055; // nothing is drawn
    const struct {
        QString bases;
        std::array<int, 8> sums; ///< of the covers -1 to 6; there are five
    } families[] = {
        {u"Default| Default Softer |Horizons|Pro Sky"_s,
         {zero, zero, 36971, 51107, 56313, 30602, 32072, zero}},
        {u"Sunny|Tropical"_s, {zero, zero, 12679, 557, 47065, 37654, 32072, zero}},
        // Of no family: only an overcast sky has rules.
        {u"Overcast|Average|default"_s, {zero, zero, zero, zero, zero, zero, 32072, zero}},
    };
    for (const auto& [bases, sums] : families)
        for (const QString& base : bases.split(u'|'))
            for (int cloudIndex = -1; cloudIndex <= 6; ++cloudIndex) {
                QByteArray drawn;
                for (const double end : {0.0, 0.99999999})
                    for (int group = -1; group <= 11; ++group) {
                        install.random.numbers = {end};
                        for (const int value : draw(cloudIndex, base, group))
                            drawn += QByteArray::number(value) + ' ';
                    }
                EXPECT_EQ(qChecksum(drawn), sums[static_cast<std::size_t>(cloudIndex + 1)])
                    << base.toStdString() << ' ' << cloudIndex;
            }
    EXPECT_TRUE(install.user.messages.empty());
}

} // namespace
} // namespace morvane
