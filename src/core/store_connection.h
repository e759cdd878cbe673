#pragma once

#include <QString>

namespace morvane {

class Session;

/// Opens the store into `session.adoConn`. A failure shows a plain box; the start goes on without a store.
void connectDatabase(Session& session);
/// Closes it; nothing when there is none.
void closeDatabase(Session& session);
/// The monetary decimal separator of the locale; an empty one means ".".
QString getDecimalSeparator();

} // namespace morvane
