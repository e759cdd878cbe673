#include "sample_cycle.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "weather/airport_report.h"
#include "weather/weather_refresh.h"
#include "weather/weather_state.h"
#include "weather/wx_finders.h"

#include <QLabel>
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
            program.install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, name, text);
        session.state<WeatherState>().InhibitWeatherReports = false;
    }
    /// The texts of the screen but for its first, joined by "|".
    QString shownReport(const QString& icao) {
        QStringList lines;
        program.whenShown(u"frm_metar"_s, [&](DialogForm& form) {
            for (int index = 1; index <= 10; ++index)
                lines << form.findChild<QLabel*>(u"lblDecodedMetar_%1"_s.arg(index))->text();
            form.ok();
        });
        QString metar;
        EXPECT_TRUE(getMetar(session, icao, {}, {}, {}, {}, metar));
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
    const QString noWeather = u"Precipitation: No precipitation type recorded|"_s,
                  noObscuration = u"Obscuration: No obscuration phenomina recorded|"_s;
    const std::pair<QString, QString> cases[] = {
        {u"EHAM"_s, u"Date: 23 November 2011 Time: 0225Z|Wind from: 160 degrees at 001kts,|Visibility: 2700m|"
                    "Precipitation: Light  Rain and Drizzle|Obscuration: Mist|Sky Conditions: Mostly Cloudy|"
                    "Temperature: 07 degree(s) Celcius|Dewpoint: 07 degree(s) Celcius|"
                    "Pressure: 1022 Millibars|"
                    "EHAM 230225Z 16001KT 2700 -RADZ BR FEW004 SCT007 BKN012 07/07 Q1022"_s},
        {u"K1J0"_s,
         u"Date: 23 November 2011 Time: 0228Z|Wind from: 230 degrees at 007kts, Varying between 200 "
         "degrees and 260 degrees|Visibility: 1 1/2 Mile(s)|Precipitation: Heavy  Rain|"
         "Obscuration: Mist|Sky Conditions: Overcast|Temperature: 19 degree(s) Celcius|"
         "Dewpoint: 19 degree(s) Celcius|Pressure: 30.06 Inches of Mercury|"
         "K1J0 230228Z AUTO 23007KT 200V260 1 1/2SM +RA BR OVC012 19/19 A3006"_s},
        {u"EGCC"_s, u"Date: 23 November 2011 Time: 0220Z|Wind from: 160 degrees at 009kts,|"
                    "Visibility: Greater than 10km|"_s +
                        noWeather + noObscuration +
                        u"Sky Conditions: No significant cloud below 5000 feet (CAVOK)|"
                        "Temperature: 04 degree(s) Celcius|Dewpoint: 02 degree(s) Celcius|"
                        "Pressure: 1023 Millibars|EGCC 230220Z 16009KT CAVOK 04/02 Q1023"_s},
        {u"CYXH"_s, u"Date: 23 November 2011 Time: 0200Z|Wind from: 210 degrees at 014kts, Gusting 20kts,|"
                    "Visibility: 15 Mile(s)|"_s +
                        noWeather + noObscuration +
                        u"Sky Conditions: Partly Cloudy|Temperature: 08 degree(s) Celcius|"
                        "Dewpoint: Minus 01 degree(s) Celcius|Pressure: 29.54 Inches of Mercury|"
                        "CYXH 230200Z 21014G20KT 15SM SCT240 08/M01 A2954"_s},
        // The unknown pair in front leaves the joiner of the second.
        {u"ENGM"_s, u"Date: 23 November 2011 Time: 0244Z|Wind from: Variable at 01kts,|Visibility: 6000m|"
                    "Precipitation: Light  and Rain|"_s +
                        noObscuration +
                        u"Sky Conditions: Overcast|Temperature: Minus 00 degree(s) Celcius|"
                        "Dewpoint: Minus 03 degree(s) Celcius|Pressure: 1021 Millibars|"
                        "ENGM 230244Z VRB01KT 6000 -FZRA OVC002 M00/M03 Q1021"_s},
    };
    for (const auto& [icao, lines] : cases)
        EXPECT_EQ(shownReport(icao), lines);
}

} // namespace
} // namespace morvane
