// Serves the sample reports in the three forms, and answers that a client has to be ready for.
// usage: morvane-weather-server [PORT]

#include "loopback_server.h"
#include "sample_cycle.h"

#include <QCoreApplication>
#include <cstdio>

using namespace morvane;

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const LoopbackServer server(LoopbackServer::RequestHandler(sampleReply), arguments.value(1).toUShort());
    if (!server.isListening()) {
        std::fputs("The port cannot be had.\n", stderr);
        return 1;
    }
    std::printf("%s\n", qPrintable(server.address()));
    std::fflush(stdout); // who started it waits for the address
    return QCoreApplication::exec();
}
