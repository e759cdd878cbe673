#include "ground/ground_installation.h"

#include "ground/ground_sets.h"
#include "ground/tropical_files.h"
#include "sets/cloud_cover.h"
#include "sets/options_in_force.h"
#include "sets/set_names.h"

namespace morvane {

namespace {

// The refusal speaks of a sky set: the message's own word.
const InstallationKind groundCopies{
    u"Morvane has detected more than one selection for installation.  You can only select one sky texture "
    "set to be installed at any one time.  Please check your selection and try again!."_s,
    // Without any sky set no sky is touched; a sky that asks for its ground has no such way out. Wanted.
    MatchOffer{u"Would you like Morvane to install a matching Sky Texture set?"_s, &WeatherKinds::sky, true},
    2};

} // namespace

GroundInstallation::GroundInstallation(Session& session)
    : SetInstallation(session, setKind<GroundKind>(), groundCopies) {}

Reported GroundInstallation::installSet(const QString& name) {
    if (!refreshGroundSets(session_)) return false;
    return name == defaultSetName ? installDefaultSet() : installGeneratedSet(name);
}

std::vector<FileCopy> GroundInstallation::copyListOfSet(const QString& name) {
    const FilePath setFolder = groundSetFolder(session_, name);
    std::vector<FileCopy> copies;
    addFolderFiles(session_, setFolder / u"Texture", u"*.bmp"_s, worldTexture(), copies);
    // Annotation files are no part of a set: every install brings the same ones.
    addFolderFiles(session_, session_.AppPath / u"GENERIC WORLD", u"*.agn"_s, worldTexture(), copies);
    if (session_.files.isFolder(utEurLcTexture()))
        addFolderFiles(session_, setFolder / u"UTEurLC", u"*.bmp"_s, utEurLcTexture(), copies);
    if (session_.state<OptionsInForce>().IsDutch) {
        addFolderFiles(session_, setFolder / u"Dutch", u"*.bmp"_s, worldTexture(), copies);
        addFolderFiles(session_, session_.AppPath / u"DUTCH", u"*.agn"_s, worldTexture(), copies);
    }
    if (session_.state<OptionsInForce>().IsTropical) addTropicalFiles(name, copies);
    return copies;
}

std::vector<FileCopy> GroundInstallation::copyListOfDefault() {
    const FilePath& app = session_.AppPath;
    std::vector<FileCopy> copies;
    addFolderFiles(session_, app / u"GENERIC WORLD", u"*.bmp"_s, worldTexture(), copies);
    addFolderFiles(session_, app / u"GENERIC WORLD", u"*.agn"_s, worldTexture(), copies);
    addFolderFiles(session_, app / u"UT EUROPE", u"*.bmp"_s, worldTexture(), copies);
    // A generated set asks for the add-on's texture folder, "Default" only for the folder above it. Wanted.
    if (session_.files.isFolder(session_.FSPath / u"Scenery\\UTEurLC"))
        addFolderFiles(session_, app / u"UTIND", u"*.bmp"_s, utEurLcTexture(), copies);
    if (session_.state<OptionsInForce>().IsDutch) {
        addFolderFiles(session_, app / u"DUTCH", u"*.bmp"_s, worldTexture(), copies);
        addFolderFiles(session_, app / u"DUTCH", u"*.agn"_s, worldTexture(), copies);
    }
    if (session_.state<OptionsInForce>().IsTropical) addTropicalFiles(defaultSetName, copies);
    return copies;
}

void GroundInstallation::addTropicalFiles(const QString& name, std::vector<FileCopy>& copies) {
    for (const FilePath& file : tropicalFiles(session_, TropicalForm::b, name))
        copies.push_back({file, worldTexture().child(tropicalName(file.fileName()))});
}

bool GroundInstallation::installGeneratedSet(const QString& name) {
    const std::vector<FileCopy> copies = copyListOfSet(name);
    // The store says "installed" before the first file is copied, also when the copying then fails.
    if (!loadedGroundSets(session_).markInstalled(name)) return false;
    const auto record = findGroundSet(session_, name);
    putSet(record ? record->CloudCover : QString(), copies);
    return true;
}

bool GroundInstallation::installDefaultSet() {
    const CloudCover& nominal = *cloudCover(3);
    const std::vector<FileCopy> copies = copyListOfDefault();
    showProgress();
    showCover(nominal.word + nominal.tag);
    if (!loadedGroundSets(session_).markInstalled(defaultSetName)) return false;

    SimulatorCopier copier(session_);
    prepare(copier, copies, &nominal);
    if (!session_.state<OptionsInForce>().InhibitCustomSplash) copier.copy(splashCopy(nominal));
    copyAll(copier, copies);
    // Once more, whatever the option says: "Default" always shows the nominal splash. Wanted.
    copier.copy(splashCopy(nominal));
    finish(copier);
    return true;
}

} // namespace morvane
