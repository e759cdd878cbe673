#include "weather/airport_rows.h"

#include "core/error.h"
#include "core/text_decoding.h"

namespace morvane {

namespace {

AirportRow parseRow(const QString& line) {
    const QStringList fields = line.split(u'\t');
    if (fields.size() != 8) throw Error(ErrorCode::typeMismatch, line);
    return {fields[0], fields[1], fields[2], fields[3], fields[4], fields[5], fields[6], fields[7]};
}

} // namespace

std::vector<AirportRow> parseAirportTable(const QString& text) {
    std::vector<AirportRow> rows;
    const QStringList lines = splitLines(text);
    for (qsizetype i = 1; i < lines.size(); ++i)
        if (!lines[i].isEmpty()) rows.push_back(parseRow(lines[i]));
    return rows;
}

} // namespace morvane
