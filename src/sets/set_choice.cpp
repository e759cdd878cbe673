#include "sets/set_choice.h"

#include "core/numbers.h"
#include "sets/no_repeat.h"
#include "sets/set_names.h"

namespace morvane {

QStringList namesForCover(const std::vector<ActivatedSet>& sets, const QString& cover) {
    QStringList names;
    for (const ActivatedSet& set : sets)
        if (trimmedBlanks(set.cover) == trimmedBlanks(cover)) names << set.name;
    return names;
}

int getRandomIndex(Session& session, int upper) {
    clsNoRepeat draws(session.user, session.random);
    return draws.Non_Repeating_Numbers(upper, 0).value_or(0);
}

QString drawName(Session& session, const QStringList& names, qsizetype upper) {
    if (names.isEmpty()) return defaultSetName;
    return names.size() == 1 ? names.front() : names[getRandomIndex(session, static_cast<int>(upper))];
}

} // namespace morvane
