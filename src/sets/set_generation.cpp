#include "sets/set_generation.h"

#include "core/failure_report.h"
#include "core/folder_room.h"
#include "core/numbers.h"
#include "sets/colour_settings.h"
#include "sets/set_names.h"
#include "sets/set_removal.h"
#include "sets/set_run_size.h"
#include "sets/temp_bitmaps.h"
#include "sets/texture_passes.h"
#include "sets/undo_step.h"

namespace morvane {

void SetGeneration::makeFiles(const Job& job, Counters counters, Screen hiddenScreen) {
    const QString name = set_.inHand(session_).name;
    const std::vector<CatalogueFile> files = baseFilesOf(name);
    saveForUndo(session_, {set_.setFolder(session_, name).relative()}); // an activation makes them anew
    TexturePasses passes(session_, job,
                         {kind_.caption, kind_.duration, hiddenScreen, set_.setFolder(session_, name),
                          set_.facts.subfolders, counters.setsDone, counters.total});
    passes.colourFiles(files, colours_);
    if (!job.isCancelled()) passes.convertFiles(files);
}

void SetGeneration::activateInHand() {
    Job job(session_, u"activation of %1 sets"_s.arg(set_.facts.word.toLower()), Job::Start::behindQuestions);
    if (!job) return;
    const SetInHand inHand = set_.inHand(session_);
    reportFailures(session_.user, morvaneError, [&] {
        if (!set_.refresh(session_)) return;
        if (const QStringList names = changeableNames(inHand.selection.selectedRows); names.size() > 1)
            activateSeveral(job, names);
        else if (hasRoom({inHand.name}) && job.begin())
            if (const auto set = set_.find(session_, inHand.name)) activate(job, *set, {1, 1});
        session_.user.hideMessage();
    });
    inHand.refreshList = true;
    session_.user.refreshScreen(set_.facts.listScreen);
    session_.user.showScreen(set_.facts.listScreen);
}

/// What a set has is written over.
bool SetGeneration::hasRoom(const QStringList& names) {
    const auto count = static_cast<int>(names.size());
    RunSize run =
        measuredRun(session_, baseFilesOf(defaultSetName), count, session_.AppPath / set_.facts.folder);
    run.what = countText(count, set_.facts.word.toLower() + u" set"_s);
    for (const QString& name : names)
        if (FilePath::isChildName(name))
            run.bytes -= roomBelow(session_.files, set_.setFolder(session_, name)).bytes;
    return session_.user.allowsRun(run);
}

void SetGeneration::activateSeveral(Job& job, const QStringList& names) {
    const QStringList confirmed = confirmedNames(session_, names);
    if ((!confirmed.isEmpty() && !hasRoom(confirmed)) || !job.begin()) return;
    int position = 0;
    for (const QString& name : confirmed) {
        const auto set = set_.find(session_, name);
        ++position;
        if (set && !activate(job, *set, {position, static_cast<int>(confirmed.size())})) return;
    }
    cleanTempBitmaps(session_);
}

/// Everything that a damaged row makes fail, before anything is stored.
Reported SetGeneration::takeInHand(const StoredSet& set) {
    return reportFailures(session_.user, morvaneError, [&] {
        const ColourValues colours = parseColourSettings(set.colourSettings, session_.DecimalSep);
        set_.setFolder(session_, set.name);
        colours_ = colours;
        set_.inHand(session_).name = set.name;
    });
}

/// False when the store refused or the run was cancelled. A damaged set is told of, and no reason to end.
bool SetGeneration::activate(const Job& job, const StoredSet& set, Counters counters) {
    if (!takeInHand(set)) return true;
    if (!set_.storeActivation(session_, set.name, true)) return false;
    makeFiles(job, counters, kind_.activatedFrom);
    if (!job.isCancelled()) return true;
    removeSetFiles(set.name, true);
    cleanTempBitmaps(session_);
    return false;
}

void SetGeneration::deleteInHand(bool deactivateMode) {
    Job job(session_,
            (deactivateMode ? u"deactivation of %1 sets"_s : u"removal of %1 sets"_s)
                .arg(set_.facts.word.toLower()),
            Job::Start::behindQuestions);
    if (!job) return;
    reportFailures(session_.user, morvaneError, [&] {
        if (!set_.refresh(session_)) return;
        removeSetsInHand(session_, set_, job, deactivateMode);
        set_.inHand(session_).refreshList = true;
        session_.user.refreshScreen(set_.facts.listScreen);
    });
}

bool SetGeneration::removeSetFiles(const QString& name, bool keepRecord) {
    return removeSet(session_, set_, name, keepRecord);
}

} // namespace morvane
