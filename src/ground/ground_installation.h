#pragma once

#include "sets/set_installation.h"

namespace morvane {

/// The install of the ground set in hand (session.state<GroundSelection>().SelectedGroundSet).
class GroundInstallation : public SetInstallation {
public:
    explicit GroundInstallation(Session& session);

    /// As SetInstallation::install.
    bool installTextureSet(bool automatic) { return install(automatic); }

private:
    bool installSelectedSet() override;

    std::vector<FileCopy> copyListOfSet();
    std::vector<FileCopy> copyListOfDefault();
    void addTropicalFiles(std::vector<FileCopy>& copies);
    bool installGeneratedSet();
    bool installDefaultSet();

    FilePath worldTexture() const { return session_.FSPath / u"Scenery\\WORLD\\Texture"; }
    FilePath utEurLcTexture() const { return session_.FSPath / u"Scenery\\UTEurLC\\Texture"; }
};

} // namespace morvane
