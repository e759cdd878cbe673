#pragma once

#include "core/file_path.h"
#include "core/literals.h"
#include "core/reported.h"

namespace morvane {

class Session;

inline const QString reportEnding = u"zip"_s;

/// Writes what helps to find out what went wrong into an archive: the log, versions, settings, the store's
/// rows, what `verify` says, and what only a real simulator can show. Nothing in it that the pilot typed. A
/// part that cannot be had says why in its place. Asks before another file is written over; false after a No,
/// too.
Reported saveReport(Session& session, const FilePath& file);

} // namespace morvane
