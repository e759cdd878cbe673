#include "sample_cycle.h"

#include <QFile>
#include <QRegularExpression>

namespace morvane {

LoopbackServer::Reply sampleCycleReply(const QByteArray& path) {
    static const QRegularExpression cyclePath(QStringLiteral("^/weather/([01][0-9]|2[0-3])Z\\.TXT$"));
    if (!cyclePath.match(QString::fromLatin1(path)).hasMatch())
        return LoopbackServer::statusReply("404 Not Found");
    QFile file(QStringLiteral(MORVANE_DATA_DIR "/metar/02Z.TXT"));
    if (!file.open(QIODevice::ReadOnly)) return LoopbackServer::statusReply("500 Internal Server Error");
    return LoopbackServer::textReply(file.readAll());
}

} // namespace morvane
