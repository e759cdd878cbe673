#include "sky/sky_selection.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "sets/set_collections.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sub_sets.h"

namespace morvane {

namespace {

void takeInHand(SkySelection& selection, const clsSkyTextureSet& set) {
    selection.SelectedSkyKey = skyListKey(set);
    selection.SelectedSkySet = set.SkyTextureSet;
    selection.SelectedSkyActivated = set.Activated == flagText(true);
    selection.SelectedSkyCover = set.CloudCover;
    selection.SelectedSkyGroup = set.TextureSetGroup;
    selection.SelectedSkyDescription = set.Description;
}

} // namespace

QString skyListKey(const clsSkyTextureSet& set) {
    return u"Key:"_s + QString::number(set.StsID);
}

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

bool loadSkySubSet(Session& session, const QString& listKey, const QString& timeOfDay) {
    bool loaded = false;
    reportFailures(session.user, {}, [&] {
        session.state<SkyColourTables>().skyTextureGroups = {};
        const auto set = findListKey(loadedSkySets(session), listKey);
        takeInHand(session.state<SkySelection>(), *set);
        loaded = loadSkyTextureGroups(session, set->StsID, timeOfDay);
    });
    return loaded;
}

bool clickSkyRow(Session& session, const QString& name) {
    const auto set = findSkySet(session, name);
    if (set) takeInHand(session.state<SkySelection>(), *set);
    return set != nullptr;
}

} // namespace morvane
