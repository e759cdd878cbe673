#include "core/ini_file.h"
#include "core/row_set.h"
#include "core/store.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/wx_finders.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::writeFile;

struct StationMaintenance : testing::Test {
    test::SmallInstall install;
    Store& store = *install.session.adoConn;
    clsWxFinderData data{install.session};

    QStringList airports() {
        QStringList lines;
        for (RowSet row(store, u"SELECT * FROM AIRPORTDATA ORDER BY ICAO"_s); !row.atEnd(); row.next()) {
            QStringList fields;
            for (const char16_t* column : {u"ICAO", u"AIRPORT_NAME", u"CITY", u"COUNTRY", u"LAT", u"LONG",
                                           u"ELEVATION", u"WMO_REGION", u"BLOCK_NUMBER", u"STATION_NUMBER"})
                fields << row.text(column);
            lines << fields.join(u'|');
        }
        return lines;
    }
};

TEST_F(StationMaintenance, fillsAirportsWithoutAPositionFromTheStationList) {
    store.execute(u"INSERT INTO AIRPORTDATA(ICAO, LAT) VALUES ('PABL', '')"_s);
    store.execute(u"INSERT INTO AIRPORTDATA(ICAO, LAT, LONG) VALUES ('ENJA', '1', '2')"_s);
    writeFile(install.home() / u"wxStations.txt",
              "00;000;PABL;Buckland, Buckland Airport;AK;United States;4;65-58-56N;161-09-07W;;;7;;\r\n"
              "01;001;ENJA;Jan Mayen;;Norway;6;70-56N;008-40W;70-56N;008-40W;10;9;P\r\n"
              "01;002;----;Grahuken;;Norway;6;79-47N;014-28E;;;;15;\r\n"
              "01;003;NONE;Hornsund;;Norway;6;77-00N;015-30E\r\nshort;line\r\n");
    data.popWxStations();
    EXPECT_EQ(airports(), (QStringList{u"ENJA||||1|2||||"_s, u"PABL||||65.982222|-161.151944|7|4|0|0"_s}));
}

TEST_F(StationMaintenance, takesStationsWithoutACodeAway) {
    for (const QString& code : {u"----"_s, u"EHAM"_s, u"----"_s})
        store.execute(u"INSERT INTO WX_STATIONS(WX_STATION_ICAO) VALUES ('"_s + code + u"')"_s);
    data.deleteWxData();
    EXPECT_EQ(RowSet(store, u"SELECT * FROM WX_STATIONS"_s).count(), 1);
}

TEST_F(StationMaintenance, addsAirportsAndLeavesTheOtherStations) {
    writeFile(install.home() / u"icao.cfg", "[Countries]\r\ntotal=2\r\n1=Côte d'Ivoire\r\n2=Norway\r\n"
                                            "[Côte d'Ivoire]\r\ntotal=1\r\n1=DIAP:Port Bouët:Abidjan\r\n"
                                            "[Norway]\r\ntotal=1\r\n1=enja:Jan Mayen\r\n");
    writeFile(install.home() / u"noaa.cfg", "[ICAO]\r\ntotal=4\r\n1=ENJA\r\n2=KSEA\r\n3=diap\r\n4=EHAM\r\n");
    data.removeDuplicatesFromNoaaConfig();
    EXPECT_EQ(airports(), (QStringList{u"DIAP|Port Bouët|Abidjan|Côte d'Ivoire||||||"_s,
                                       u"enja|Jan Mayen||Norway||||||"_s}));
    const auto value = [&](const QString& key) {
        return GetIniString(install.files, u"ICAO"_s, key, install.home() / u"noaa.cfg");
    };
    EXPECT_EQ(value(u"1"_s) + u' ' + value(u"2"_s), u"KSEA EHAM");
    EXPECT_EQ(value(u"total"_s), u"1") << "the last index, not the count";
}

} // namespace
} // namespace morvane
