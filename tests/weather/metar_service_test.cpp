#include "weather/metar_decoder.h"

#include "support/scripted_user.h"
#include "weather/sample_reports.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

// The weather service's own reading of the sample reports, compared in meaning wherever both sides say
// something.

namespace morvane {
namespace {

struct ServiceRow {
    QString report, wind, sky, weather, temperature, dewpoint, pressure;
};

std::vector<ServiceRow> serviceRows() {
    std::vector<ServiceRow> rows;
    for (const QString& line : splitLines(test::dataText(u"metar/noaa_decoded.tsv"_s)).mid(1)) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() < 14) continue;
        rows.push_back({fields[0], fields[3], fields[5], fields[6], fields[8], fields[11], fields[13]});
    }
    return rows;
}

/// Whether both readings agree; nothing where the service is silent.
using Agreement = std::optional<bool>;

/// Compares a number with the first group of the pattern in the service's text.
Agreement agrees(double ours, const QString& theirs, const QString& pattern, double tolerance = 0) {
    const auto match = QRegularExpression(pattern).match(theirs);
    if (!match.hasMatch()) return std::nullopt;
    return std::abs(ours - match.captured(1).toDouble()) <= tolerance;
}

/// `figure` is WindSpeed or WindGust, `verb` what stands in front of it in the service's text.
Agreement agreesInKnots(const clsDecodeMetar& ours, const QString& figure, const ServiceRow& theirs,
                        const QString& verb) {
    if (ours.WindSpeedMeasurement != u"kts") return std::nullopt;
    return agrees(figure.toDouble(), theirs.wind, verb + u" \\d+ MPH \\((\\d+) KT\\)"_s);
}

Agreement agreesInCelsius(QString ours, const QString& theirs) {
    // Half a degree apart: the service takes tenths from the remarks where there are some.
    return agrees(ours.replace(u"Minus "_s, u"-"_s).toDouble(), theirs, u"\\((-?[\\d.]+) C\\)"_s, 0.5);
}

Agreement agreesInDirection(const QString& ours, const QString& wind) {
    for (const QString& word : {u"Calm"_s, u"Variable"_s})
        if (wind.startsWith(word)) return ours == word;
    const auto degrees = QRegularExpression(u"\\((\\d+ degrees)\\)"_s).match(wind);
    return degrees.hasMatch() ? Agreement(ours == degrees.captured(1)) : std::nullopt;
}

Agreement agreesInPressure(const QString& ours, const QString& theirs) {
    const bool isMercury = ours.endsWith(u"Inches of Mercury");
    return agrees(ours.section(u' ', 0, 0).toDouble(), theirs,
                  isMercury ? u"^([\\d.]+) in. Hg"_s : u"\\((\\d+) hPa\\)"_s);
}

Agreement agreesInCloudClass(int ours, const QString& sky) {
    const QStringList words =
        u"|clear|mostly clear|partly cloudy|mostly cloudy|overcast|obscured"_s.split(u'|');
    const qsizetype theirs = words.indexOf(sky);
    return theirs < 1 ? std::nullopt : Agreement(ours == theirs);
}

struct Comparison {
    const char* figure;
    int count; ///< reports in which the service gives the figure
    Agreement (*compare)(const clsDecodeMetar& ours, const ServiceRow& theirs);
    QString setAside = {}; ///< how the reports begin that are read differently for a reason, joined by "|"
};

using Ours = const clsDecodeMetar&;
using Theirs = const ServiceRow&;

// A cloud group without a height, or a heading, stands where a temperature is looked for.
const QString noTemperature =
    u"FQTT 161200Z|KEKA 041600Z|LIBE 030905Z|RJNW 290700Z|SCBP 240300Z|TEDF 101600Z|WIND 090008KT"_s;
// Groups that are not five characters; two pressures, of which the service takes the other.
const QString otherPressure =
    u"HLLS 091750Z|KQYQ 302055Z|MHTG 171200Z|OPPS 171055Z|SAST 121630Z|VILD 290700Z"_s;
const QString timeIsAWind = u"SVJP 151100KT"_s;
const QString markInTheRemark = u"EHWO 141525Z"_s;

const Comparison comparisons[] = {
    {"wind direction", 378,
     [](Ours ours, Theirs theirs) { return agreesInDirection(ours.WindDirection, theirs.wind); },
     timeIsAWind},
    {"wind speed", 305,
     [](Ours ours, Theirs theirs) { return agreesInKnots(ours, ours.WindSpeed, theirs, u"at"_s); }},
    {"gust", 16,
     [](Ours ours, Theirs theirs) { return agreesInKnots(ours, ours.WindGust, theirs, u"to"_s); }},
    {"gusting", 401,
     [](Ours ours, Theirs theirs) {
         return Agreement(ours.WindGusting == theirs.wind.contains(u"gusting"));
     }},
    {"temperature", 376,
     [](Ours ours, Theirs theirs) { return agreesInCelsius(ours.MetarTemp, theirs.temperature); },
     noTemperature},
    {"dewpoint", 367,
     [](Ours ours, Theirs theirs) { return agreesInCelsius(ours.MetarDewpoint, theirs.dewpoint); },
     noTemperature},
    {"pressure", 338,
     [](Ours ours, Theirs theirs) { return agreesInPressure(ours.MetarPressure, theirs.pressure); },
     otherPressure},
    {"cloud class", 304,
     [](Ours ours, Theirs theirs) { return agreesInCloudClass(ours.MetarMaxCloud, theirs.sky); }},
    {"cumulonimbus", 400,
     [](Ours ours, Theirs theirs) {
         return Agreement(ours.MetarCloud.contains(u": Cumulonimbus observed") ==
                          theirs.weather.contains(u"Cumulonimbus clouds observed"));
     },
     markInTheRemark},
};

TEST(MetarService, readsEveryFigureLikeTheDecoder) {
    const std::vector<ServiceRow> rows = serviceRows();
    for (const Comparison& comparison : comparisons) {
        SCOPED_TRACE(comparison.figure);
        QStringList setAside = comparison.setAside.split(u'|', Qt::SkipEmptyParts);
        int made = 0;
        for (const ServiceRow& row : rows) {
            if (setAside.removeOne(row.report.section(u' ', 0, 1))) continue;
            test::ScriptedUser user;
            clsDecodeMetar metar(user);
            metar.decodeMetarString(row.report);
            const Agreement agreement = comparison.compare(metar, row);
            EXPECT_TRUE(agreement.value_or(true)) << row.report.toStdString();
            made += agreement.has_value();
        }
        EXPECT_EQ(made, comparison.count);
        EXPECT_TRUE(setAside.isEmpty()) << setAside.join(u'|').toStdString();
    }
}

} // namespace
} // namespace morvane
