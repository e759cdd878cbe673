#pragma once

#include "core/session.h"

namespace morvane {

/// The files of a backup: "\Backup\<name>\Texture" and "\Backup\<name>\UTEurLC" hold the textures of the
/// simulator as they were. The list "backup.lst" beside them, written last, has a line a file: size, SHA-1
/// and path below the backup, separated by tabs. A backup without it was cut short; it can be restored as far
/// as it came.

/// Makes a backup. The first run of all tells the user what is done, every other one asks. A file that
/// cannot be read is left out without a word: one locked file must not cost the pilot the backup.
void createBackup(Session& session, bool isFirstRun);
/// The key of the page: createBackup with its question, then the message goes.
void backupOnRequest(Session& session);

/// Copies the files of that backup back into the simulator, each safely as every copy of ours; the rows of
/// installed sets stay as they are. Passed over without a word: files that stand there already, read-only
/// targets, and a file whose contents are not those that the list knows.
void restoreBackup(Session& session, const QString& name);
/// Offers the backups (frm_BackupList) and restores the chosen one; nothing without any.
void restoreBackupOnRequest(Session& session);

/// The backup's list was written, so it holds every file that could be read.
bool isBackupComplete(Session& session, const QString& name);

} // namespace morvane
