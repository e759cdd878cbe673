#include "landscape.h"

#include "base_image_contact_sheet.h"
#include "base_image_drawing.h"
#include "core/literals.h"
#include "ground_art_canvas.h"
#include "ground_art_noise.h"
#include "ground_art_random.h"

#include <algorithm>
#include <cmath>

namespace morvane {

namespace {

using art::Color;
using art::mix;
using art::NoiseField;
using art::rgb;

/// Rows above the horizon over which the far hills rise.
constexpr int highestHill = 26;

/// How a cover looks.
struct Weather {
    const char16_t* word;
    /// Share of the sky under cloud, 0 to 1.
    float cover;
    /// Grey of the clouds' undersides and of the light on the land: 0 fair, 1 gloomy.
    float gloom;
};
constexpr Weather weathers[] = {{u"SKC", 0.0f, 0.0f},
                                {u"FEW", 0.20f, 0.05f},
                                {u"SCT", 0.42f, 0.15f},
                                {u"BKN", 0.74f, 0.45f},
                                {u"OVC", 1.0f, 0.85f}};

Weather weatherOf(const QString& word) {
    for (const Weather& weather : weathers)
        if (word == QStringView(weather.word)) return weather;
    return weathers[2];
}

void setPixel(QImage& image, int x, int y, Color color) {
    const auto byte = [](float value) { return static_cast<int>(std::clamp(value, 0.0f, 255.0f)); };
    std::uint8_t* pixel = image.scanLine(y) + x * 3;
    pixel[0] = static_cast<std::uint8_t>(byte(color.red));
    pixel[1] = static_cast<std::uint8_t>(byte(color.green));
    pixel[2] = static_cast<std::uint8_t>(byte(color.blue));
}

/// Value between the pixels of a noise: the splash stretches it far.
float smoothAt(const NoiseField& noise, float x, float y) {
    const float left = std::floor(x);
    const float top = std::floor(y);
    const float across = x - left;
    const float down = y - top;
    const float upper = noise.at({left, top}) * (1 - across) + noise.at({left + 1, top}) * across;
    const float lower = noise.at({left, top + 1}) * (1 - across) + noise.at({left + 1, top + 1}) * across;
    return upper * (1 - down) + lower * down;
}

Color hazeOf(const Weather& weather) {
    return mix(rgb(0xcfe0ec), rgb(0xb3b9bf), weather.gloom);
}

/// The flat underside of a cloud layer, seen in perspective, so that clouds crowd toward the horizon.
class CloudLayer {
public:
    CloudLayer(const Weather& weather, const LandscapeView& view)
        : weather_(weather), view_(view), shapes_({8, 5, 0.55f}, 2104),
          edge_(shapes_.quantile(1 - weather.cover)) {}

    Color over(Color sky, int x, int y) const {
        if (weather_.cover <= 0) return sky;
        const float distance = 5200.0f / static_cast<float>(view_.horizon + 14 - y);
        const float across = static_cast<float>(x - view_.size.width() / 2) * distance * 0.0085f + 300;
        const float value = smoothAt(shapes_, across, distance * 2.4f);
        // Toward the sun the cloud is thinner: its rim is lit.
        const float sunward = smoothAt(shapes_, across - 3, distance * 2.4f - 3);
        const float body = weather_.cover >= 1 ? 1.0f : art::clampedToUnit((value - edge_) * 13);
        const float contrast = 1 - 0.6f * weather_.gloom;
        const float thickness = std::min(value - edge_, 0.3f);
        const float light =
            0.88f - 0.26f * weather_.gloom + ((value - sunward) * 2.2f - thickness * 0.8f) * contrast;
        const Color cloud =
            art::scaled(mix(rgb(0xffffff), rgb(0xdde3ea), weather_.gloom), std::min(1.0f, light + 0.1f));
        const float far = art::clampedToUnit(distance / 150 - 0.15f);
        return mix(mix(sky, cloud, body), hazeOf(weather_), far * 0.75f);
    }

private:
    Weather weather_;
    LandscapeView view_;
    NoiseField shapes_;
    float edge_;
};

void paintSky(QImage& image, const Weather& weather, const LandscapeView& view) {
    const CloudLayer clouds(weather, view);
    for (int y = 0; y < view.horizon; ++y) {
        const float share = static_cast<float>(y) / static_cast<float>(view.horizon);
        const Color sky =
            mix(mix(rgb(0x2f6cb0), rgb(0x7b8894), weather.gloom), hazeOf(weather), share * share);
        for (int x = 0; x < view.size.width(); ++x)
            setPixel(image, x, y, clouds.over(sky, x, y));
    }
}

/// The ground is made of base images of the stock, laid out to the horizon.
class GroundPlane {
public:
    GroundPlane(const Weather& weather, const LandscapeView& view) : weather_(weather), view_(view) {
        for (const char16_t* landClass : {u"004a", u"011a", u"007a", u"021a"})
            addTile(QString::fromUtf16(landClass));
    }

