#pragma once

#include "core/reported.h"
#include "core/session.h"

namespace morvane {

/// `startProgram` with the runner that the registry names. Where it names none a Windows program in a prefix
/// of plain wine is started by `wine`; in one that another program keeps, or in none, nothing is started.
/// False after the message of why it does not run. `name` is what the user calls the program.
Reported startWithRunner(Session& session, const QString& name, const FilePath& program,
                         const FilePath& document = {});

void tellNotStarted(Session& session, const QString& name, const QString& why);

} // namespace morvane
