#include "sky/sky_base_sets.h"

#include "core/numbers.h"

namespace morvane {

SkyFamily skyFamily(const QString& baseSet) {
    static const QStringList familyA{u"Default"_s, u"Default Softer"_s, u"Horizons"_s, u"Pro Sky"_s};
    static const QStringList familyB{u"Sunny"_s, u"Tropical"_s};
    const QString name = trimmedBlanks(baseSet);
    if (familyA.contains(name)) return SkyFamily::a;
    return familyB.contains(name) ? SkyFamily::b : SkyFamily::neither;
}

const QStringList& skyBaseSetBoxes() {
    static const QStringList names{u"Default"_s,  u"Sunny"_s,          u"Tropical"_s, overcastBaseSet,
                                   u"Horizons"_s, u"Default Softer"_s, u"Pro Sky"_s};
    return names;
}

const QStringList& skyBaseSetOptions() {
    static const QStringList names{u"Default"_s,    u"Horizons"_s,       u"Sunny"_s,  u"Tropical"_s,
                                   overcastBaseSet, u"Default Softer"_s, u"Pro Sky"_s};
    return names;
}

const QStringList& skyBaseSetsInRun() {
    static const QStringList names{u"Default"_s, u"Default Softer"_s, u"Horizons"_s,
                                   u"Sunny"_s,   u"Tropical"_s,       u"Pro Sky"_s};
    return names;
}

} // namespace morvane
