#include "sky_art.h"

#include "core/error.h"
#include "core/literals.h"
#include "ground_art_color.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace morvane {

namespace {

using art::Color;
using art::mix;
using art::rgb;
using art::scaled;

constexpr int side = 32, mapsOfATime = 6, timesOfADay = 4;
constexpr int mapCount = mapsOfATime * timesOfADay;

/// The colours of a folder's maps at noon, or with the sun on the horizon for the two times of day.
struct SkyLook {
    const char16_t* folder;
    std::uint32_t zenith, horizonHigh, horizonLow, glow, water, cloud, ground;
    float rise; ///< how fast the sky goes over from the horizon to the zenith: 1 evenly, below it sooner
    float firstLight; ///< of the first map, 0 to 1
    float noonLight, lastLight;
};

constexpr SkyLook looks[] = {
    {u"Default", 0x2f66b8, 0xa9c9ea, 0xc6d8e6, 0xffc58a, 0x2b5379, 0xf2f4f6, 0x9aa29a, 0.7F, 0.55F, 1, 0.4F},
    {u"Default Softer", 0x6d96c8, 0xc4d8ea, 0xd8e2e8, 0xffdcb8, 0x5d7d96, 0xf6f5f2, 0xb2b6b0, 0.9F, 0.6F, 1,
     0.5F},
    {u"Horizons", 0x1f4f9c, 0xf0e2c4, 0xfff0cc, 0xffb060, 0x1f4468, 0xfdf4e4, 0xa09884, 0.35F, 0.5F, 1, 0.4F},
    {u"Pro Sky", 0x123a86, 0x7fa6d8, 0x9cb4cc, 0xf29a58, 0x142f52, 0xe4e9f0, 0x7c868c, 0.55F, 0.45F, 0.95F,
     0.3F},
    {u"Sunny", 0x2a86e0, 0xbfe6ff, 0xe8f2e0, 0xffe08a, 0x2a78a8, 0xfffdf2, 0xc4bc98, 0.8F, 0.7F, 1, 0.6F},
    {u"Tropical", 0x1478c4, 0x9fe8e4, 0xc8f4e4, 0xff9c7c, 0x0e9c94, 0xfff8ee, 0xa8b08a, 0.65F, 0.6F, 1,
     0.45F},
    {u"Overcast", 0x7c868e, 0xaab2b6, 0xb4b8b8, 0xc4bcae, 0x56646c, 0xb8bcc0, 0x747a7a, 1.2F, 0.5F, 0.85F,
     0.4F},
    {u"Sunrise", 0x3a4c8c, 0xf4b48c, 0xffd494, 0xff8c5c, 0x40506c, 0xf8c8b4, 0x8c7c7c, 0.5F, 0.15F, 0.55F,
     0.9F},
    {u"Sunset", 0x3c2f6e, 0xe8744c, 0xf8a048, 0xff5030, 0x4c3452, 0xe8a08c, 0x7c625c, 0.45F, 0.85F, 0.5F,
     0.12F},
};

bool isBaseSet(const QString& folder) {
    return folder != u"Sunrise" && folder != u"Sunset";
}

const SkyLook& lookOf(const QString& folder) {
    const auto look = std::ranges::find(
        looks, QStringView(folder), [](const SkyLook& candidate) { return QStringView(candidate.folder); });
    if (look == std::end(looks)) throw Error(ErrorCode::pathNotFound, folder);
    return *look;
}

/// One moment of a folder's day.
struct Moment {
    const SkyLook& look;
    float light;  ///< 0 dark, 1 full day
    float warmth; ///< 0 with the sun high, 1 with the sun on the horizon

    Color lit(std::uint32_t color) const {
        const Color night{0.16F, 0.18F, 0.3F};
        return art::tinted(rgb(color), mix(night, {1, 1, 1}, light));
    }
    /// The sun is at the left; the other side of the sky keeps the colour of the day.
    Color glowing(Color color, float column, float height) const {
        return mix(color, lit(look.glow), warmth * (1 - column) * (1 - height) * 0.8F);
    }
};

Moment momentOf(const SkyLook& look, int index) {
    const float time = static_cast<float>(index) / (mapCount - 1);
    const float ends = time < 0.5F ? look.firstLight : look.lastLight;
    const float height = std::sin(time * std::numbers::pi_v<float>);
    const float light = ends + (look.noonLight - ends) * height;
    return {look, light, 1 - (isBaseSet(QStringView(look.folder).toString()) ? height : light * 0.5F)};
}

/// Columns of the highest row: ground, clouds and water, each dark before light, the water's main colour
/// between its two.
Color shadowColor(const Moment& moment, int column) {
    const SkyLook& look = moment.look;
    switch (column) {
    case 0:
        return scaled(moment.lit(look.ground), 0.35F);
    case 1:
        return scaled(moment.lit(look.ground), 0.9F);
    case 2:
        return scaled(moment.glowing(moment.lit(look.cloud), 0.4F, 0), 0.6F);
    case 3:
        return moment.glowing(moment.lit(look.cloud), 0.6F, 0);
    case 4:
        return scaled(moment.lit(look.water), 0.5F);
    case side - 1:
        return mix(moment.lit(look.water), moment.lit(look.horizonHigh), 0.6F);
    default:
        return mix(moment.lit(look.water), moment.lit(look.zenith), static_cast<float>(column) / side * 0.4F);
    }
}

Color mapColor(const Moment& moment, int column, int row) {
    constexpr int horizonRows = 2, lastSkyRow = side - 2;
    const float across = static_cast<float>(column) / (side - 1);
    if (row > lastSkyRow) return shadowColor(moment, column);
    const SkyLook& look = moment.look;
    if (row == 0) return moment.glowing(moment.lit(look.horizonLow), across, 0);
    if (row == 1) return moment.glowing(moment.lit(look.horizonHigh), across, 0);
    const float height = static_cast<float>(row - horizonRows) / (lastSkyRow - horizonRows);
    const Color sky = mix(moment.lit(look.horizonHigh), moment.lit(look.zenith), std::pow(height, look.rise));
    return moment.glowing(sky, across, height);
}

std::uint8_t channel(float value) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0F, 255.0F)));
}

} // namespace

const QStringList& skyFolders() {
    static const QStringList folders = [] {
        QStringList names;
        for (const SkyLook& look : looks)
            names << QStringView(look.folder).toString();
        return names;
    }();
    return folders;
}

QStringList skyMapNames(const QString& folder) {
    static const char16_t* times[timesOfADay] = {u"morning", u"noon", u"afternoon", u"evening"};
    QStringList names;
    for (int index = 0; index < mapCount; ++index)
        names << (isBaseSet(folder) ? u"sky_%1_%2.bmp"_s.arg(QString::fromUtf16(times[index / mapsOfATime]))
                                          .arg(index % mapsOfATime + 1)
                                    : u"sky_%1_%2.bmp"_s.arg(folder.toLower()).arg(index + 1));
    return names;
}

Picture drawSkyMap(const QString& folder, int index) {
    const Moment moment = momentOf(lookOf(folder), index);
    Picture map{side, side, {}};
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column) {
            const Color color = mapColor(moment, column, row);
            for (const float value : {color.blue, color.green, color.red})
                map.rows.push_back(channel(value));
        }
    return map;
}

} // namespace morvane
