#include "made_install.h"

#include "core/numbers.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/text_decoding.h"
#include "support/printing.h"

#include <QRegularExpression>
#include <QSet>

namespace morvane {
namespace {

using DeliveredRows = test::StartedInstall;

/// Rows of a table, in order of their keys: the named fields joined by "|".
QStringList rowsOf(Store& store, const QString& table, const QStringList& columns,
                   const QString& condition = {}) {
    QStringList lines;
    for (RowSet rows(store, u"SELECT * FROM "_s + table + condition + u" ORDER BY ID"_s); !rows.atEnd();
         rows.next()) {
        QStringList fields;
        for (const QString& column : columns)
            fields << rows.text(column);
        lines << fields.join(u'|');
    }
    return lines;
}

TEST_F(DeliveredRows, letTheProgramStartWithoutAQuestion) {
    EXPECT_TRUE(hasStarted);
    EXPECT_EQ(user.told(), QStringList());
    EXPECT_EQ(user.calls, QStringList());
    EXPECT_EQ(session.FSPath.native(), simulator().native());
    EXPECT_FALSE(session.IsWideClient || session.IsDutch || session.IsTropical || session.IsHalo ||
                 session.IsFastExit);
    EXPECT_EQ(registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"IsWideClient"_s), u"False");
    EXPECT_EQ(registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"FirstTime"_s), QString());
}

TEST_F(DeliveredRows, everyTableIsThereAndHoldsItsCount) {
    const std::pair<QString, int> counts[] = {
        {u"RESOURCE_FOLDERS"_s, 4},   {u"MV_BACKUP"_s, 0},        {u"TEXTURE_SETS"_s, 1},
        {u"NIGHT_TEXTURE_SETS"_s, 5}, {u"SKY_TEXTURE_SETS"_s, 0}, {u"SKY_TEXTURE_SUB_SETS"_s, 0},
        {u"MV_CONFIG"_s, 4},          {u"TEXTURE_SWITCH"_s, 1},   {u"AIRPORTDATA"_s, 19871},
        {u"DECODED_METAR"_s, 611},    {u"WX_STATIONS"_s, 0},
    };
    for (const auto& [table, count] : counts)
        EXPECT_EQ(RowSet(*session.adoConn, u"SELECT * FROM "_s + table).count(), count)
            << table.toStdString();
    EXPECT_EQ(session.adoConn->tables().size(), static_cast<qsizetype>(std::size(counts)));
}

struct Delivery {
    QString table;
    QStringList columns;
    QStringList rows;
};

TEST_F(DeliveredRows, haveTheirTexts) {
    const Delivery deliveries[] = {
        {u"RESOURCE_FOLDERS"_s,
         {u"ID"_s, u"RESOURCE_NAME"_s, u"RESOURCE_SOURCE"_s, u"RESOURCE_TEXTURE_SET"_s,
          u"RESOURCE_DESTINATION"_s},
         {u"1|GENERIC WORLD|GENERIC WORLD|Texture|Scenery\\World\\texture"_s,
          u"2|UT EUROPE|UT EUROPE|Texture|Scenery\\World\\texture"_s,
          u"3|UTIND|UTIND|UTEurLC|Scenery\\UTEurLC\\Texture"_s,
          u"4|DUTCH|DUTCH|Dutch|Scenery\\World\\texture"_s}},
        {u"MV_CONFIG"_s,
         {u"ID"_s, u"TITLE"_s, u"MV_FOLDER"_s, u"FS_FOLDER"_s, u"INSTALLED"_s},
         {u"1|Global Coverage - Day|GENERIC WORLD|Scenery\\World\\texture|0"_s,
          u"2|Global Coverage - Night|GENERIC WORLD NIGHT|Scenery\\World\\texture|0"_s,
          u"3|UT Golf Courses and Parks Europe|UT EUROPE|Scenery\\World\\texture|0"_s,
          u"4|UT Europe Industrial Areas|UTIND|Scenery\\UTEurLC\\Texture|0"_s}},
        {u"TEXTURE_SWITCH"_s,
         {u"ID"_s, u"ISDUTCH"_s, u"ISTROPICAL"_s, u"ISHALO"_s, u"ISFASTEXIT"_s},
         {u"1|0|0|0|0"_s}},
        // Neither "Default" is installed: the base install has not run yet.
        {u"TEXTURE_SETS"_s,
         {u"TEXTURE_SET"_s, u"COLOR_SETTINGS"_s, u"CLOUD_COVER"_s, u"ACTIVATED"_s, u"DESCRIPTION"_s,
          u"DUTCH"_s, u"INSTALLED"_s},
         {u"Default|0:0:0:0:0:0|Partly Cloudy|True|Default Morvane Texture Set with no extra settings|1|0"_s}},
        {u"NIGHT_TEXTURE_SETS"_s,
         {u"ID"_s, u"TEXTURE_SET"_s, u"COLOR_SETTINGS"_s, u"ACTIVATED"_s, u"DESCRIPTION"_s, u"INSTALLED"_s},
         {u"1|Default|0:0:0:0:0:0|True|Default Morvane Night Texture Set with no extra settings|0"_s,
          u"2|Green Bias|13:0:16:18.2:-8.4:0|True|Morvane created set with green bias|0"_s,
          u"3|Red Bias|0:13:-5.2:0:-6.6:0|True|Morvane created set with red bias|0"_s,
          u"4|Orange Bias|20:10:0:0:-6.6:0|True|Morvane created set with orange bias|0"_s,
          // The closing quote is part of the text.
          u"5|White Bias|0:-6:-6:16:0:0|True|Morvane created set with white bias\"|0"_s}},
    };
    for (const Delivery& delivery : deliveries)
        EXPECT_EQ(rowsOf(*session.adoConn, delivery.table, delivery.columns), delivery.rows);
}

