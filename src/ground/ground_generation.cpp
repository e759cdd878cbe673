#include "ground/ground_generation.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "core/numbers.h"
#include "ground/ground_randomiser.h"
#include "ground/ground_run_size.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_catalogue.h"
#include "ground/texture_sets.h"
#include "sets/catalogue_file.h"
#include "sets/cloud_cover.h"
#include "sets/colour_settings.h"
#include "sets/slider_values.h"
#include "sets/temp_bitmaps.h"

#include <QElapsedTimer>
#include <numeric>

namespace morvane {

namespace {

const QString setNameFormat = u"MM-dd-yyyy HH-mm-ss"_s;

// An activation hides the main window, from wherever it was started.
const GenerationKind groundKind{u"Creating Ground Texture Sets"_s,
                                u"Be aware that this may take 20 - 30 minutes per set dependant on your "_s,
                                Screen::frm_Main};

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

GroundGeneration::GroundGeneration(Session& session)
    : SetGeneration(session, setKind<GroundKind>(), groundKind, session.state<GroundSelection>().colours) {}

void GroundGeneration::createTextureSets(bool fromMain) {
    Job job(session_, u"making of ground sets"_s, Job::Start::behindQuestions);
    if (!job) return;
    reportFailures(session_.user, morvaneError, [&] {
        session_.state<GroundSetCounts>().setCountsConfirmed = false;
        session_.user.showModal(Screen::frm_TsRequired);
        if (!session_.state<GroundSetCounts>().setCountsConfirmed || !job.begin()) return;
        const QTime start = session_.clock.localTime().time();
        const auto& counts = session_.state<GroundSetCounts>().setCounts;
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
        const int count =
            session_.state<GroundSetCounts>().setCounts[static_cast<std::size_t>(cloudNumber - 1)];
        for (int i = 0; i < count; ++i) {
            const bool isStored = createRandomSet(job, cloudNumber, {++setsDone, total}, fromMain);
            if (isStored && !job.isCancelled()) continue;
            session_.user.hideMessage();
            return false;
        }
    }
    return true;
}

Reported GroundGeneration::createOneSet(const Job& job, int cloudNumber, int number, int total) {
    return createRandomSet(job, cloudNumber, {number, total}, true);
}

void GroundGeneration::dropUnfinishedSet() {
    if (!session_.state<GroundSelection>().SelectedGroundSet.isEmpty())
        removeSetFiles(session_.state<GroundSelection>().SelectedGroundSet, false);
    cleanTempBitmaps(session_);
}

Reported GroundGeneration::createRandomSet(const Job& job, int cloudNumber, Counters counters,
                                           bool fromMain) {
    // A run that fails before its set has a row must not leave an earlier set's name behind for the cancel.
    session_.state<GroundSelection>().SelectedGroundSet.clear();
    SliderValues sliders{};
    getRandomGroundValues(session_, cloudNumber, sliders);
    const bool isStored = createSet(job, cloudNumber, sliders, counters, fromMain);
    if (job.isCancelled()) dropUnfinishedSet();
    return isStored;
}

/// False when the store refused the set: it would refuse those behind it, too.
bool GroundGeneration::createSet(const Job& job, int cloudNumber, const SliderValues& sliders,
                                 Counters counters, bool fromMain) {
    bool isStored = false;
    reportFailures(session_.user, morvaneError, [&] {
        session_.state<GroundSelection>().colours = effectiveColours(sliders);
        clsTextureSet record;
        record.ColorSettings = colourSettingsText(session_.state<GroundSelection>().colours);
        record.TextureSet = session_.clock.localTime().toString(setNameFormat);
        record.Actvated = flagText(true);
        record.Description = u"Morvane autogenerated texture set"_s;
        record.CloudCover = cloudCover(cloudNumber)->word;
        record.IsDutch = true; // every set is marked Dutch, whatever the switch says
        record.IsNew = true;
        isStored = loadedGroundSets(session_).Save(record);
        if (!isStored) return;
        session_.state<GroundSelection>().SelectedGroundSet = record.TextureSet;
        QElapsedTimer timer;
        timer.start();
        makeFiles(job, counters, fromMain ? Screen::frm_Main : Screen::frm_MVTextures);
        if (job.isCancelled()) return;
        session_.state<GroundPace>().groundSetSeconds = static_cast<double>(timer.elapsed()) / 1000;
        session_.state<GroundSelection>().madeSet = record.TextureSet;
    });
    return isStored;
}

void GroundGeneration::reportDuration(const QTime& start, const QTime& end, int total) {
    session_.user.showMessage({MessageKind::information, u"Average minutes per texture set"_s,
                               durationReport(reportedMinutes(start, end), total), true, false, false});
}

void GroundGeneration::endRun(bool fromMain) {
    const Screen screen = fromMain ? Screen::frm_Main : Screen::frm_MVTextures;
    if (!fromMain) session_.state<GroundSelection>().RefreshGroundList = true;
    session_.user.refreshScreen(screen);
    session_.user.showScreen(screen);
}

std::vector<CatalogueFile> GroundGeneration::baseFilesOf(const QString& name) {
    return TextureCatalogue(session_).popTextureList(0, 0, true, name);
}

} // namespace morvane
