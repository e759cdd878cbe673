#pragma once

namespace morvane {

/// Of this process and all its threads so far.
double processorSeconds();
/// Largest memory of the process so far, in MB.
double peakMemory();

} // namespace morvane
