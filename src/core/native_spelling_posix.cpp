#include "core/native_spelling.h"

#include <QFile>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>

namespace morvane {

namespace {

/// A dangling link is there, too. Asked before every operation on a file, so in one call to the system.
bool existsExactly(const QString& path) {
    struct stat properties {};
    return lstat(QFile::encodeName(path).constData(), &properties) == 0;
}

/// The name as the folder spells it, or as given when the folder has no such name in any case. Folders have
/// thousands of names, and this is asked for every new file of an install: no file's properties are read.
QString spellingOnDisk(const QString& folder, const QString& name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(QFile::encodeName(folder).constData()),
                                                        closedir);
    QString found;
    while (const dirent* entry = directory ? readdir(directory.get()) : nullptr) {
        const QString spelling = QFile::decodeName(entry->d_name);
        const bool same = spelling.compare(name, Qt::CaseInsensitive) == 0;
        if (same && (found.isEmpty() || spelling < found)) found = spelling;
    }
    return found.isEmpty() ? name : found;
}

} // namespace

QString spelledAsOnDisk(const QString& root, const QStringList& names) {
    const QString asJoined = withSeparator(root) + names.join(u'/');
    if (existsExactly(asJoined)) return asJoined;
    QString path = root;
    for (const QString& name : names) {
        const QString folder = withSeparator(path);
        path = folder + name;
        if (!existsExactly(path)) path = folder + spellingOnDisk(folder, name);
    }
    return path;
}

int countNamelessFiles(const QString& folder, const QString& ending) {
    int count = 0;
    std::error_code error;
    const std::filesystem::directory_iterator end;
    for (auto entry = std::filesystem::directory_iterator(folder.toStdU16String(), error);
         !error && entry != end; entry.increment(error)) {
        const QByteArray name = QByteArray::fromStdString(entry->path().filename().native());
        const QString text = QFile::decodeName(name);
        count += QFile::encodeName(text) != name && text.endsWith(ending, Qt::CaseInsensitive);
    }
    return count;
}

} // namespace morvane
