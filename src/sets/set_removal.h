#pragma once

#include "core/reported.h"
#include "sets/set_kind.h"

namespace morvane {

/// frm_MultiDelete: the names offered and those that were confirmed.
struct MultiChoice {
    QStringList multiNames;
    QStringList multiConfirmed;
};

/// Removes the set that the kind's list has in hand after a question, or with two and more rows those that
/// frm_MultiDelete confirmed; with `deactivateMode` only the files go, the record and its colours stay.
/// "Default" and, where the kind protects it, the installed set are refused when they stand alone; among
/// several both are passed over without a word. How many went is told at the end; a cancel or a refusal of
/// the store ends it before the next set. False when it was refused or answered with no. The job begins with
/// the first set.
Reported removeSetsInHand(Session& session, const SetKind& kind, Job& job, bool deactivateMode);

/// Takes the set's record, or with `keepRecord` its activation, and then its files. False when the store
/// refused: the files then stay.
Reported removeSet(Session& session, const SetKind& kind, const QString& name, bool keepRecord);

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