/// What is wrong with a row's position; empty for signed decimal degrees within the globe.
QString faultOfPosition(const QString& latitude, const QString& longitude) {
    static const QRegularExpression form(u"^-?\\d{1,3}(\\.\\d{1,6})?$"_s);
    for (const QString& text : {latitude, longitude})
        if (!form.match(text).hasMatch()) return u"form of "_s + text;
    const bool isOnGlobe = std::abs(textToNumber(latitude)) <= 90 && std::abs(textToNumber(longitude)) <= 180;
    return isOnGlobe ? QString() : u"range of "_s + latitude + u' ' + longitude;
}

TEST_F(DeliveredRows, airportsHaveCodePositionAndNumbers) {
    static const QRegularExpression code(u"^[A-Z]{4}$"_s);
    QSet<QString> codes;
    int withStationNumber = 0;
    RowSet rows(*session.adoConn, u"SELECT * FROM AIRPORTDATA"_s);
    for (; !rows.atEnd(); rows.next()) {
        const QString airport = rows.text(u"ICAO");
        codes << airport;
        EXPECT_TRUE(code.match(airport).hasMatch()) << airport.toStdString();
        EXPECT_EQ(faultOfPosition(rows.text(u"LAT"), rows.text(u"LONG")), QString()) << airport.toStdString();
        EXPECT_LE(rows.text(u"STATE").size(), 50);
        EXPECT_FALSE(rows.text(u"AIRPORT_NAME").isEmpty() || rows.text(u"COUNTRY").isEmpty());
        // A null would raise: whoever reads the three takes them for numbers.
        withStationNumber += rows.longInteger(u"STATION_NUMBER") > 0;
        EXPECT_LE(rows.longInteger(u"BLOCK_NUMBER"), 99);
        EXPECT_LE(rows.longInteger(u"WMO_REGION"), 7);
    }
    EXPECT_EQ(codes.size(), rows.count());
    EXPECT_GT(withStationNumber, 2900);
}

TEST_F(DeliveredRows, airportsStandUnderTheirColumns) {
    const QStringList columns{u"ICAO"_s,       u"AIRPORT_NAME"_s, u"CITY"_s,          u"COUNTRY"_s,
                              u"STATE"_s,      u"LAT"_s,          u"LONG"_s,          u"ELEVATION"_s,
                              u"WMO_REGION"_s, u"BLOCK_NUMBER"_s, u"STATION_NUMBER"_s};
    const QString three = u" WHERE ICAO IN ('AGAF', 'EHAM', 'KSEA')"_s;
    EXPECT_EQ(
        rowsOf(*session.adoConn, u"AIRPORTDATA"_s, columns, three),
        QStringList({u"AGAF|Afutara Aerodrome|Bila|Solomon Islands|Malaita Province|-9.191389|160.948611|7|"
                     "0|0|0"_s,
                     u"EHAM|Amsterdam Airport Schiphol|Amsterdam|Netherlands|Noord-Holland|52.308601|4.76389|"
                     "-3|6|6|240"_s,
                     u"KSEA|Seattle–Tacoma International Airport|Seattle|United States|Washington|47.447943|"
                     "-122.310276|132|4|72|793"_s}));
}

