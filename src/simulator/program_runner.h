#pragma once

#include "core/session.h"

namespace morvane {

/// `startProgram` with the runner that the registry names. Where a program of Windows has none, nothing is
/// started and that is told at once: false then. `name` is what the user calls the program.
bool startWithRunner(Session& session, const QString& name, const FilePath& program,
                     const FilePath& document = {});

} // namespace morvane
