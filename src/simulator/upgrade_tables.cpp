#include "simulator/upgrade_tables.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/row_set.h"
#include "core/session.h"
#include "core/store.h"
#include "core/text_decoding.h"
#include "night/delivered_night_sets.h"
#include "simulator/upgrade.h"

namespace morvane {

namespace {

/// A table whose rows come anew from a file, together with a column that it lacked.
struct TableImport {
    QString table, newColumn, alteration, progressText;
    const std::vector<ImportedColumn>& columns;
};

// Names are compared exactly: a store of another spelling is none of this program's.
bool hasTable(Store& store, const QString& table) {
    return store.tables().contains(table);
}

bool hasColumn(Store& store, const QString& table, const QString& column) {
    return hasTable(store, table) && store.columns(table).contains(column);
}

std::int32_t numberOf(const QString& field) {
    const QString text = trimmedBlanks(field);
    return text.isEmpty() ? 0 : roundToLong(textToNumber(text));
}

bool flagOf(const QString& field) {
    if (field.compare(u"True", Qt::CaseInsensitive) == 0) return true;
    if (field.isEmpty() || field.compare(u"False", Qt::CaseInsensitive) == 0) return false;
    return textToNumber(field) != 0;
}

void setField(RowSet& rows, const ImportedColumn& column, const QString& field) {
    switch (column.kind) {
    case ImportedKind::text:
        return rows.setText(column.name, field);
    case ImportedKind::number:
        return rows.setNumber(column.name, numberOf(field));
    case ImportedKind::flag:
        return rows.setFlag(column.name, flagOf(field));
    }
}

void addRow(RowSet& rows, const std::vector<ImportedColumn>& columns, const QStringList& fields) {
    if (fields.size() <= static_cast<qsizetype>(columns.size())) throw Error(ErrorCode::subscript);
    rows.addNew();
    for (qsizetype i = 1; i <= static_cast<qsizetype>(columns.size()); ++i)
        setField(rows, columns[static_cast<std::size_t>(i - 1)], fields[i]);
    rows.update();
}

QStringList linesBehindHeading(Session& session, const FilePath& file) {
    QStringList lines = splitLines(decodeText(session.files.read(file)));
    lines.removeAll(QString());
    if (!lines.isEmpty()) lines.removeFirst();
    return lines;
}

void importRows(Session& session, const TableImport& import, const FilePath& file) {
    const QStringList lines = linesBehindHeading(session, file);
    session.user.showMessage(
        {MessageKind::progress, u"Updating to V2.1"_s, import.progressText, false, false, true});
    RowSet rows(*session.adoConn, u"SELECT * FROM "_s + import.table);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        addRow(rows, import.columns, lines[i].split(u';'));
        session.user.updateProgress({}, {},
                                    100 * static_cast<double>(i + 1) / static_cast<double>(lines.size()));
        session.user.pumpMessages();
    }
}

/// One transaction with the removal of the old rows: a run that dies leaves the table of before, and the
/// column that tells of the new one only comes with all of its rows.
void replaceRows(Session& session, const TableImport& import, const FilePath& file) {
    Store& store = *session.adoConn;
    if (hasColumn(store, import.table, import.newColumn)) return;
    StoreTransaction transaction(store);
    store.execute(u"DELETE FROM %1 WHERE ID <> 0"_s.arg(import.table));
    store.execute(import.alteration);
    importRows(session, import, file);
    transaction.commit();
}

} // namespace

const std::vector<ImportedColumn>& airportColumns() {
    static const std::vector<ImportedColumn> columns{{u"ICAO"},
                                                     {u"AIRPORT_NAME"},
                                                     {u"CITY"},
                                                     {u"COUNTRY"},
                                                     {u"STATE"},
                                                     {u"LAT"},
                                                     {u"LONG"},
                                                     {u"ELEVATION"},
                                                     {u"WMO_REGION", ImportedKind::number},
                                                     {u"BLOCK_NUMBER", ImportedKind::number},
                                                     {u"STATION_NUMBER", ImportedKind::number}};
    return columns;
}

