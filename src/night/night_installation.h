#pragma once

#include "night/night_selection.h"
#include "sets/set_installation.h"

namespace morvane {

/// The install of the night set in hand (session.state<NightSelection>().SelectedNightSet). The weather
/// chooses no night, so there is no automatic install, nothing is asked and no splash is changed.
class NightInstallation : public SetInstallation {
public:
    explicit NightInstallation(Session& session);

    /// Refuses several rows; see SetInstallation::install.
    void installNightTextureSet() { install(false); }

private:
    qsizetype selectedRowCount() const override {
        return session_.state<NightSelection>().selectedRows.size();
    }
    bool installSelectedSet() override;
    std::vector<FileCopy> copyListOfSet();
    std::vector<FileCopy> copyListOfDefault();
};

} // namespace morvane
