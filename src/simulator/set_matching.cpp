#include "simulator/set_matching.h"

#include "core/error.h"
#include "core/failure_report.h"
#include "core/numbers.h"
#include "core/writing.h"
#include "ground/ground_installation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "sets/cloud_cover.h"
#include "sets/set_names.h"
#include "simulator/simulator_launch.h"
#include "sky/sky_installation.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "weather/cover_choice.h"

#include <algorithm>

namespace morvane {

namespace {

/// An obscured sky ("6"), an empty and an unknown element all count as scattered.
int cloudValue(const QString& element) {
    const QString text = trimmedBlanks(element);
    if (text == u"1") return 1;
    if (text == u"2") return 2;
    if (text == u"4") return 4;
    if (text == u"5") return 5;
    return 3;
}

int strengthValue(const QString& element) {
    const QString text = trimmedBlanks(element);
    if (text == u"Light" || text == u"Moderate") return 1;
    return text == u"Heavy" ? 2 : 0;
}

} // namespace

std::int16_t SetMatching::getAverageCloudCover() {
    std::int16_t average = 0;
    reportFailures(session_.user, {u"getIcaoWxDetails Error"_s, MessageKind::exclamation}, [&] {
        int sum = 0;
        for (const QString& element : session_.state<FlightWeather>().WxCloudList)
            sum += cloudValue(element);
        for (const QString& element : session_.state<FlightWeather>().WxStrengthList)
            sum += strengthValue(element);
        if (session_.state<FlightWeather>().WxCloudList.isEmpty())
            return; // an unknown word on the command line: no error, class 0
        average = roundToInteger(static_cast<double>(sum) /
                                 static_cast<double>(session_.state<FlightWeather>().WxCloudList.size()));
    });
    return average;
}

QString SetMatching::coverWord(int cloudClass) {
    const int number = cloudClass < 1 ? 3 : std::min(cloudClass, cloudCoverCount);
    return cloudCover(number)->word;
}

bool SetMatching::askInstallMatchingSets() {
    const QString cover = coverWord(getAverageCloudCover());
    const QString start =
        u"Do you wish Morvane to select and install Ground and Sky Textures to match the weather "
        "conditions obtained"_s;
    const QString end = session_.CommandLineRun ? u" from Active Sky?"_s : u"?"_s;
    const bool wanted = session_.user.ask(Question::installMatchingSets, u"Install Textures?"_s, start + end);
    if (wanted) installMatchingSets(cover);
    return wanted;
}

QString SetMatching::getClosestCloudCover(const QString& cover) {
    // The chain bounces between 3 and 4 and never comes back to the ends: wanted.
    static const int next[cloudCoverCount] = {2, 3, 4, 3, 4};
    const CloudCover* known = cloudCover(cover);
    return known ? cloudCover(next[known->number - 1])->word : QString();
}

QString SetMatching::chooseSet(const MatchedKind& kind, const QString& cover) {
    const QStringList names = namesForCover(kind.sets, cover);
    // The draw stops short of the upper index, so the last candidate never comes, and of two always the
    // first. It stays as it is.
    if (!names.isEmpty()) return drawName(session_, names, names.size() - 1);
    session_.user.showMessage({MessageKind::information, u"No Activated %1 Texture Sets"_s.arg(kind.word),
                               u"you have no activated %1 texture sets equivalent to %2 MV will now install "
                               "the closest %1 texture set to %2"_s.arg(kind.word.toLower(), cover),
                               true, false, false});
    return closestSet(kind.sets, kind.search, cover);
}

QString SetMatching::closestSet(const std::vector<ActivatedSet>& sets, ClosestSearch search,
                                const QString& cover) {
    QString current = cover;
    for (int round = 0; round < 4; ++round) {
        const QString next = getClosestCloudCover(current);
        // The sky's rounds lag one word behind: its first one repeats the cover itself. Wanted.
        const QStringList names = namesForCover(sets, search == ClosestSearch::nextWord ? next : current);
        if (!names.isEmpty()) return names.front();
        current = next;
    }
    return defaultSetName;
}

void SetMatching::installMatchingSets(const QString& cover) {
    // The kind is misspelt, as that of the flights' failure: it names an icon of its own.
    reportFailures(session_.user, {u"getIcaoWxDetails Error"_s, MessageKind::exlamation}, [&] {
        const Writing writing(session_); // for both, so that they go together
        if (!writing) return;
        const auto grounds = activatedSets(loadedGroundSets(session_));
        const auto skies = activatedSets(loadedSkySets(session_));
        const QString ground = chooseSet({u"Ground"_s, grounds, ClosestSearch::nextWord}, cover);
        const QString sky = chooseSet({u"Sky"_s, skies, ClosestSearch::currentWord}, cover);
        session_.state<GroundSelection>().SelectedGroundSet = ground;
        GroundInstallation groundInstallation(session_);
        groundInstallation.installTextureSet(true);
        session_.state<SkySelection>().SelectedSkySet = sky;
        SkyInstallation skyInstallation(session_);
        skyInstallation.installSkySet(true);
        filesCopied_ = groundInstallation.filesCopied() + skyInstallation.filesCopied();
    });
}

FlyReport flyNow(Session& session) {
    session.state<FlightWeather>().CoverCancelled = false;
    if (!session.CommandLineRun) selectCloudCoverMethod(session);
    return session.state<FlightWeather>().CoverCancelled ? FlyReport{} : flyWithCover(session);
}

FlyReport flyWithCover(Session& session) {
    SetMatching matching(session);
    FlyReport report;
    if (matching.askInstallMatchingSets()) report.filesCopied = matching.filesCopied();
    if (session.writing->wasRefused) return {};
    report.isSimulatorStarted = startSavedFlight(session);
    if (!session.state<FlightChoice>().FlightSelected)
        report.isSimulatorStarted = launchFlightSimulator(session);
    return report;
}

} // namespace morvane