const std::vector<ImportedColumn>& decodedMetarColumns() {
    static const std::vector<ImportedColumn> columns{{u"METAR_STRING"},
                                                     {u"METAR_ICAO"},
                                                     {u"METAR_WIND_SPEED"},
                                                     {u"METAR_WIND_SPEED_MEASUREMENT"},
                                                     {u"METAR_WIND_DIRECTION"},
                                                     {u"METAR_WIND_GUSTING", ImportedKind::flag},
                                                     {u"METAR_WIND_GUST"},
                                                     {u"METAR_WIND_VARYING", ImportedKind::flag},
                                                     {u"METAR_WIND_VARYING_FROM"},
                                                     {u"METAR_WIND_VARYING_TO"},
                                                     {u"METAR_CLOUD_COVER"},
                                                     {u"METAR_MAX_CLOUD", ImportedKind::number},
                                                     {u"METAR_VISIBILITY"},
                                                     {u"METAR_VISIBILITY_FORMAT"},
                                                     {u"METAR_WEATHER_STRENGTH"},
                                                     {u"METAR_FOG"},
                                                     {u"METAR_WEATHER"},
                                                     {u"METAR_TEMP"},
                                                     {u"METAR_DEWPOINT"},
                                                     {u"METAR_PRESSURE"},
                                                     {u"METAR_DATE"},
                                                     {u"METAR_MONTH"},
                                                     {u"METAR_YEAR"},
                                                     {u"METAR_TIME"},
                                                     {u"METAR_CYCLE"},
                                                     {u"METAR_LAT"},
                                                     {u"METAR_LONG"}};
    return columns;
}

void importAirportData(Session& session) {
    const TableImport import{u"AIRPORTDATA"_s, u"STATE"_s,
                             u"ALTER TABLE AIRPORTDATA ADD COLUMN STATE TEXT(50)"_s,
                             u"Inserting Airport Data into the database"_s, airportColumns()};
    replaceRows(session, import, airportFile(session));
}

void importDecodedMetars(Session& session) {
    const TableImport import{
        u"DECODED_METAR"_s, u"METAR_LAT"_s,
        u"ALTER TABLE DECODED_METAR ADD COLUMN METAR_LAT TEXT(50), METAR_LONG TEXT(50)"_s,
        u"Inserting Decoded Metar Data into the database"_s, decodedMetarColumns()};
    replaceRows(session, import, decodedMetarFile(session));
}

void dropCountries(Store& store) {
    if (hasTable(store, u"COUNTRIES"_s)) store.execute(u"DROP TABLE COUNTRIES"_s);
}

void createTextureSwitch(Store& store) {
    if (hasTable(store, u"TEXTURE_SWITCH"_s)) return;
    StoreTransaction transaction(store);
    store.execute(u"CREATE TABLE TEXTURE_SWITCH(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, ISDUTCH YESNO, "
                  "ISTROPICAL YESNO, ISHALO YESNO, ISFASTEXIT YESNO)"_s);
    RowSet rows(store, u"SELECT * FROM TEXTURE_SWITCH"_s);
    rows.addNew();
    for (const char16_t* column : {u"ISDUTCH", u"ISTROPICAL", u"ISHALO", u"ISFASTEXIT"})
        rows.setFlag(column, false);
    rows.update();
    transaction.commit();
}

void addDutchResource(Store& store) {
    RowSet rows(store, u"SELECT * FROM RESOURCE_FOLDERS WHERE RESOURCE_NAME = 'DUTCH'"_s);
    if (rows.count() > 0) return;
    rows.addNew();
    rows.setText(u"RESOURCE_NAME", u"DUTCH"_s);
    rows.setText(u"RESOURCE_SOURCE", u"DUTCH"_s);
    rows.setText(u"RESOURCE_TEXTURE_SET", u"Dutch"_s);
    rows.setText(u"RESOURCE_DESTINATION", u"Scenery\\World\\texture"_s);
    rows.update();
}

void seedNightSets(Store& store) {
    if (hasTable(store, u"NIGHT_TEXTURE_SETS"_s)) return;
    StoreTransaction transaction(store);
    store.execute(
        u"CREATE TABLE NIGHT_TEXTURE_SETS(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, COLOR_SETTINGS "
        "TEXT (50), TEXTURE_SET TEXT (50), ACTIVATED TEXT (50), DESCRIPTION TEXT (255), INSTALLED YESNO)"_s);
    addDeliveredNightSets(store);
    transaction.commit();
}

bool addDutchColumn(Store& store) {
    if (hasColumn(store, u"TEXTURE_SETS"_s, u"DUTCH"_s)) return false;
    StoreTransaction transaction(store);
    store.execute(u"ALTER TABLE TEXTURE_SETS ADD COLUMN DUTCH YESNO"_s);
    RowSet rows(store, u"SELECT DUTCH FROM TEXTURE_SETS WHERE TEXTURE_SET = 'Default'"_s);
    if (!rows.atEnd()) {
        rows.setFlag(u"DUTCH", true);
        rows.update();
    }
    transaction.commit();
    return true;
}

} // namespace morvane
