#include "delivered_rows.h"

#include "cli/console_user.h"
#include "core/literals.h"
#include "core/registry.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_schema.h"
#include "core/text_decoding.h"
#include "night/delivered_night_sets.h"
#include "sample_reports.h"
#include "weather/airport_rows.h"

#include <variant>

namespace morvane {

namespace {

struct Field {
    const char16_t* column;
    std::variant<QString, bool, std::int32_t> value;
};

void setField(RowSet& rows, const Field& field) {
    if (const auto* text = std::get_if<QString>(&field.value))
        rows.setText(field.column, *text);
    else if (const auto* flag = std::get_if<bool>(&field.value))
        rows.setFlag(field.column, *flag);
    else
        rows.setNumber(field.column, std::get<std::int32_t>(field.value));
}

void addRow(RowSet& rows, const std::vector<Field>& fields) {
    rows.addNew();
    for (const Field& field : fields)
        setField(rows, field);
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
        addRow(table, {{u"RESOURCE_NAME", row[0]},
                       {u"RESOURCE_SOURCE", row[1]},
                       {u"RESOURCE_TEXTURE_SET", row[2]},
                       {u"RESOURCE_DESTINATION", row[3]}});
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
        addRow(table, {{u"TITLE", row[0]},
                       {u"MV_FOLDER", row[1]},
                       {u"MV_IMAGE", row[2]},
                       {u"FS_FOLDER", row[3]},
                       {u"DESCRIPTION", row[4]},
                       {u"INSTALLED", false}});
}

void addSwitches(Store& store) {
    RowSet table(store, u"SELECT * FROM TEXTURE_SWITCH"_s);
    addRow(table, {}); // all off
}

void addDefaultGroundSet(Store& store) {
    RowSet table(store, u"SELECT * FROM TEXTURE_SETS"_s);
    addRow(table, {{u"COLOR_SETTINGS", u"0:0:0:0:0:0"_s},
                   {u"TEXTURE_SET", u"Default"_s},
                   {u"CLOUD_COVER", u"Partly Cloudy"_s},
                   {u"ACTIVATED", u"True"_s},
                   {u"DESCRIPTION", u"Default Morvane Texture Set with no extra settings"_s},
                   {u"DUTCH", true},
                   {u"INSTALLED", false}});
}

void addDefaultSkySet(Store& store) {
    RowSet sets(store, u"SELECT * FROM SKY_TEXTURE_SETS"_s);
    addRow(sets, {{u"SKY_TEXTURE_SET", u"Default"_s},
                  {u"CLOUD_COVER", u"Partly Cloudy"_s},
                  {u"ACTIVATED", u"True"_s},
                  {u"DESCRIPTION", u"Default Morvane Sky Texture Set with no extra settings"_s},
                  {u"TEXTURE_SET_GROUP", u"Default"_s},
                  {u"INSTALLED", false}});
    // No change of a colour, and the pixels of each group.
    RowSet colours(store, u"SELECT * FROM SKY_TEXTURE_SUB_SETS"_s);
    addRow(colours, {{u"TEXTURE_SET_ID", 1},
                     {u"SKY_TEXTURE_SUB_SET", u"1-Day:Default"_s},
                     {u"TIME_OF_DAY", u"Day"_s},
                     {u"DARK_GROUND", u"0:0:0:0:0:0:1:1:32"_s},
                     {u"LIGHT_GROUND", u"0:0:0:0:0:0:2:2:32"_s},
                     {u"DARK_CLOUD", u"0:0:0:0:0:0:3:3:32"_s},
                     {u"LIGHT_CLOUD", u"0:0:0:0:0:0:4:4:32"_s},
                     {u"DARK_WATER", u"0:0:0:0:0:0:5:5:32"_s},
                     {u"MAIN_WATER", u"0:0:0:0:0:0:6:31:32"_s},
                     {u"LIGHT_WATER", u"0:0:0:0:0:0:32:32:32"_s},
                     {u"HIGH_HORIZON", u"0:0:0:0:0:0:1:32:2"_s},
                     {u"LOW_HORIZON", u"0:0:0:0:0:0:1:32:1"_s},
                     {u"MAIN_SKY", u"0:0:0:0:0:0:1:32:255"_s}});
}

void addAirports(Store& store, const std::vector<AirportRow>& airports, const StationList& stations) {
    RowSet table(store, u"SELECT * FROM AIRPORTDATA WHERE ID = 0"_s);
    for (const AirportRow& airport : airports) {
        const Station station = stations.value(airport.code);
        addRow(table, {{u"ICAO", airport.code},
                       {u"AIRPORT_NAME", airport.name},
                       {u"CITY", airport.city},
                       {u"COUNTRY", airport.country},
                       {u"STATE", airport.region},
                       {u"LAT", airport.latitude},
                       {u"LONG", airport.longitude},
                       {u"ELEVATION", airport.elevation},
                       {u"WMO_REGION", station.region},
                       {u"BLOCK_NUMBER", station.block},
                       {u"STATION_NUMBER", station.number}});
    }
}

void addWeather(Session& session, const FilePath& data) {
    const auto airports = parseAirportTable(decodeText(session.files.read(data / u"airports\\airports.tsv")));
    const auto stations = parseStationList(decodeText(session.files.read(data / u"stations\\nsd_cccc.txt")));
    addAirports(*session.adoConn, airports, stations);
    addSampleReports(session, data, airports, stations);
}

} // namespace

void writeDeliveredStore(FileSystem& files, const FilePath& data, const FilePath& path) {
    ConsoleUser user({AnswerPolicy::no, false});
    SystemClock clock;
    ReseedingRandomSource random;
    const auto registry = openRegistry(files, path.parent(), FolderChoice::named);
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
    addDefaultSkySet(store);
    addDeliveredNightSets(store);
    addWeather(session, data);
    whole.commit();
    store.close();
}

} // namespace morvane
