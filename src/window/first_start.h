#pragma once

#include <QString>

namespace morvane {

/// False after the message that there is no such file: the one that the program was started with.
bool isThere(const QString& file);

/// Fills an install folder that awaits its first start (app/first_install.h), with progress. False when the
/// user cancelled, and after a failure was told.
bool makeInstallFolder(const QString& home);

} // namespace morvane
