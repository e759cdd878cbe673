#pragma once

#include "core/session.h"

#include <QStringList>
#include <optional>

namespace morvane {

/// What can be done with a place of the simulator that differs from what was left there.
enum class DifferenceChoice {
    takeAsMine,  ///< what stands there stays and counts as the pilot's own
    putOursBack, ///< copied again from where it came
    putOwnBack,  ///< the kept file returns, and the place is no longer ours
};

struct ChoiceReport {
    int done = 0;
    QString text;        ///< "3 files put back"
    QStringList leftOut; ///< places that cannot take the choice
};

/// As a job of its own, in places as a check names them; unknown ones are passed over. Says at the end what
/// was done, and names what was left out. Nothing after the message of a failure.
std::optional<ChoiceReport> settleDifferences(Session& session, DifferenceChoice choice,
                                              const QStringList& paths);

} // namespace morvane
