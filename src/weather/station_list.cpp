#include "weather/station_list.h"

#include "core/literals.h"
#include "core/text_decoding.h"

#include <QRegularExpression>

namespace morvane {

namespace {

/// The number of a field, 0 for the lists' "--" and "---" and for the misprints that they hold.
std::int32_t numberOr0(const QString& field) {
    bool isNumber = false;
    const int number = field.toInt(&isNumber);
    return isNumber ? number : 0;
}

/// At most six decimals, none of them a needless 0, and no sign on 0.
QString shortest(double degrees) {
    QString text = QString::number(degrees, 'f', 6);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.')) text.chop(1);
    return text == u"-0" ? u"0"_s : text;
}

} // namespace

StationList parseStationList(const QString& text) {
    StationList stations;
    for (const QString& line : splitLines(text)) {
        const QStringList fields = line.split(u';');
        if (fields.size() <= 8) continue;
        stations.insert(fields[0], {decimalDegrees(fields[7]), decimalDegrees(fields[8]),
                                    numberOr0(fields[6]), numberOr0(fields[1]), numberOr0(fields[2])});
    }
    return stations;
}

QString decimalDegrees(const QString& coordinate) {
    static const QRegularExpression form(u"^(\\d{1,3})-([0-5]\\d)(?:-([0-5]\\d))?([NSEW])$"_s);
    const QRegularExpressionMatch match = form.match(coordinate);
    if (!match.hasMatch()) return {};
    const double degrees =
        match.captured(1).toInt() + match.captured(2).toInt() / 60.0 + match.captured(3).toInt() / 3600.0;
    const QString hemisphere = match.captured(4);
    const bool isLatitude = hemisphere == u"N" || hemisphere == u"S";
    if (degrees > (isLatitude ? 90 : 180)) return {};
    return shortest(hemisphere == u"S" || hemisphere == u"W" ? -degrees : degrees);
}

} // namespace morvane
