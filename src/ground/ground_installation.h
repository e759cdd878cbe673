#pragma once

#include "simulator/set_installation.h"

namespace morvane {

/// The install of the ground set in hand (session.ground.SelectedGroundSet).
class GroundInstallation : public SetInstallation {
public:
    explicit GroundInstallation(Session& session);

    /// As SetInstallation::install.
    void installTextureSet(bool automatic) { install(automatic); }

private:
    qsizetype selectedRowCount() const override { return session_.ground.selectedRows.size(); }
    bool installMatch(Job& job) override;
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
