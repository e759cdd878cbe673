#include "sample_cycle.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "weather/airport_report.h"
#include "weather/reports.h"
#include "weather/weather_refresh.h"
#include "weather/weather_state.h"

#include <gtest/gtest.h>

// A real hour of the public service on its whole way: served, fetched, decoded, stored, shown.

namespace morvane {
namespace {

struct CycleToScreen : testing::Test {
    CycleToScreen() {
        program.install.clock.now = QDateTime(QDate(2011, 11, 23), QTime(3, 5), Qt::UTC);
        const std::pair<QString, QString> values[] = {{u"WeatherServer"_s, server.address()},
                                                      {u"WeatherFormat"_s, u"noaa"_s}};
        for (const auto& [name, text] : values)
            storeOwnValue(program.install.registry, name, text);
        session.state<WeatherState>().InhibitWeatherReports = false;
    }
    /// The texts of the screen but for its first, joined by "|".
    QString shownReport(const QString& icao) {
        QStringList lines;
        program.whenShown(u"frm_metar"_s, [&](DialogForm& form) {
            for (int index = 1; index <= 10; ++index)
                lines << program.text(u"frm_metar"_s, u"lblDecodedMetar_%1"_s.arg(index));
            form.ok();
        });
        EXPECT_TRUE(getMetar(session, {icao, {}, {}, {}, {}, {}, {}}));
        return lines.join(u'|');
    }

    test::WindowProgram program;
    Session& session = program.session;
    LoopbackServer server{sampleCycleReply};
};

TEST_F(CycleToScreen, theNewestReportOfAStationReadsInPlainWords) {
    refreshWeather(session);
    ASSERT_EQ(server.requests(), 1);
    EXPECT_EQ(session.state<WeatherState>().MetarCycleHour, 2);
    const std::pair<QString, QString> cases[] = {
        {u"EHAM"_s, u"Date: 23 November 2011 Time: 0225Z|Wind from: 160 degrees at 001kts,|Visibility: 2700m|"
                    "Precipitation: Light  Rain and Drizzle|Obscuration: Mist|Sky Conditions: Mostly Cloudy|"
                    "Temperature: 07 degree(s) Celcius|Dewpoint: 07 degree(s) Celcius|"
                    "Pressure: 1022 Millibars|"
                    "EHAM 230225Z 16001KT 2700 -RADZ BR FEW004 SCT007 BKN012 07/07 Q1022"_s},
        // The unknown pair in front leaves the joiner of the second.
        {u"ENGM"_s, u"Date: 23 November 2011 Time: 0244Z|Wind from: Variable at 01kts,|Visibility: 6000m|"
                    "Precipitation: Light  and Rain|Obscuration: No obscuration phenomina recorded|"
                    "Sky Conditions: Overcast|Temperature: Minus 00 degree(s) Celcius|"
                    "Dewpoint: Minus 03 degree(s) Celcius|Pressure: 1021 Millibars|"
                    "ENGM 230244Z VRB01KT 6000 -FZRA OVC002 M00/M03 Q1021"_s},
    };
    for (const auto& [icao, lines] : cases)
        EXPECT_EQ(shownReport(icao), lines);
}

} // namespace
} // namespace morvane
