#pragma once

#include <QStringList>

namespace morvane {

/// What every kind keeps of its list, beside the set in hand.
struct SetSelection {
    /// Names of the rows that an action takes, when they are several: of all that are selected or ticked.
    QStringList selectedRows;
    QString madeSet; ///< made just now: the list selects it, as if it had been clicked, and forgets it
};

} // namespace morvane
