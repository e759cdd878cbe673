#pragma once

#include "sets/favourite_saving.h"

namespace morvane {

/// What ground and night pass on of a set: its colours.
template <class Kind>
struct RecolouredSharing {
    static SharedSet share(Session& session, const typename Kind::Record& set) {
        return {.colours = {colourSettingsText(parseColourSettings(set.ColorSettings, session.DecimalSep))}};
    }
    static Reported save(Session& session, typename Kind::Record record, const SharedSet& shared) {
        record.ColorSettings = colourSettingsText(checkedColours(shared));
        return saveFavourite<Kind>(session, std::move(record));
    }
};

} // namespace morvane
