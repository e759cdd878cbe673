#include "sky/sky_strings.h"

#include "sky/sky_install.h"
#include "sky/sky_palette_map.h"
#include "sky/sky_tuning.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

/// Which groups draw, in which order, and which take another's numbers: the sum holds all ten groups of a set
/// whose draws are all different.
TEST(SkyStrings, everyGroupFollowsItsRule) {
    test::SmallInstall install;
    const struct {
        int cloudIndex;
        int familyA, familyB; ///< sums
    } cases[] = {
        {1, 65409, 55394}, {2, 51212, 57609}, {3, 12433, 4566}, {4, 26304, 34117}, {5, 33039, 33039}};
    const QStringList familyA{"Default", "Default Softer", "Horizons", "Pro Sky"},
        familyB{"Sunny", "Tropical"};
    for (const auto& [cloudIndex, sumOfA, sumOfB] : cases)
        for (const QString& base : familyA + familyB) {
            QStringList sets;
            for (const auto& numbers :
                 {std::vector{0.0}, std::vector{0.5}, std::vector{0.99999999}, test::mixedNumbers(99991)}) {
                install.random = {};
                install.random.numbers = numbers;
                for (const QString& text : drawSkyStrings(install.session, cloudIndex, base))
                    sets << text.section(u':', 0, 5);
            }
            EXPECT_EQ(qChecksum(sets.join(u' ').toLatin1()), familyA.contains(base) ? sumOfA : sumOfB)
                << cloudIndex << base.toStdString();
        }
}

/// The cells are 7.5 or 8 wide with gaps of a tenth behind them, and two are of other widths, as ever: the
/// sum holds every end of every cell.
TEST(PaletteMap, everyCellWithItsEndsAndTheGapBehindIt) {
    QByteArray cells;
    for (int twentieth = -20; twentieth <= 4840; ++twentieth) {
        const float place = static_cast<float>(twentieth / 20.0);
        const int column = mouseToPixelX(place), row = mouseToPixelY(place);
        cells.append(static_cast<char>(column));
        EXPECT_EQ(row, column == 0 ? 0 : 33 - column) << place;
    }
    EXPECT_EQ(qChecksum(cells), 22812);
    QByteArray tips;
    constexpr std::pair<float, float> groups[] = {{3, 3},  {12, 3},  {20, 3},    {28, 3},   {35, 3},
                                                  {42, 3}, {240, 3}, {120, 228}, {60, 237}, {3, 12}};
    for (const auto& [x, y] : groups)
        tips += SkyTuning::tipAt(x, y).value_or(u""_s).toUtf8();
    EXPECT_EQ(qChecksum(tips), 25376)
        << "the tip of dark water speaks of light water, and one has a slip: wanted";
}

} // namespace
} // namespace morvane
