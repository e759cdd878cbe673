#pragma once

namespace morvane {

class Session;

/// Gives the session what rooms below ask of rooms that they do not know: which rows are read anew when
/// another program has written into the store, and for a set of the ground and of the sky the sets of the
/// other kind. A start begins with it.
void joinRooms(Session& session);

} // namespace morvane
