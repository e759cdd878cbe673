#pragma once

#include <QString>

namespace morvane {

/// frm_SetSheet: what is to be seen.
struct SheetRequest {
    QString kind; ///< "Ground", "Sky" or "Night"; empty for what lies in the simulator now
    QString name; ///< of the set
};

} // namespace morvane
