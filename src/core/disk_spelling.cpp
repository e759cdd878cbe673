#include "core/disk_spelling.h"

#include "core/literals.h"

#include <algorithm>

namespace morvane {

namespace {

/// Nothing when none is. Compared once more: folded texts are alike where the names are not ("ß" and "ss").
QString spellingAmong(const QStringList& names, const QString& name) {
    if (names.contains(name)) return name;
    const auto same = std::ranges::find_if(
        names, [&](const QString& other) { return other.compare(name, Qt::CaseInsensitive) == 0; });
    return same == names.end() ? QString() : *same;
}

} // namespace

FilePath DiskSpelling::find(const QString& path) {
    return spelled(path, false);
}

FilePath DiskSpelling::findExactly(const QString& path) {
    return spelled(path, true);
}

FilePath DiskSpelling::spelled(const QString& path, bool isExact) {
    const qsizetype end = path.lastIndexOf(u'\\');
    Folder& inside = folder(path.left(std::max<qsizetype>(end, 0)));
    const QString name = path.mid(end + 1);
    const FilePath asGiven = inside.path.exactChild(name);
    QStringList& alike = inside.names[name.toCaseFolded()];
    const QString known = spellingAmong(alike, name);
    if (!known.isEmpty() && (!isExact || known == name || files_.exists(asGiven)))
        return inside.path.exactChild(known);
    alike << name;
    return asGiven;
}

DiskSpelling::Folder& DiskSpelling::folder(const QString& path) {
    if (!spelledFolders_.contains(path)) {
        const FilePath found = findFolder(path);
        spelledFolders_.insert(path, found.relative());
        if (!folders_.contains(found.relative())) {
            Folder& listed = folders_[found.relative()];
            listed.path = found;
            for (const QString& name : files_.list(found, u"*"_s))
                listed.names[name.toCaseFolded()] << name;
        }
    }
    return folders_[spelledFolders_.value(path)];
}

FilePath DiskSpelling::findFolder(const QString& path) {
    FilePath at = root_;
    for (const QString& name : path.split(u'\\', Qt::SkipEmptyParts)) {
        // What FilePath finds, a link included; on a drive that takes any spelling that is the one asked for.
        const QString found = FilePath(at.child(name).native()).fileName();
        const QString listed = spellingAmong(files_.listFolders(at), found);
        at = at.exactChild(listed.isEmpty() ? found : listed);
    }
    return at;
}

} // namespace morvane
