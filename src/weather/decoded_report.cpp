#include "weather/decoded_report.h"

#include "core/numbers.h"
#include "weather/metar_text.h"

namespace morvane {

clsWxFinder toWxFinder(const clsDecodeMetar& decoded, const QString& line) {
    clsWxFinder finder;
    finder.WxFinderMetar = trimMetarString(line);
    finder.WxFinderIcao = trimmedBlanks(decoded.MetarICAO);
    finder.WxFinderWindSpeed = decoded.WindSpeed;
    finder.WxFinderWindSpeedMeasurement = decoded.WindSpeedMeasurement;
    finder.WxFinderWindDirection = decoded.WindDirection;
    finder.WxFinderWindGusting = decoded.WindGusting;
    finder.WxFinderWindGust = decoded.WindGust;
    finder.WxFinderWindVarying = decoded.WindVarying;
    finder.WxFinderWindVaryingFrom = decoded.WindVaryingFrom;
    finder.WxFinderWindVaryingTo = decoded.WindVaryingTo;
    finder.WxFinderCloudCover = decoded.MetarCloud;
    finder.WxFinderMaxCloud = decoded.MetarMaxCloud;
    finder.WxFinderVisibility = decoded.MetarVisiblity;
    finder.WxFinderVisibilityFormat = decoded.MetarVisibilityFormat;
    finder.WxFinderWeatherStrength = decoded.MetarWeatherStrength;
    finder.WxFinderFog = decoded.MetarObscuration;
    finder.WxFinderWeather = decoded.MetarWeather;
    finder.WxFinderTemperature = decoded.MetarTemp;
    finder.WxFinderDewpoint = decoded.MetarDewpoint;
    finder.WxFinderPressure = decoded.MetarPressure;
    finder.WxFinderDate = decoded.MetarDate;
    finder.WxFinderTime = decoded.MetarTime;
    return finder;
}

} // namespace morvane
