#include "sample_reports.h"

#include "core/error.h"
#include "core/text_decoding.h"
#include "weather/cycle_lines.h"
#include "weather/decoded_report.h"

#include <QHash>

namespace morvane {

namespace {

/// Where a cycle of the sample data is from. Its reports keep their true dates.
struct SampleCycle {
    const char16_t* file;
    QString cycle, month, year;
};

struct Position {
    QString latitude, longitude;
};
using Positions = QHash<QString, Position>;

Positions positionsOf(const std::vector<AirportRow>& airports, const StationList& stations) {
    Positions positions;
    for (auto station = stations.begin(); station != stations.end(); ++station)
        if (!station->latitude.isEmpty() && !station->longitude.isEmpty())
            positions.insert(station.key(), {station->latitude, station->longitude});
    for (const AirportRow& airport : airports)
        positions.insert(airport.code, {airport.latitude, airport.longitude});
    return positions;
}

DecodedMetarRow decodedRow(Session& session, const SampleCycle& cycle, const QString& line) {
    clsDecodeMetar decoded(session.user);
    decoded.decodeMetarString(line);
    DecodedMetarRow row{toWxFinder(decoded, line), {}, {}};
    row.report.WxFinderCycle = cycle.cycle;
    row.report.WxFinderMonth = cycle.month;
    row.report.WxFinderYear = cycle.year;
    return row;
}

void addCycle(Session& session, const FilePath& data, const SampleCycle& cycle, const Positions& positions) {
    clsWxFinderData rows(session);
    for (const QString& line : newestReports(splitLines(decodeText(session.files.read(data / cycle.file))))) {
        if (line.isEmpty()) continue;
        DecodedMetarRow row = decodedRow(session, cycle, line);
        const Position position = positions.value(row.report.WxFinderIcao);
        row.latitude = position.latitude;
        row.longitude = position.longitude;
        if (!rows.insertDecodedMetar(row)) throw Error(ErrorCode::storeFailure, line);
    }
}

} // namespace

void addSampleReports(Session& session, const FilePath& data, const std::vector<AirportRow>& airports,
                      const StationList& stations) {
    const Positions positions = positionsOf(airports, stations);
    // The older one first: where both have a station, the newer report stays.
    addCycle(session, data, {u"metar\\Export_Cycle.dat", u"16"_s, u"October"_s, u"2007"_s}, positions);
    addCycle(session, data, {u"metar\\02Z.TXT", u"2"_s, u"November"_s, u"2011"_s}, positions);
}

} // namespace morvane
