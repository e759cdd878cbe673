#include "ground/ground_selection.h"

#include "core/failure_report.h"
#include "core/options.h"
#include "core/set_collections.h"
#include "ground/colour_settings.h"
#include "ground/ground_sets.h"

namespace morvane {

namespace {

constexpr qsizetype descriptionLength = 255;

void takeInHand(GroundSelection& selection, const clsTextureSet& set) {
    selection.SelectedGroundKey = u"Key:"_s + QString::number(set.TsID);
    selection.SelectedGroundSet = set.TextureSet;
    selection.SelectedGroundActivated = set.Actvated == flagText(true);
    selection.SelectedGroundCover = set.CloudCover;
    selection.SelectedGroundDescription = set.Description.left(descriptionLength);
    selection.colours = {};
}

} // namespace

bool loadGroundSelection(Session& session, const QString& listKey) {
    return reportFailures(session.user, {}, [&] {
        const auto record = findListKey(loadedGroundSets(session), listKey);
        takeInHand(session.ground, *record);
        session.ground.colours = parseColourSettings(record->ColorSettings, session.DecimalSep);
    });
}

bool clickGroundRow(Session& session, const QString& name) {
    const auto record = findGroundSet(session, name);
    if (!record) return false;
    takeInHand(session.ground, *record);
    session.ground.selectedRows = QStringList{record->TextureSet};
    return true;
}

} // namespace morvane
