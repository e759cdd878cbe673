#pragma once

#include <QString>

namespace morvane {

/// Whether nothing of an install lies there yet, or a first start was cut while it put its files in place.
bool awaitsFirstStart(const QString& home);

/// Fills the install folder by the content tool, with progress; what lies there already stays. It is made
/// whole in a folder of its own inside, then moved up, the store last, so that a start that was cut short
/// leaves nothing that a later one could take for an install. False when the user cancelled, and after a
/// failure was told.
bool makeInstallFolder(const QString& home);

} // namespace morvane
