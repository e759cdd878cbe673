#include "core/disk_spelling.h"

#include "core/literals.h"

#include <algorithm>

namespace morvane {

FilePath DiskSpelling::find(const QString& path) {
    return spelled(path, false);
}

FilePath DiskSpelling::findExactly(const QString& path) {
    return spelled(path, true);
}

FilePath DiskSpelling::spelled(const QString& path, bool isExact) {
    const qsizetype end = path.lastIndexOf(u'\\');
    Folder& inside = folder(QStringView(path).first(std::max<qsizetype>(end, 0)));
    const QString name = path.mid(end + 1);
    const FilePath asGiven = inside.path.exactChild(name);
    const QString known = inside.names.spellingOf(name);
    if (!known.isEmpty() && (!isExact || known == name || files_.exists(asGiven)))
        return known == name ? asGiven : inside.path.exactChild(known);
    inside.names.add(name);
    return asGiven;
}

std::vector<FilePath> DiskSpelling::filesEndingWith(const QString& path, QStringView ending) {
    const Folder& inside = folder(path);
    std::vector<FilePath> found;
    for (const QString& name : inside.names.endingWith(ending))
        found.push_back(inside.path.exactChild(name));
    return found;
}

DiskSpelling::Folder& DiskSpelling::folder(QStringView asked) {
    if (last_ && asked == lastPath_) return *last_;
    const QString path = asked.toString();
    Folder*& known = spelledFolders_[path];
    if (!known) {
        const FilePath found = findFolder(path);
        auto listed = folders_.find(found.relative());
        if (listed == folders_.end()) listed = folders_.emplace(found.relative(), list(found)).first;
        known = &listed->second;
    }
    lastPath_ = path;
    return *(last_ = known);
}

DiskSpelling::Folder DiskSpelling::list(const FilePath& folder) {
    Folder listed{folder, {}};
    files_.tellNames(folder, [&](QStringView name) { listed.names.add(name); });
    listed.names.endListing();
    return listed;
}

FilePath DiskSpelling::findFolder(const QString& path) {
    FilePath at = root_;
    for (const QString& name : path.split(u'\\', Qt::SkipEmptyParts)) {
        // What FilePath finds, a link included; on a drive that takes any spelling that is the one asked for.
        const QString found = FilePath(at.child(name).native()).fileName();
        FolderNames folders;
        for (const QString& folder : files_.listFolders(at))
            folders.add(folder);
        folders.endListing();
        const QString listed = folders.spellingOf(found);
        at = at.exactChild(listed.isEmpty() ? found : listed);
    }
    return at;
}

} // namespace morvane
