#include "ground/ground_installation.h"

#include "core/failure_report.h"
#include "core/job.h"
#include "ground/cloud_cover.h"
#include "ground/ground_generation.h"
#include "ground/ground_sets.h"

namespace morvane {

namespace {

const QString defaultSet = u"Default"_s;

/// Land classes whose "h" and "b" forms differ at dawn and dusk only.
constexpr const char16_t* tropicalPatternsB[] = {u"004b2", u"005b2", u"007b2", u"008b2", u"029b2",
                                                 u"031b2", u"033b2", u"035b2", u"037b2", u"039b2",
                                                 u"041b2", u"043b2", u"045b2", u"047b2"};

} // namespace

void GroundInstallation::installTextureSet(bool automatic) {
    Job job(session_);
    if (!job) return;
    filesCopied_ = 0;
    const bool done = reportFailures(session_.user, {}, [&] {
        if (!automatic && !mayInstall()) return;
        if (!refreshGroundSets(session_)) return;
        if (session_.ground.SelectedGroundSet == defaultSet)
            installDefaultSet();
        else
            installGeneratedSet();
    });
    if (!done || session_.CommandLineRun) return;
    session_.user.refreshScreen(Screen::frm_Main);
    if (automatic) return;
    session_.RefreshGroundList = true;
    session_.user.refreshScreen(Screen::frm_MVTextures);
}

bool GroundInstallation::mayInstall() {
    if (session_.ground.selectedRows.size() > 1) {
        // It speaks of a sky set and misspells the title: the message's own words.
        session_.user.showMessage(
            {MessageKind::exclamation, u"Multiple Selection Detetected!"_s,
             u"Morvane has detected more than one selection for installation.  You can only select one sky "
             u"texture "
             "set to be installed at any one time.  Please check your selection and try again!."_s,
             true, false, false});
        return false;
    }
    session_.user.ask(Question::setInstall, u"Install Matching Ground Texture Set?"_s,
                      u"Would you like Morvane to install a matching Sky Texture set?"_s);
    return true;
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
    const bool isDefault = session_.ground.SelectedGroundSet == defaultSet;
    const FilePath generic = session_.AppPath / u"GENERIC WORLD";
    const FilePath source =
        isDefault ? generic : groundSetFolder(session_, session_.ground.SelectedGroundSet) / u"Texture";
    const auto addMatches = [&](const FilePath& folder, const QString& ending) {
        const QStringList names = session_.files.list(folder, u"*"_s + ending);
        for (const char16_t* pattern : tropicalPatternsB)
            for (const QString& name : names)
                if (matchesMask(name, QStringView(pattern).toString() + ending))
                    copies.push_back({folder.child(name), worldTexture().child(tropicalName(name))});
    };
    for (const QString& ending : {u"sp*.bmp"_s, u"su*.bmp"_s, u"fa*.bmp"_s, u"wi*.bmp"_s})
        addMatches(source, ending);
    addMatches(generic, u"an*.agn"_s);
}

FileCopy GroundInstallation::splashCopy(const CloudCover& cover) const {
    return {session_.AppPath / u"Media" / cover.splash, splashTarget(session_)};
}

void GroundInstallation::prepare(SimulatorCopier& copier, std::vector<FileCopy> copies,
                                 const CloudCover* splash) {
    if (splash) copies.push_back(splashCopy(*splash));
    copier.prepare(copies);
}

void GroundInstallation::showProgress(const QString& tagged) {
    session_.user.showMessage(
        {MessageKind::progress, u"Morvane Information"_s,
         u"Processing your Ground Texture Files.  Please wait until the process has finished.  "
         "This may take a few moments!"_s,
         false, false, true});
    session_.user.setProgressFile(u"Installing "_s + tagged + u" ground textures"_s);
}

/// No messages are let through and no cancel is read: an install once begun goes through its list.
void GroundInstallation::copyAll(SimulatorCopier& copier, const std::vector<FileCopy>& copies) {
    const double step = copies.size() > 1 ? 100.0 / static_cast<double>(copies.size() + 1) : 100.0;
    double position = 0;
    for (const FileCopy& copy : copies) {
        copier.copy(copy);
        ++filesCopied_;
        session_.user.updateProgress({}, {}, position += step);
    }
}

void GroundInstallation::installGeneratedSet() {
    const QString name = session_.ground.SelectedGroundSet;
    const std::vector<FileCopy> copies = copyListOfSet();
    // The store says "installed" before the first file is copied, also when the copying then fails.
    if (!loadedGroundSets(session_).markInstalled(name)) return;
    const auto record = findGroundSet(session_, name);
    const QString word = record ? record->CloudCover : QString();
    const CloudCover* cover = cloudCover(word);
    const bool withSplash = cover && !session_.InhibitCustomSplash;

    SimulatorCopier copier(session_);
    prepare(copier, copies, withSplash ? cover : nullptr);
    if (withSplash) copier.copy(splashCopy(*cover));
    showProgress(word + (cover ? cover->tag : QString()));
    copyAll(copier, copies);
    copier.finish();
    session_.user.updateProgress({}, {}, 100);
    session_.user.hideMessage();
}

void GroundInstallation::installDefaultSet() {
    const CloudCover& nominal = *cloudCover(3);
    const std::vector<FileCopy> copies = copyListOfDefault();
    showProgress(nominal.word + nominal.tag);
    if (!loadedGroundSets(session_).markInstalled(defaultSet)) return;

    SimulatorCopier copier(session_);
    prepare(copier, copies, &nominal);
    if (!session_.InhibitCustomSplash) copier.copy(splashCopy(nominal));
    copyAll(copier, copies);
    // Once more, whatever the option says: "Default" always shows the nominal splash. Wanted.
    copier.copy(splashCopy(nominal));
    copier.finish();
    session_.user.updateProgress({}, {}, 100);
    session_.user.hideMessage();
}

QString tropicalName(const QString& name) {
    const qsizetype variant = name.indexOf(u'b', 0, Qt::CaseInsensitive);
    return variant < 0 ? name : QString(name).replace(variant, 1, u'h');
}

} // namespace morvane
