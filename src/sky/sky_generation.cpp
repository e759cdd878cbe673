#include "sky/sky_generation.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "core/job.h"
#include "core/numbers.h"
#include "sets/cloud_cover.h"
#include "sets/favourite_name.h"
#include "sets/temp_bitmaps.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sub_sets.h"
#include "sky/sky_tuning_state.h"

#include <algorithm>
#include <numeric>

namespace morvane {

namespace {

const QString setNameFormat = u"MM-dd-yyyy HH-mm-ss"_s;
const QString information = u"Morvane Information"_s;
constexpr int overcastIndex = 5;

void showProgress(Session& session, const QString& text) {
    session.user.showMessage({MessageKind::progress, information, text, false, true, true});
}

/// The count of overcast sets is in it whether their box is ticked or not: wanted, the texts then speak of
/// more sets than the run makes.
int plannedSets(const SkySetCounts& choice) {
    const auto& counts = choice.skySetCounts;
    const auto isTicked = [&choice](const QString& name) { return choice.skyBaseSets.contains(name); };
    const auto& bases = skyBaseSetsInRun();
    const auto baseCount = static_cast<int>(std::count_if(bases.begin(), bases.end(), isTicked));
    return baseCount * std::accumulate(counts.begin(), counts.end() - 1, 0) + counts.back();
}

/// A set's files are as large as those that it is made from. Sky sets take a second each: nobody is asked.
RunSize runSize(Session& session) {
    const auto& counts = session.state<SkySetCounts>().skySetCounts;
    const int ofEachBase = std::accumulate(counts.begin(), counts.end() - 1, 0);
    int sets = 0;
    RunSize run;
    for (const QString& baseSet : session.state<SkySetCounts>().skyBaseSets) {
        const int count = baseSet == overcastBaseSet ? counts.back() : ofEachBase;
        const FilePath stock = skyStockFolder(session, baseSet);
        for (const QString& name : session.files.list(stock, u"*.bmp"_s))
            run.bytes += count * session.files.size(stock.child(name));
        sets += count;
    }
    run.what = countText(sets, u"sky set"_s);
    run.freeBytes = session.files.freeSpace(session.AppPath);
    return run;
}

} // namespace

void SkyGeneration::createSkySets(bool fromHomeScreen) {
    Job job(session_, u"making of sky sets"_s, Job::Start::behindQuestions);
    if (!job) return;
    reportFailures(session_.user, morvaneError, [&] {
        session_.state<SkySetCounts>().skySetsConfirmed = false;
        session_.user.showModal(Screen::frm_SelectSkyTexture);
        if (!session_.state<SkySetCounts>().skySetsConfirmed || !session_.user.allowsRun(runSize(session_)))
            return;
        if (!job.begin()) return;
        showProgress(session_, u"Processing your sky textures.  Please wait until the process has finished.  "
                               "This may take a few minutes dependant on your system specification!"_s);
        createAll(job);
        session_.user.hideMessage();
        endRun(fromHomeScreen);
    });
}

void SkyGeneration::createAll(const Job& job) {
    const QStringList ticked = session_.state<SkySetCounts>().skyBaseSets;
    const auto counts = session_.state<SkySetCounts>().skySetCounts;
    const int total = plannedSets(session_.state<SkySetCounts>());
    int setNumber = 0;
    bool isStored = true;
    const auto createSeveral = [&](const QString& baseSet, int cloudIndex) {
        const int count = counts[static_cast<std::size_t>(cloudIndex - 1)];
        for (int i = 0; i < count && isStored && !job.isCancelled(); ++i)
            isStored = createAutoSkySet(baseSet, cloudIndex, ++setNumber, total);
    };
    for (const QString& baseSet : skyBaseSetsInRun())
        for (int cloudIndex = 1; cloudIndex < overcastIndex && ticked.contains(baseSet); ++cloudIndex)
            createSeveral(baseSet, cloudIndex);
    if (ticked.contains(overcastBaseSet)) createSeveral(overcastBaseSet, overcastIndex);
}

void SkyGeneration::endRun(bool fromHomeScreen) {
    if (!fromHomeScreen) return showNewestSet();
    session_.state<SkySelection>().RefreshSkyList = true;
    takeNewestSet(); // in hand when the list is opened
    session_.user.refreshScreen(Screen::frm_Main);
    session_.user.showScreen(Screen::frm_Main);
}

/// Brings up the list, rebuilt and so without ticks, with the newest set in hand.
void SkyGeneration::showNewestSet() {
    session_.state<SkySelection>().RefreshSkyList = true;
    session_.state<SkySelection>().selectedRows.clear();
    takeNewestSet();
    session_.user.refreshScreen(Screen::frm_KMTextures);
    session_.user.showScreen(Screen::frm_KMTextures);
}

void SkyGeneration::takeNewestSet() {
    const clsSkyTextureSets& sets = loadedSkySets(session_);
    if (sets.Count() > 0) loadSkySubSet(session_, listKeyOf(*sets.GetItem(sets.Count())), skyDay);
}

Reported SkyGeneration::createAutoSkySet(const QString& baseSet, int cloudIndex, int setNumber,
                                         int setTotal) {
    bool isStored = false;
    reportFailures(session_.user, morvaneError, [&] {
        const CloudCover* cover = cloudCover(cloudIndex);
        if (!cover) throw Error(ErrorCode::subscript);
        clsSkyTextureSet set;
        set.TextureSetGroup = baseSet;
        set.SkyTextureSet = session_.clock.localTime().toString(setNameFormat);
        set.Description = u"Morvane AutoGenerated Sky Texture Set"_s;
        set.CloudCover = cover->word;
        set.Activated = flagText(true); // activated from its birth, so it has files
        set.IsNew = true;
        isStored = loadedSkySets(session_).Save(set);
        if (!isStored) return;
        session_.files.makeFolder(skySetFolder(session_, set.SkyTextureSet));
        isStored = storeSubSet(set, drawSkyStrings(session_, cloudIndex, baseSet));
        if (!isStored) return;
        // "Day" alone: the files of sunrise and sunset come with an activation by hand.
        colourSkySetFiles(set.SkyTextureSet, baseSet, skyDay,
                          u"Processing Texture Set: Please wait until the process has finished.  This "
                          "may take several minutes.........."_s,
                          setNumber, setTotal);
    });
    return isStored;
}

bool SkyGeneration::storeSubSet(const clsSkyTextureSet& set, const SkyStrings& strings) {
    clsSkyTextureSubSet subSet;
    subSet.StsID = set.StsID;
    subSet.SkyTextureSubSet = skyDay + u':' + set.SkyTextureSet;
    subSet.timeOfDay = skyDay;
    subSet.IsNew = true;
    for (const SkyGroupConstants& group : skyGroups())
        subSet.*group.property = strings[static_cast<std::size_t>(group.number - 1)];
    if (!session_.rows<clsSkyTextureSubSets>())
        session_.rows<clsSkyTextureSubSets>() = std::make_unique<clsSkyTextureSubSets>(session_);
    return session_.rows<clsSkyTextureSubSets>()->Save(subSet);
}

bool SkyGeneration::colourSkySetFiles(const QString& setName, const QString& baseSet,
                                      const QString& timeOfDay, const QString& message, int setNumber,
                                      int setTotal) {
    bool done = false;
    reportFailures(session_.user, morvaneError, [&] {
        const bool coloured = timeOfDay == skyDay;
        const FilePath target = skySetFolder(session_, setName);
        const FilePath source = skyStockFolder(session_, coloured ? baseSet : timeOfDay);
        const QStringList names = session_.files.list(source, u"*.bmp"_s);
        if (!session_.user.isMessageVisible()) showProgress(session_, message);
        if (names.isEmpty()) {
            session_.user.updateProgress(
                {}, u"There are no files available to process for the settings you selected....."_s, 0);
            return;
        }
        session_.user.updateProgress({},
                                     u"Processing Sky Texture Set "_s + QString::number(setNumber) +
                                         u" of "_s + QString::number(setTotal) +
                                         u".  Please wait until the process has finished............"_s,
                                     0);
        cleanTempBitmaps(session_);
        done = writeFiles(names, source.resolved(), target.resolved(), coloured);
    });
    session_.user.hideMessage();
    return done;
}

/// False when it was cancelled; files that are written stay.
bool SkyGeneration::writeFiles(const QStringList& names, const FilePath& source, const FilePath& target,
                               bool coloured) {
    const double step = 100.0 / static_cast<double>(names.size() + 2);
    for (qsizetype i = 0; i < names.size(); ++i) {
        session_.user.pumpMessages();
        if (isWorkCancelled(session_)) return false;
        session_.user.updateProgress({}, {}, step * static_cast<double>(i + 1));
        session_.user.setProgressFile(u"Coloring "_s + names[i] + u" which is file "_s +
                                      QString::number(i + 1) + u" of "_s + QString::number(names.size()));
        const FilePath file = target.child(names[i]);
        if (!coloured)
            session_.files.copyContents(source.child(names[i]), file);
        else if (sample_.openImage(source.child(names[i])) && !sample_.resultDib().SavePicture(file))
            throw Error(ErrorCode::diskFull, file.text());
    }
    return true;
}

void SkyGeneration::newFavSky() {
    if (askFavouriteName(session_)) saveSkySetFromTuning(session_.state<FavouriteAnswer>().favName);
}

void SkyGeneration::saveSkySetFromTuning(const QString& name) {
    reportFailures(session_.user, morvaneError, [&] {
        loadSkyTuning(session_);
        const SkyTuningState& tuning = session_.state<SkyTuningState>();
        clsSkyTextureSet set;
        set.TextureSetGroup = trimmedBlanks(tuning.baseSet);
        set.SkyTextureSet = trimmedBlanks(name);
        set.Description = trimmedBlanks(session_.state<FavouriteAnswer>().favDescription);
        set.CloudCover = trimmedBlanks(tuning.cloudCover);
        saveFavourite(std::move(set), tunedStrings());
    });
}

Reported SkyGeneration::saveFavourite(clsSkyTextureSet set, const SkyStrings& strings) {
    set.Activated = flagText(false); // it gets its files by activation only
    set.IsNew = true;
    if (!loadedSkySets(session_).Save(set)) return false;
    session_.state<SkySelection>().RefreshSkyList = true;
    if (!storeSubSet(set, strings)) return false;
    session_.files.makeFolder(skySetFolder(session_, set.SkyTextureSet));
    showNewestSet();
    return true;
}

/// The table gets the regions too: a group that was never clicked has none there.
SkyStrings SkyGeneration::tunedStrings() {
    SkyStrings strings;
    for (const SkyGroupConstants& group : skyGroups()) {
        SkyGroup& record = skyRecord(session_.state<SkyColourTables>().skyPaletteGroups, group.number);
        setRegion(record, group);
        strings[static_cast<std::size_t>(group.number - 1)] = skyColourString(record, group);
    }
    return strings;
}

} // namespace morvane
