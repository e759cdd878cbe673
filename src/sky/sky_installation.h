#pragma once

#include "simulator/set_installation.h"

namespace morvane {

/// The install of the sky set in hand (session.sky.SelectedSkySet): every bitmap of its folder goes into the
/// simulator's "\Texture". An empty folder copies nothing and is installed all the same.
class SkyInstallation : public SetInstallation {
public:
    explicit SkyInstallation(Session& session);

    /// As SetInstallation::install.
    void installSkySet(bool automatic) { install(automatic); }

private:
    qsizetype selectedRowCount() const override { return session_.sky.selectedRows.size(); }
    bool installMatch(Job& job) override;
    bool installSelectedSet() override;
};

} // namespace morvane
