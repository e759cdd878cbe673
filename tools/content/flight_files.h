#pragma once

#include "core/file_system.h"

namespace morvane {

/// The saved flights that come with an install, into `home`\Flights, and, for a sample simulator, the same in
/// its "Flights\Morvane" and a pilot's own in its "Flights": one of those has the name of a delivered one,
/// one has no weather, and one weather has no flight. An empty `simulator` stands for none.
void writeFlights(FileSystem& files, const FilePath& home, const FilePath& simulator);

} // namespace morvane
