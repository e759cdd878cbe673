#pragma once

#include "core/reported.h"
#include "sets/set_installation.h"

namespace morvane {

/// The install of a ground set; that in hand is session.state<GroundSelection>().SelectedGroundSet.
class GroundInstallation : public SetInstallation {
public:
    explicit GroundInstallation(Session& session);

    // As SetInstallation::install.
    bool installTextureSet() { return install(); }
    void installTextureSet(const QString& name) { install(name); }

private:
    Reported installSet(const QString& name) override;

    std::vector<FileCopy> copyListOfSet(const QString& name);
    std::vector<FileCopy> copyListOfDefault();
    void addTropicalFiles(const QString& name, std::vector<FileCopy>& copies);
    bool installGeneratedSet(const QString& name);
    bool installDefaultSet();

    FilePath worldTexture() const { return session_.FSPath / u"Scenery\\WORLD\\Texture"; }
    FilePath utEurLcTexture() const { return session_.FSPath / u"Scenery\\UTEurLC\\Texture"; }
};

} // namespace morvane
