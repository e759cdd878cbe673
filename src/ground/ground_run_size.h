#pragma once

#include "core/run_size.h"

namespace morvane {

class Session;

/// What a run of so many ground sets, one or more, is going to take. The time is that of the set made last;
/// before the first one of the stock's files is coloured and compressed in memory to measure it. Raises what
/// reading the stock raises.
RunSize groundRunSize(Session& session, int sets);

} // namespace morvane
