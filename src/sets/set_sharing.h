#pragma once

#include "core/file_path.h"
#include "core/reported.h"

namespace morvane {

class Session;
class SetKind;

/// Writes a set that is there into a file for other pilots, with what the author says of himself. Asks before
/// another file is written over; false after a No, too.
Reported exportSet(Session& session, const SetKind& kind, const QString& name, const FilePath& file,
                   const QString& author = {});

/// Takes a look out of such a file, as a favourite of its own kind is saved; shows that kind's list with it
/// in hand. Gives the kind; nothing after the message why nothing was taken.
const SetKind* importSharedSet(Session& session, const FilePath& file);

/// The same, told in the line of what was done: for those that a file was opened with.
const SetKind* openLook(Session& session, const FilePath& file);

} // namespace morvane
