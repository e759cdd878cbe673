#pragma once

#include "ground_art_scene.h"

namespace morvane::art {

/// The painted tile by night, as the simulator lays it over the day's: the same streets and houses on near
/// black, lamps along the streets of towns and light in some of the windows.
Picture byNight(Scene& scene);

} // namespace morvane::art
