#include "weather/cycle_reports.h"

#include "core/text_decoding.h"
#include "weather/cycle_contents.h"

namespace morvane {

namespace {

std::vector<StationReport> reportsOf(const QStringList& lines) {
    std::vector<StationReport> reports;
    reports.reserve(static_cast<std::size_t>(lines.size()));
    for (const QString& line : lines)
        reports.push_back({line});
    return reports;
}

} // namespace

std::vector<StationReport> cycleReports(const QByteArray& file, CycleForm form) {
    const QString text = decodeText(cycleContents(file));
    if (form == CycleForm::awc) return awcReports(text);
    QStringList lines = splitLines(text);
    if (form == CycleForm::noaa) lines = newestReports(lines);
    // Wanted: the last line is never read. It is empty in a whole file and cut off in any other.
    if (!lines.isEmpty()) lines.removeLast();
    return reportsOf(lines);
}

std::vector<StationReport> exportReports(const QByteArray& file) {
    QStringList lines = splitLines(decodeText(cycleContents(file)));
    if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
    return reportsOf(lines);
}

} // namespace morvane
