#include "sets/set_removal.h"

#include "core/job.h"
#include "core/numbers.h"
#include "sets/set_names.h"
#include "sets/undo_step.h"

#include <algorithm>
#include <iterator>

namespace morvane {

namespace {

/// One removal, of one set or of several.
class Removal {
public:
    Removal(Session& session, const SetKind& kind, Job& job, bool deactivateMode)
        : session_(session), kind_(kind), job_(job), deactivateMode_(deactivateMode) {}

    bool removeOne(const QString& name);
    void removeSeveral(const QStringList& names);

private:
    bool isInstalled(const QString& name) const;
    void refuse(const QString& which);
    QString question(const QString& name) const;
    void showProgress(const QString& name, qsizetype index, qsizetype count);
    qsizetype removeAll(const QStringList& names);
    void tellRemoved(qsizetype removed, qsizetype left);

    Session& session_;
    const SetKind& kind_;
    Job& job_;
    bool deactivateMode_;
};

bool Removal::isInstalled(const QString& name) const {
    const auto set = kind_.find(session_, name);
    return set && set->isInstalled;
}

void Removal::refuse(const QString& which) {
    session_.user.showMessage(
        {MessageKind::exclamation, u"Morvane Information"_s,
         u"You have selected the "_s + which + u" texture set to delete/deactivate."_s +
             kind_.facts.refusalBreak +
             u"This is a protected texture set and no changes can be made to this set."_s,
         true, false, false});
}

QString Removal::question(const QString& name) const {
    if (deactivateMode_)
        return u"Do you wish to deactivate this the texture set: '"_s + name +
               u"'?\n\nSelect Ok, to deactivate the set or select Cancel to cancel the deactivate."_s;
    return u"Do you wish to delete the texture set: '"_s + name +
           u"'?  This action cannot be reversed\n\nSelect Ok, to delete the file or select Cancel to cancel "
           u"the delete."_s;
}

/// The sign that the program is busy: a set has a thousand files. A cancel leaves the sets behind this one.
void Removal::showProgress(const QString& name, qsizetype index, qsizetype count) {
    const QString text = (deactivateMode_ ? u"Deactivating"_s : u"Deleting"_s) + u" texture set "_s +
                         QString::number(index + 1) + u" of "_s + QString::number(count) + u", '"_s + name +
                         u"'.  Please wait............"_s;
    UserInterface& user = session_.user;
    if (!user.isMessageVisible())
        user.showMessage({MessageKind::progress, u"Morvane Information"_s, text, false, count > 1, true});
    user.updateProgress({}, text, 100.0 * static_cast<double>(index) / static_cast<double>(count));
}

/// How many went, all of them unless the store refused or the user has had enough.
qsizetype Removal::removeAll(const QStringList& names) {
    qsizetype removed = 0;
    for (const QString& name : names) {
        showProgress(name, removed, names.size());
        if (session_.user.answers().cancelRequested || !job_.begin() ||
            !removeSet(session_, kind_, name, deactivateMode_))
            break;
        ++removed;
    }
    session_.user.hideMessage();
    return removed;
}

void Removal::tellRemoved(qsizetype removed, qsizetype left) {
    const QString verb = deactivateMode_ ? u" deactivated"_s : u" deleted"_s;
    const QString remark = left > 0 ? countText(left, u"set"_s) + u" left"_s : QString();
    session_.user.tellDone({countText(removed, u"texture set"_s) + verb, remark, left > 0});
}

bool Removal::removeOne(const QString& name) {
    if (name == defaultSetName) {
        refuse(name);
        return false;
    }
    if (kind_.facts.protectsInstalled && isInstalled(name)) {
        refuse(u"currently installed"_s);
        return false;
    }
    if (!session_.user.ask(Question::setAction, u"Morvane Information"_s, question(name))) return false;
    if (removeAll({name}) > 0) tellRemoved(1, 0);
    return true;
}

void Removal::removeSeveral(const QStringList& names) {
    const QStringList confirmed = confirmedNames(session_, names);
    QStringList removable;
    std::ranges::copy_if(confirmed, std::back_inserter(removable), [this](const QString& name) {
        return kind_.find(session_, name) && !isInstalled(name);
    });
    const qsizetype removed = removeAll(removable);
    if (!confirmed.isEmpty()) tellRemoved(removed, confirmed.size() - removed);
}

/// Empties each of the subfolders that holds a bitmap, or the folder itself where the kind has none, and with
/// `removeFolders` removes them. Folders are removed only when empty. What a link points to is left alone:
/// the link itself goes with the folders.
void removeBitmapFolders(Session& session, const FilePath& setFolder, const QStringList& subfolders,
                         bool removeFolders) {
    if (subfolders.isEmpty()) emptyBitmapFolder(session, setFolder);
    const bool isOurs = !session.files.isLink(setFolder);
    for (const QString& name : isOurs ? subfolders : QStringList()) {
        const FilePath folder = setFolder.child(name);
        emptyBitmapFolder(session, folder);
        if (removeFolders) removeFolderOrLink(session.files, folder);
    }
    if (removeFolders) removeFolderOrLink(session.files, setFolder);
}

} // namespace

Reported removeSetsInHand(Session& session, const SetKind& kind, Job& job, bool deactivateMode) {
    const SetInHand inHand = kind.inHand(session);
    const QStringList names = changeableNames(inHand.selection.selectedRows);
    Removal removal(session, kind, job, deactivateMode);
    if (names.size() < 2) return removal.removeOne(QString(inHand.name));
    removal.removeSeveral(names);
    return true;
}

Reported removeSet(Session& session, const SetKind& kind, const QString& name, bool keepRecord) {
    bool stored = false;
    reportFailures(session.user, morvaneError, [&] {
        const auto set = kind.find(session, name);
        if (!set) return;
        // The record goes first: a failure in between leaves files without a row, never a row without a set.
        stored = keepRecord ? kind.storeActivation(session, set->name, false)
                            : kind.removeRecord(session, set->name);
        // A name that no folder can have, of a store that was edited by hand: the row is all there is.
        if (!stored || !FilePath::isChildName(set->name)) return;
        const FilePath folder = kind.setFolder(session, set->name);
        saveForUndo(session, {folder.relative()});
        removeBitmapFolders(session, folder, kind.facts.subfolders, !keepRecord);
    });
    return stored;
}

QStringList changeableNames(const QStringList& rows) {
    QStringList names;
    for (const QString& row : rows)
        if (const QString name = trimmedBlanks(row); name != defaultSetName) names << name;
    return names;
}

QStringList confirmedNames(Session& session, const QStringList& names) {
    session.state<MultiChoice>().multiNames = names;
    session.state<MultiChoice>().multiConfirmed.clear();
    session.user.showModal(Screen::frm_MultiDelete);
    return session.state<MultiChoice>().multiConfirmed;
}

void emptyBitmapFolder(Session& session, const FilePath& folder) {
    if (session.files.isLink(folder)) return;
    const std::vector<FilePath> found = filesIn(session.files, folder, u"*.*"_s);
    if (std::ranges::none_of(found,
                             [](const FilePath& file) { return matchesMask(file.fileName(), u"*.bmp"); }))
        return;
    for (const FilePath& file : found)
        session.files.remove(file);
}

void removeFolderOrLink(FileSystem& files, const FilePath& folder) {
    if (files.isFolder(folder))
        files.removeFolder(folder); // of a link the link alone
    else if (files.isLink(folder))
        files.remove(folder); // it points to nothing any more
}

} // namespace morvane
