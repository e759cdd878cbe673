#include "core/ini_file.h"
#include "core/statement_translation.h"
#include "core/store_records.h"
#include "core/text_decoding.h"
#include "weather/station_list.h"
#include "weather/wx_finders.h"

#include <QSet>

namespace morvane {

namespace {

const QString noCode = u"----"_s, codeSection = u"ICAO"_s, totalKey = u"total"_s;
constexpr qsizetype codeLength = 4;

FilePath airportFile(const Session& session) {
    return session.AppPath / u"icao.cfg";
}

FilePath stationFile(const Session& session) {
    return session.AppPath / u"noaa.cfg";
}

/// Positions of the fields in a line of the station list.
enum StationField {
    blockField,
    stationField,
    codeField,
    regionField = 6,
    latitudeField,
    longitudeField,
    elevationField = 11
};

void setNumberWhenGiven(RowSet& row, QStringView column, const QString& field) {
    bool isNumber = false;
    const int number = field.toInt(&isNumber);
    if (isNumber) row.setNumber(column, number);
}

void fillAirport(RowSet& row, const QStringList& fields) {
    setNumberWhenGiven(row, u"BLOCK_NUMBER", fields[blockField]);
    setNumberWhenGiven(row, u"STATION_NUMBER", fields[stationField]);
    setNumberWhenGiven(row, u"WMO_REGION", fields[regionField]);
    row.setText(u"LAT", decimalDegrees(fields[latitudeField]));
    row.setText(u"LONG", decimalDegrees(fields[longitudeField]));
    if (const QString elevation = fields.value(elevationField); !elevation.isEmpty())
        row.setText(u"ELEVATION", elevation);
    row.update();
}

/// The values "1" to "total" of a section.
QStringList numberedValues(FileSystem& files, const QString& section, const FilePath& file) {
    QStringList values;
    const int total = GetIniInt(files, section, totalKey, file);
    for (int number = 1; number <= total; ++number)
        values << GetIniString(files, section, QString::number(number), file);
    return values;
}

/// Adds an airport of "code:name:city" and gives its code.
QString addAirport(Store& store, const QString& entry, const QString& country) {
    QStringList values = entry.split(u':');
    values.resize(3);
    values << country;
    for (QString& value : values)
        value = makeStatementSafe(value);
    store.execute(u"INSERT INTO AIRPORTDATA(ICAO, AIRPORT_NAME, CITY, COUNTRY)  VALUES ('"_s +
                  values.join(u"', '") + u"')"_s);
    return entry.section(u':', 0, 0).toUpper();
}

} // namespace

void clsWxFinderData::popWxStations() {
    Store& store = connectedStore(session_);
    StoreTransaction transaction(store);
    for (const QString& line :
         splitLines(decodeText(session_.files.read(session_.AppPath / u"wxStations.txt")))) {
        const QStringList fields = line.split(u';');
        if (fields.size() <= longitudeField || fields[codeField] == noCode) continue;
        RowSet row(store, u"SELECT * FROM AIRPORTDATA WHERE ICAO = '"_s +
                              makeStatementSafe(fields[codeField]) + u'\'');
        if (!row.atEnd() && row.text(u"LAT").isEmpty()) fillAirport(row, fields);
    }
    transaction.commit();
}

void clsWxFinderData::deleteWxData() {
    connectedStore(session_).execute(u"DELETE FROM WX_STATIONS WHERE WX_STATION_ICAO = '----'"_s);
}

void clsWxFinderData::removeDuplicatesFromNoaaConfig() {
    Store& store = connectedStore(session_);
    StoreTransaction transaction(store);
    QSet<QString> airports;
    for (const QString& country : numberedValues(session_.files, u"Countries"_s, airportFile(session_)))
        for (const QString& entry : numberedValues(session_.files, country, airportFile(session_)))
            airports.insert(addAirport(store, entry, country));
    transaction.commit();
    QStringList stations = numberedValues(session_.files, codeSection, stationFile(session_));
    stations.removeIf([&](const QString& code) { return airports.contains(code.toUpper()); });
    // The total has always been the last index, one less than there are: wanted.
    WriteIni(session_.files, codeSection, totalKey, QString::number(stations.size() - 1),
             stationFile(session_));
    writeNoaaConfig(stations);
}

void clsWxFinderData::writeNoaaConfig(const QStringList& lines) {
    for (qsizetype i = 0; i < lines.size(); ++i)
        WriteIni(session_.files, codeSection, QString::number(i + 1), lines[i].left(codeLength),
                 stationFile(session_));
}

} // namespace morvane
