#include "night/night_selection.h"

#include "core/failure_report.h"
#include "core/set_collections.h"
#include "ground/colour_settings.h"
#include "night/night_sets.h"

namespace morvane {

bool loadNightSelection(Session& session, const QString& listKey) {
    return reportFailures(session.user, {}, [&] {
        const auto record = findListKey(loadedNightSets(session), listKey);
        NightSelection& selection = session.night;
        selection.SelectedNightSet = record->TextureSet;
        selection.colours = parseColourSettings(record->ColorSettings, session.DecimalSep);
        selection.SelectedNightDescription = record->Description;
    });
}

bool clickNightRow(Session& session, const QString& name) {
    const auto record = findNightSet(session, name);
    if (!record) return false;
    session.night.selectedRows = QStringList{record->TextureSet};
    return loadNightSelection(session, u"Key:"_s + QString::number(record->NtsID));
}

} // namespace morvane
