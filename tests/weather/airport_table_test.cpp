#include "weather/airport_table.h"

#include "core/error.h"
#include "core/numbers.h"
#include "support/printing.h"
#include "weather/sample_reports.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace morvane {
namespace {

std::vector<AirportRow> deliveredAirports() {
    return parseAirportTable(decodeText(test::dataFile(u"airports/airports.tsv"_s)));
}

TEST(AirportTable, deliveredRowsAreWhole) {
    const std::vector<AirportRow> rows = deliveredAirports();
    EXPECT_EQ(rows.size(), 19871u);
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end(), [](const auto& a, const auto& b) {
        return a.code <= b.code;
    })) << "in order, and no code twice";
    for (const AirportRow& row : rows) {
        EXPECT_EQ(row.code.size(), 4) << row.code.toStdString();
        EXPECT_FALSE(row.name.isEmpty() || row.country.isEmpty()) << row.code.toStdString();
        EXPECT_LE(std::abs(textToNumber(row.latitude)), 90) << row.code.toStdString();
        EXPECT_LE(std::abs(textToNumber(row.longitude)), 180) << row.code.toStdString();
        EXPECT_LE(row.region.size(), 50) << "as much as the store takes; " << row.code.toStdString();
    }
}

TEST(AirportTable, knownAirports) {
    const std::vector<AirportRow> rows = deliveredAirports();
    const AirportRow expected[] = {
        {u"EHAM"_s, u"Amsterdam Airport Schiphol"_s, u"Amsterdam"_s, u"Noord-Holland"_s, u"Netherlands"_s,
         u"52.308601"_s, u"4.76389"_s, u"-3"_s},
        {u"KSEA"_s, u"Seattle–Tacoma International Airport"_s, u"Seattle"_s, u"Washington"_s,
         u"United States"_s, u"47.447943"_s, u"-122.310276"_s, u"132"_s},
        {u"LSZH"_s, u"Zürich Airport"_s, u"Zurich"_s, u"Zürich"_s, u"Switzerland"_s, u"47.458056"_s,
         u"8.548056"_s, u"432"_s},
    };
    for (const AirportRow& airport : expected) {
        const auto found = std::find_if(
            rows.begin(), rows.end(), [&airport](const AirportRow& row) { return row.code == airport.code; });
        ASSERT_NE(found, rows.end());
        EXPECT_EQ(found->name, airport.name);
        EXPECT_EQ(found->city, airport.city);
        EXPECT_EQ(found->region, airport.region);
        EXPECT_EQ(found->country, airport.country);
        EXPECT_EQ(found->latitude, airport.latitude);
        EXPECT_EQ(found->longitude, airport.longitude);
        EXPECT_EQ(found->elevation, airport.elevation);
    }
}

TEST(AirportTable, formsOfText) {
    EXPECT_TRUE(parseAirportTable(u""_s).empty());
    EXPECT_TRUE(parseAirportTable(u"heading\n"_s).empty());
    const auto rows = parseAirportTable(u"heading\r\nABCD\tName\t\t\tLand\t1\t-2\t\r\n"_s);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].longitude, "-2");
    EXPECT_EQ(rows[0].elevation, "");
    EXPECT_THROW(parseAirportTable(u"heading\nABCD\tName"_s), Error);
}

} // namespace
} // namespace morvane
