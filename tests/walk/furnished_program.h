#pragma once

#include "support/window_program.h"

namespace morvane::test {

/// Gives the program at least two of everything that a list can show, an address for every link, and an
/// installed set of each kind, so that every control has something to do.
void furnish(WindowProgram& program);

} // namespace morvane::test
