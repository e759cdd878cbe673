#pragma once

#include "core/job.h"
#include "sky/sky_selection.h"

namespace morvane {

struct clsSkyTextureSet;

/// Gives stored sky sets their files and takes them away again. Acts on the set in hand
/// (session.state<SkySelection>()), or on the ticked rows when two or more of them are not "Default".
///
/// Afterwards the ticks are gone, as the list is to be built anew, and another row is in hand
/// (session.state<SkySelection>().SelectedSkySet): the one that was activated last, or after a removal the
/// last of all.
class SkyActivation {
public:
    explicit SkyActivation(Session& session) : session_(session) {}

    /// A single set, and be it "Default", gets its files for day, sunrise and sunset; several get those for
    /// the day only, and those that are activated already are passed over. A cancel ends the run; what is
    /// written stays.
    void activateInHand();
    /// Deletes; with `deactivateMode` only the files go and the colours stay. See removeSetsInHand.
    void deleteInHand(bool deactivateMode);

private:
    struct Counters {
        int number, total;
    };
    bool activate(const Job& job, const clsSkyTextureSet& set, const QStringList& timesOfDay,
                  Counters counters);
    void activateSeveral(Job& job, const QStringList& names);
    void rebuildList(const QString& nameInHand);

    Session& session_;
};

} // namespace morvane
