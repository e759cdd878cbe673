#include "weather/metar_decoder.h"

#include "support/printing.h"
#include "support/scripted_user.h"
#include "weather/sample_reports.h"

#include <gtest/gtest.h>

#include <algorithm>
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
    const QStringList lines = splitLines(decodeText(test::dataFile(u"metar/noaa_decoded.tsv"_s)));
    for (const QString& line : lines.mid(1)) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() < 14) continue;
        rows.push_back({fields[0], fields[3], fields[5], fields[6], fields[8], fields[11], fields[13]});
    }
    return rows;
}

/// Text of the pattern's first group, nothing where the service has none.
std::optional<QString> found(const QString& text, const QString& pattern) {
    const auto match = QRegularExpression(pattern).match(text);
    return match.hasMatch() ? std::optional(match.captured(1)) : std::nullopt;
}

/// Compares where the service says something; true when it did.
template <class Value>
bool agrees(const Value& ours, const std::optional<Value>& theirs) {
    if (!theirs) return false;
    EXPECT_EQ(ours, *theirs);
    return true;
}

std::optional<double> serviceNumber(const QString& text, const QString& pattern) {
    const auto number = found(text, pattern);
    return number ? std::optional(number->toDouble()) : std::nullopt;
}

std::optional<double> serviceKnots(const QString& wind, const QString& verb) {
    return serviceNumber(wind, verb + u" \\d+ MPH \\((\\d+) KT\\)"_s);
}

bool agreesInCelsius(QString ours, const QString& theirs) {
    const auto celsius = serviceNumber(theirs, u"\\((-?[\\d.]+) C\\)"_s);
    if (!celsius) return false;
    // Half a degree apart: the service takes tenths from the remarks where there are some.
    EXPECT_LE(std::abs(ours.replace(u"Minus "_s, u"-"_s).toDouble() - *celsius), 0.5) << ours.toStdString();
    return true;
}

std::optional<QString> serviceDirection(const QString& wind) {
    if (wind.startsWith(u"Calm")) return u"Calm"_s;
    if (wind.startsWith(u"Variable")) return u"Variable"_s;
    const auto degrees = found(wind, u"\\((\\d+) degrees\\)"_s);
    return degrees ? std::optional(*degrees + u" degrees"_s) : std::nullopt;
}

std::optional<int> serviceCloudClass(const QString& sky) {
    static const QStringList words{u"clear"_s,         u"mostly clear"_s, u"partly cloudy"_s,
                                   u"mostly cloudy"_s, u"overcast"_s,     u"obscured"_s};
    const qsizetype index = words.indexOf(sky);
    return index < 0 ? std::nullopt : std::optional(static_cast<int>(index) + 1);
}

class MetarService : public testing::Test {
protected:
    /// Decodes every row but those that begin with a text of `setAside`, and counts the comparisons made.
    template <class Compare>
    int comparisons(const QStringList& setAside, Compare&& compare) {
        int made = 0;
        qsizetype passedOver = 0;
        for (const ServiceRow& row : serviceRows()) {
            SCOPED_TRACE(row.report.toStdString());
            const auto isStart = [&row](const QString& start) { return row.report.startsWith(start); };
            if (std::any_of(setAside.begin(), setAside.end(), isStart)) {
                ++passedOver;
                continue;
            }
            clsDecodeMetar metar(user);
            metar.decodeMetarString(row.report);
            made += compare(row, metar);
        }
        EXPECT_EQ(passedOver, setAside.size());
        return made;
    }

    test::ScriptedUser user;
    // A cloud group without a height, or a heading, stands where a temperature is looked for.
    const QStringList noTemperature{u"FQTT 161200Z"_s, u"KEKA 041600Z"_s, u"LIBE 030905Z"_s,
                                    u"RJNW 290700Z"_s, u"SCBP 240300Z"_s, u"TEDF 101600Z"_s,
                                    u"WIND 090008KT"_s};
};

TEST_F(MetarService, windDirection) {
    const QStringList timeIsAWind{u"SVJP 151100KT"_s};
    const int made = comparisons(timeIsAWind, [](const ServiceRow& row, const clsDecodeMetar& metar) {
        return agrees(metar.WindDirection, serviceDirection(row.wind));
    });
    EXPECT_EQ(made, 378);
}

TEST_F(MetarService, windSpeedInKnots) {
    const int made = comparisons({}, [](const ServiceRow& row, const clsDecodeMetar& metar) {
        return metar.WindSpeedMeasurement == u"kts" &&
               agrees(metar.WindSpeed.toDouble(), serviceKnots(row.wind, u"at"_s));
    });
    EXPECT_EQ(made, 305);
}

TEST_F(MetarService, gustInKnots) {
    const int made = comparisons({}, [](const ServiceRow& row, const clsDecodeMetar& metar) {
        EXPECT_EQ(metar.WindGusting, row.wind.contains(u"gusting"));
        return metar.WindSpeedMeasurement == u"kts" &&
               agrees(metar.WindGust.toDouble(), serviceKnots(row.wind, u"gusting to"_s));
    });
    EXPECT_EQ(made, 16);
}

TEST_F(MetarService, temperature) {
    const int made = comparisons(noTemperature, [](const ServiceRow& row, const clsDecodeMetar& metar) {
        return agreesInCelsius(metar.MetarTemp, row.temperature);
    });
    EXPECT_EQ(made, 376);
}

TEST_F(MetarService, dewpoint) {
    const int made = comparisons(noTemperature, [](const ServiceRow& row, const clsDecodeMetar& metar) {
        return agreesInCelsius(metar.MetarDewpoint, row.dewpoint);
    });
    EXPECT_EQ(made, 367);
}

TEST_F(MetarService, pressure) {
    // Groups that are not five characters; two pressures, of which the service takes the other.
    const QStringList otherForms{u"HLLS 091750Z"_s, u"KQYQ 302055Z"_s, u"MHTG 171200Z"_s,
                                 u"OPPS 171055Z"_s, u"SAST 121630Z"_s, u"VILD 290700Z"_s};
    const int made = comparisons(otherForms, [](const ServiceRow& row, const clsDecodeMetar& metar) {
        const bool isMercury = metar.MetarPressure.endsWith(u"Inches of Mercury");
        const auto theirs = isMercury ? u"^([\\d.]+) in. Hg"_s : u"\\((\\d+) hPa\\)"_s;
        return agrees(metar.MetarPressure.section(u' ', 0, 0).toDouble(),
                      serviceNumber(row.pressure, theirs));
    });
    EXPECT_EQ(made, 338);
}

TEST_F(MetarService, cloudClass) {
    const int made = comparisons({}, [](const ServiceRow& row, const clsDecodeMetar& metar) {
        return agrees(int(metar.MetarMaxCloud), serviceCloudClass(row.sky));
    });
    EXPECT_EQ(made, 304);
}

TEST_F(MetarService, cumulusMarks) {
    const QStringList markInTheRemark{u"EHWO 141525Z"_s};
    const int made = comparisons(markInTheRemark, [](const ServiceRow& row, const clsDecodeMetar& metar) {
        const bool isMarked = row.weather.contains(u"Cumulonimbus clouds observed");
        EXPECT_EQ(metar.MetarCloud.contains(u": Cumulonimbus observed"), isMarked);
        return isMarked;
    });
    EXPECT_EQ(made, 27);
}

} // namespace
} // namespace morvane
