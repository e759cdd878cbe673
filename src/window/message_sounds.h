#pragma once

#include "core/user_interface.h"

namespace morvane {

/// Plays the system's sound for that kind and returns at once. Silent for progress, and on systems that have
/// no such sounds.
void playMessageSound(MessageKind kind);

} // namespace morvane
