#include "ground/ground_selection.h"

#include "core/failure_report.h"
#include "core/options.h"
#include "core/set_collections.h"
#include "ground/colour_settings.h"
#include "ground/ground_sets.h"

namespace morvane {

namespace {

constexpr qsizetype descriptionLength = 255;

} // namespace

bool loadGroundSelection(Session& session, const QString& listKey) {
    return reportFailures(session.user, {}, [&] {
        const auto record = findListKey(loadedGroundSets(session), listKey);
        GroundSelection& selection = session.ground;
        selection.SelectedGroundSet = record->TextureSet;
        selection.colours = parseColourSettings(record->ColorSettings, session.DecimalSep);
        selection.SelectedGroundDescription = record->Description.left(descriptionLength);
    });
}

bool clickGroundRow(Session& session, const QString& name) {
    const auto record = findGroundSet(session, name);
    if (!record) return false;
    GroundSelection& selection = session.ground;
    selection.SelectedGroundKey = u"Key:"_s + QString::number(record->TsID);
    selection.SelectedGroundActivated = record->Actvated == flagText(true);
    selection.SelectedGroundCover = record->CloudCover;
    selection.selectedRows = QStringList{record->TextureSet};
    return loadGroundSelection(session, selection.SelectedGroundKey);
}

} // namespace morvane
