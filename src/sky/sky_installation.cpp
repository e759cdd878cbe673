#include "sky/sky_installation.h"

#include "sky/sky_sets.h"

namespace morvane {

namespace {

const InstallationKind skyKind{
    u"Morvane has detected more than one selection for installation.  You can only select one texture set to "
    "be installed at any one time.  Please check your selection and try again!."_s,
    // The last of the grounds is never drawn, though the last of the skies is for a ground. Wanted.
    MatchOffer{u"Would you like Morvane to install a matching Ground Texture set?"_s, &WeatherKinds::ground,
               false, 1},
    0};

} // namespace

SkyInstallation::SkyInstallation(Session& session) : SetInstallation(session, setKind<SkyKind>(), skyKind) {}

Reported SkyInstallation::installSet(const QString& wanted) {
    if (!refreshSkySets(session_)) return false;
    const auto record = findSkySet(session_, wanted);
    const QString name = record ? record->SkyTextureSet : wanted;
    std::vector<FileCopy> copies;
    addFolderFiles(session_, skySetFolder(session_, name), u"*.bmp"_s, session_.FSPath / u"Texture", copies);
    // The store says "installed" before the first file is copied, also when the copying then fails.
    if (!loadedSkySets(session_).markInstalled(name)) return false;
    putSet(record ? record->CloudCover : QString(), copies);
    return true;
}

} // namespace morvane
