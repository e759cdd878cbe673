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

const MatchedKind& groundMatch() {
    static const MatchedKind matched{setKind<GroundKind>(), ClosestSearch::nextCover};
    return matched;
}

const MatchedKind& skyMatch() {
    static const MatchedKind matched{setKind<SkyKind>(), ClosestSearch::currentCover};
    return matched;
}

ChosenSet chooseSet(Session& session, const MatchedKind& matched, const std::vector<ActivatedSet>& sets,
                    const CloudCover& cover) {
    const QStringList names = namesForCover(sets, cover.word);
    // The draw stops short of the upper index, so the last candidate never comes, and of two always the
    // first. It stays as it is.
    if (!names.isEmpty()) return {drawName(session, names, names.size() - 1), SetFit::fitting};
    const auto closest = closestSet(sets, matched.search, cover);
    return closest ? ChosenSet{*closest, SetFit::nearest} : ChosenSet{defaultSetName};
}

void tellNoneFits(Session& session, const MatchedKind& matched, const CloudCover& cover) {
    const QString& word = matched.kind.facts.word;
    session.user.showMessage({MessageKind::information, u"No Activated %1 Texture Sets"_s.arg(word),
                              u"you have no activated %1 texture sets equivalent to %2 MV will now install "
                              "the closest %1 texture set to %2"_s.arg(word.toLower(), cover.word),
                              true, false, false});
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

std::optional<QString> closestSet(const std::vector<ActivatedSet>& sets, ClosestSearch search,
                                  const CloudCover& cover) {
    const CloudCover* current = &cover;
    for (int round = 0; round < 4; ++round) {
        const CloudCover& next = getClosestCloudCover(*current);
        // The sky's rounds lag one cover behind: its first one repeats the cover itself. Wanted.
        const CloudCover& compared = search == ClosestSearch::nextCover ? next : *current;
        const QStringList names = namesForCover(sets, compared.word);
        if (!names.isEmpty()) return names.front();
        current = &next;
    }
    return std::nullopt;
}

MatchedSets chooseMatchingSets(Session& session, const CloudCover& cover) {
    // Both before the first draw: an empty collection is read from the store, which may fail.
    const auto grounds = groundMatch().kind.activated(session), skies = skyMatch().kind.activated(session);
    return {chooseSet(session, groundMatch(), grounds, cover), chooseSet(session, skyMatch(), skies, cover)};
}

MatchedSets installMatchingSets(Session& session, const CloudCover& cover) {
    MatchedSets matched;
    // The kind is misspelt, as that of the flights' failure: it names an icon of its own.
    reportFailures(session.user, {u"getIcaoWxDetails Error"_s, MessageKind::exlamation}, [&] {
        const Writing writing(session); // for both, so that they go together
        if (!writing) return;
        const UndoStep step(session); // one, of two installs
        matched = chooseMatchingSets(session, cover);
        if (matched.ground.fit != SetFit::fitting) tellNoneFits(session, groundMatch(), cover);
        if (matched.sky.fit != SetFit::fitting) tellNoneFits(session, skyMatch(), cover);
        const InstalledFiles ground = groundMatch().kind.install(session, matched.ground.name);
        const InstalledFiles sky = skyMatch().kind.install(session, matched.sky.name);
        matched.filesCopied = ground.copied + sky.copied;
        matched.isWhole = ground.isWhole && sky.isWhole;
    });
    return matched;
}

FlyReport flyNow(Session& session) {
    const auto cloudClass = selectCloudCoverMethod(session);
    return cloudClass ? flyWithCover(session, coverOfClass(*cloudClass)) : FlyReport{};
}

FlyReport flyAlongPlan(Session& session, const FilePath& plan) {
    const auto cloudClass = coverAlongPlan(session, plan);
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
