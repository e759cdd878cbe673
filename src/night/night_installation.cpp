#include "night/night_installation.h"

#include "night/night_sets.h"
#include "sets/options_in_force.h"
#include "sets/set_names.h"

namespace morvane {

namespace {

// The refusal speaks of a sky set, as the ground's: the message's own word.
const InstallationKind nightCopies{
    u"Morvane has detected more than one selection for installation.  You can only select one sky texture "
    "set to be installed at any one time.  Please check your selection and try again!."_s,
    std::nullopt, 2};

FilePath worldTexture(const Session& session) {
    return session.FSPath / u"Scenery\\WORLD\\Texture";
}

} // namespace

NightInstallation::NightInstallation(Session& session)
    : SetInstallation(session, setKind<NightKind>(), nightCopies) {}

std::vector<FileCopy> NightInstallation::copyListOfSet(const QString& name) {
    const FilePath set = nightSetFolder(session_, name);
    const FilePath target = worldTexture(session_);
    std::vector<FileCopy> copies;
    addFolderFiles(session_, set / u"Texture", u"*.bmp"_s, target, copies);
    if (!session_.state<OptionsInForce>().IsDutch) return copies;
    addFolderFiles(session_, set / u"Dutch", u"*.bmp"_s, target, copies);
    // The Dutch annotation files are those of the day, and the only ones that a night brings. Wanted.
    addFolderFiles(session_, session_.AppPath / u"DUTCH", u"*.agn"_s, target, copies);
    return copies;
}

/// All files of the bodies, not the bitmaps alone.
std::vector<FileCopy> NightInstallation::copyListOfDefault() {
    const FilePath target = worldTexture(session_);
    std::vector<FileCopy> copies;
    addFolderFiles(session_, session_.AppPath / u"GENERIC WORLD NIGHT", u"*.*"_s, target, copies);
    if (session_.state<OptionsInForce>().IsDutch)
        addFolderFiles(session_, session_.AppPath / u"DUTCH NIGHT", u"*.*"_s, target, copies);
    return copies;
}

/// The message comes before the record here; the record still comes before the first file.
Reported NightInstallation::installSet(const QString& name) {
    if (!refreshNightSets(session_)) return false;
    const std::vector<FileCopy> copies = name == defaultSetName ? copyListOfDefault() : copyListOfSet(name);
    showProgress();
    SimulatorCopier copier(session_);
    prepare(copier, copies, nullptr);
    if (!loadedNightSets(session_).markInstalled(name)) return false;
    copyAll(copier, copies);
    finish(copier);
    return true;
}

} // namespace morvane
