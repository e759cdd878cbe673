#include "sky/sky_randomiser.h"

#include "sky/sky_base_sets.h"

#include <initializer_list>

namespace morvane {

namespace {

enum Field { saturation, red, green, blue, brightness, contrast };

/// For whom a rule holds; `anyBase` asks for no family.
enum class Base { familyA, familyB, anyBase };

struct GroupSet {
    constexpr GroupSet(std::initializer_list<int> groups) {
        for (const int group : groups)
            bits |= 1u << group;
    }
    constexpr bool contains(int group) const { return group >= 0 && group < 32 && (bits >> group & 1u) != 0; }
    unsigned bits = 0;
};

struct Rule {
    int firstCloud, lastCloud;
    Base base;
    GroupSet groups;
    Field field;
    int low, high; ///< `high` itself is never drawn; equal bounds are a fixed number
};

constexpr GroupSet band{8, 9, 10};

// Within a group in the order of the draws. Groups 5 and 6 have no rule. The fixed numbers differ from those
// of sky_strings.cpp in two places (saturation of group 3 under a mostly clear sky, contrast of groups 4 and
// 7 under a clear one), and so they must: the generator and the random button are two rule books.
constexpr Rule rules[] = {
    {1, 4, Base::familyA, band, saturation, -30, 10},
    {1, 4, Base::familyA, band, red, -20, 20},
    {1, 4, Base::familyA, band, green, 0, 10},
    {1, 4, Base::familyA, band, blue, -20, 20},
    {1, 4, Base::familyA, band, brightness, -30, 0},
    {1, 4, Base::familyA, band, contrast, -30, 40},
    {1, 4, Base::familyB, band, red, 0, 60},
    {1, 4, Base::familyB, band, green, -20, 20},
    {1, 4, Base::familyB, band, blue, -60, 60},
    {1, 4, Base::familyB, band, brightness, -30, 20},
    {1, 4, Base::familyB, band, contrast, -20, 50},

    {1, 1, Base::familyA, {1, 2, 4, 7}, brightness, 100, 100},
    {1, 1, Base::familyA, {1, 2, 4, 7}, contrast, 100, 100},
    {1, 1, Base::familyA, {3}, blue, -25, -25},
    {1, 1, Base::familyA, {3}, brightness, 100, 100},
    {1, 1, Base::familyA, {3}, contrast, 90, 90},

    {2, 2, Base::familyA, {1, 2}, brightness, 50, 70},
    {2, 2, Base::familyA, {3}, saturation, -30, -30},
    {2, 2, Base::familyA, {3}, brightness, 70, 70},
    {2, 2, Base::familyA, {4, 7}, brightness, 40, 60},
    {2, 2, Base::familyB, {1, 2}, brightness, -10, -5},

    {3, 3, Base::familyA, {1, 2, 3, 4, 7}, brightness, -30, 30},
    {3, 3, Base::familyB, {1, 2}, brightness, -25, -15},

    {4, 4, Base::familyA, {1}, brightness, -50, -40},
    {4, 4, Base::familyA, {2}, brightness, -70, -50},
    {4, 4, Base::familyA, {3, 4, 7}, brightness, -30, -30},
    {4, 4, Base::familyB, {1, 2}, brightness, -50, -30},

    {5, 5, Base::anyBase, {1, 2}, brightness, -30, 30},
    {5, 5, Base::anyBase, {3, 4, 7}, brightness, -20, 20},
    {5, 5, Base::anyBase, band, saturation, -30, 30},
    {5, 5, Base::anyBase, band, red, -30, 30},
    {5, 5, Base::anyBase, band, green, -30, 30},
    {5, 5, Base::anyBase, band, blue, -30, 30},
    {5, 5, Base::anyBase, band, brightness, -30, 30},
    {5, 5, Base::anyBase, band, contrast, -30, 30},
};

bool holdsFor(const Rule& rule, int cloudIndex, SkyFamily family, int group) {
    if (cloudIndex < rule.firstCloud || cloudIndex > rule.lastCloud || !rule.groups.contains(group))
        return false;
    if (rule.base == Base::anyBase) return true;
    return family == (rule.base == Base::familyA ? SkyFamily::a : SkyFamily::b);
}

} // namespace

void randomizeSkyValues(Session& session, int cloudIndex, SliderValues& result, const QString& baseSet,
                        int group) {
    result.fill(0);
    const SkyFamily family = skyFamily(baseSet);
    for (const Rule& rule : rules) {
        if (!holdsFor(rule, cloudIndex, family, group)) continue;
        if (rule.low == rule.high)
            result[rule.field] = rule.low;
        else
            drawOne(session, rule.low, rule.high, result[rule.field]);
    }
}

} // namespace morvane
