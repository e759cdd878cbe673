#include "core/native_spelling.h"

#include <QFile>
#include <cerrno>
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

using Directory = std::unique_ptr<DIR, int (*)(DIR*)>;

Directory openDirectory(const QString& folder) {
    return {opendir(QFile::encodeName(folder).constData()), closedir};
}

bool leadsToFolder(const Directory& directory, const dirent& entry) {
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
    struct stat properties {};
    return fstatat(dirfd(directory.get()), entry.d_name, &properties, 0) == 0 && S_ISDIR(properties.st_mode);
}

/// The name as the folder spells it, or as given when the folder has no such name in any case. For one path;
/// a list of files is looked up by DiskSpelling.
QString spellingOnDisk(const QString& folder, const QString& name) {
    const Directory directory = openDirectory(folder);
    QString found;
    while (const dirent* entry = directory ? readdir(directory.get()) : nullptr) {
        const QString spelling = QFile::decodeName(entry->d_name);
        const bool same = spelling.compare(name, Qt::CaseInsensitive) == 0;
        if (same && (found.isEmpty() || spelling < found)) found = spelling;
    }
    return found.isEmpty() ? name : found;
}

void tellName(const char* name, const std::function<void(QStringView)>& tell) {
    char16_t plain[sizeof(dirent::d_name)];
    char16_t* end = plain;
    for (; *name > 0; ++name)
        *end++ = static_cast<char16_t>(*name);
    const char* const start = name - (end - plain);
    if (*name == 0)
        tell(QStringView(plain, end));
    else if (QUtf8StringView(start).isValidUtf8())
        tell(QFile::decodeName(start));
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

bool tellNamesOfFiles(const QString& folder, const std::function<void(QStringView)>& tell) {
    const Directory directory = openDirectory(folder);
    if (!directory) return errno == ENOENT || errno == ENOTDIR;
    while (const dirent* entry = readdir(directory.get()))
        if (!leadsToFolder(directory, *entry)) tellName(entry->d_name, tell);
    return true;
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
