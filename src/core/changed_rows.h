#pragma once

namespace morvane {

class Session;

/// When another program has written into the store since the last call: drops what this one has read of it,
/// so that it is read anew where it is used next, reads the sets and the switches at once, and marks the
/// lists for a refill. True then; a set that is written back from memory can never bring a row of before.
bool reloadChangedRows(Session& session);

} // namespace morvane
