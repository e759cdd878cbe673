#pragma once

#include "core/session.h"

namespace morvane {

/// True when both paths lead to the same folder, through links or in another spelling. A path that leads
/// nowhere is the same as none.
bool isSameFolder(const FilePath& one, const FilePath& other);

/// Whether the simulator's program lies in the folder; not in one without a name.
bool holdsSimulator(FileSystem& files, const QString& folder);

/// Last write time as "2006/07/14 14:07:00": local time, the seconds always "00". Empty for a file that
/// cannot be opened.
QString fileTimeText(const FilePath& path);
/// The same; a file that cannot be opened is told.
QString GetFileTime(Session& session, const FilePath& path);
/// The message of a file whose time cannot be had.
Message unreadableFileMessage();

/// The contents of a plain file; empty where it is larger than `most` bytes, cannot be read, or is something
/// else that would never end, such as a pipe.
QByteArray readBounded(FileSystem& files, const FilePath& path, std::int64_t most);

/// Nothing of that name is there, or the user has agreed that it is written over.
bool mayReplace(Session& session, const FilePath& file);

/// The user's folder of that number, with a separator behind it; empty for a number without a folder here.
/// Known is 5, the documents.
QString GetSpecialFolder(int number);

/// File version of a Windows executable as "a.b.c.d", from its fixed version record; empty without one.
QString getFileVersionText(FileSystem& files, const FilePath& path);
/// The part of a version text by index; missing and non-numeric parts count as 0.
int versionPart(const QString& version, int index);

} // namespace morvane
