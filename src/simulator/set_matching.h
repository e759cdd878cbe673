#pragma once

#include "sets/set_choice.h"

namespace morvane {

/// Turns the weather of a flight into one cloud-cover word and installs activated sets that fit it: a ground
/// set first, then a sky set, each "Default" when there is none.
class SetMatching {
public:
    explicit SetMatching(Session& session) : session_(session) {}

    /// The cloud class of the session's two weather lists; the average of their points with a weather
    /// strength on top. 0 after a failure was told.
    std::int16_t getAverageCloudCover();
    /// Asks, and on Yes installs. True when the user said yes.
    bool askInstallMatchingSets();
    void installMatchingSets(const QString& cover);

    /// The next word to try, one step away; empty for an unknown word.
    static QString getClosestCloudCover(const QString& cover);
    /// Which word of a round the search below compares with the sets.
    enum class ClosestSearch { nextWord, currentWord };
    /// Walks the covers from that one on, four rounds at most, and gives the first set of the first round
    /// that has any; "Default" when none has.
    static QString closestSet(const std::vector<ActivatedSet>& sets, ClosestSearch search,
                              const QString& cover);
    /// The word of a class: 1 to 5, above that "Overcast", below it "Partly Cloudy".
    static QString coverWord(int cloudClass);

    int filesCopied() const { return filesCopied_; }

private:
    struct MatchedKind {
        QString word; ///< "Ground" or "Sky", in the message
        std::vector<ActivatedSet> sets;
        ClosestSearch search;
    };
    QString chooseSet(const MatchedKind& kind, const QString& cover);

    Session& session_;
    int filesCopied_ = 0;
};

/// What the road of the Fly Now button did. Which sets stand in the session's selections.
struct FlyReport {
    int filesCopied = -1; ///< -1 when nothing was installed
    bool isSimulatorStarted = false;
};

/// The road of the Fly Now button: a cover is chosen, unless the run is unattended and has one, then
/// `flyWithCover`. A cancelled choice ends it (CoverCancelled), with nothing installed and nothing started.
FlyReport flyNow(Session& session);
/// The road from the chosen weather on: the question and the install, a saved flight, the simulator.
FlyReport flyWithCover(Session& session);

} // namespace morvane
