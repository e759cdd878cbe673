#pragma once

#include "core/session.h"
#include "sheets/sheet.h"

namespace morvane {

// The sheet of the set of that name, from the files that stand now; nothing where there is no such set. No
// picture is read. They raise what a listing raises; a set with damaged colours has a sheet, without what
// would have to be made of them.

std::optional<Sheet> groundSheet(Session& session, const QString& name);
std::optional<Sheet> nightSheet(Session& session, const QString& name);
std::optional<Sheet> skySheet(Session& session, const QString& name);

} // namespace morvane
