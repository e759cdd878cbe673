#include "simulator/set_removal.h"

#include "core/numbers.h"

namespace morvane {

namespace {

const QString defaultSet = u"Default"_s;

void refuse(Session& session, const SetRemoval& removal, const QString& sentence) {
    session.user.showMessage(
        {MessageKind::exclamation, u"Morvane Information"_s,
         sentence + removal.refusalBreak +
             u"This is a protected texture set and no changes can be made to this set."_s,
         true, false, false});
}

QString removalQuestion(const SetRemoval& removal) {
    if (removal.deactivateMode)
        return u"Do you wish to deactivate this the texture set: '"_s + removal.selectedName +
               u"'?\n\nSelect Ok, to deactivate the set or select Cancel to cancel the deactivate."_s;
    return u"Do you wish to delete the texture set: '"_s + removal.selectedName +
           u"'?  This action cannot be reversed\n\nSelect Ok, to delete the file or select Cancel to cancel "
           u"the delete."_s;
}

bool removeSingle(Session& session, const SetRemoval& removal) {
    const QString& name = removal.selectedName;
    if (name == defaultSet) {
        refuse(session, removal, u"You have selected the Default texture set to delete/deactivate."_s);
        return false;
    }
    if (removal.protectsInstalled && removal.stateOf(name) == SetState::installed) {
        refuse(session, removal,
               u"You have selected the currently installed texture set to delete/deactivate."_s);
        return false;
    }
    if (!session.user.ask(Question::setAction, u"Morvane Information"_s, removalQuestion(removal)))
        return false;
    removal.remove(name);
    return true;
}

} // namespace

bool removeSets(Session& session, const SetRemoval& removal) {
    const QStringList names = changeableNames(removal.selectedRows);
    if (names.size() < 2) return removeSingle(session, removal);
    for (const QString& name : confirmedNames(session, names))
        if (removal.stateOf(name) == SetState::removable && !removal.remove(name)) break;
    return true;
}

QStringList changeableNames(const QStringList& rows) {
    QStringList names;
    for (const QString& row : rows)
        if (const QString name = trimmedBlanks(row); name != defaultSet) names << name;
    return names;
}

QStringList confirmedNames(Session& session, const QStringList& names) {
    session.modal.multiNames = names;
    session.modal.multiConfirmed.clear();
    session.user.showModal(Screen::frm_MultiDelete);
    return session.modal.multiConfirmed;
}

void emptyBitmapFolder(Session& session, const FilePath& folder) {
    if (session.files.isLink(folder) || session.files.list(folder, u"*.bmp"_s).isEmpty()) return;
    for (const QString& name : session.files.list(folder, u"*.*"_s))
        session.files.remove(folder.child(name));
}

void removeFolderOrLink(FileSystem& files, const FilePath& folder) {
    if (files.isFolder(folder))
        files.removeFolder(folder); // of a link the link alone
    else if (files.isLink(folder))
        files.remove(folder); // it points to nothing any more
}

} // namespace morvane
