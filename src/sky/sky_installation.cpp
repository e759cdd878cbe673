#include "sky/sky_installation.h"

#include "sky/sky_selection.h"
#include "sky/sky_sets.h"

namespace morvane {

namespace {

const InstallationKind skyKind{
    u"Sky"_s,
    u"Morvane has detected more than one selection for installation.  You can only select one texture set to "
    "be installed at any one time.  Please check your selection and try again!."_s,
    u"Would you like Morvane to install a matching Ground Texture set?"_s,
    Screen::frm_KMTextures,
    [](Session& session) -> bool& { return session.state<SkySelection>().RefreshSkyList; },
    0};

class SkyKindOfWeather : public WeatherKind {
    std::int32_t count(Session& session) const override { return loadedSkySets(session).Count(); }
    std::vector<ActivatedSet> activated(Session& session) const override {
        return activatedSets(loadedSkySets(session));
    }
    bool installInside(Session& session, Job& job, const QString& name) const override {
        session.state<SkySelection>().SelectedSkySet = name;
        return SkyInstallation(session).installInside(job);
    }
};

} // namespace

const WeatherKind& skyKindOfWeather() {
    static const SkyKindOfWeather kind;
    return kind;
}

SkyInstallation::SkyInstallation(Session& session) : SetInstallation(session, skyKind) {}

bool SkyInstallation::installMatch(Job& job) {
    const WeatherKind& grounds = *session_.state<WeatherKinds>().ground;
    const QStringList names =
        namesForCover(grounds.activated(session_), session_.state<SkySelection>().SelectedSkyCover);
    // The last of the grounds is never drawn, though the last of the skies is for a ground. Wanted.
    return grounds.installInside(session_, job, drawName(session_, names, names.size() - 1));
}

bool SkyInstallation::installSelectedSet() {
    if (!refreshSkySets(session_)) return false;
    const auto record = findSkySet(session_, session_.state<SkySelection>().SelectedSkySet);
    const QString name = record ? record->SkyTextureSet : session_.state<SkySelection>().SelectedSkySet;
    std::vector<FileCopy> copies;
    addFolderFiles(session_, skySetFolder(session_, name), u"*.bmp"_s, session_.FSPath / u"Texture", copies);
    // The store says "installed" before the first file is copied, also when the copying then fails.
    if (!loadedSkySets(session_).markInstalled(name)) return false;
    putSet(record ? record->CloudCover : QString(), copies);
    return true;
}

} // namespace morvane
