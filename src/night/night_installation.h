#pragma once

#include "sets/set_installation.h"

namespace morvane {

/// The install of the night set in hand (session.state<NightSelection>().SelectedNightSet). The weather
/// chooses no night, so there is no automatic install, nothing is asked and no splash is changed.
class NightInstallation : public SetInstallation {
public:
    explicit NightInstallation(Session& session);

    /// By hand, whoever asks: several rows are refused.
    bool install(bool) { return SetInstallation::install(false); }
    void installNightTextureSet() { install(false); }

private:
    bool installSelectedSet() override;
    std::vector<FileCopy> copyListOfSet();
    std::vector<FileCopy> copyListOfDefault();
};

} // namespace morvane
