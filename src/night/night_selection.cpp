#include "night/night_selection.h"

#include "core/failure_report.h"
#include "core/set_collections.h"
#include "ground/colour_settings.h"
#include "night/night_sets.h"

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
        takeInHand(session.night, *record);
        session.night.colours = parseColourSettings(record->ColorSettings, session.DecimalSep);
    });
}

bool clickNightRow(Session& session, const QString& name) {
    const auto record = findNightSet(session, name);
    if (!record) return false;
    takeInHand(session.night, *record);
    session.night.selectedRows = QStringList{record->TextureSet};
    return true;
}

} // namespace morvane
