#pragma once

#include "core/session.h"

#include <QStringList>
#include <functional>
#include <optional>

namespace morvane {

/// frm_MultiDelete: the names offered and those that were confirmed.
struct MultiChoice {
    QStringList multiNames;
    QStringList multiConfirmed;
};

enum class SetState { missing, installed, removable };

/// What the removal of one kind of set needs of it.
struct SetRemoval {
    bool deactivateMode; ///< only the files go, the record and its colours stay
    QString selectedName;
    QStringList selectedRows;
    QString refusalBreak; ///< between the two sentences of a refusal
    std::function<SetState(const QString& name)> stateOf;
    /// False when the store refused: the files then stay, and so do the sets behind this one.
    std::function<bool(const QString& name)> remove;
    bool protectsInstalled = true; ///< the installed set is refused when it stands alone
};

/// Removes the set in hand after a question, or with two and more rows those that frm_MultiDelete confirmed.
/// "Default" and, where protected, the installed set are refused when they stand alone; among several both
/// are passed over without a word. How many went is told at the end; a cancel ends it before the next set.
/// False when it was refused or answered with no.
bool removeSets(Session& session, const SetRemoval& removal);

/// Names of the rows, trimmed and without "Default".
QStringList changeableNames(const QStringList& rows);
/// Those of the names that the user confirms on frm_MultiDelete; empty when cancelled.
QStringList confirmedNames(Session& session, const QStringList& names);

/// Removes every file of a folder that holds at least one bitmap. A folder that is a link is left alone with
/// what it points to.
void emptyBitmapFolder(Session& session, const FilePath& folder);
/// Removes a folder that is empty; of a link the link, and never what it points to. Nothing when neither is
/// there.
void removeFolderOrLink(FileSystem& files, const FilePath& folder);

} // namespace morvane
