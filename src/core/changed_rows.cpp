#include "core/changed_rows.h"

#include "core/failure_report.h"
#include "core/options.h"
#include "core/session.h"
#include "core/store.h"
#include "ground/ground_sets.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "simulator/backups.h"
#include "simulator/configs.h"
#include "simulator/resource_folders.h"
#include "sky/sky_sets.h"
#include "weather/wx_finders.h"

namespace morvane {

bool reloadChangedRows(Session& session) {
    bool isChanged = false;
    reportFailures(session.user, {}, [&] {
        isChanged = session.adoConn && session.adoConn->isOpen() && session.adoConn->wasChangedByOthers();
        if (!isChanged) return;
        session.gConfigs.reset();
        session.gResources.reset();
        session.gBackups.reset();
        session.gWxFinders.reset();
        if (session.gTextureSets) refreshGroundSets(session);
        if (session.gNightTextureSets) refreshNightSets(session);
        if (session.gSkyTextureSets) refreshSkySets(session);
        readSwitches(session);
        session.RefreshGroundList = session.RefreshSkyList = session.RefreshNightList = true;
    });
    return isChanged;
}

} // namespace morvane
