#include "sky/sky_strings.h"

#include "core/error.h"
#include "sets/slider_values.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"
#include "sky/sky_randomiser.h"

namespace morvane {

namespace {

enum class Source {
    fresh, ///< a new draw
    keep,  ///< the last draw once more: the group is coupled to an earlier one
    fixed, ///< the rule's numbers
};

struct GroupRule {
    Source source;
    SliderValues numbers{};
};
using RuleBook = std::array<GroupRule, skyGroupCount>;

constexpr GroupRule fresh{Source::fresh}, keep{Source::keep}, zero{Source::fixed};

constexpr GroupRule fixed(const SliderValues& numbers) {
    return {Source::fixed, numbers};
}

constexpr GroupRule hiddenShadow = fixed({0, 0, 0, 0, 100, 100});
constexpr GroupRule brightWhite = fixed({0, 0, 0, 0, 100, 0});
constexpr GroupRule darkCloud = fixed({0, 0, 0, 0, -30, 0});

// Groups 1 to 10. Water (5, 6) is never changed, and horizons and sky (8, 9, 10) share one draw: unrelated
// ones look wrong. The fixed numbers are not those of the random button (sky_randomiser.cpp), and must not
// be.
constexpr RuleBook clearA{
    hiddenShadow, hiddenShadow, fixed({0, 0, 0, -25, 100, 90}), brightWhite, zero, zero, brightWhite, fresh,
    keep,         keep};
constexpr RuleBook clearB{zero, zero, zero, zero, zero, zero, zero, fresh, keep, keep};
constexpr RuleBook mostlyClearA{fresh, keep, fixed({30, 0, 0, 0, 70, 0}), fresh, zero, zero, keep, fresh,
                                keep,  keep};
constexpr RuleBook mostlyClearB{fresh, keep, zero, zero, zero, zero, zero, fresh, keep, keep};
constexpr RuleBook partlyCloudyA{fresh, keep, fresh, keep, zero, zero, keep, fresh, keep, keep};
constexpr RuleBook partlyCloudyB{fresh, keep, keep, keep, zero, zero, keep, fresh, keep, keep};
constexpr RuleBook mostlyCloudyA{fresh, fresh,     darkCloud, darkCloud, zero,
                                 zero,  darkCloud, fresh,     keep,      keep};
constexpr RuleBook mostlyCloudyB{fresh, keep, keep, keep, zero, zero, keep, fresh, keep, keep};
constexpr RuleBook overcast{fresh, keep, fresh, keep, zero, zero, fresh, fresh, keep, keep};

struct CoverRules {
    const RuleBook* familyA;
    const RuleBook* familyB;
    const RuleBook* neither; ///< none where the cloud cover asks for a family
};

constexpr CoverRules coverRules[] = {
    {&clearA, &clearB, nullptr},
    {&mostlyClearA, &mostlyClearB, nullptr},
    {&partlyCloudyA, &partlyCloudyB, nullptr},
    {&mostlyCloudyA, &mostlyCloudyB, nullptr},
    {&overcast, &overcast, &overcast},
};

const RuleBook* ruleBook(int cloudIndex, const QString& baseSet) {
    if (cloudIndex < 1 || cloudIndex > static_cast<int>(std::size(coverRules)))
        throw Error(ErrorCode::subscript);
    const CoverRules& rules = coverRules[cloudIndex - 1];
    switch (skyFamily(baseSet)) {
    case SkyFamily::a:
        return rules.familyA;
    case SkyFamily::b:
        return rules.familyB;
    case SkyFamily::neither:
        break;
    }
    return rules.neither;
}

SkyGroup recordOf(const SliderValues& colours) {
    SkyGroup record;
    for (std::size_t i = 0; i < colours.size(); ++i)
        record.*skyFields()[i].value = static_cast<float>(colours[i]);
    return record;
}

} // namespace

SkyStrings drawSkyStrings(Session& session, int cloudIndex, const QString& baseSet) {
    const RuleBook* rules = ruleBook(cloudIndex, baseSet);
    SkyStrings strings;
    SliderValues drawn{};
    for (const SkyGroupConstants& group : skyGroups()) {
        const auto index = static_cast<std::size_t>(group.number - 1);
        const GroupRule* rule = rules ? &(*rules)[index] : nullptr;
        if (rule && rule->source == Source::fresh)
            randomizeSkyValues(session, cloudIndex, drawn, baseSet, group.number);
        SkyGroup record;
        if (rule) record = recordOf(rule->source == Source::fixed ? rule->numbers : drawn);
        setRegion(record, group);
        session.state<SkyColourTables>().skyTextureGroups[index] = record;
        strings[index] = rule ? skyColourString(record, group) : skyRegionSuffix(group);
    }
    return strings;
}

} // namespace morvane
