#include "weather/airport_rows.h"

#include "core/error.h"
#include "support/printing.h"
#include "weather/sample_reports.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace morvane {
namespace {

QString joined(const AirportRow& row) {
    const auto& [code, name, city, region, country, latitude, longitude, elevation] = row;
    return QStringList{code, name, city, region, country, latitude, longitude, elevation}.join(u'|');
}

TEST(AirportTable, deliveredRowsAreWhole) {
    const std::vector<AirportRow> rows = parseAirportTable(test::dataText(u"airports/airports.tsv"_s));
    EXPECT_EQ(rows.size(), 19871u);
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end(), [](const auto& a, const auto& b) {
        return a.code <= b.code;
    })) << "in order, and no code twice";
    const auto zurich =
        std::find_if(rows.begin(), rows.end(), [](const auto& row) { return row.code == u"LSZH"; });
    ASSERT_NE(zurich, rows.end());
    EXPECT_EQ(joined(*zurich), u"LSZH|Zürich Airport|Zurich|Zürich|Switzerland|47.458056|8.548056|432"_s);
}

TEST(AirportTable, formsOfText) {
    EXPECT_TRUE(parseAirportTable(u"heading\n"_s).empty());
    const auto rows = parseAirportTable(u"heading\r\nABCD\tName\t\t\tLand\t1\t-2\t\r\n"_s);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(joined(rows[0]), "ABCD|Name|||Land|1|-2|");
    EXPECT_THROW(parseAirportTable(u"heading\nABCD\tName"_s), Error);
}

} // namespace
} // namespace morvane
