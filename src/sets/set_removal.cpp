#include "sets/set_removal.h"

#include "core/numbers.h"

#include <algorithm>
#include <iterator>

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

/// The sign that the program is busy: a set has a thousand files. A cancel leaves the sets behind this one.
void showProgress(Session& session, const SetRemoval& removal, const QString& name, qsizetype index,
                  qsizetype count) {
    const QString text = (removal.deactivateMode ? u"Deactivating"_s : u"Deleting"_s) + u" texture set "_s +
                         QString::number(index + 1) + u" of "_s + QString::number(count) + u", '"_s + name +
                         u"'.  Please wait............"_s;
    UserInterface& user = session.user;
    if (!user.isMessageVisible())
        user.showMessage({MessageKind::progress, u"Morvane Information"_s, text, false, count > 1, true});
    user.updateProgress({}, text, 100.0 * static_cast<double>(index) / static_cast<double>(count));
}

/// How many went, all of them unless the store refused or the user has had enough.
qsizetype removeAll(Session& session, const SetRemoval& removal, const QStringList& names) {
    qsizetype removed = 0;
    for (const QString& name : names) {
        showProgress(session, removal, name, removed, names.size());
        if (session.user.answers().cancelRequested || !removal.remove(name)) break;
        ++removed;
    }
    session.user.hideMessage();
    return removed;
}

void tellRemoved(Session& session, const SetRemoval& removal, qsizetype removed, qsizetype left) {
    const QString verb = removal.deactivateMode ? u" deactivated"_s : u" deleted"_s;
    const QString remark = left > 0 ? countText(left, u"set"_s) + u" left"_s : QString();
    session.user.tellDone({countText(removed, u"texture set"_s) + verb, remark, left > 0});
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
    if (removeAll(session, removal, {name}) > 0) tellRemoved(session, removal, 1, 0);
    return true;
}

} // namespace

bool removeSets(Session& session, const SetRemoval& removal) {
    const QStringList names = changeableNames(removal.selectedRows);
    if (names.size() < 2) return removeSingle(session, removal);
    const QStringList confirmed = confirmedNames(session, names);
    QStringList removable;
    std::copy_if(confirmed.begin(), confirmed.end(), std::back_inserter(removable),
                 [&](const QString& name) { return removal.stateOf(name) == SetState::removable; });
    const qsizetype removed = removeAll(session, removal, removable);
    if (!confirmed.isEmpty()) tellRemoved(session, removal, removed, confirmed.size() - removed);
    return true;
}

QStringList changeableNames(const QStringList& rows) {
    QStringList names;
    for (const QString& row : rows)
        if (const QString name = trimmedBlanks(row); name != defaultSet) names << name;
    return names;
}

QStringList confirmedNames(Session& session, const QStringList& names) {
    session.state<MultiChoice>().multiNames = names;
    session.state<MultiChoice>().multiConfirmed.clear();
    session.user.showModal(Screen::frm_MultiDelete);
    return session.state<MultiChoice>().multiConfirmed;
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
