#include "sky/sky_activation.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "sets/set_removal.h"
#include "sets/temp_bitmaps.h"
#include "sets/undo_step.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"

namespace morvane {

void SkyActivation::activateInHand() {
    Job job(session_, u"activation of sky sets"_s, Job::Start::behindQuestions);
    if (!job) return;
    reportFailures(session_.user, morvaneError, [&] {
        if (!refreshSkySets(session_)) return;
        const QStringList names = changeableNames(session_.state<SkySelection>().selectedRows);
        // One set gets all three families of files, several get the day's alone, as a generated set does:
        // wanted. Nothing protects "Default" here, unlike in a removal.
        if (names.size() > 1)
            activateSeveral(job, names);
        else if (const auto set = job.begin()
                                      ? findSkySet(session_, session_.state<SkySelection>().SelectedSkySet)
                                      : nullptr)
            activate(job, *set, skyTimesOfDay, {1, 1});
        rebuildList(session_.state<SkySelection>().SelectedSkySet);
    });
}

void SkyActivation::activateSeveral(Job& job, const QStringList& names) {
    const QStringList confirmed = confirmedNames(session_, names);
    if (!job.begin()) return;
    int number = 0;
    for (const QString& name : confirmed) {
        const auto set = findSkySet(session_, name);
        ++number;
        if (!set || set->Activated != flagText(false)) continue;
        if (!activate(job, *set, {skyDay}, {number, static_cast<int>(confirmed.size())})) return;
    }
}

/// False when the store refused or the run was cancelled. A damaged set is told of, and no reason to end.
bool SkyActivation::activate(const Job& job, const clsSkyTextureSet& set, const QStringList& timesOfDay,
                             Counters counters) {
    FilePath folder;
    bool hasColours = false;
    const bool isWhole = reportFailures(session_.user, morvaneError, [&] {
        folder = skySetFolder(session_, set.SkyTextureSet);
        skyStockFolder(session_, set.TextureSetGroup);
        // The colours are the day's whatever the time: the other families are plain copies.
        hasColours = loadSkyTextureGroups(session_, set.StsID, skyDay);
    });
    if (!isWhole) return true;
    if (!hasColours || !setKind<SkyKind>().storeActivation(session_, set.SkyTextureSet, true)) return false;
    session_.state<SkySelection>().SelectedSkySet = set.SkyTextureSet;
    saveForUndo(session_, {folder.relative()});
    session_.files.makeFolder(folder);
    SkyGeneration generation(session_);
    for (const QString& timeOfDay : timesOfDay) {
        generation.colourSkySetFiles(set.SkyTextureSet, set.TextureSetGroup, timeOfDay,
                                     u"Processing Texture Set: Please wait until the process has finished.  "
                                     "This may take a few moments.........."_s,
                                     counters.number, counters.total);
        if (job.isCancelled()) return false;
    }
    return true;
}

void SkyActivation::deleteInHand(bool deactivateMode) {
    Job job(session_, deactivateMode ? u"deactivation of sky sets"_s : u"removal of sky sets"_s,
            Job::Start::behindQuestions);
    if (!job) return;
    reportFailures(session_.user, morvaneError, [&] {
        if (!refreshSkySets(session_)) return;
        if (!removeSetsInHand(session_, setKind<SkyKind>(), job, deactivateMode)) return;
        cleanTempBitmaps(session_);
        const auto& sets = loadedSkySets(session_);
        rebuildList(sets.Count() > 0 ? sets.GetItem(sets.Count())->SkyTextureSet : QString());
    });
}

void SkyActivation::rebuildList(const QString& nameInHand) {
    if (!refreshSkySets(session_)) return;
    session_.state<SkySelection>().selectedRows.clear();
    clickSkyRow(session_, nameInHand);
    session_.state<SkySelection>().RefreshSkyList = true;
    session_.user.refreshScreen(Screen::frm_KMTextures);
}

} // namespace morvane
