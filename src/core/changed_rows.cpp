#include "core/changed_rows.h"

#include "core/failure_report.h"
#include "core/session.h"
#include "core/store.h"

namespace morvane {

bool reloadChangedRows(Session& session) {
    bool isChanged = false;
    reportFailures(session.user, morvaneError, [&] {
        isChanged = session.adoConn && session.adoConn->isOpen() && session.adoConn->wasChangedByOthers();
        if (isChanged && session.reloadRows) session.reloadRows(session);
    });
    return isChanged;
}

} // namespace morvane
