#include "simulator/set_choice.h"

#include "core/numbers.h"
#include "core/options.h"
#include "ground/no_repeat.h"
#include "ground/texture_sets.h"
#include "sky/sky_texture_sets.h"

namespace morvane {

namespace {

template <class Record>
std::vector<ActivatedSet> collect(const KeyedCollection<Record>& sets, QString Record::*activated) {
    std::vector<ActivatedSet> found;
    for (const auto& set : sets)
        if ((*set).*activated == flagText(true)) found.push_back({nameOf(*set), set->CloudCover});
    return found;
}

} // namespace

std::vector<ActivatedSet> activatedSets(const clsTextureSets& sets) {
    return collect(sets, &clsTextureSet::Actvated);
}

std::vector<ActivatedSet> activatedSets(const clsSkyTextureSets& sets) {
    return collect(sets, &clsSkyTextureSet::Activated);
}

QStringList namesForCover(const std::vector<ActivatedSet>& sets, const QString& cover) {
    QStringList names;
    for (const ActivatedSet& set : sets)
        if (trimmedBlanks(set.cover) == trimmedBlanks(cover)) names << set.name;
    return names;
}

int getRandomIndex(Session& session, int upper) {
    clsNoRepeat draws(session.user, session.random);
    const auto numbers = draws.Non_Repeating_Numbers(1, upper, 0);
    return numbers ? numbers->front() : 0;
}

QString drawName(Session& session, const QStringList& names, qsizetype upper) {
    if (names.isEmpty()) return u"Default"_s;
    return names.size() == 1 ? names.front() : names[getRandomIndex(session, static_cast<int>(upper))];
}

} // namespace morvane
