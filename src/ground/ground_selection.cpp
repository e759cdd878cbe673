#include "ground/ground_selection.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "ground/ground_sets.h"
#include "sets/colour_settings.h"
#include "sets/set_collections.h"

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
        takeInHand(session.state<GroundSelection>(), *record);
        session.state<GroundSelection>().colours =
            parseColourSettings(record->ColorSettings, session.DecimalSep);
    });
}

bool clickGroundRow(Session& session, const QString& name) {
    const auto record = findGroundSet(session, name);
    if (!record) return false;
    takeInHand(session.state<GroundSelection>(), *record);
    session.state<GroundSelection>().selectedRows = QStringList{record->TextureSet};
    return true;
}

} // namespace morvane
