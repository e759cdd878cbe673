#pragma once

namespace morvane {

/// The six options as they are in force (see simulator/options.h).
struct OptionsInForce {
    bool IsWideClient = false;
    bool InhibitCustomSplash = false;
    bool IsDutch = false, IsTropical = false, IsHalo = false, IsFastExit = false;
};

} // namespace morvane
