#pragma once

#include "weather/weather_report.h"

#include <QStringList>

namespace morvane::test {

/// Every property that is not empty, False or 0, as "WindSpeed=015", in the order of the class; but
/// the strength, which ends in a blank, stands before the weather so that it seldom ends a line of a table.
inline QStringList decodedFields(const clsWxFinder& report) {
    const auto flag = [](bool value) { return value ? u"True"_s : QString(); };
    const std::pair<QString, QString> properties[] = {
        {u"MetarICAO"_s, report.WxFinderIcao},
        {u"WindSpeedMeasurement"_s, report.WxFinderWindSpeedMeasurement},
        {u"WindDirection"_s, report.WxFinderWindDirection},
        {u"WindSpeed"_s, report.WxFinderWindSpeed},
        {u"WindGusting"_s, flag(report.WxFinderWindGusting)},
        {u"WindGust"_s, report.WxFinderWindGust},
        {u"WindVarying"_s, flag(report.WxFinderWindVarying)},
        {u"WindVaryingFrom"_s, report.WxFinderWindVaryingFrom},
        {u"WindVaryingTo"_s, report.WxFinderWindVaryingTo},
        {u"MetarDate"_s, report.WxFinderDate},
        {u"MetarTime"_s, report.WxFinderTime},
        {u"MetarMonth"_s, report.WxFinderMonth},
        {u"MetarYear"_s, report.WxFinderYear},
        {u"MetarVisiblity"_s, report.WxFinderVisibility},
        {u"MetarVisibilityFormat"_s, report.WxFinderVisibilityFormat},
        {u"MetarWeatherStrength"_s, report.WxFinderWeatherStrength},
        {u"MetarWeather"_s, report.WxFinderWeather},
        {u"MetarObscuration"_s, report.WxFinderFog},
        {u"MetarCloud"_s, report.WxFinderCloudCover},
        {u"MetarMaxCloud"_s,
         report.WxFinderMaxCloud == 0 ? QString() : QString::number(report.WxFinderMaxCloud)},
        {u"MetarTemp"_s, report.WxFinderTemperature},
        {u"MetarDewpoint"_s, report.WxFinderDewpoint},
        {u"MetarPressure"_s, report.WxFinderPressure},
    };
    QStringList fields;
    for (const auto& [name, value] : properties)
        if (!value.isEmpty()) fields << name + u'=' + value;
    return fields;
}

} // namespace morvane::test
