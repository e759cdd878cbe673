#pragma once

#include "core/job.h"
#include "core/reported.h"
#include "sets/set_kind.h"
#include "sets/simulator_copy.h"

namespace morvane {

struct CloudCover;

/// Offers a set of the other kind that the weather chooses, for the same cover.
struct MatchOffer {
    QString question;
    const SetKind* WeatherKinds::*otherKind;
    bool needsAnySet;       ///< without a set of the other kind none is installed, not even "Default"
    qsizetype neverDrawn{}; ///< so many at the end of the candidates
};

/// What tells the install of one kind of set from that of another.
struct InstallationKind {
    QString severalRowsText; ///< refuses more than one row
    /// Nothing for a kind that has nothing to do with the weather: then the start of the simulator is not
    /// offered either.
    std::optional<MatchOffer> match;
    int stepsBesideFiles; ///< of the progress bar
};

/// Puts the files of a set into the simulator and records in the store that it is the installed
/// one, before the first file is copied. Nothing is rolled back: a failure leaves old and new files side by
/// side, each of them whole.
class SetInstallation {
public:
    SetInstallation(Session& session, const SetKind& set, const InstallationKind& kind)
        : session_(session), set_(set), kind_(kind) {}
    virtual ~SetInstallation() = default;

    /// The set in hand, by hand: several rows are refused and a matching set of the other kind is offered,
    /// which goes in first. True when the start of the simulator is to be offered now (see
    /// offerSimulatorStart): behind the install of a kind that the weather chooses.
    bool install();
    /// The set of that name, which is taken in hand, without a question: as on the road from the weather.
    Reported install(const QString& name);
    /// The same as a part of a job that is running already. False when the store refused to record it: the
    /// job then ends, too.
    Reported installInside(Job& job, const QString& name);

    /// Files copied by the last install, the splash left out.
    int filesCopied() const { return filesCopied_; }

protected:
    /// False when the store refused: nothing was copied then.
    virtual Reported installSet(const QString& name) = 0;

    /// Splash, progress message and files of a set for that cover; an unknown cover has no splash.
    void putSet(const QString& coverWord, const std::vector<FileCopy>& copies);

    // The parts of it, for a set that goes in another order.
    /// Clears strays and notes everything that will be put into the simulator, splash included.
    void prepare(SimulatorCopier& copier, std::vector<FileCopy> copies, const CloudCover* splash);
    void showProgress();
    /// The line that names the cover.
    void showCover(const QString& tagged);
    void copyAll(SimulatorCopier& copier, const std::vector<FileCopy>& copies);
    void finish(SimulatorCopier& copier);
    FileCopy splashCopy(const CloudCover& cover) const;

    Session& session_;
    const SetKind& set_;

private:
    enum class Outcome { installed, failed, storeRefused };
    Outcome runAlone(bool isByHand);
    Outcome run(Job& job, bool isByHand);
    /// False when the install was refused, by the store or for its several rows.
    bool prepareByHand(Job& job);
    bool installMatch(Job& job, const MatchOffer& match);

    const InstallationKind& kind_;
    int filesCopied_ = 0;
};

} // namespace morvane
