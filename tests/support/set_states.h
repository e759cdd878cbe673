#pragma once

#include "core/flag_text.h"
#include "sets/set_kind.h"

namespace morvane::test {

/// All sets of the kind in the store, "+" behind an activated and "*" behind an installed one.
template <class Kind>
QString setStates(Session& session) {
    refreshSets<Kind>(session);
    QStringList names;
    for (const auto& set : loadedSets<Kind>(session))
        names << nameOf(*set) + (activationOf(*set) == flagText(true) ? u"+"_s : QString()) +
                     (set->Installed ? u"*"_s : QString());
    return names.join(u' ');
}

} // namespace morvane::test
