#include "weather/decoded_lines.h"

#include "core/literals.h"

#include <QLocale>

namespace morvane {

namespace {

// "phenomina", "Celcius" and "avialable" are how the program has always said it: pilots' log readers know
// these lines, so they stay.

struct PlainLine {
    const char16_t* caption;
    QString clsWxFinder::*value;
    const char16_t *unit, *absent;
};

constexpr PlainLine visibility{u"Visibility: ", &clsWxFinder::WxFinderVisibility, u"",
                               u"No visibility data available"};
constexpr PlainLine obscuration{u"Obscuration: ", &clsWxFinder::WxFinderFog, u"",
                                u"No obscuration phenomina recorded"};
constexpr PlainLine sky{u"Sky Conditions: ", &clsWxFinder::WxFinderCloudCover, u"",
                        u"No cloud data available"};
constexpr PlainLine temperature{u"Temperature: ", &clsWxFinder::WxFinderTemperature, u" degree(s) Celcius",
                                u"No temperature data available"};
constexpr PlainLine dewpoint{u"Dewpoint: ", &clsWxFinder::WxFinderDewpoint, u" degree(s) Celcius",
                             u"No Dewpoint data available"};
constexpr PlainLine pressure{u"Pressure: ", &clsWxFinder::WxFinderPressure, u"",
                             u"No Pressure data available"};

QString text(const char16_t* characters) {
    return QString::fromUtf16(characters);
}

QString lineOf(const PlainLine& line, const clsWxFinder& report) {
    const QString& value = report.*line.value;
    return text(line.caption) + (value.isEmpty() ? text(line.absent) : value + text(line.unit));
}

QString dateLine(const clsWxFinder& report, const QDate& today) {
    const QString storedMonth = report.WxFinderMonth, storedYear = report.WxFinderYear;
    const QString month = storedMonth.isEmpty() ? QLocale::c().monthName(today.month()) : storedMonth;
    const QString year = storedYear.isEmpty() ? QString::number(today.year()) : storedYear;
    return u"Date: "_s + report.WxFinderDate + u' ' + month + u' ' + year + u" Time: "_s +
           report.WxFinderTime + u'Z';
}

/// The unit follows its number without a blank.
QString windLine(const clsWxFinder& report) {
    const QString direction = report.WxFinderWindDirection, speed = report.WxFinderWindSpeed;
    if (direction.isEmpty() || speed.isEmpty()) return u"Wind: No wind data avialable"_s;
    const QString unit = report.WxFinderWindSpeedMeasurement + u',';
    QString line =
        direction == u"Calm" ? u"Wind: Calm"_s : u"Wind from: "_s + direction + u" at "_s + speed + unit;
    if (report.WxFinderWindGusting) line += u" Gusting "_s + report.WxFinderWindGust + unit;
    if (report.WxFinderWindVarying)
        line += u" Varying between "_s + report.WxFinderWindVaryingFrom + u" degrees and "_s +
                report.WxFinderWindVaryingTo + u" degrees"_s;
    return line;
}

/// Strength and weather are joined as they are: a weather without a strength has two blanks before it.
QString precipitationLine(const clsWxFinder& report) {
    const QString weather = report.WxFinderWeather;
    return u"Precipitation: "_s + (weather.isEmpty() ? u"No precipitation type recorded"_s
                                                     : report.WxFinderWeatherStrength + u' ' + weather);
}

} // namespace

ReportLines decodedMetarLines(const clsWxFinder& report, const QString& heading, const QDate& today) {
    return {heading,
            dateLine(report, today),
            windLine(report),
            lineOf(visibility, report),
            precipitationLine(report),
            lineOf(obscuration, report),
            lineOf(sky, report),
            lineOf(temperature, report),
            lineOf(dewpoint, report),
            lineOf(pressure, report),
            report.WxFinderMetar};
}

} // namespace morvane
