#pragma once

#include "core/session.h"

#include <QDate>
#include <optional>

namespace morvane {

/// What an install of Morvane leaves in the simulator's folder, so that another one does not take its
/// textures for the pilot's: "Morvane note.ini", and nothing else.
struct SimulatorNote {
    QString name;          ///< of the user and the PC
    QString installFolder; ///< as the system spells it
    QDate day;             ///< of the first copy
};

/// Nothing without a readable one.
std::optional<SimulatorNote> readSimulatorNote(FileSystem& files, const FilePath& simulator);

/// Whether another install has put its textures there, so that `claimSimulator` would ask.
bool belongsToAnother(const Session& session);
/// Call it before anything is stored about a copy into the simulator. Where another install has put its
/// textures there, the user is asked whether its record is to be taken over: with Yes that one's kept files
/// and facts become ours, as far as they can be read. False when he wants to stay away.
bool claimSimulator(Session& session);

/// Notes that the textures there are ours. Raises "Permission denied" for another's simulator that was not
/// claimed.
void noteSimulator(Session& session);

/// Behind a restore that left nothing of ours there.
void removeSimulatorNote(Session& session);

} // namespace morvane
