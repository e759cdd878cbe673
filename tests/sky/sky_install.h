#pragma once

#include "sky/sky_base_sets.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"
#include "support/small_install.h"

#include <random>

namespace morvane::test {

/// Sky textures of 32 x 32 pixels: those names for every base set, one each for sunrise and sunset, no two
/// alike.
inline void addSkyStock(const FilePath& home, const QStringList& names) {
    const FilePath stock = home / u"Resources\\Sky";
    int shade = 30;
    for (const QString& base : skyBaseSetBoxes())
        for (const QString& name : names)
            writeFile(stock / base / name, smallBitmap(32, shade += 9));
    writeFile(stock / u"Sunrise\\sky_sunrise_1.bmp", smallBitmap(32, 11));
    writeFile(stock / u"Sunset\\sky_sunset_1.bmp", smallBitmap(32, 12));
}

/// A small install with a stock of three sky textures for every base set.
struct SkyInstall : SmallInstall {
    SkyInstall() : SmallInstall(SmallInstallOptions{{u"GENERIC WORLD\\029h2su6.bmp"_s}}) {
        files.makeFolder(home() / u"Sky Texture Sets");
        addSkyStock(home(), skyFiles);
    }

    FilePath stock(const QString& name) const { return home() / u"Resources\\Sky" / name; }
    clsSkyTextureSets& reloadedSkySets() {
        session.rows<clsSkyTextureSets>().reset();
        return loadedSkySets(session);
    }

    const QStringList skyFiles{u"sky_afternoon_3.bmp"_s, u"sky_day_1.bmp"_s, u"Sky_Day_2.BMP"_s};
};

/// Numbers that look random and are the same in every run.
inline std::vector<double> mixedNumbers(std::size_t count) {
    std::mt19937 engine(2004);
    std::vector<double> numbers(count);
    for (double& number : numbers)
        number = static_cast<double>(engine()) / 4294967296.0;
    return numbers;
}

} // namespace morvane::test
