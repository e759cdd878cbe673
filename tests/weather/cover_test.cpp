#include "core/error.h"
#include "sets/cloud_cover.h"
#include "simulator/set_matching.h"
#include "support/raised_error.h"
#include "support/small_install.h"
#include "weather/cover_choice.h"
#include "weather/flight_plan.h"
#include "weather/weather_rows.h"
#include "weather/weather_state.h"

namespace morvane::test {
namespace {

struct CoverChoiceTest : InstallTest {
    /// The ways that the user takes, one after another: the method, then whether its screen is confirmed. "0-
    /// 2+" is a cancelled plan and a cover by hand.
    void take(const QString& ways) {
        install.user.onModal = [this, ways, shown = 0](Screen screen) mutable {
            shownScreens << screenName(screen);
            const QString way = ways.section(u' ', shown / 2, shown / 2);
            if (shown++ % 2 == 0)
                choice.coverMethod = static_cast<CoverMethod>(way.left(1).toShort());
            else if ((choice.coverConfirmed = way.endsWith(u'+')))
                choice.cloudClass = 5;
        };
    }

    CoverChoice& choice = session.state<CoverChoice>();
    QStringList shownScreens;
};

TEST_F(CoverChoiceTest, reportsOfTheAirports) {
    EXPECT_EQ(coverOfAirports(session), 0);
    session.state<WeatherState>().DepMetar = u" EHAM 241225Z 24015KT 9999 FEW030 18/09 Q1012 "_s;
    EXPECT_EQ(coverOfAirports(session), 2);
    session.state<WeatherState>().DestMetar = u"EGLL 241220Z 24015KT 0100 VV001 18/18 Q1012"_s;
    EXPECT_EQ(coverOfAirports(session), 4);
    session.state<WeatherState>().DepMetar.clear();
    EXPECT_EQ(coverOfAirports(session), 6);
    EXPECT_EQ(coverOfClass(6).word, u"Partly Cloudy"_s) << "an obscured sky";
}

TEST_F(CoverChoiceTest, aCancelledWayLeadsBackToTheChoice) {
    take(u"0- 1- 3- 2+"_s);
    EXPECT_EQ(selectCloudCoverMethod(session), 5);
    const QString method = u"frm_Select_CC_Method"_s;
    EXPECT_EQ(shownScreens, (QStringList{method, u"frm_FlightPlan"_s, method, u"frm_FromDepDestVal"_s, method,
                                         u"frm_CC_From_Metar_String"_s, method, u"frm_CC_From_Option"_s}));
}

TEST_F(CoverChoiceTest, aCancelledChoiceEndsTheRoad) {
    take(u"2- 4"_s);
    EXPECT_FALSE(flyNow(session).installed);
    EXPECT_TRUE(install.user.told().isEmpty()) << "nothing is asked";
    take(u"2+"_s);
    EXPECT_GT(flyNow(session).installed->filesCopied, 0) << "and the next road is free again";
}

QString joined(const Waypoint& waypoint) {
    const auto& [name, type, latitude, longitude, airway, cloudClass] = waypoint;
    return QStringList{name, type, latitude, longitude, airway}.join(u'|');
}

const QString plans = QStringLiteral(MORVANE_PLAN_SAMPLES_DIR "/");

struct FlightPlanTest : InstallTest {
    std::optional<FlightPlan> delivered(const QString& name) {
        return readFlightPlan(session, FilePath(QStringLiteral(MORVANE_DATA_DIR "/plans/") + name));
    }
};

TEST_F(FlightPlanTest, deliveredPlans) {
    const std::tuple<QString, QString, QString, QString, std::size_t> cases[] = {
        {u"TBPBEGCC06R.PLN"_s, u"Grantley Adams Intl>Manchester>41000"_s,
         u"TBPB|Airport|N13* 04.48'|W059* 29.53'|"_s, u"EGCC|Airport|N53* 21.22'|W002* 16.50'|"_s, 11},
        {u"c04_planner_form_south_west_kinds.pln"_s,
         u"Guarulhos (São Paulo)>Ministro Pistarini (Ezeiza)>35000"_s,
         u"SBGR|Airport|S23* 25.88'|W46* 28.20'|"_s, u"SAEZ|Airport|S34* 49.33'|W58* 32.15'|"_s, 5},
        {u"fsx IFR Vaasa to Arlanda.PLN"_s, u"Vaasa>Arlanda>35000"_s,
         u"EFVA|Airport|N63* 2.76'|E21* 45.63'|"_s, u"ESSA|Airport|N59* 38.26'|E17* 54.80'|"_s, 12},
        {u"fsx fsbuilderror.pln"_s, u"BEN_GURION>ELEFTHERIOS_VENIZELOS_INTL>38000"_s,
         u"LLBG|Airport|N32* 0.57'|E34* 52.62'|"_s, u"LGAV|Airport|N37* 56.20'|E23* 56.67'|"_s, 18},
    };
    for (const auto& [file, heading, first, last, count] : cases) {
        const auto plan = delivered(file);
        ASSERT_TRUE(plan) << file.toStdString();
        EXPECT_EQ(plan->departure + u'>' + plan->destination + u'>' + plan->altitude, heading);
        ASSERT_EQ(plan->waypoints.size(), count);
        EXPECT_EQ(joined(plan->waypoints.front()), first);
        EXPECT_EQ(joined(plan->waypoints.back()), last);
    }
    EXPECT_TRUE(install.user.told().isEmpty());
    const FilePath page = install.folder / u"other.pln";
    writeFile(page, "<?xml version=\"1.0\"?>\n<kml><Flightplan/></kml>\nwaypoint.0=KSEA,A,,\n");
    EXPECT_FALSE(readFlightPlan(session, page));
    EXPECT_EQ(install.user.told(),
              QStringList(u"Exclamation|FSX Flight Plan|FSX flight plan format is not supported by "
                          "Morvane, please try another Flight Plan"_s));
}

/// Two forms in XML.
TEST_F(FlightPlanTest, xmlPlansAreReadAsAWhole) {
    const std::tuple<QString, QString, QStringList> cases[] = {
        {u"simulator.pln"_s,
         u"São Paulo & Guarulhos>SAEZ>35000"_s,
         {u"SBGR|Airport|S23* 25.88'|W46* 28.20'|"_s, u"over the sea||N0* 0.00'|E180* 0.00'|"_s,
          u"DORVO|Intersection/Fix|S33* 6.50'|W55* 0.00'|UN741"_s, u"SAEZ|Airport|||"_s}},
        {u"navmap.lnmpln"_s,
         u"Hamburg>Frankfurt>28000"_s,
         {u"EDDH|Airport|N53* 37.82'|E9* 59.29'|"_s, u"NORVA|Intersection/Fix|N52* 48.82'|E9* 46.05'|Z10"_s,
          u"WRB|VOR||E9* 6.65'|"_s, u"FAR||S0* 30.00'|W72* 0.00'|"_s,
          u"EDDF|Airport|N50* 1.60'|E8* 33.50'|"_s}},
    };
    for (const auto& [name, heading, waypoints] : cases) {
        const QByteArray contents = readFile(FilePath(plans + name));
        const auto plan = parseFlightPlan(contents);
        ASSERT_TRUE(plan) << name.toStdString();
        EXPECT_EQ(plan->departure + u'>' + plan->destination + u'>' + plan->altitude, heading);
        QStringList read;
        for (const Waypoint& waypoint : plan->waypoints)
            read << joined(waypoint);
        EXPECT_EQ(read, waypoints);
        EXPECT_THROW(parseFlightPlan(contents.left(contents.size() * 3 / 4)), Error) << "half a route";
        EXPECT_THROW(
            parseFlightPlan(QByteArray(contents).replace("35000<", "&a;<").replace("28000<", "&a;<")), Error);
    }
    EXPECT_FALSE(parseFlightPlan(readFile(FilePath(plans + u"entities.lnmpln"_s)))) << "no plan declares any";
    const FilePath huge = install.folder / u"huge.pln";
    writeFile(huge, QByteArray((4 << 20) + 1, ' '));
    EXPECT_EQ(descriptionRaisedBy([&] { readFlightPlan(session, huge); }),
              "huge.pln is far too large for a flight plan: more than 4 MB");
    EXPECT_THROW(parseFlightPlan("title=" + QByteArray(1 << 20, 'A')), Error);
}

TEST_F(FlightPlanTest, layoutsOfAWaypoint) {
    const std::pair<QString, QString> cases[] = {
        {u"YVR, V, N49* 4.63', W123* 8.94', +000017.00, J500"_s, u"YVR|VOR|N49* 4.63'|W123* 8.94'|J500"_s},
        {u"ED, HAM, , HAM, V, N53* 41.14', E10* 12.30', +000187.00, Z10"_s,
         u"HAM|VOR|N53* 41.14'|E10* 12.30'|Z10"_s},
        {u"ED, n, N1* 2.0', E3* 4.0', 0,"_s, u"ED|NDB|N1* 2.0'|E3* 4.0'|"_s}, // a name of two letters
        {u"USER, U, N1* 2.0'"_s, u"USER||N1* 2.0'||"_s},
        {u"AB"_s, u"||||"_s},
    };
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(joined(parseWaypoint(value)), expected) << value.toStdString();
}

TEST_F(FlightPlanTest, weatherOfEachWaypoint) {
    addStation(session, u"KSEA"_s, 2, 47.45, -122.31);
    addStation(session, u"KPDX"_s, 5, 45.59, -122.60);
    addStation(session, u"VVVV"_s, 6, -30, -51);
    addStation(session, u"  "_s, 4); // a line that was no report
    const auto weather = processFlightPlan(
        session,
        *parseFlightPlan("waypoint.0=ksea,A,,\nwaypoint.1=FIX, I, N45* 50.0', W122* 30.0',\n"
                         "waypoint.2=S, V, S30* 3.0', W51* 6.0'\nwaypoint=, , , , A, N47* 0.0', W122* 0.0'\n"
                         "waypoint=BAD, I, Nx* 50.0', W122* 30.0'\n"
                         "waypoint=FAR, I, N1e300* 0.0', E999* 0.0'\nwaypoint=SHORT\n"));
    QStringList classes;
    for (const Waypoint& waypoint : weather.waypoints)
        classes << QString::number(waypoint.cloudClass);
    EXPECT_EQ(classes.join(u' '), "2 5 6 2 0 0 0");
    EXPECT_FLOAT_EQ(static_cast<float>(weather.average), (2 + 5 + 1 + 2 + 1 + 1 + 1) / 7.0F)
        << "what is not known and what is obscured count as clear here";
    EXPECT_EQ(processFlightPlan(session, {}).coverClass, 0) << "without waypoints there is no cover";
}

} // namespace
} // namespace morvane::test
