#pragma once

#include <QStringList>

namespace morvane {

/// "/" and "C:/" bring their separator with them.
inline QString withSeparator(const QString& root) {
    return root.endsWith(u'/') ? root : root + u'/';
}

/// The names joined below `root`, as the system finds them: where it tells "A" from "a", each in the spelling
/// that its folder has, or as given where there is none in any case.
QString spelledAsOnDisk(const QString& root, const QStringList& names);

/// Files whose names are no text on this system: no listing has them and no path reaches them.
int countNamelessFiles(const QString& folder, const QString& ending);

} // namespace morvane
