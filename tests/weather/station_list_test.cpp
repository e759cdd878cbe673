#include "weather/station_list.h"

#include "core/error.h"
#include "support/printing.h"
#include "weather/airport_rows.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(DecimalDegrees, readsDegreesMinutesSecondsAndHemisphere) {
    const std::pair<QString, QString> cases[] = {
        {u"47-27N"_s, u"47.45"_s},        {u"34-15S"_s, u"-34.25"_s},
        {u"65-58-56N"_s, u"65.982222"_s}, {u"161-09-07W"_s, u"-161.151944"_s},
        {u"90-00S"_s, u"-90"_s},          {u"180-00E"_s, u"180"_s},
        {u"000-00-00W"_s, u"0"_s},        {u"00-00-01S"_s, u"-0.000278"_s},
    };
    for (const auto& [coordinate, degrees] : cases)
        EXPECT_EQ(decimalDegrees(coordinate), degrees) << coordinate.toStdString();
    // Misprints of the real lists, and what is no coordinate.
    for (const QString& misprint :
         {u"104-87W"_s, u"14-96N"_s, u"37-8N"_s, u"45-27"_s, u" 094-18-25W"_s, u"91-00N"_s, u"90-01S"_s,
          u"180-00-01W"_s, u"12-30-60N"_s, u"12-30n"_s, u"47.45"_s, QString()})
        EXPECT_EQ(decimalDegrees(misprint), QString()) << misprint.toStdString();
}

TEST(StationList, takesPositionAndNumbersAndLivesWithMisprints) {
    const StationList stations =
        parseStationList(u"AGGH;91;520;Honiara;;Solomon Islands;5;09-25S;160-03E;;;8\r\n"
                         u"CWXX;--;---;Nowhere;;Canada;4;45-27;079-00W;;;;\r\n"
                         u"XLOS;01;234;One field too many;;;Land;37-03-52N;1-00E;;\r\n"
                         u"SHRT;01;002;Too short\r\n"
                         u"\r\n"_s);
    ASSERT_EQ(stations.size(), 3);
    const auto told = [&](const QString& code) {
        const auto& [latitude, longitude, region, block, number] = stations[code];
        return u"%1 %2 %3 %4 %5"_s.arg(latitude, longitude).arg(region).arg(block).arg(number);
    };
    EXPECT_EQ(told(u"AGGH"_s), u"-9.416667 160.05 5 91 520"_s);
    EXPECT_EQ(told(u"CWXX"_s), u" -79 4 0 0"_s);
    EXPECT_EQ(told(u"XLOS"_s), u"37.064444 1 0 1 234"_s);
}

TEST(AirportTable, formsOfText) {
    EXPECT_TRUE(parseAirportTable(u"heading\n"_s).empty());
    const auto rows = parseAirportTable(u"heading\r\nABCD\tName\t\tRegion\tLand\t1\t-2\t\r\n"_s);
    ASSERT_EQ(rows.size(), 1u);
    const auto& [code, name, city, region, country, latitude, longitude, elevation] = rows[0];
    EXPECT_EQ((QStringList{code, name, city, region, country, latitude, longitude, elevation}.join(u'|')),
              u"ABCD|Name||Region|Land|1|-2|"_s);
    EXPECT_THROW(parseAirportTable(u"heading\nABCD\tName"_s), Error);
}

} // namespace
} // namespace morvane
