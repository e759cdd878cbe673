#pragma once

#include "core/file_system.h"
#include "core/literals.h"
#include "core/text_decoding.h"

#include <QRegularExpression>

namespace morvane::test {

/// The text of a file below data/, such as "metar/02Z.TXT".
inline QString dataText(const QString& name) {
    return decodeText(NativeFileSystem().read(FilePath(QStringLiteral(MORVANE_DATA_DIR "/") + name)));
}

/// Every report of data/metar in file order, without the date lines of the cycle; repeats are kept.
inline QStringList sampleReports() {
    QStringList reports;
    for (const QString& name : {u"02Z.TXT"_s, u"Export_Cycle.dat"_s, u"oddities.txt"_s})
        reports += splitLines(dataText(u"metar/"_s + name));
    return reports.filter(QRegularExpression(u"^(?!\\d{4}/\\d\\d/\\d\\d ).+"_s));
}

} // namespace morvane::test
