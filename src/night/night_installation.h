#pragma once

#include "core/reported.h"
#include "sets/set_installation.h"

namespace morvane {

/// The install of a night set; that in hand is session.state<NightSelection>().SelectedNightSet. The weather
/// chooses no night: nothing is asked and no splash is changed.
class NightInstallation : public SetInstallation {
public:
    explicit NightInstallation(Session& session);

    /// As SetInstallation::install; the start of the simulator is not offered.
    void installNightTextureSet() { install(); }

private:
    Reported installSet(const QString& name) override;
    std::vector<FileCopy> copyListOfSet(const QString& name);
    std::vector<FileCopy> copyListOfDefault();
};

} // namespace morvane
