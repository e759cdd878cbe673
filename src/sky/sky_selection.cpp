#include "sky/sky_selection.h"

#include "core/failure_report.h"
#include "sky/sky_groups.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sub_sets.h"

namespace morvane {

bool loadSkyTextureGroups(Session& session, std::int16_t setKey, const QString& timeOfDay) {
    session.state<SkyColourTables>().skyTextureGroups = {};
    if (!clsSkyTextureSubSets::reload(session, setKey)) return false;
    SkyGroupTable groups;
    for (const auto& subSet : *session.rows<clsSkyTextureSubSets>()) {
        if (subSet->StsID != setKey || subSet->timeOfDay != timeOfDay) continue;
        for (const SkyGroupConstants& group : skyGroups())
            if (const auto record = parseSkyColourString((*subSet).*group.property))
                skyRecord(groups, group.number) = *record;
    }
    session.state<SkyColourTables>().skyTextureGroups = groups;
    return true;
}

Reported loadSkySubSet(Session& session, const QString& listKey, const QString& timeOfDay) {
    bool loaded = false;
    reportFailures(session.user, morvaneError, [&] {
        session.state<SkyColourTables>().skyTextureGroups = {};
        const auto set = findListKey(loadedSkySets(session), listKey);
        SkyKind::takeInHand(session.state<SkySelection>(), *set);
        loaded = loadSkyTextureGroups(session, set->StsID, timeOfDay);
    });
    return loaded;
}

} // namespace morvane
