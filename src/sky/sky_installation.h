#pragma once

#include "core/reported.h"
#include "sets/set_installation.h"

namespace morvane {

/// The install of a sky set; that in hand is session.state<SkySelection>().SelectedSkySet. Every bitmap of
/// its folder goes into the simulator's "\Texture". An empty folder copies nothing and is installed all the
/// same.
class SkyInstallation : public SetInstallation {
public:
    explicit SkyInstallation(Session& session);

    // As SetInstallation::install.
    bool installSkySet() { return install(); }
    void installSkySet(const QString& name) { install(name); }

private:
    Reported installSet(const QString& wanted) override;
};

} // namespace morvane
