#include "delivered_rows.h"

#include "cli/console_user.h"
#include "core/literals.h"
#include "core/registry.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_schema.h"
#include "core/text_decoding.h"
#include "sample_reports.h"
#include "weather/airport_table.h"

namespace morvane {

namespace {

/// A field of a row: texts, and flags as bool.
struct Field {
    QString column;
    QString text = {};
    bool isFlag = false;
    bool flag = false;
};

Field text(const char16_t* column, const QString& value) {
    return {QStringView(column).toString(), value};
}

Field flag(const char16_t* column, bool value) {
    return {QStringView(column).toString(), {}, true, value};
}

void addRow(RowSet& rows, const std::vector<Field>& fields) {
    rows.addNew();
    for (const Field& field : fields) {
        if (field.isFlag)
            rows.setFlag(field.column, field.flag);
        else
            rows.setText(field.column, field.text);
    }
    rows.update();
}

void addResourceFolders(Store& store) {
    const QString world = u"Scenery\\World\\texture"_s;
    const QString rows[][4] = {
        {u"GENERIC WORLD"_s, u"GENERIC WORLD"_s, u"Texture"_s, world},
        {u"UT EUROPE"_s, u"UT EUROPE"_s, u"Texture"_s, world},
        {u"UTIND"_s, u"UTIND"_s, u"UTEurLC"_s, u"Scenery\\UTEurLC\\Texture"_s},
        {u"DUTCH"_s, u"DUTCH"_s, u"Dutch"_s, world},
    };
    RowSet table(store, u"SELECT * FROM RESOURCE_FOLDERS"_s);
    for (const auto& row : rows)
        addRow(table, {text(u"RESOURCE_NAME", row[0]), text(u"RESOURCE_SOURCE", row[1]),
                       text(u"RESOURCE_TEXTURE_SET", row[2]), text(u"RESOURCE_DESTINATION", row[3])});
}

void addConfigs(Store& store) {
    const QString world = u"Scenery\\World\\texture"_s;
    const QString rows[][5] = {
        {u"Global Coverage - Day"_s, u"GENERIC WORLD"_s, u"MV_Day.bmp"_s, world,
         u"The base textures of the whole world by day."_s},
        {u"Global Coverage - Night"_s, u"GENERIC WORLD NIGHT"_s, u"MV_Night.bmp"_s, world,
         u"The base textures of the whole world by night."_s},
        {u"UT Golf Courses and Parks Europe"_s, u"UT EUROPE"_s, u"MV_UTGolf.bmp"_s, world,
         u"Golf courses and parks for the UT Europe scenery."_s},
        {u"UT Europe Industrial Areas"_s, u"UTIND"_s, u"MV_UTInd.bmp"_s, u"Scenery\\UTEurLC\\Texture"_s,
         u"Industrial areas for the UT Europe scenery."_s},
    };
    RowSet table(store, u"SELECT * FROM MV_CONFIG"_s);
    for (const auto& row : rows)
        addRow(table, {text(u"TITLE", row[0]), text(u"MV_FOLDER", row[1]), text(u"MV_IMAGE", row[2]),
                       text(u"FS_FOLDER", row[3]), text(u"DESCRIPTION", row[4]), flag(u"INSTALLED", false)});
}

void addSwitches(Store& store) {
    RowSet table(store, u"SELECT * FROM TEXTURE_SWITCH"_s);
    addRow(table, {flag(u"ISDUTCH", false), flag(u"ISTROPICAL", false), flag(u"ISHALO", false),
                   flag(u"ISFASTEXIT", false)});
}

void addDefaultGroundSet(Store& store) {
    RowSet table(store, u"SELECT * FROM TEXTURE_SETS"_s);
    addRow(table, {text(u"COLOR_SETTINGS", u"0:0:0:0:0:0"_s), text(u"TEXTURE_SET", u"Default"_s),
                   text(u"CLOUD_COVER", u"Partly Cloudy"_s), text(u"ACTIVATED", u"True"_s),
                   text(u"DESCRIPTION", u"Default Morvane Texture Set with no extra settings"_s),
                   flag(u"DUTCH", true), flag(u"INSTALLED", false)});
}

void addNightSets(Store& store) {
    const QString rows[][3] = {
        {u"Default"_s, u"0:0:0:0:0:0"_s, u"Default Morvane Night Texture Set with no extra settings"_s},
        {u"Green Bias"_s, u"13:0:16:18.2:-8.4:0"_s, u"Morvane created set with green bias"_s},
        {u"Red Bias"_s, u"0:13:-5.2:0:-6.6:0"_s, u"Morvane created set with red bias"_s},
        {u"Orange Bias"_s, u"20:10:0:0:-6.6:0"_s, u"Morvane created set with orange bias"_s},
        // The quote at its end is a part of the text.
        {u"White Bias"_s, u"0:-6:-6:16:0:0"_s, u"Morvane created set with white bias\""_s},
    };
    RowSet table(store, u"SELECT * FROM NIGHT_TEXTURE_SETS"_s);
    for (const auto& row : rows)
        addRow(table,
               {text(u"TEXTURE_SET", row[0]), text(u"COLOR_SETTINGS", row[1]), text(u"DESCRIPTION", row[2]),
                text(u"ACTIVATED", u"True"_s), flag(u"INSTALLED", false)});
}

std::vector<AirportRow> addAirports(Store& store, FileSystem& files, const FilePath& data) {
    std::vector<AirportRow> airports =
        parseAirportTable(decodeText(files.read(data / u"airports\\airports.tsv")));
    RowSet table(store, u"SELECT * FROM AIRPORTDATA WHERE ID = 0"_s);
    for (const AirportRow& airport : airports)
        addRow(table, {text(u"ICAO", airport.code), text(u"AIRPORT_NAME", airport.name),
                       text(u"CITY", airport.city), text(u"COUNTRY", airport.country),
                       text(u"STATE", airport.region), text(u"LAT", airport.latitude),
                       text(u"LONG", airport.longitude), text(u"ELEVATION", airport.elevation)});
    return airports;
}

} // namespace

void writeDeliveredStore(FileSystem& files, const FilePath& data, const FilePath& path) {
    ConsoleUser user({AnswerPolicy::no, false});
    SystemClock clock;
    ReseedingRandomSource random;
    const auto registry = openRegistry(files, path.parent());
    Session session({user, files, clock, random, *registry}, path.parent());
    session.adoConn = std::make_unique<Store>();
    Store& store = *session.adoConn;
    store.create(path);
    createSchema(store);
    StoreTransaction whole(store);
    addResourceFolders(store);
    addConfigs(store);
    addSwitches(store);
    addDefaultGroundSet(store);
    addNightSets(store);
    addSampleReports(session, data, addAirports(store, files, data));
    whole.commit();
    store.close();
}

} // namespace morvane
