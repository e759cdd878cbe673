#pragma once

#include "core/literals.h"
#include "core/text_decoding.h"

#include <QFile>
#include <QRegularExpression>
#include <stdexcept>

namespace morvane::test {

/// A file below data/, such as "metar/02Z.TXT".
inline QByteArray dataFile(const QString& name) {
    QFile file(QStringLiteral(MORVANE_DATA_DIR "/") + name);
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + name.toStdString());
    return file.readAll();
}

/// Every report of data/metar in file order, without the date lines of the cycle; repeats are kept.
inline QStringList sampleReports() {
    QStringList reports;
    for (const QString& name : {u"02Z.TXT"_s, u"Export_Cycle.dat"_s, u"oddities.txt"_s})
        reports += splitLines(decodeText(dataFile(u"metar/"_s + name)));
    return reports.filter(QRegularExpression(u"^(?!\\d{4}/\\d\\d/\\d\\d ).+"_s));
}

} // namespace morvane::test
