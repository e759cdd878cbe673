#include "weather/metar_text.h"

#include "core/numbers.h"

namespace morvane {

namespace {

bool isPressureGroup(QStringView token) {
    const bool hasLetter =
        token.startsWith(u'q', Qt::CaseInsensitive) || token.startsWith(u'a', Qt::CaseInsensitive);
    return hasLetter && token.size() == 5 && isDigits(token.mid(1));
}

} // namespace

QString trimMetarString(const QString& report) {
    if (report.isEmpty()) return {};
    for (const QStringView token : QStringView(report).tokenize(u' '))
        if (isPressureGroup(token)) return report.left(token.end() - report.cbegin());
    return report + u' ';
}

} // namespace morvane
