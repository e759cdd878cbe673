#include "sky_art.h"

#include "core/error.h"
#include "core/literals.h"
#include "support/printing.h"

#include <QSet>
#include <gtest/gtest.h>

namespace morvane {
namespace {

constexpr int side = 32;

std::array<std::uint8_t, 3> pixel(const Picture& map, int column, int row) {
    const auto* at = map.rows.data() + (row * side + column) * 3;
    return {at[0], at[1], at[2]};
}

int brightness(const std::array<std::uint8_t, 3>& colour) {
    return colour[0] + colour[1] + colour[2];
}

TEST(SkyArt, everyFolderHasADayOfMapsOfItsOwn) {
    EXPECT_EQ(skyFolders().join(u'|'),
              u"Default|Default Softer|Horizons|Pro Sky|Sunny|Tropical|Overcast|Sunrise|Sunset"_s);
    QSet<QByteArray> maps;
    QSet<QString> names; // in one set's folder those of all times must find room
    for (const QString& folder : skyFolders())
        for (int index = 0; const QString& name : skyMapNames(folder)) {
            const Picture map = drawSkyMap(folder, index++);
            ASSERT_EQ(map.rows.size(), std::size_t{side * side * 3});
            maps.insert(QByteArray(reinterpret_cast<const char*>(map.rows.data()), map.rows.size()));
            names << name;
        }
    EXPECT_EQ(maps.size(), 9 * 24);
    EXPECT_EQ(names.size(), 3 * 24);
    EXPECT_EQ(skyMapNames(u"Overcast"_s), skyMapNames(u"Default"_s));
    EXPECT_THROW(drawSkyMap(u"Average"_s, 0), Error);
}

/// Each region stands out from its neighbours, so that a recolouring of one is seen there and nowhere else.
TEST(SkyArt, theRegionsAreToldApart) {
    for (const QString& folder : skyFolders()) {
        const Picture map = drawSkyMap(folder, 14); // the map that the program shows
        const auto top = [&](int column) { return pixel(map, column, side - 1); };
        EXPECT_LT(brightness(top(0)), brightness(top(1))) << "ground, dark before light";
        EXPECT_LT(brightness(top(2)), brightness(top(3))) << "clouds";
        EXPECT_LT(brightness(top(4)), brightness(top(12))) << "water";
        EXPECT_LT(brightness(top(30)), brightness(top(31))) << "water";
        EXPECT_NE(pixel(map, 16, 0), pixel(map, 16, 1)) << "the two horizons";
        EXPECT_GT(brightness(pixel(map, 16, 2)), brightness(pixel(map, 16, 30))) << "darker to the zenith";
    }
}

TEST(SkyArt, baseSetsDifferAsTheirNamesSay) {
    const auto zenith = [](const QString& folder) { return pixel(drawSkyMap(folder, 9), 16, 30); };
    const auto blueness = [&](const QString& folder) { return zenith(folder)[0] - zenith(folder)[2]; };
    EXPECT_GT(brightness(zenith(u"Default Softer"_s)), brightness(zenith(u"Default"_s)));
    EXPECT_LT(brightness(zenith(u"Pro Sky"_s)), brightness(zenith(u"Default"_s)));
    EXPECT_LT(blueness(u"Overcast"_s), 30) << "grey";
    EXPECT_GT(blueness(u"Sunny"_s), 100);
    const auto water = pixel(drawSkyMap(u"Tropical"_s, 9), 12, side - 1);
    EXPECT_GT(water[1], 2 * water[2]) << "turquoise";
}

} // namespace
} // namespace morvane
