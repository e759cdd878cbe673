#pragma once

#include <QString>

namespace morvane {

/// Makes the install folder by the content tool, with progress; for a program that lies outside its data and
/// is started for the first time. It is made under a name of its own and renamed when it is whole, so that a
/// start that was cut short leaves nothing that a later one could take for an install. False when the user
/// cancelled, and after a failure was told.
bool makeInstallFolder(const QString& home);

} // namespace morvane
