#include "ground/ground_installation.h"

#include "ground/cloud_cover.h"
#include "ground/ground_generation.h"
#include "ground/ground_sets.h"
#include "ground/tropical_files.h"
#include "simulator/set_choice.h"
#include "sky/sky_installation.h"
#include "sky/sky_sets.h"

namespace morvane {

namespace {

const QString defaultSet = u"Default"_s;

// The refusal speaks of a sky set: the message's own word.
const InstallationKind groundKind{
    u"Ground"_s,
    u"Morvane has detected more than one selection for installation.  You can only select one sky texture "
    "set to be installed at any one time.  Please check your selection and try again!."_s,
    u"Would you like Morvane to install a matching Sky Texture set?"_s,
    Screen::frm_MVTextures,
    &Session::RefreshGroundList,
    2};

} // namespace

GroundInstallation::GroundInstallation(Session& session) : SetInstallation(session, groundKind) {}

bool GroundInstallation::installSelectedSet() {
    if (!refreshGroundSets(session_)) return false;
    return session_.ground.SelectedGroundSet == defaultSet ? installDefaultSet() : installGeneratedSet();
}

bool GroundInstallation::installMatch(Job& job) {
    const clsSkyTextureSets& skies = loadedSkySets(session_);
    // Without any sky set no sky is touched; a sky that asks for its ground has no such way out. Wanted.
    if (skies.Count() == 0) return true;
    const QStringList names = namesForCover(activatedSets(skies), session_.ground.SelectedGroundCover);
    // This draw reaches the last of the skies; a sky's draw of its ground stops short of the last. Wanted.
    session_.sky.SelectedSkySet = drawName(session_, names, names.size());
    return SkyInstallation(session_).installInside(job);
}

std::vector<FileCopy> GroundInstallation::copyListOfSet() {
    const FilePath setFolder = groundSetFolder(session_, session_.ground.SelectedGroundSet);
    std::vector<FileCopy> copies;
    addFolderFiles(session_, setFolder / u"Texture", u"*.bmp"_s, worldTexture(), copies);
    // Annotation files are no part of a set: every install brings the same ones.
    addFolderFiles(session_, session_.AppPath / u"GENERIC WORLD", u"*.agn"_s, worldTexture(), copies);
    if (session_.files.isFolder(utEurLcTexture()))
        addFolderFiles(session_, setFolder / u"UTEurLC", u"*.bmp"_s, utEurLcTexture(), copies);
    if (session_.IsDutch) {
        addFolderFiles(session_, setFolder / u"Dutch", u"*.bmp"_s, worldTexture(), copies);
        addFolderFiles(session_, session_.AppPath / u"DUTCH", u"*.agn"_s, worldTexture(), copies);
    }
    if (session_.IsTropical) addTropicalFiles(copies);
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
    if (session_.IsDutch) {
        addFolderFiles(session_, app / u"DUTCH", u"*.bmp"_s, worldTexture(), copies);
        addFolderFiles(session_, app / u"DUTCH", u"*.agn"_s, worldTexture(), copies);
    }
    if (session_.IsTropical) addTropicalFiles(copies);
    return copies;
}

void GroundInstallation::addTropicalFiles(std::vector<FileCopy>& copies) {
    for (const FilePath& file : tropicalFiles(session_, TropicalForm::b, session_.ground.SelectedGroundSet))
        copies.push_back({file, worldTexture().child(tropicalName(file.fileName()))});
}

bool GroundInstallation::installGeneratedSet() {
    const QString name = session_.ground.SelectedGroundSet;
    const std::vector<FileCopy> copies = copyListOfSet();
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
    if (!loadedGroundSets(session_).markInstalled(defaultSet)) return false;

    SimulatorCopier copier(session_);
    prepare(copier, copies, &nominal);
    if (!session_.InhibitCustomSplash) copier.copy(splashCopy(nominal));
    copyAll(copier, copies);
    // Once more, whatever the option says: "Default" always shows the nominal splash. Wanted.
    copier.copy(splashCopy(nominal));
    finish(copier);
    return true;
}

} // namespace morvane
