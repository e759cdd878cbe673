#pragma once

#include <QStringList>
#include <optional>

namespace morvane {

/// "/" and "C:/" bring their separator with them.
inline QString withSeparator(const QString& root) {
    return root.endsWith(u'/') ? root : root + u'/';
}

/// The names joined below `root`, as the system finds them: where it tells "A" from "a", each in the spelling
/// that its folder has, or as given where there is none in any case.
QString spelledAsOnDisk(const QString& root, const QStringList& names);

/// Names of all in the folder that is no folder, a link taken for what it leads to and names that are no text
/// left out; empty where there is no such folder, nothing where it cannot be read. Folders have thousands of
/// names, so no file's properties are read where the system tells its kind with the name.
std::optional<QStringList> namesOfFiles(const QString& folder);

/// Files whose names are no text on this system: no listing has them and no path reaches them.
int countNamelessFiles(const QString& folder, const QString& ending);

} // namespace morvane