/// Every station of the sample cycles.
QSet<QString> reportingStations(FileSystem& files) {
    const FilePath data(QStringLiteral(MORVANE_DATA_DIR));
    QSet<QString> stations;
    for (const char16_t* file : {u"metar\\Export_Cycle.dat", u"metar\\02Z.TXT"})
        for (const QString& line : splitLines(decodeText(files.read(data / file))))
            if (const QString word = line.section(u' ', 0, 0); !word.isEmpty() && !word.contains(u'/'))
                stations << word;
    return stations;
}

TEST_F(DeliveredRows, reportsAreThoseOfTheSampleCyclesOneAStation) {
    QSet<QString> stations;
    RowSet rows(*session.adoConn, u"SELECT * FROM DECODED_METAR"_s);
    for (; !rows.atEnd(); rows.next()) {
        const QString station = rows.text(u"METAR_ICAO");
        stations << station;
        EXPECT_TRUE(rows.text(u"METAR_STRING").startsWith(station + u' '));
        const QString cycle =
            rows.text(u"METAR_CYCLE") + u' ' + rows.text(u"METAR_MONTH") + u' ' + rows.text(u"METAR_YEAR");
        EXPECT_TRUE(cycle == u"2 November 2011" || cycle == u"16 October 2007") << cycle.toStdString();
    }
    EXPECT_EQ(stations.size(), rows.count());
    EXPECT_EQ(stations, reportingStations(files));
}

TEST_F(DeliveredRows, reportsHaveThePositionOfTheirStation) {
    const QString airport = u"SELECT LAT, LONG FROM AIRPORTDATA WHERE ICAO = '%1'"_s;
    int placed = 0;
    for (RowSet rows(*session.adoConn, u"SELECT * FROM DECODED_METAR"_s); !rows.atEnd(); rows.next()) {
        const QString station = rows.text(u"METAR_ICAO");
        const std::pair position(rows.text(u"METAR_LAT"), rows.text(u"METAR_LONG"));
        const RowSet match(*session.adoConn, airport.arg(station));
        if (!match.atEnd()) {
            EXPECT_EQ(position, std::pair(match.text(u"LAT"), match.text(u"LONG"))) << station.toStdString();
        }
        if (position.first.isEmpty() && position.second.isEmpty()) continue;
        ++placed;
        EXPECT_EQ(faultOfPosition(position.first, position.second), QString()) << station.toStdString();
    }
    // No public list knows the other forty. One that the station list alone knows:
    EXPECT_EQ(placed, 571);
    EXPECT_EQ(rowsOf(*session.adoConn, u"DECODED_METAR"_s, {u"METAR_LAT"_s, u"METAR_LONG"_s},
                     u" WHERE METAR_ICAO = 'CWBT'"_s),
              QStringList(u"50.266667|-64.233333"_s));
}

TEST_F(DeliveredRows, newestReportOfAStationIsDecodedInFull) {
    const QStringList columns{u"METAR_STRING"_s,      u"METAR_WIND_SPEED"_s, u"METAR_WIND_DIRECTION"_s,
                              u"METAR_CLOUD_COVER"_s, u"METAR_MAX_CLOUD"_s,  u"METAR_VISIBILITY"_s,
                              u"METAR_WEATHER"_s,     u"METAR_PRESSURE"_s,   u"METAR_DATE"_s,
                              u"METAR_TIME"_s,        u"METAR_LAT"_s,        u"METAR_LONG"_s};
    EXPECT_EQ(
        rowsOf(*session.adoConn, u"DECODED_METAR"_s, columns, u" WHERE METAR_ICAO = 'KSEA'"_s),
        QStringList(
            {u"KSEA 230231Z 11004KT 5SM RA BR FEW022 BKN045 OVC055 06/06 A2950|004|110 degrees|Overcast|5|"
             "5 Mile(s)|Rain|29.50 Inches of Mercury|23|0231|47.447943|-122.310276"_s}));
}

} // namespace
} // namespace morvane
