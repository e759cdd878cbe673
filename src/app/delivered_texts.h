#pragma once

#include <QString>

namespace morvane {

// What the build takes over from the documents.

/// "2.1.0"
QString programVersion();
/// The newest section of the list of changes, without its heading, as it stands there.
QString newestChanges();
/// What only the simulator itself can show, a line each, "- [ ]" in front.
QString realSimulatorList();

} // namespace morvane
