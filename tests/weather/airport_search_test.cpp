#include "weather/airport_search.h"

#include "support/printing.h"
#include "support/small_install.h"
#include "weather/directory_rows.h"
#include "weather/weather_state.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct AirportSearchTest : testing::Test {
    AirportSearchTest() {
        test::addAirports(
            session,
            {{u"KORD"_s, u"O'Hare International"_s, u"Chicago"_s, u"Illinois"_s, u"United States"_s, {}, {}},
             {u"KSEA"_s, u"Seattle Tacoma"_s, u"Seattle"_s, u"Washington"_s, u"United States"_s, {}, {}},
             {u"KBFI"_s, u"Boeing Field"_s, u"Seattle"_s, u"Washington"_s, u"United States"_s, {}, {}},
             {u"DIAP"_s, u"Abidjan"_s, u"Abidjan"_s, {}, u"Côte d'Ivoire"_s, {}, {}},
             {u"ESSB"_s, u"Östersund_2"_s, u"Östersund"_s, u""_s, u"Sweden"_s, {}, {}}});
    }
    QString found(const AirportFilter& filter = {}) {
        QStringList codes;
        const FoundAirports airports = popAirports(session, filter);
        for (const Airport& airport : airports.airports)
            codes << airport.icao;
        return codes.join(u' ') + u": "_s + airports.countLine;
    }

    test::SmallInstall install;
    Session& session = install.session;
    WeatherState& weather = session.state<WeatherState>();
};

TEST_F(AirportSearchTest, boxesFindBeginningsWhateverTheirCase) {
    const struct {
        SearchBox box;
        QString text, codes;
    } cases[] = {
        {SearchBox::icao, u" ksea "_s, u"KSEA: 1 Airports Found"_s},
        {SearchBox::airportName, u"o'h"_s, u"KORD: 1 Airports Found"_s},
        {SearchBox::airportName, u"öst"_s, u"ESSB: 1 Airports Found"_s},
        {SearchBox::airportName, u"%_2"_s,
         u"ESSB: 1 Airports Found"_s}, // stand for letters, and break nothing
        {SearchBox::city, u"'"_s, u": No Airports Found"_s},
    };
    for (const auto& [box, text, codes] : cases) {
        EXPECT_TRUE(searchAirports(weather, box, text));
        EXPECT_EQ(found(), codes) << text.toStdString();
    }
}

TEST_F(AirportSearchTest, filtersNarrowTheSearchAndListsLeaveOutWhatIsNone) {
    searchAirports(weather, SearchBox::airportName, u"O'Hare"_s);
    EXPECT_FALSE(searchAirports(weather, SearchBox::city, u"  "_s)) << "an emptied box leaves all as it is";
    EXPECT_EQ(found(), u"KORD: 1 Airports Found"_s);
    searchAirports(weather, SearchBox::icao, u"K"_s);
    const AirportFilter seattle{u"United States"_s, u"Washington"_s, u"Seattle"_s};
    EXPECT_EQ(found(seattle), u"KBFI KSEA: 2 Airports Found"_s);
    EXPECT_EQ(popCountries(session, {}).values,
              (QStringList{u"Côte d'Ivoire"_s, u"Sweden"_s, u"United States"_s}));
    EXPECT_EQ(popCountries(session, {}).countLine, u"3 Countries Found"_s);
    EXPECT_EQ(popStates(session, {}).values, (QStringList{u"Illinois"_s, u"Washington"_s}));
    EXPECT_EQ(popStates(session, u" WHERE COUNTRY = 'Sweden'"_s).countLine, u"0 States Found"_s);
}

} // namespace
} // namespace morvane
