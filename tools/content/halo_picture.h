#pragma once

#include <QImage>

namespace morvane {

/// The light that the simulator draws round lamps of aircraft and airports, added to what is behind it: black
/// has no effect. `defaultHalo` is a plain glow as simulators bring it, `customHalo` a small bright core
/// with fine rays.
enum class HaloStyle { defaultHalo, customHalo };

/// 64 x 64 in 24 bits.
QImage drawHalo(HaloStyle style);

} // namespace morvane
