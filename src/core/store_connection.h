#pragma once

#include "core/store.h"
#include "core/store_schema.h"

namespace morvane {

class Session;

/// Opens the store into `session.adoConn`. A failure shows a plain box; the start goes on without a store.
void connectDatabase(Session& session, StoreAccess access = StoreAccess::writing);
/// Brings the store that is open up to the schema. What fails is told, and the program goes on with the store
/// as it was: the next start tries again.
void updateDatabase(Session& session, const Schema& schema = programSchema());
/// Closes it; nothing when there is none.
void closeDatabase(Session& session);
/// The monetary decimal separator of the locale; an empty one means ".".
QString getDecimalSeparator();

} // namespace morvane
