#pragma once

#include "sets/original_facts.h"

#include <QDateTime>
#include <QJsonObject>
#include <QStringList>

namespace morvane {

/// What one install, option or base install found where it put its files. The files themselves are not in it:
/// each fact says where those bytes can be had again.
struct UndoRecord {
    QString simulator; ///< its folder as the system spells it
    QStringList parts; ///< what was installed: "Ground set 12-Storm"
    QDateTime time;    ///< when it began, local
    QJsonObject rows;  ///< what store and registry said was installed before
    /// One a place. `kept`: the pilot's file, which lies in `where`; `ours`: one of ours, copied from
    /// `where`; `added`: nothing. `mode` is that of the file as it stood.
    std::vector<OriginalFact> stood;
};

/// A list as that of the originals, with one line more for what was done.
QByteArray undoText(const UndoRecord& record);
/// Nothing for a file without that line. Raises as parseOriginals does.
std::optional<UndoRecord> parseUndo(const QByteArray& bytes, const FilePath& file);

} // namespace morvane