    Color at(float x, float y) const {
        const float distance = 15000.0f / (y - static_cast<float>(view_.horizon) + 6);
        const float across = (x - static_cast<float>(view_.size.width()) / 2) * distance * 0.0042f + 1300;
        const float along = distance * 1.15f;
        const QImage& tile = tileAt(static_cast<int>(across / 256), static_cast<int>(along / 256));
        const QRgb pixel = tile.pixel(static_cast<int>(across) & 255, 255 - (static_cast<int>(along) & 255));
        const Color ground = rgb(pixel & 0xffffff);
        const Color lit =
            art::scaled(mix(ground, rgb(0x6f7a80), weather_.gloom * 0.3f), 1.08f - 0.28f * weather_.gloom);
        return mix(lit, hazeOf(weather_), art::clampedToUnit(distance / 2600));
    }

private:
    void addTile(const QString& landClass) {
        const auto stock = baseImageList(lowestStockDensity);
        const auto found = std::find_if(stock.begin(), stock.end(), [&](const BaseImage& image) {
            return image.landClass == landClass && image.season == BaseImageSeason::summer;
        });
        if (found != stock.end()) tiles_.push_back(toImage(drawBaseImage(*found)));
    }

    const QImage& tileAt(int column, int row) const {
        const auto draw = art::scrambled(static_cast<std::uint64_t>(column * 1021 + row));
        return tiles_[draw % tiles_.size()];
    }

    Weather weather_;
    LandscapeView view_;
    std::vector<QImage> tiles_;
};

void paintGround(QImage& image, const Weather& weather, const LandscapeView& view) {
    const GroundPlane plane(weather, view);
    // Nine looks at a pixel: with one, the far fields would be mere grains.
    constexpr int looks = 3;
    for (int y = view.horizon; y < view.size.height(); ++y)
        for (int x = 0; x < view.size.width(); ++x) {
            Color sum;
            for (int look = 0; look < looks * looks; ++look) {
                const float right = static_cast<float>(look % looks) / looks;
                const float down = static_cast<float>(look / looks) / looks;
                const Color seen = plane.at(static_cast<float>(x) + right, static_cast<float>(y) + down);
                sum = {sum.red + seen.red, sum.green + seen.green, sum.blue + seen.blue};
            }
            setPixel(image, x, y, art::scaled(sum, 1.0f / (looks * looks)));
        }
}

/// Two chains of hills in the haze.
void paintHills(QImage& image, const Weather& weather, const LandscapeView& view) {
    const NoiseField crests({4, 5, 0.45f}, 77);
    for (int chain = 0; chain < 2; ++chain) {
        const Color hill = mix(mix(rgb(0x5b7f8f), rgb(0x667a5c), static_cast<float>(chain)), hazeOf(weather),
                               0.55f - 0.2f * static_cast<float>(chain));
        for (int x = 0; x < view.size.width(); ++x) {
            const float rise =
                smoothAt(crests, static_cast<float>(x) * 0.35f, static_cast<float>(chain * 90 + 20));
            const int top = view.horizon - static_cast<int>((rise - 0.28f) * highestHill * 2 *
                                                            (1 - 0.45f * static_cast<float>(chain)));
            for (int y = top; y < view.horizon + 2; ++y)
                setPixel(image, x, y, hill);
        }
    }
}

} // namespace

QImage drawLandscape(const QString& coverWord, const LandscapeView& view) {
    const Weather weather = weatherOf(coverWord);
    QImage image(view.size, QImage::Format_RGB888);
    paintSky(image, weather, view);
    paintGround(image, weather, view);
    paintHills(image, weather, view);
    return image;
}

} // namespace morvane
