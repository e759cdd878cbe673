#include "sets/colour_settings.h"

#include "core/error.h"
#include "core/numbers.h"
#include "imaging/slider_steps.h"

#include <QStringList>
#include <algorithm>

namespace morvane {

namespace {

constexpr double channelScale = 20.0 / 100;
constexpr double levelScale = 30.0 / 100;

bool isWithin(float value, double scale) {
    return value >= sliderLowest * scale && value <= sliderHighest * scale;
}

} // namespace

QString colourSettingsText(const ColourValues& values) {
    const float fields[] = {values.saturation, values.red,        values.green,
                            values.blue,       values.brightness, values.contrast};
    QStringList texts;
    for (const float field : fields)
        texts << floatText(field);
    return texts.join(u':');
}

ColourValues parseColourSettings(const QString& text, const QString& decimalSeparator) {
    const QStringList fields = text.split(u':');
    if (fields.size() < 6) throw Error(ErrorCode::subscript);
    const auto field = [&](qsizetype i) {
        QString number = fields[i];
        number.replace(decimalSeparator, u"."_s).replace(u',', u'.');
        return static_cast<float>(textToNumber(number));
    };
    return {field(0), field(1), field(2), field(3), field(4), field(5)};
}

bool areWithinSliders(const ColourValues& values) {
    const auto areWithin = [](std::initializer_list<float> fields, double scale) {
        return std::ranges::all_of(fields, [scale](float field) { return isWithin(field, scale); });
    };
    return isWithin(values.saturation, 1) &&
           areWithin({values.red, values.green, values.blue}, channelScale) &&
           areWithin({values.brightness, values.contrast}, levelScale);
}

ColourValues effectiveColours(const SliderValues& sliders) {
    const auto scaled = [&sliders](std::size_t i, double scale) {
        return static_cast<float>(sliders[i] * scale);
    };
    return {static_cast<float>(sliders[0]), scaled(1, channelScale), scaled(2, channelScale),
            scaled(3, channelScale),        scaled(4, levelScale),   scaled(5, levelScale)};
}

std::array<double, 6> sliderPositions(const ColourValues& values) {
    return {values.saturation,          values.red / channelScale,      values.green / channelScale,
            values.blue / channelScale, values.brightness / levelScale, values.contrast / levelScale};
}

} // namespace morvane
