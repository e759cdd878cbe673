#include "night/night_selection.h"

#include "core/failure_report.h"
#include "night/night_sets.h"
#include "sets/colour_settings.h"
#include "sets/set_collections.h"

namespace morvane {

namespace {

void takeInHand(NightSelection& selection, const clsNightTextureSet& set) {
    selection.SelectedNightSet = set.TextureSet;
    selection.SelectedNightDescription = set.Description;
    selection.colours = {};
}

} // namespace

bool loadNightSelection(Session& session, const QString& listKey) {
    return reportFailures(session.user, {}, [&] {
        const auto record = findListKey(loadedNightSets(session), listKey);
        takeInHand(session.state<NightSelection>(), *record);
        session.state<NightSelection>().colours =
            parseColourSettings(record->ColorSettings, session.DecimalSep);
    });
}

bool clickNightRow(Session& session, const QString& name) {
    const auto record = findNightSet(session, name);
    if (!record) return false;
    takeInHand(session.state<NightSelection>(), *record);
    session.state<NightSelection>().selectedRows = QStringList{record->TextureSet};
    return true;
}

} // namespace morvane
