// Serves the sample cycle, in the public service's form, under every hour's name below /weather/.
// usage: morvane-weather-server [PORT]

#include "loopback_server.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <cstdio>

using namespace morvane;

namespace {

LoopbackServer::Reply replyTo(const QByteArray& path) {
    static const QRegularExpression cyclePath(QStringLiteral("^/weather/([01][0-9]|2[0-3])Z\\.TXT$"));
    if (!cyclePath.match(QString::fromLatin1(path)).hasMatch())
        return LoopbackServer::statusReply("404 Not Found");
    QFile file(QStringLiteral(MORVANE_DATA_DIR "/metar/02Z.TXT"));
    if (!file.open(QIODevice::ReadOnly)) return LoopbackServer::statusReply("500 Internal Server Error");
    return LoopbackServer::textReply(file.readAll());
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const LoopbackServer server(replyTo, arguments.value(1).toUShort());
    if (!server.isListening()) {
        std::fputs("The port cannot be had.\n", stderr);
        return 1;
    }
    std::printf("%s\n", qPrintable(server.address()));
    std::fflush(stdout); // who started it waits for the address
    return QCoreApplication::exec();
}
