#include "core/failure_report.h"
#include "core/numbers.h"
#include "core/options.h"
#include "ground/ground_generation.h"
#include "ground/ground_sets.h"

namespace morvane {

namespace {

const QString protectedSet = u"This is a protected texture set and no changes can be made to this set."_s;

void emptyFolder(Session& session, const FilePath& folder) {
    if (session.files.list(folder, u"*.bmp"_s).isEmpty()) return;
    for (const QString& name : session.files.list(folder, u"*.*"_s))
        session.files.remove(folder.child(name));
}

void refuse(Session& session, const QString& sentence) {
    session.user.showMessage({MessageKind::exclamation, u"Morvane Information"_s,
                              sentence + u'\n' + protectedSet, true, false, false});
}

QString removalQuestion(const QString& name, bool deactivateMode) {
    if (deactivateMode)
        return u"Do you wish to deactivate this the texture set: '"_s + name +
               u"'?\n\nSelect Ok, to deactivate the set or select Cancel to cancel the deactivate."_s;
    return u"Do you wish to delete the texture set: '"_s + name +
           u"'?  This action cannot be reversed\n\nSelect Ok, to delete the file or select Cancel to cancel "
           u"the "
           "delete."_s;
}

} // namespace

void removeBitmapFolders(Session& session, const FilePath& setFolder, const QStringList& subfolders,
                         bool removeFolders) {
    for (const QString& name : subfolders) {
        const FilePath folder = setFolder.child(name);
        if (!session.files.isFolder(folder) || session.files.isLink(folder)) continue;
        emptyFolder(session, folder);
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

QStringList GroundGeneration::selectedNames() const {
    QStringList names;
    for (const QString& row : session_.ground.selectedRows)
        if (const QString name = trimmedBlanks(row); name != u"Default") names << name;
    return names;
}

void GroundGeneration::deleteTextureSet(bool deactivateMode) {
    Job job(session_);
    if (!job) return;
    reportFailures(session_.user, {}, [&] {
        if (!refreshGroundSets(session_)) return;
        const QStringList names = selectedNames();
        if (names.size() < 2)
            deleteSingle(deactivateMode);
        else
            deleteSeveral(names, deactivateMode);
        session_.RefreshGroundList = true;
        session_.user.refreshScreen(Screen::frm_MVTextures);
    });
}

void GroundGeneration::deleteSingle(bool deactivateMode) {
    const QString name = session_.ground.SelectedGroundSet;
    const auto record = findGroundSet(session_, name);
    if (name == u"Default")
        refuse(session_, u"You have selected the Default texture set to delete/deactivate."_s);
    else if (record && record->Installed)
        refuse(session_, u"You have selected the currently installed texture set to delete/deactivate."_s);
    else if (session_.user.ask(Question::setAction, u"Morvane Information"_s,
                               removalQuestion(name, deactivateMode)))
        removeSetFiles(name, deactivateMode);
}

void GroundGeneration::deleteSeveral(const QStringList& names, bool deactivateMode) {
    session_.modal.multiNames = names;
    session_.modal.multiConfirmed.clear();
    session_.user.showModal(Screen::frm_MultiDelete);
    for (const QString& name : session_.modal.multiConfirmed) {
        const auto record = findGroundSet(session_, name);
        if (record && !record->Installed && !removeSetFiles(name, deactivateMode)) return;
    }
}

} // namespace morvane
