#include "simulator/set_matching.h"

#include "core/failure_report.h"
#include "core/writing.h"
#include "ground/ground_sets.h"
#include "sets/cloud_cover.h"
#include "sets/set_names.h"
#include "sets/undo_step.h"
#include "simulator/simulator_launch.h"
#include "sky/sky_sets.h"
#include "weather/cover_choice.h"

namespace morvane {

namespace {

struct MatchedKind {
    const SetKind& kind;
    ClosestSearch search;
};

QString chooseSet(Session& session, const MatchedKind& matched, const std::vector<ActivatedSet>& sets,
                  const CloudCover& cover) {
    const QStringList names = namesForCover(sets, cover.word);
    // The draw stops short of the upper index, so the last candidate never comes, and of two always the
    // first. It stays as it is.
    if (!names.isEmpty()) return drawName(session, names, names.size() - 1);
    const QString& word = matched.kind.facts.word;
    session.user.showMessage({MessageKind::information, u"No Activated %1 Texture Sets"_s.arg(word),
                              u"you have no activated %1 texture sets equivalent to %2 MV will now install "
                              "the closest %1 texture set to %2"_s.arg(word.toLower(), cover.word),
                              true, false, false});
    return closestSet(sets, matched.search, cover);
}

} // namespace

std::optional<MatchedSets> askInstallMatchingSets(Session& session, const CloudCover& cover) {
    const QString start =
        u"Do you wish Morvane to select and install Ground and Sky Textures to match the weather "
        "conditions obtained"_s;
    const QString end = session.CommandLineRun ? u" from Active Sky?"_s : u"?"_s;
    if (!session.user.ask(Question::installMatchingSets, u"Install Textures?"_s, start + end))
        return std::nullopt;
    return installMatchingSets(session, cover);
}

const CloudCover& getClosestCloudCover(const CloudCover& cover) {
    // The chain bounces between 3 and 4 and never comes back to the ends: wanted.
    static constexpr int next[cloudCoverCount] = {2, 3, 4, 3, 4};
    return *cloudCover(next[cover.number - 1]);
}

QString closestSet(const std::vector<ActivatedSet>& sets, ClosestSearch search, const CloudCover& cover) {
    const CloudCover* current = &cover;
    for (int round = 0; round < 4; ++round) {
        const CloudCover& next = getClosestCloudCover(*current);
        // The sky's rounds lag one cover behind: its first one repeats the cover itself. Wanted.
        const CloudCover& compared = search == ClosestSearch::nextCover ? next : *current;
        const QStringList names = namesForCover(sets, compared.word);
        if (!names.isEmpty()) return names.front();
        current = &next;
    }
    return defaultSetName;
}

MatchedSets installMatchingSets(Session& session, const CloudCover& cover) {
    MatchedSets matched;
    // The kind is misspelt, as that of the flights' failure: it names an icon of its own.
    reportFailures(session.user, {u"getIcaoWxDetails Error"_s, MessageKind::exlamation}, [&] {
        const Writing writing(session); // for both, so that they go together
        if (!writing) return;
        const UndoStep step(session); // one, of two installs
        const MatchedKind ground{setKind<GroundKind>(), ClosestSearch::nextCover},
            sky{setKind<SkyKind>(), ClosestSearch::currentCover};
        const auto grounds = ground.kind.activated(session), skies = sky.kind.activated(session);
        matched.ground = chooseSet(session, ground, grounds, cover);
        matched.sky = chooseSet(session, sky, skies, cover);
        matched.filesCopied += ground.kind.install(session, matched.ground);
        matched.filesCopied += sky.kind.install(session, matched.sky);
    });
    return matched;
}

FlyReport flyNow(Session& session) {
    const auto cloudClass = selectCloudCoverMethod(session);
    return cloudClass ? flyWithCover(session, coverOfClass(*cloudClass)) : FlyReport{};
}

FlyReport flyWithCover(Session& session, const CloudCover& cover) {
    FlyReport report{askInstallMatchingSets(session, cover)};
    if (session.writing->wasRefused) return {};
    report.isSimulatorStarted = startSavedFlight(session);
    if (!session.state<FlightChoice>().FlightSelected)
        report.isSimulatorStarted = launchFlightSimulator(session);
    return report;
}

} // namespace morvane
