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

/// The version of the schema with which the text files were shipped.
constexpr int shippedVersion = 1;

/// A table whose rows come anew from a file, together with columns that it lacked.
struct TableImport {
    QString table;
    QStringList newColumns; ///< the first one tells whether it was done
    QString progressText;
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

void setField(RowSet& rows, const SchemaColumn& column, const QString& field) {
    switch (column.kind) {
    case ColumnKind::text:
        return rows.setText(column.name, field);
    case ColumnKind::number:
        return rows.setNumber(column.name, numberOf(field));
    case ColumnKind::flag:
        return rows.setFlag(column.name, flagOf(field));
    }
}

void addRow(RowSet& rows, const std::vector<SchemaColumn>& columns, const QStringList& fields) {
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
    const std::vector<SchemaColumn> columns = shippedColumns(import.table);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        addRow(rows, columns, lines[i].split(u';'));
        session.user.updateProgress({}, {},
                                    100 * static_cast<double>(i + 1) / static_cast<double>(lines.size()));
        session.user.pumpMessages();
    }
}

/// One transaction with the removal of the old rows: a run that dies leaves the table of before, and the
/// column that tells of the new one only comes with all of its rows.
void replaceRows(Session& session, const TableImport& import, const FilePath& file) {
    Store& store = *session.adoConn;
    if (hasColumn(store, import.table, import.newColumns.front())) return;
    StoreTransaction transaction(store);
    store.execute(u"DELETE FROM %1 WHERE ID <> 0"_s.arg(import.table));
    addColumns(store, schemaTable(import.table), import.newColumns);
    importRows(session, import, file);
    transaction.commit();
}

} // namespace

std::vector<SchemaColumn> shippedColumns(const QString& table) {
    return columnsOfVersion(schemaTable(table), shippedVersion);
}

void importAirportData(Session& session) {
    const TableImport import{u"AIRPORTDATA"_s, {u"STATE"_s}, u"Inserting Airport Data into the database"_s};
    replaceRows(session, import, airportFile(session));
}

void importDecodedMetars(Session& session) {
    const TableImport import{u"DECODED_METAR"_s,
                             {u"METAR_LAT"_s, u"METAR_LONG"_s},
                             u"Inserting Decoded Metar Data into the database"_s};
    replaceRows(session, import, decodedMetarFile(session));
}

void dropCountries(Store& store) {
    if (hasTable(store, u"COUNTRIES"_s)) store.execute(u"DROP TABLE COUNTRIES"_s);
}

void createTextureSwitch(Store& store) {
    if (hasTable(store, u"TEXTURE_SWITCH"_s)) return;
    StoreTransaction transaction(store);
    createTable(store, schemaTable(u"TEXTURE_SWITCH"_s));
    RowSet rows(store, u"SELECT * FROM TEXTURE_SWITCH"_s);
    rows.addNew(); // all off
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
    createTable(store, schemaTable(u"NIGHT_TEXTURE_SETS"_s));
    addDeliveredNightSets(store);
    transaction.commit();
}

bool addDutchColumn(Store& store) {
    if (hasColumn(store, u"TEXTURE_SETS"_s, u"DUTCH"_s)) return false;
    StoreTransaction transaction(store);
    addColumns(store, schemaTable(u"TEXTURE_SETS"_s), {u"DUTCH"_s});
    RowSet rows(store, u"SELECT DUTCH FROM TEXTURE_SETS WHERE TEXTURE_SET = 'Default'"_s);
    if (!rows.atEnd()) {
        rows.setFlag(u"DUTCH", true);
        rows.update();
    }
    transaction.commit();
    return true;
}

} // namespace morvane
