#include "core/store_schema.h"

#include "core/literals.h"
#include "core/store.h"

namespace morvane {

namespace {

/// Name, and the columns behind the key.
struct Table {
    QString name;
    QString columns;
};

/// Widths that are not given by an older version hold the longest value that the program can make, with room.
const Table tables[] = {
    {u"RESOURCE_FOLDERS"_s,
     u"RESOURCE_NAME TEXT(50), RESOURCE_SOURCE TEXT(255), RESOURCE_TEXTURE_SET TEXT(255), "
     "RESOURCE_DESTINATION TEXT(255)"_s},
    {u"MV_BACKUP"_s, u"BACKUP_NAME TEXT(100), BACKUP_DATE_TIME TEXT(50)"_s},
    {u"TEXTURE_SETS"_s, u"COLOR_SETTINGS TEXT(100), TEXTURE_SET TEXT(255), CLOUD_COVER TEXT(50), "
                        "ACTIVATED TEXT(50), DESCRIPTION TEXT(255), DUTCH YESNO, INSTALLED YESNO"_s},
    {u"NIGHT_TEXTURE_SETS"_s, u"COLOR_SETTINGS TEXT (50), TEXTURE_SET TEXT (50), ACTIVATED TEXT (50), "
                              "DESCRIPTION TEXT (255), INSTALLED YESNO"_s},
    {u"SKY_TEXTURE_SETS"_s, u"SKY_TEXTURE_SET TEXT(255), CLOUD_COVER TEXT(50), ACTIVATED TEXT(50), "
                            "DESCRIPTION TEXT(255), TEXTURE_SET_GROUP TEXT(50), INSTALLED YESNO"_s},
    // The sub set's name is "Day:" and the set's name, with a key in front.
    {u"SKY_TEXTURE_SUB_SETS"_s,
     u"TEXTURE_SET_ID INTEGER, SKY_TEXTURE_SUB_SET TEXT(300), DARK_GROUND TEXT(150), LIGHT_GROUND TEXT(150), "
     "DARK_CLOUD TEXT(150), LIGHT_CLOUD TEXT(150), HIGH_HORIZON TEXT(150), LOW_HORIZON TEXT(150), "
     "MAIN_SKY TEXT(150), LIGHT_WATER TEXT(150), MAIN_WATER TEXT(150), DARK_WATER TEXT(150), "
     "TIME_OF_DAY TEXT(50)"_s},
    {u"MV_CONFIG"_s, u"TITLE TEXT(100), MV_FOLDER TEXT(255), MV_IMAGE TEXT(255), FS_FOLDER TEXT(255), "
                     "DESCRIPTION TEXT(1024), INSTALLED YESNO"_s},
    {u"TEXTURE_SWITCH"_s, u"ISDUTCH YESNO, ISTROPICAL YESNO, ISHALO YESNO, ISFASTEXIT YESNO"_s},
    {u"AIRPORTDATA"_s,
     u"ICAO TEXT(50), AIRPORT_NAME TEXT(255), CITY TEXT(255), COUNTRY TEXT(255), STATE TEXT(50), "
     "LAT TEXT(50), LONG TEXT(50), ELEVATION TEXT(50), WMO_REGION INTEGER, "
     "BLOCK_NUMBER INTEGER, STATION_NUMBER INTEGER"_s},
    // A line that starts with no station is kept too, so its first word, however long, stands as the code.
    {u"DECODED_METAR"_s,
     u"METAR_STRING TEXT(1024), METAR_ICAO TEXT(255), METAR_WIND_SPEED TEXT(255), "
     "METAR_WIND_SPEED_MEASUREMENT TEXT(255), METAR_WIND_DIRECTION TEXT(255), METAR_WIND_GUSTING YESNO, "
     "METAR_WIND_GUST TEXT(255), METAR_WIND_VARYING YESNO, METAR_WIND_VARYING_FROM TEXT(255), "
     "METAR_WIND_VARYING_TO TEXT(255), METAR_CLOUD_COVER TEXT(255), METAR_MAX_CLOUD INTEGER, "
     "METAR_VISIBILITY TEXT(255), METAR_VISIBILITY_FORMAT TEXT(255), METAR_WEATHER_STRENGTH TEXT(1024), "
     "METAR_FOG TEXT(1024), METAR_WEATHER TEXT(1024), METAR_TEMP TEXT(255), METAR_DEWPOINT TEXT(255), "
     "METAR_PRESSURE TEXT(255), METAR_DATE TEXT(50), METAR_MONTH TEXT(50), METAR_YEAR TEXT(50), "
     "METAR_TIME TEXT(50), METAR_CYCLE TEXT(50), METAR_LAT TEXT(50), METAR_LONG TEXT(50)"_s},
    {u"WX_STATIONS"_s, u"WX_STATION_ICAO TEXT(50)"_s},
};

/// Columns by which rows are looked up. None is unique: the program keeps them so, not the store.
const std::pair<QString, QString> textKeys[] = {
    {u"RESOURCE_FOLDERS"_s, u"RESOURCE_NAME"_s},
    {u"TEXTURE_SETS"_s, u"TEXTURE_SET"_s},
    {u"MV_CONFIG"_s, u"TITLE"_s},
    {u"AIRPORTDATA"_s, u"ICAO"_s},
    {u"DECODED_METAR"_s, u"METAR_ICAO"_s},
    {u"SKY_TEXTURE_SUB_SETS"_s, u"TEXTURE_SET_ID"_s},
};

} // namespace

QStringList schemaStatements() {
    QStringList statements;
    for (const Table& table : tables)
        statements << u"CREATE TABLE %1(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, %2)"_s.arg(
            table.name, table.columns);
    for (const auto& [table, column] : textKeys)
        statements << u"CREATE INDEX %1_%2 ON %1(%2)"_s.arg(table, column);
    return statements;
}

void createSchema(Store& store) {
    StoreTransaction transaction(store);
    for (const QString& statement : schemaStatements())
        store.execute(statement);
    transaction.commit();
}

QString applyDecimalSeparator(QString text, const QString& decimalSep) {
    return decimalSep.isEmpty() ? text : text.replace(u'.', decimalSep);
}

QString removeDecimalSeparator(QString text, const QString& decimalSep) {
    return decimalSep.isEmpty() ? text : text.replace(decimalSep, u"."_s);
}

} // namespace morvane
