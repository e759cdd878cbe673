#pragma once

#include "core/session.h"
#include "sets/originals.h"
#include "sets/undo_record.h"

namespace morvane {

/// Whether the last install can be undone, and what that takes: where the record lies, and how the rooms
/// above say what store and registry call installed.
struct UndoKeeping {
    QJsonObject (*installedRows)(Session&) = nullptr; ///< set at the start, see joinRooms
    int depth = 0;                                    ///< of the steps in hand
    UndoRecord step;                                  ///< the outermost
    bool isWritten = false;
};

/// An install, option or base install as the one thing that an undo takes back. Its files go into the
/// simulator while it lives; a step inside another, the sky behind its ground, is a part of that one. The
/// record of the step before goes with its first file.
class UndoStep {
public:
    explicit UndoStep(Session& session);
    ~UndoStep();
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;

    /// What is installed now, as in UndoRecord. Call it before its row says "installed".
    void add(const QString& part);

private:
    Session& session_;
    UndoKeeping& keeping_;
};

/// "Backup\Undo": the record, and what could not be had again elsewhere.
FilePath undoFolder(const Session& session);
/// The latter, under the paths that they have below the simulator.
FilePath savedForUndo(const Session& session);
/// Adds what stands in the places that `originals` has prepared for the step in hand; without one, nothing.
void keepForUndo(Session& session, const Originals& originals);
/// Call it before files in those folders of the install go or become others: what an undo needs of them is
/// copied.
void saveForUndo(Session& session, const QStringList& folders);

/// The record of the last install into this simulator.
std::optional<UndoRecord> lastStep(const Session& session);
/// There is one; its facts are not read.
bool canUndo(const Session& session);
/// Nothing can be undone any more.
void forgetLastStep(Session& session);

/// Whether installs leave a record; on unless the pilot said no.
bool isUndoWanted(const Session& session);
/// With false what is kept for it goes, too.
void setUndoWanted(Session& session, bool isWanted);

} // namespace morvane
