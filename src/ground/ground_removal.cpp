#include "core/failure_report.h"
#include "core/options.h"
#include "ground/ground_generation.h"
#include "ground/ground_sets.h"
#include "simulator/set_removal.h"

namespace morvane {

void removeBitmapFolders(Session& session, const FilePath& setFolder, const QStringList& subfolders,
                         bool removeFolders) {
    for (const QString& name : subfolders) {
        const FilePath folder = setFolder.child(name);
        if (!session.files.isFolder(folder) || session.files.isLink(folder)) continue;
        emptyBitmapFolder(session, folder);
        if (removeFolders) session.files.removeFolder(folder);
    }
    if (removeFolders && session.files.isFolder(setFolder)) session.files.removeFolder(setFolder);
}

bool GroundGeneration::removeSetFiles(const QString& name, bool keepRecord) {
    bool stored = false;
    reportFailures(session_.user, {}, [&] {
        const auto record = findGroundSet(session_, name);
        if (!record) return;
        const FilePath folder = groundSetFolder(session_, record->TextureSet);
        if (keepRecord) {
            clsTextureSet deactivated = *record;
            deactivated.Actvated = flagText(false);
            deactivated.IsNew = false;
            stored = session_.gTextureSets->UpdateTextureSet(deactivated);
        } else {
            stored = session_.gTextureSets->RemoveItem(QString::number(record->TsID), record->TsID);
        }
        // The record goes first: a failure in between leaves files without a row, never a row without a set.
        if (stored) removeBitmapFolders(session_, folder, groundSubfolders, !keepRecord);
    });
    return stored;
}

void GroundGeneration::deleteTextureSet(bool deactivateMode) {
    Job job(session_);
    if (!job) return;
    reportFailures(session_.user, {}, [&] {
        if (!refreshGroundSets(session_)) return;
        const auto stateOf = [this](const QString& name) {
            const auto record = findGroundSet(session_, name);
            if (!record) return SetState::missing;
            return record->Installed ? SetState::installed : SetState::removable;
        };
        removeSets(session_,
                   {deactivateMode, session_.ground.SelectedGroundSet, session_.ground.selectedRows, u"\n"_s,
                    stateOf, [&](const QString& name) { return removeSetFiles(name, deactivateMode); }});
        session_.RefreshGroundList = true;
        session_.user.refreshScreen(Screen::frm_MVTextures);
    });
}

} // namespace morvane
