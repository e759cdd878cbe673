#pragma once

#include "core/flag_text.h"
#include "core/session.h"
#include "sets/stored_rows.h"

#include <vector>

namespace morvane {

/// What the choice of a set for a weather looks at, the same for ground and sky.
struct ActivatedSet {
    QString name;
    QString cover;
};

/// The cover of a set's row; empty for a kind that has nothing to do with the weather.
template <class Record>
QString coverOf(const Record& set) {
    if constexpr (requires { set.CloudCover; })
        return set.CloudCover;
    else
        return {};
}

/// The sets whose activation is exactly "True", in the order of the collection.
template <class Record>
std::vector<ActivatedSet> activatedSets(const KeyedCollection<Record>& sets) {
    std::vector<ActivatedSet> found;
    for (const auto& set : sets)
        if (activationOf(*set) == flagText(true)) found.push_back({nameOf(*set), coverOf(*set)});
    return found;
}

/// Names of those for the cover, both trimmed.
QStringList namesForCover(const std::vector<ActivatedSet>& sets, const QString& cover);

/// A number from 0 up to, and not including, `upper`; 0 when the draw has no success.
int getRandomIndex(Session& session, int upper);

/// One of the names: the only one without a draw, otherwise the one at an index below `upper`, which every
/// caller bounds in its own way. An empty list gives "Default".
QString drawName(Session& session, const QStringList& names, qsizetype upper);

} // namespace morvane
