#pragma once

#include "simulator/backup_run.h"

namespace morvane {

/// Makes a backup of the simulator's textures. The first run of all tells the user what is done, every other
/// one asks, unless the user has said already that it is wanted; a first run that was cut short is gone on
/// with, in the same row and folder. A file that cannot be read is left out: one locked file must not cost
/// the pilot the backup. A message at the end tells how many are missing. Nothing when it was refused, when
/// the disk has no room for it, which is told, or after the message of a failure.
std::optional<BackupReport> createBackup(Session& session, bool isFirstRun, bool isConfirmed = false);
/// The key of the page: createBackup with its question, then the message goes.
void backupOnRequest(Session& session);

/// The backup holds every texture that the simulator had, each of them checked.
bool isBackupComplete(Session& session, const QString& name);

} // namespace morvane
