#include "ground/ground_generation.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "core/options.h"
#include "ground/cloud_cover.h"
#include "ground/colour_settings.h"
#include "ground/ground_run_size.h"
#include "ground/ground_sets.h"
#include "simulator/temp_bitmaps.h"

#include <QElapsedTimer>
#include <numeric>

namespace morvane {

namespace {

const QString setNameFormat = u"MM-dd-yyyy HH-mm-ss"_s;

// An activation hides the main window, from wherever it was started.
const GenerationKind groundKind{u"Creating Ground Texture Sets"_s,
                                u"Be aware that this may take 20 - 30 minutes per set dependant on your "_s,
                                groundSubfolders,
                                Screen::frm_Main,
                                Screen::frm_MVTextures,
                                &Session::RefreshGroundList,
                                true};

QString durationReport(int minutes, int total) {
    if (total == 0) throw Error(ErrorCode::divisionByZero);
    const float hours = static_cast<float>(minutes / 60.0);
    QString hoursText = QString::number(static_cast<double>(hours), 'f', 2);
    // Less than an hour shows no digit before the point: ".25", "-.25".
    if (hoursText.startsWith(u"0.")) hoursText.remove(0, 1);
    if (hoursText.startsWith(u"-0.")) hoursText.remove(1, 1);
    return u"The processing of your "_s + QString::number(total) + u" texture set(s) took "_s + hoursText +
           u" hr(s) which is an average of "_s +
           QString::number(roundToLong(static_cast<double>(minutes) / total)) + u" minutes per set!"_s;
}

} // namespace

int reportedMinutes(const QTime& start, const QTime& end) {
    // The 12 stays, even though a run over midnight needs 24: its report is wrong by twelve hours, accepted.
    const int wrap = start.hour() > end.hour() ? 12 : 0;
    return (end.hour() + wrap - start.hour()) * 60 + (end.minute() - start.minute());
}

FilePath groundSetFolder(const Session& session, const QString& name) {
    return (session.AppPath / u"Texture Sets").child(name);
}

GroundGeneration::GroundGeneration(Session& session) : SetGeneration(session, groundKind) {}

void GroundGeneration::createTextureSets(bool fromMain) {
    Job job(session_, Job::Start::behindQuestions);
    if (!job) return;
    reportFailures(session_.user, {}, [&] {
        session_.modal.setCountsConfirmed = false;
        session_.user.showModal(Screen::frm_TsRequired);
        if (!session_.modal.setCountsConfirmed || !job.begin()) return;
        const QTime start = session_.clock.localTime().time();
        const auto& counts = session_.modal.setCounts;
        const int total = std::accumulate(counts.begin(), counts.end(), 0);
        if (total > 0 && !session_.user.allowsRun(groundRunSize(session_, total))) return;
        if (createAll(job, total, fromMain)) {
            session_.user.hideMessage();
            job.end();
            reportDuration(start, session_.clock.localTime().time(), total);
        }
        endRun(fromMain);
    });
}

/// False when the run was cancelled or the store refused a set.
bool GroundGeneration::createAll(const Job& job, int total, bool fromMain) {
    int setsDone = 0;
    for (int cloudNumber = 1; cloudNumber <= cloudCoverCount; ++cloudNumber) {
        const int count = session_.modal.setCounts[static_cast<std::size_t>(cloudNumber - 1)];
        for (int i = 0; i < count; ++i) {
            const bool isStored = createRandomSet(job, cloudNumber, {++setsDone, total}, fromMain);
            if (isStored && !job.isCancelled()) continue;
            if (job.isCancelled()) dropUnfinishedSet();
            session_.user.hideMessage();
            return false;
        }
    }
    return true;
}

void GroundGeneration::dropUnfinishedSet() {
    if (!session_.ground.SelectedGroundSet.isEmpty())
        removeSetFiles(session_.ground.SelectedGroundSet, false);
    cleanTempBitmaps(session_);
}

bool GroundGeneration::createRandomSet(const Job& job, int cloudNumber, Counters counters, bool fromMain) {
    // A run that fails before its set has a row must not leave an earlier set's name behind for the cancel.
    session_.ground.SelectedGroundSet.clear();
    SliderValues sliders{};
    getRandomGroundValues(session_, cloudNumber, sliders);
    return createSet(job, cloudNumber, sliders, counters, fromMain);
}

/// False when the store refused the set: it would refuse those behind it, too.
bool GroundGeneration::createSet(const Job& job, int cloudNumber, const SliderValues& sliders,
                                 Counters counters, bool fromMain) {
    bool isStored = false;
    reportFailures(session_.user, {}, [&] {
        session_.ground.colours = effectiveColours(sliders);
        clsTextureSet record;
        record.ColorSettings = colourSettingsText(session_.ground.colours);
        record.TextureSet = session_.clock.localTime().toString(setNameFormat);
        record.Actvated = flagText(true);
        record.Description = u"Morvane autogenerated texture set"_s;
        record.CloudCover = cloudCover(cloudNumber)->word;
        record.IsDutch = true; // every set is marked Dutch, whatever the switch says
        record.IsNew = true;
        isStored = loadedGroundSets(session_).UpdateTextureSet(record);
        if (!isStored) return;
        session_.ground.SelectedGroundSet = record.TextureSet;
        QElapsedTimer timer;
        timer.start();
        makeFiles(job, counters, fromMain ? Screen::frm_Main : Screen::frm_MVTextures);
        if (job.isCancelled()) return;
        session_.groundSetSeconds = static_cast<double>(timer.elapsed()) / 1000;
        session_.ground.madeSet = record.TextureSet;
    });
    return isStored;
}

void GroundGeneration::reportDuration(const QTime& start, const QTime& end, int total) {
    session_.user.showMessage({MessageKind::information, u"Average minutes per texture set"_s,
                               durationReport(reportedMinutes(start, end), total), true, false, false});
}

void GroundGeneration::endRun(bool fromMain) {
    const Screen screen = fromMain ? Screen::frm_Main : Screen::frm_MVTextures;
    if (!fromMain) session_.RefreshGroundList = true;
    session_.user.refreshScreen(screen);
    session_.user.showScreen(screen);
}

SetsInHand GroundGeneration::inHand() {
    return {session_.ground.SelectedGroundSet, session_.ground.colours, session_.ground.selectedRows};
}

bool GroundGeneration::refresh() {
    return refreshGroundSets(session_);
}

std::optional<StoredSet> GroundGeneration::find(const QString& name) {
    const auto record = findGroundSet(session_, name);
    if (!record) return std::nullopt;
    return StoredSet{record->TextureSet, record->ColorSettings, record->Installed};
}

bool GroundGeneration::storeActivation(const QString& name, bool activated) {
    clsTextureSet changed = *findGroundSet(session_, name);
    changed.Actvated = flagText(activated);
    changed.IsNew = false;
    return session_.gTextureSets->UpdateTextureSet(changed);
}

bool GroundGeneration::removeRecord(const QString& name) {
    const std::int16_t key = findGroundSet(session_, name)->TsID;
    return session_.gTextureSets->RemoveItem(QString::number(key), key);
}

FilePath GroundGeneration::folderOf(const QString& name) {
    return groundSetFolder(session_, name);
}

std::vector<CatalogueFile> GroundGeneration::baseFilesOf(const QString& name) {
    return TextureCatalogue(session_).popTextureList(0, 0, true, name);
}

} // namespace morvane
