#pragma once

#include "ground/ground_selection.h"
#include "sets/set_installation.h"
#include "sets/weather_kinds.h"

namespace morvane {

/// The install of the ground set in hand (session.state<GroundSelection>().SelectedGroundSet).
class GroundInstallation : public SetInstallation {
public:
    explicit GroundInstallation(Session& session);

    /// As SetInstallation::install.
    bool installTextureSet(bool automatic) { return install(automatic); }

private:
    qsizetype selectedRowCount() const override {
        return session_.state<GroundSelection>().selectedRows.size();
    }
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

/// What a sky set asks of the ground's.
const WeatherKind& groundKindOfWeather();

} // namespace morvane
