#include "core/store_schema.h"

#include "core/literals.h"
#include "core/store.h"
#include "core/store_statement.h"

#include <QStringList>
#include <algorithm>
#include <iterator>

namespace morvane {

namespace {

QString typeOf(const SchemaColumn& column) {
    switch (column.kind) {
    case ColumnKind::text:
        return u"TEXT(%1)"_s.arg(column.width);
    case ColumnKind::number:
        return u"INTEGER"_s;
    case ColumnKind::flag:
        break;
    }
    return u"YESNO"_s;
}

QString definitionOf(const SchemaColumn& column) {
    return column.name + u' ' + typeOf(column);
}

template <class Predicate>
void addIndexes(Store& store, const SchemaTable& table, Predicate isNew) {
    for (const SchemaColumn& column : table.columns)
        if (column.isLookedUp && isNew(column))
            store.execute(u"CREATE INDEX %1_%2 ON %1(%2)"_s.arg(table.name, column.name));
}

/// The number of a store is kept where SQLite has room for one. One without a number is of the first version
/// or, until its upgrade, older.
int numberOf(Store& store) {
    StoreStatement statement(store, u"PRAGMA user_version"_s);
    return statement.step() ? std::max(1, static_cast<int>(statement.number(0))) : 1;
}

void setVersion(Store& store, int version) {
    store.execute(u"PRAGMA user_version = "_s + QString::number(version));
}

/// What the version added and the store does not have yet. A table of before the first version is left to its
/// upgrade, which makes it whole.
void addWhatCameWith(Store& store, const Schema& schema, int version) {
    for (const SchemaTable& table : schema) {
        if (table.since == version && !store.hasTable(table.name)) createTable(store, table);
        if (!store.hasTable(table.name)) continue;
        QStringList missing;
        for (const SchemaColumn& column : table.columns)
            if (column.since == version && !store.hasColumn(table.name, column.name)) missing << column.name;
        if (!missing.isEmpty()) addColumns(store, table, missing);
    }
}

} // namespace

// NOLINTNEXTLINE(readability-function-size): a table
const Schema& programSchema() {
    // Widths that are not given by an older version hold the longest value that the program can make, with
    // room.
    static const Schema schema{
        {u"RESOURCE_FOLDERS"_s,
         {{.name = u"RESOURCE_NAME"_s, .width = 50, .isLookedUp = true},
          {.name = u"RESOURCE_SOURCE"_s, .width = 255},
          {.name = u"RESOURCE_TEXTURE_SET"_s, .width = 255},
          {.name = u"RESOURCE_DESTINATION"_s, .width = 255}}},
        {u"MV_BACKUP"_s,
         {{.name = u"BACKUP_NAME"_s, .width = 100}, {.name = u"BACKUP_DATE_TIME"_s, .width = 50}}},
        {u"TEXTURE_SETS"_s,
         {{.name = u"COLOR_SETTINGS"_s, .width = 100},
          {.name = u"TEXTURE_SET"_s, .width = 255, .isLookedUp = true},
          {.name = u"CLOUD_COVER"_s, .width = 50},
          {.name = u"ACTIVATED"_s, .width = 50},
          {.name = u"DESCRIPTION"_s, .width = 255},
          {.name = u"DUTCH"_s, .kind = ColumnKind::flag},
          {.name = u"INSTALLED"_s, .kind = ColumnKind::flag}}},
        {u"NIGHT_TEXTURE_SETS"_s,
         {{.name = u"COLOR_SETTINGS"_s, .width = 50},
          {.name = u"TEXTURE_SET"_s, .width = 50},
          {.name = u"ACTIVATED"_s, .width = 50},
          {.name = u"DESCRIPTION"_s, .width = 255},
          {.name = u"INSTALLED"_s, .kind = ColumnKind::flag}}},
        {u"SKY_TEXTURE_SETS"_s,
         {{.name = u"SKY_TEXTURE_SET"_s, .width = 255},
          {.name = u"CLOUD_COVER"_s, .width = 50},
          {.name = u"ACTIVATED"_s, .width = 50},
          {.name = u"DESCRIPTION"_s, .width = 255},
          {.name = u"TEXTURE_SET_GROUP"_s, .width = 50},
          {.name = u"INSTALLED"_s, .kind = ColumnKind::flag}}},
        // The sub set's name is "Day:" and the set's name, with a key in front.
        {u"SKY_TEXTURE_SUB_SETS"_s,
         {{.name = u"TEXTURE_SET_ID"_s, .kind = ColumnKind::number, .isLookedUp = true},
          {.name = u"SKY_TEXTURE_SUB_SET"_s, .width = 300},
          {.name = u"DARK_GROUND"_s, .width = 150},
          {.name = u"LIGHT_GROUND"_s, .width = 150},
          {.name = u"DARK_CLOUD"_s, .width = 150},
          {.name = u"LIGHT_CLOUD"_s, .width = 150},
          {.name = u"HIGH_HORIZON"_s, .width = 150},
          {.name = u"LOW_HORIZON"_s, .width = 150},
          {.name = u"MAIN_SKY"_s, .width = 150},
          {.name = u"LIGHT_WATER"_s, .width = 150},
          {.name = u"MAIN_WATER"_s, .width = 150},
          {.name = u"DARK_WATER"_s, .width = 150},
          {.name = u"TIME_OF_DAY"_s, .width = 50}}},
        {u"MV_CONFIG"_s,
         {{.name = u"TITLE"_s, .width = 100, .isLookedUp = true},
          {.name = u"MV_FOLDER"_s, .width = 255},
          {.name = u"MV_IMAGE"_s, .width = 255},
          {.name = u"FS_FOLDER"_s, .width = 255},
          {.name = u"DESCRIPTION"_s, .width = 1024},
          {.name = u"INSTALLED"_s, .kind = ColumnKind::flag}}},
        {u"TEXTURE_SWITCH"_s,
         {{.name = u"ISDUTCH"_s, .kind = ColumnKind::flag},
          {.name = u"ISTROPICAL"_s, .kind = ColumnKind::flag},
          {.name = u"ISHALO"_s, .kind = ColumnKind::flag},
          {.name = u"ISFASTEXIT"_s, .kind = ColumnKind::flag}}},
        {u"AIRPORTDATA"_s,
         {{.name = u"ICAO"_s, .width = 50, .isLookedUp = true},
          {.name = u"AIRPORT_NAME"_s, .width = 255},
          {.name = u"CITY"_s, .width = 255},
          {.name = u"COUNTRY"_s, .width = 255},
          {.name = u"STATE"_s, .width = 50},
          {.name = u"LAT"_s, .width = 50},
          {.name = u"LONG"_s, .width = 50},
          {.name = u"ELEVATION"_s, .width = 50},
          {.name = u"WMO_REGION"_s, .kind = ColumnKind::number},
          {.name = u"BLOCK_NUMBER"_s, .kind = ColumnKind::number},
          {.name = u"STATION_NUMBER"_s, .kind = ColumnKind::number}}},
        // A line that starts with no station is kept too, so its first word, however long, stands as the
        // code.
        {u"DECODED_METAR"_s,
         {{.name = u"METAR_STRING"_s, .width = 1024},
          {.name = u"METAR_ICAO"_s, .width = 255, .isLookedUp = true},
          {.name = u"METAR_WIND_SPEED"_s, .width = 255},
          {.name = u"METAR_WIND_SPEED_MEASUREMENT"_s, .width = 255},
          {.name = u"METAR_WIND_DIRECTION"_s, .width = 255},
          {.name = u"METAR_WIND_GUSTING"_s, .kind = ColumnKind::flag},
          {.name = u"METAR_WIND_GUST"_s, .width = 255},
          {.name = u"METAR_WIND_VARYING"_s, .kind = ColumnKind::flag},
          {.name = u"METAR_WIND_VARYING_FROM"_s, .width = 255},
          {.name = u"METAR_WIND_VARYING_TO"_s, .width = 255},
          {.name = u"METAR_CLOUD_COVER"_s, .width = 255},
          {.name = u"METAR_MAX_CLOUD"_s, .kind = ColumnKind::number},
          {.name = u"METAR_VISIBILITY"_s, .width = 255},
          {.name = u"METAR_VISIBILITY_FORMAT"_s, .width = 255},
          {.name = u"METAR_WEATHER_STRENGTH"_s, .width = 1024},
          {.name = u"METAR_FOG"_s, .width = 1024},
          {.name = u"METAR_WEATHER"_s, .width = 1024},
          {.name = u"METAR_TEMP"_s, .width = 255},
          {.name = u"METAR_DEWPOINT"_s, .width = 255},
          {.name = u"METAR_PRESSURE"_s, .width = 255},
          {.name = u"METAR_DATE"_s, .width = 50},
          {.name = u"METAR_MONTH"_s, .width = 50},
          {.name = u"METAR_YEAR"_s, .width = 50},
          {.name = u"METAR_TIME"_s, .width = 50},
          {.name = u"METAR_CYCLE"_s, .width = 50},
          {.name = u"METAR_LAT"_s, .width = 50},
          {.name = u"METAR_LONG"_s, .width = 50}}},
        {u"WX_STATIONS"_s, {{.name = u"WX_STATION_ICAO"_s, .width = 50}}},
        {u"WEATHER_SOURCES"_s,
         {{.name = u"SOURCE_ADDRESS"_s, .width = 1024, .isLookedUp = true},
          {.name = u"SOURCE_TEXT"_s, .width = 1024},
          {.name = u"ASKED_AT"_s, .width = 50},
          {.name = u"NOT_BEFORE"_s, .width = 50},
          {.name = u"REFUSALS"_s, .kind = ColumnKind::number},
          {.name = u"HAS_ANSWERED"_s, .kind = ColumnKind::flag},
          {.name = u"OUTCOME"_s, .width = 255},
          {.name = u"IS_STORED"_s, .kind = ColumnKind::flag},
          {.name = u"STORED_FILE"_s, .width = 1100},
          {.name = u"ENTITY_TAG"_s, .width = 255},
          {.name = u"LAST_MODIFIED"_s, .width = 255}},
         2},
    };
    return schema;
}

int versionOf(const Schema& schema) {
    int newest = 1;
    for (const SchemaTable& table : schema) {
        newest = std::max(newest, table.since);
        for (const SchemaColumn& column : table.columns)
            newest = std::max(newest, column.since);
    }
    return newest;
}

const SchemaTable& schemaTable(const QString& name) {
    const Schema& schema = programSchema();
    const auto found = std::find_if(schema.begin(), schema.end(),
                                    [&](const SchemaTable& table) { return table.name == name; });
    if (found == schema.end()) throw Error(ErrorCode::subscript);
    return *found;
}

std::vector<SchemaColumn> columnsOfVersion(const SchemaTable& table, int version) {
    std::vector<SchemaColumn> columns;
    std::copy_if(table.columns.begin(), table.columns.end(), std::back_inserter(columns),
                 [version](const SchemaColumn& column) { return column.since <= version; });
    return columns;
}

void createTable(Store& store, const SchemaTable& table) {
    QStringList definitions;
    for (const SchemaColumn& column : table.columns)
        definitions << definitionOf(column);
    StoreTransaction transaction(store);
    store.execute(u"CREATE TABLE %1(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, %2)"_s.arg(
        table.name, definitions.join(u", ")));
    addIndexes(store, table, [](const SchemaColumn&) { return true; });
    transaction.commit();
}

void addColumns(Store& store, const SchemaTable& table, const QStringList& names) {
    const auto isNew = [&](const SchemaColumn& column) { return names.contains(column.name); };
    QStringList definitions;
    for (const SchemaColumn& column : table.columns)
        if (isNew(column)) definitions << definitionOf(column);
    StoreTransaction transaction(store);
    store.execute(u"ALTER TABLE %1 ADD COLUMN %2"_s.arg(table.name, definitions.join(u", ")));
    addIndexes(store, table, isNew);
    transaction.commit();
}

void createSchema(Store& store) {
    StoreTransaction transaction(store);
    for (const SchemaTable& table : programSchema())
        createTable(store, table);
    setVersion(store, versionOf(programSchema()));
    transaction.commit();
}

void updateSchema(Store& store, const Schema& schema) {
    const int newest = versionOf(schema);
    for (int version = numberOf(store) + 1; version <= newest; ++version) {
        StoreTransaction transaction(store);
        if (numberOf(store) >= version) continue; // another program was quicker
        addWhatCameWith(store, schema, version);
        setVersion(store, version);
        transaction.commit();
    }
}

} // namespace morvane
