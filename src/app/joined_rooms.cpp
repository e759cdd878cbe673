#include "app/joined_rooms.h"

#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_selection.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "sets/resource_folders.h"
#include "sets/set_kind.h"
#include "sets/undo_step.h"
#include "simulator/backups.h"
#include "simulator/base_install_rows.h"
#include "simulator/installed_rows.h"
#include "simulator/options.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"
#include "weather/reports.h"

namespace morvane {

namespace {

void reloadAll(Session& session) {
    session.rows<clsConfigs>().reset();
    session.rows<clsResourceFolders>().reset();
    session.rows<clsBackups>().reset();
    session.rows<clsWxFinders>().reset();
    if (session.rows<clsTextureSets>()) refreshGroundSets(session);
    if (session.rows<clsNightTextureSets>()) refreshNightSets(session);
    if (session.rows<clsSkyTextureSets>()) refreshSkySets(session);
    readSwitches(session);
    session.state<GroundSelection>().RefreshGroundList = session.state<SkySelection>().RefreshSkyList =
        session.state<NightSelection>().RefreshNightList = true;
}

} // namespace

void joinRooms(Session& session) {
    session.reloadRows = reloadAll;
    session.state<UndoKeeping>().installedRows = installedRows;
    session.state<WeatherKinds>() = {&setKind<GroundKind>(), &setKind<SkyKind>()};
    session.state<KnownKinds>() = {{&setKind<GroundKind>(), &setKind<SkyKind>(), &setKind<NightKind>()}};
}

} // namespace morvane
