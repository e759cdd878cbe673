#include "core/folder_room.h"

#include "core/attempts.h"
#include "core/literals.h"

namespace morvane {

FolderRoom roomBelow(FileSystem& files, const FilePath& folder) {
    FolderRoom room;
    const FilePath inside = folder.resolved();
    QStringList names, folders;
    attempt([&] {
        names = files.list(inside, u"*"_s);
        folders = files.listFolders(inside);
    });
    for (const QString& name : names)
        attempt([&] {
            room.bytes += files.size(inside.exactChild(name));
            ++room.files;
        });
    for (const QString& name : folders)
        attempt([&] {
            const FilePath below = inside.exactChild(name);
            if (files.isLink(below)) return;
            const FolderRoom inner = roomBelow(files, below);
            room.files += inner.files;
            room.bytes += inner.bytes;
        });
    return room;
}

} // namespace morvane
