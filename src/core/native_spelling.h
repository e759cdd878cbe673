#pragma once

#include <QStringList>
#include <functional>

namespace morvane {

/// "/" and "C:/" bring their separator with them.
inline QString withSeparator(const QString& root) {
    return root.endsWith(u'/') ? root : root + u'/';
}

/// The names joined below `root`, as the system finds them: where it tells "A" from "a", each in the spelling
/// that its folder has, or as given where there is none in any case.
QString spelledAsOnDisk(const QString& root, const QStringList& names);

/// Tells the name of all in the folder that is no folder, a link taken for what it leads to and names that
/// are no text left out; of no such folder none. False where it cannot be read. Folders have thousands of
/// names, so no file's properties are read where the system tells its kind with the name, and the text, which
/// stands for the call alone, takes memory for no name of plain letters.
bool tellNamesOfFiles(const QString& folder, const std::function<void(QStringView)>& tell);

/// Files whose names are no text on this system: no listing has them and no path reaches them.
int countNamelessFiles(const QString& folder, const QString& ending);

} // namespace morvane
