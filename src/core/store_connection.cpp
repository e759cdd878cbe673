#include "core/store_connection.h"

#include "core/attempts.h"
#include "core/failure_report.h"
#include "core/store_records.h"

#include <clocale>

namespace morvane {

QString getDecimalSeparator() {
    const std::lconv* conventions = std::localeconv();
    const QString separator = QString::fromLocal8Bit(conventions->mon_decimal_point);
    return separator.isEmpty() ? u"."_s : separator;
}

void connectDatabase(Session& session, StoreAccess access) {
    try {
        session.adoConn = std::make_unique<Store>();
        session.adoConn->open(session.AppPath / u"Morvane.mdb", access,
                              session.files.isOnNetwork(session.AppPath) ? StoreDrive::network
                                                                         : StoreDrive::ownMachine);
    } catch (const Error& error) {
        session.user.systemBox(error.description(), {}, SystemBoxButtons::ok);
    }
}

void updateDatabase(Session& session, const Schema& schema) {
    if (hasStore(session))
        reportFailures(session.user, morvaneError, [&] { updateSchema(*session.adoConn, schema); });
}

void closeDatabase(Session& session) {
    if (!session.adoConn) return;
    if (session.adoConn->isOpen()) attempt([&] { session.adoConn->giveRoomBack(); });
    session.adoConn->close();
    session.adoConn.reset();
}

} // namespace morvane
