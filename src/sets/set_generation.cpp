#include "sets/set_generation.h"

#include "core/failure_report.h"
#include "sets/colour_settings.h"
#include "sets/set_removal.h"
#include "sets/temp_bitmaps.h"
#include "sets/texture_passes.h"

namespace morvane {

void SetGeneration::makeFiles(const Job& job, Counters counters, Screen hiddenScreen) {
    const SetsInHand set = inHand();
    const std::vector<CatalogueFile> files = baseFilesOf(set.name);
    TexturePasses passes(session_, job,
                         {kind_.caption, kind_.duration, hiddenScreen, folderOf(set.name), kind_.subfolders,
                          counters.setsDone, counters.total});
    passes.colourFiles(files, set.colours);
    if (!job.isCancelled()) passes.convertFiles(files);
}

void SetGeneration::activateInHand() {
    Job job(session_, Job::Start::behindQuestions);
    if (!job) return;
    reportFailures(session_.user, {}, [&] {
        if (!refresh()) return;
        if (const QStringList names = changeableNames(inHand().selectedRows); names.size() > 1)
            activateSeveral(job, names);
        else if (const auto set = job.begin() ? find(inHand().name) : std::nullopt)
            activate(job, *set, {1, 1});
        session_.user.hideMessage();
    });
    kind_.refreshList(session_) = true;
    session_.user.refreshScreen(kind_.listScreen);
    session_.user.showScreen(kind_.listScreen);
}

void SetGeneration::activateSeveral(Job& job, const QStringList& names) {
    const QStringList confirmed = confirmedNames(session_, names);
    if (!job.begin()) return;
    int position = 0;
    for (const QString& name : confirmed) {
        const auto set = find(name);
        ++position;
        if (set && !activate(job, *set, {position, static_cast<int>(confirmed.size())})) return;
    }
    cleanTempBitmaps(session_);
}

/// Everything that a damaged row makes fail, before anything is stored.
bool SetGeneration::takeInHand(const StoredSet& set) {
    return reportFailures(session_.user, {}, [&] {
        const ColourValues colours = parseColourSettings(set.colourSettings, session_.DecimalSep);
        folderOf(set.name);
        inHand().colours = colours;
        inHand().name = set.name;
    });
}

/// False when the store refused or the run was cancelled. A damaged set is told of, and no reason to end.
bool SetGeneration::activate(const Job& job, const StoredSet& set, Counters counters) {
    if (!takeInHand(set)) return true;
    if (!storeActivation(set.name, true)) return false;
    makeFiles(job, counters, kind_.activatedFrom);
    if (!job.isCancelled()) return true;
    removeSetFiles(set.name, true);
    cleanTempBitmaps(session_);
    return false;
}

void SetGeneration::deleteInHand(bool deactivateMode) {
    Job job(session_, Job::Start::behindQuestions);
    if (!job) return;
    reportFailures(session_.user, {}, [&] {
        if (!refresh()) return;
        const auto stateOf = [this](const QString& name) {
            const auto set = find(name);
            if (!set) return SetState::missing;
            return set->installed ? SetState::installed : SetState::removable;
        };
        removeSets(session_,
                   {deactivateMode, inHand().name, inHand().selectedRows, u"\n"_s, stateOf,
                    [&](const QString& name) { return job.begin() && removeSetFiles(name, deactivateMode); },
                    kind_.protectsInstalled});
        kind_.refreshList(session_) = true;
        session_.user.refreshScreen(kind_.listScreen);
    });
}

bool SetGeneration::removeSetFiles(const QString& name, bool keepRecord) {
    bool stored = false;
    reportFailures(session_.user, {}, [&] {
        const auto set = find(name);
        if (!set) return;
        // The record goes first: a failure in between leaves files without a row, never a row without a set.
        stored = keepRecord ? storeActivation(set->name, false) : removeRecord(set->name);
        // A name that no folder can have, of a store that was edited by hand: the row is all there is.
        if (stored && FilePath::isChildName(set->name))
            removeBitmapFolders(session_, folderOf(set->name), kind_.subfolders, !keepRecord);
    });
    return stored;
}

void removeBitmapFolders(Session& session, const FilePath& setFolder, const QStringList& subfolders,
                         bool removeFolders) {
    const bool isOurs = !session.files.isLink(setFolder);
    for (const QString& name : isOurs ? subfolders : QStringList()) {
        const FilePath folder = setFolder.child(name);
        emptyBitmapFolder(session, folder);
        if (removeFolders) removeFolderOrLink(session.files, folder);
    }
    if (removeFolders) removeFolderOrLink(session.files, setFolder);
}

} // namespace morvane
