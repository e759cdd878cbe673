#include "sample_reports.h"

#include "core/text_decoding.h"
#include "weather/cycle_lines.h"
#include "weather/metar_decoder.h"
#include "weather/report_rows.h"

#include <QHash>

namespace morvane {

namespace {

/// Where a cycle of the sample data is from. Its reports keep their true dates.
struct SampleCycle {
    const char16_t* file;
    QString cycle, month, year;
};

using Positions = QHash<QString, StationPlace>;

Positions positionsOf(const std::vector<AirportRow>& airports, const StationList& stations) {
    Positions positions;
    for (auto station = stations.begin(); station != stations.end(); ++station)
        if (!station->latitude.isEmpty() && !station->longitude.isEmpty())
            positions.insert(station.key(), {station->latitude, station->longitude});
    for (const AirportRow& airport : airports)
        positions.insert(airport.code, {airport.latitude, airport.longitude});
    return positions;
}

clsWxFinder decodedReport(Session& session, const SampleCycle& cycle, const QString& line) {
    clsWxFinder report = clsDecodeMetar(session.user).decodeMetarString(line);
    report.WxFinderCycle = cycle.cycle;
    report.WxFinderMonth = cycle.month;
    report.WxFinderYear = cycle.year;
    return report;
}

void addCycle(Session& session, const FilePath& data, const SampleCycle& cycle, const Positions& positions) {
    for (const QString& line : newestReports(splitLines(decodeText(session.files.read(data / cycle.file))))) {
        if (line.isEmpty()) continue;
        const clsWxFinder report = decodedReport(session, cycle, line);
        storeReport(session, report, positions.value(report.WxFinderIcao));
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
