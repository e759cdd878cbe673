#include "sky/sky_base_sets.h"

#include "core/numbers.h"

#include <algorithm>

namespace morvane {

namespace {

struct BaseSky {
    QString name;
    SkyFamily family;
    int box, option; ///< places on frm_SelectSkyTexture and on frm_SelectBaseSky
};

/// In the order in which a run makes them; the overcast one, which has a count of its own, comes last.
const std::array<BaseSky, skyBaseSetCount>& baseSkies() {
    static const std::array<BaseSky, skyBaseSetCount> skies{{{u"Default"_s, SkyFamily::a, 0, 0},
                                                             {u"Default Softer"_s, SkyFamily::a, 5, 5},
                                                             {u"Horizons"_s, SkyFamily::a, 4, 1},
                                                             {u"Sunny"_s, SkyFamily::b, 1, 2},
                                                             {u"Tropical"_s, SkyFamily::b, 2, 3},
                                                             {u"Pro Sky"_s, SkyFamily::a, 6, 6},
                                                             {overcastBaseSet, SkyFamily::neither, 3, 4}}};
    return skies;
}

QStringList namesBy(int BaseSky::*place) {
    QStringList names(skyBaseSetCount);
    for (const BaseSky& sky : baseSkies())
        names[sky.*place] = sky.name;
    return names;
}

} // namespace

SkyFamily skyFamily(const QString& baseSet) {
    const auto sky = std::ranges::find(baseSkies(), trimmedBlanks(baseSet), &BaseSky::name);
    return sky == baseSkies().end() ? SkyFamily::neither : sky->family;
}

const QStringList& skyBaseSetBoxes() {
    static const QStringList names = namesBy(&BaseSky::box);
    return names;
}

const QStringList& skyBaseSetOptions() {
    static const QStringList names = namesBy(&BaseSky::option);
    return names;
}

const QStringList& skyBaseSetsInRun() {
    static const QStringList names = [] {
        QStringList all;
        for (const BaseSky& sky : baseSkies())
            if (sky.name != overcastBaseSet) all << sky.name;
        return all;
    }();
    return names;
}

} // namespace morvane
