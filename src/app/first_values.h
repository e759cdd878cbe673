#pragma once

namespace morvane {

class Registry;

/// What a new install begins with: its first run is still to come, this is no WideFS client, and the weather
/// comes from the public service. But for the first run, values that are there stay.
void writeFirstValues(Registry& registry);

} // namespace morvane
