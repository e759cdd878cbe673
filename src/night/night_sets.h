#pragma once

#include "core/session.h"
#include "night/night_texture_sets.h"

namespace morvane {

/// The session's night sets, loaded when they are not there yet. Raises "The database cannot be used" when
/// they cannot be had at all.
clsNightTextureSets& loadedNightSets(Session& session);

/// The same, read anew: records in memory stay as they were loaded. False after the message of a failure.
bool refreshNightSets(Session& session);

/// The record of the set of that name, both trimmed; nothing when there is none.
std::shared_ptr<const clsNightTextureSet> findNightSet(Session& session, const QString& name);

/// The folder of the named night set. Raises "Path not found" for a name that is no single folder name.
FilePath nightSetFolder(const Session& session, const QString& name);

/// Subfolders of a night set's folder: the add-on's areas have no lights of their own.
inline const QStringList nightSubfolders{u"Texture"_s, u"Dutch"_s};

} // namespace morvane
