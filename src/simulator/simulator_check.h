#pragma once

#include "core/session.h"
#include "sets/checked_place.h"

#include <QStringList>
#include <vector>

namespace morvane {

/// What the store calls installed, and how much of it stands.
struct InstalledPart {
    QString kind;  ///< "Ground", "Sky", "Night", "Base" or "Options"
    QString name;  ///< of the set, else titles or options joined by ", "
    int whole = 0; ///< files that stand as they were put
    int changed = 0, missing = 0;
    int notThere = 0;          ///< another one of ours stands: the install did not come to its end
    bool mayBeCovered = false; ///< a base install may have none left under the sets

    /// The store's row tells the truth.
    bool isWhole() const { return changed + missing + notThere == 0 && (whole > 0 || mayBeCovered); }
    /// "whole", "3 changed", "1 missing".
    QString stateText() const;
};

/// What lies in the simulator, as far as Morvane ever touched it.
struct SimulatorCheck {
    int ours = 0, pilots = 0, changed = 0, missing = 0;
    int kept = 0;            ///< places of which a file of the pilot's is kept
    QStringList damagedKept; ///< of these, where it is damaged or gone
    std::vector<InstalledPart> installed;
    std::vector<CheckedPlace> places;

    /// Those that differ, in the order of their paths.
    std::vector<CheckedPlace> differences() const;
    bool isAsLeft() const;
    /// A line for each number and each part, then one for each difference.
    QString text() const;
};

/// Looks at every file that Morvane ever put or kept; `tellsProgress` for the bar of a message. Raises when
/// the list cannot be read, and `interrupted` when the user cancels.
SimulatorCheck checkSimulator(Session& session, CheckDepth depth, bool tellsProgress);

} // namespace morvane
