#include "sky/sky_sharing.h"

#include "core/failure_report.h"
#include "imaging/slider_steps.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "sky/sky_groups.h"
#include "sky/sky_texture_sub_sets.h"

#include <algorithm>

namespace morvane {

namespace {

bool isWithinSliders(const SkyGroup& colours) {
    const auto& fields = skyFields();
    return std::all_of(fields.begin(), fields.begin() + skyColourCount, [&](const SkyField& field) {
        return colours.*field.value >= sliderLowest && colours.*field.value <= sliderHighest;
    });
}

/// Whole again: a group without a text gets one of zeros, and every one the region of the map.
QString checkedText(const QString& text, const SkyGroupConstants& group) {
    try {
        const SkyGroup colours = parseSkyColourString(text).value_or(SkyGroup{});
        if (isWithinSliders(colours)) return skyColourString(colours, group);
    } catch (const Error&) { // told below
    }
    refuseLook(damagedColours);
}

SkyStrings checkedStrings(const QStringList& texts) {
    SkyStrings strings;
    if (texts.size() != skyGroupCount) refuseLook(damagedColours);
    for (const SkyGroupConstants& group : skyGroups())
        strings[static_cast<std::size_t>(group.number - 1)] = checkedText(texts[group.number - 1], group);
    return strings;
}

} // namespace

SharedSet SkySharing::share(Session& session, const clsSkyTextureSet& set) {
    if (!clsSkyTextureSubSets::reload(session, set.StsID)) throw Error(ErrorCode::interrupted);
    SharedSet shared{.baseSet = trimmedBlanks(set.TextureSetGroup), .colours = QStringList(skyGroupCount)};
    for (const auto& subSet : *session.rows<clsSkyTextureSubSets>())
        if (subSet->timeOfDay == skyDay)
            for (const SkyGroupConstants& group : skyGroups())
                shared.colours[group.number - 1] = (*subSet).*group.property;
    return shared;
}

Reported SkySharing::save(Session& session, clsSkyTextureSet set, const SharedSet& shared) {
    if (!skyBaseSetBoxes().contains(shared.baseSet)) refuseLook(u"its base set is none"_s);
    set.TextureSetGroup = shared.baseSet;
    return SkyGeneration(session).saveFavourite(std::move(set), checkedStrings(shared.colours));
}

} // namespace morvane
