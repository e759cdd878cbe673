#pragma once

#include "core/session.h"
#include "sets/originals.h"

namespace morvane {

// Titles that mean more than their files.
inline const QString addOnConfig = u"UT Europe Industrial Areas"_s;    ///< only where the add-on stands
inline const QString globalDayConfig = u"Global Coverage - Day"_s;     ///< "Default" becomes the ground set
inline const QString globalNightConfig = u"Global Coverage - Night"_s; ///< and the night set

/// Copies the bodies of files with those titles (`ConfigName`) into the simulator and marks their rows as
/// installed, which nothing takes back. Read-only targets are replaced and lose the mark. A file that cannot
/// be read or copied is passed over; the line at the end has their number.
void copyBaseResources(Session& session, const QStringList& tickedTitles);

/// Appends all files of the folder, those of its subfolders left out. False after the message of a failure.
bool collectFolderFiles(Session& session, const FilePath& sourceFolder, const FilePath& targetFolder,
                        std::vector<FileCopy>& copies);

} // namespace morvane
