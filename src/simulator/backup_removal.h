#pragma once

#include "core/reported.h"
#include "core/session.h"

namespace morvane {

/// Over all that is said of it.
inline const QString removalTitle = u"What Morvane Keeps"_s;

/// Removes the backup of that row behind a question. No file of the pilot's is ever lost with it: each that
/// was his when it was made has to be somewhere else, with the same bytes, as his in its place in the
/// simulator, among the originals of that place, or in another complete backup; else the backup stays, and
/// the message names what is nowhere else. A removal that was cut short leaves a partial backup, and can be
/// repeated. False when it was refused, answered with no or cancelled.
Reported removeBackup(Session& session, const QString& name);

} // namespace morvane
