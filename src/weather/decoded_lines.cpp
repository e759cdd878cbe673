#include "weather/decoded_lines.h"

#include "core/literals.h"

#include <QLocale>

namespace morvane {

namespace {

// "phenomina", "Celcius" and "avialable" are how the program has always said it: pilots' log readers know
// these lines, so they stay.

struct PlainLine {
    const char16_t *caption, *column, *unit, *absent;
};

constexpr PlainLine visibility{u"Visibility: ", u"METAR_VISIBILITY", u"", u"No visibility data available"};
constexpr PlainLine obscuration{u"Obscuration: ", u"METAR_FOG", u"", u"No obscuration phenomina recorded"};
constexpr PlainLine sky{u"Sky Conditions: ", u"METAR_CLOUD_COVER", u"", u"No cloud data available"};
constexpr PlainLine temperature{u"Temperature: ", u"METAR_TEMP", u" degree(s) Celcius",
                                u"No temperature data available"};
constexpr PlainLine dewpoint{u"Dewpoint: ", u"METAR_DEWPOINT", u" degree(s) Celcius",
                             u"No Dewpoint data available"};
constexpr PlainLine pressure{u"Pressure: ", u"METAR_PRESSURE", u"", u"No Pressure data available"};

QString text(const char16_t* characters) {
    return QString::fromUtf16(characters);
}

QString lineOf(const PlainLine& line, const RowSet& row) {
    const QString value = row.text(line.column);
    return text(line.caption) + (value.isEmpty() ? text(line.absent) : value + text(line.unit));
}

QString dateLine(const RowSet& row, const QDate& today) {
    const QString storedMonth = row.text(u"METAR_MONTH"), storedYear = row.text(u"METAR_YEAR");
    const QString month = storedMonth.isEmpty() ? QLocale::c().monthName(today.month()) : storedMonth;
    const QString year = storedYear.isEmpty() ? QString::number(today.year()) : storedYear;
    return u"Date: "_s + row.text(u"METAR_DATE") + u' ' + month + u' ' + year + u" Time: "_s +
           row.text(u"METAR_TIME") + u'Z';
}

/// The unit follows its number without a blank.
QString windLine(const RowSet& row) {
    const QString direction = row.text(u"METAR_WIND_DIRECTION"), speed = row.text(u"METAR_WIND_SPEED");
    if (direction.isEmpty() || speed.isEmpty()) return u"Wind: No wind data avialable"_s;
    const QString unit = row.text(u"METAR_WIND_SPEED_MEASUREMENT") + u',';
    QString line =
        direction == u"Calm" ? u"Wind: Calm"_s : u"Wind from: "_s + direction + u" at "_s + speed + unit;
    if (row.flag(u"METAR_WIND_GUSTING")) line += u" Gusting "_s + row.text(u"METAR_WIND_GUST") + unit;
    if (row.flag(u"METAR_WIND_VARYING"))
        line += u" Varying between "_s + row.text(u"METAR_WIND_VARYING_FROM") + u" degrees and "_s +
                row.text(u"METAR_WIND_VARYING_TO") + u" degrees"_s;
    return line;
}

/// Strength and weather are joined as they are: a weather without a strength has two blanks before it.
QString precipitationLine(const RowSet& row) {
    const QString weather = row.text(u"METAR_WEATHER");
    return u"Precipitation: "_s + (weather.isEmpty() ? u"No precipitation type recorded"_s
                                                     : row.text(u"METAR_WEATHER_STRENGTH") + u' ' + weather);
}

} // namespace

QStringList decodedMetarLines(const RowSet& row, const QString& heading, const QString& report,
                              const QDate& today) {
    return {heading,
            dateLine(row, today),
            windLine(row),
            lineOf(visibility, row),
            precipitationLine(row),
            lineOf(obscuration, row),
            lineOf(sky, row),
            lineOf(temperature, row),
            lineOf(dewpoint, row),
            lineOf(pressure, row),
            report};
}

} // namespace morvane
