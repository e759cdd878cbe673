#pragma once

#include "weather/metar_decoder.h"

#include <QStringList>

namespace morvane::test {

/// Every property that is not empty, False or 0, as "WindSpeed=015", in the order of the class; but
/// the strength, which ends in a blank, stands before the weather so that it seldom ends a line of a table.
inline QStringList decodedFields(const clsDecodeMetar& metar) {
    const auto flag = [](bool value) { return value ? u"True"_s : QString(); };
    const std::pair<QString, QString> properties[] = {
        {u"MetarICAO"_s, metar.MetarICAO},
        {u"WindSpeedMeasurement"_s, metar.WindSpeedMeasurement},
        {u"WindDirection"_s, metar.WindDirection},
        {u"WindSpeed"_s, metar.WindSpeed},
        {u"WindGusting"_s, flag(metar.WindGusting)},
        {u"WindGust"_s, metar.WindGust},
        {u"WindVarying"_s, flag(metar.WindVarying)},
        {u"WindVaryingFrom"_s, metar.WindVaryingFrom},
        {u"WindVaryingTo"_s, metar.WindVaryingTo},
        {u"MetarDate"_s, metar.MetarDate},
        {u"MetarTime"_s, metar.MetarTime},
        {u"MetarMonth"_s, metar.MetarMonth},
        {u"MetarYear"_s, metar.MetarYear},
        {u"MetarVisiblity"_s, metar.MetarVisiblity},
        {u"MetarVisibilityFormat"_s, metar.MetarVisibilityFormat},
        {u"MetarWeatherStrength"_s, metar.MetarWeatherStrength},
        {u"MetarWeather"_s, metar.MetarWeather},
        {u"MetarObscuration"_s, metar.MetarObscuration},
        {u"MetarCloud"_s, metar.MetarCloud},
        {u"MetarMaxCloud"_s, metar.MetarMaxCloud == 0 ? QString() : QString::number(metar.MetarMaxCloud)},
        {u"MetarTemp"_s, metar.MetarTemp},
        {u"MetarDewpoint"_s, metar.MetarDewpoint},
        {u"MetarPressure"_s, metar.MetarPressure},
    };
    QStringList fields;
    for (const auto& [name, value] : properties)
        if (!value.isEmpty()) fields << name + u'=' + value;
    return fields;
}

} // namespace morvane::test
