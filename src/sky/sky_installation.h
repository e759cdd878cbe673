#pragma once

#include "sets/set_installation.h"

namespace morvane {

/// The install of the sky set in hand (session.state<SkySelection>().SelectedSkySet): every bitmap of its
/// folder goes into the simulator's "\Texture". An empty folder copies nothing and is installed all the same.
class SkyInstallation : public SetInstallation {
public:
    explicit SkyInstallation(Session& session);

    /// As SetInstallation::install.
    bool installSkySet(bool automatic) { return install(automatic); }

private:
    bool installSelectedSet() override;
};

} // namespace morvane
