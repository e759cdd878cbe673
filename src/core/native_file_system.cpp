#include "core/bounded_reading.h"
#include "core/error.h"
#include "core/file_system.h"
#include "core/native_file_calls.h"
#include "core/native_spelling.h"
#include "core/safe_copy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <set>
#include <type_traits>
#include <utility>
#include <vector>

namespace morvane {

namespace {

constexpr qint64 copyBlockSize = 1 << 18;

ErrorCode codeOf(const std::error_code& error) {
    if (error == std::errc::no_such_file_or_directory) return ErrorCode::pathNotFound;
    if (error == std::errc::no_space_on_device) return ErrorCode::diskFull;
    if (error == std::errc::io_error) return ErrorCode::ioFailure;
    if (error == std::errc::cross_device_link) return ErrorCode::otherDrive;
    if (error == std::errc::directory_not_empty) return ErrorCode::folderNotEmpty;
    return ErrorCode::permissionDenied;
}

ErrorCode codeOf(QFileDevice::FileError error, ErrorCode otherwise) {
    switch (error) {
    case QFileDevice::PermissionsError:
        return ErrorCode::permissionDenied;
    case QFileDevice::ResourceError:
        return ErrorCode::diskFull;
    case QFileDevice::ReadError:
        return ErrorCode::ioFailure;
    // A write that fails on an open file has no room left, in all but broken hardware.
    case QFileDevice::WriteError:
        return ErrorCode::diskFull;
    default:
        return otherwise;
    }
}

/// In the system's own letters: the library takes its time to convert others.
std::filesystem::path systemPath(const FilePath& path) {
    using Letter = std::filesystem::path::value_type;
    if constexpr (std::is_same_v<Letter, char>)
        return QFile::encodeName(path.native()).toStdString();
    else
        return path.native().toStdU16String();
}

void raise(const std::error_code& error, const FilePath& path) {
    if (error) throw Error(codeOf(error), path.text());
}

ErrorCode missingOrDenied(const FilePath& path) {
    return QFileInfo::exists(path.native()) ? ErrorCode::permissionDenied : ErrorCode::fileNotFound;
}

ErrorCode noFolderOrDenied(const QFile& file) {
    const bool hasFolder = QFileInfo::exists(QFileInfo(file.fileName()).path());
    return hasFolder ? ErrorCode::permissionDenied : ErrorCode::pathNotFound;
}

// Opening has one error for what is missing and what is closed to this user: a look at what is there tells
// them apart.
void openFile(QFile& file, const FilePath& path, QIODevice::OpenMode mode, HeldFiles& heldFiles) {
    if (file.open(mode) || (heldFiles.outlast(path) && file.open(mode))) return;
    const bool isWriting = mode.testFlag(QIODevice::WriteOnly);
    throw Error(codeOf(file.error(), isWriting ? noFolderOrDenied(file) : missingOrDenied(path)),
                path.text());
}

void writeAll(QFileDevice& file, const char* bytes, qint64 count, const FilePath& path) {
    if (file.write(bytes, count) != count)
        throw Error(codeOf(file.error(), ErrorCode::diskFull), path.text());
}

QStringList sortedByUpperName(const QStringList& names) {
    std::vector<std::pair<QString, QString>> byUpperName;
    for (const QString& name : names)
        byUpperName.emplace_back(name.toUpper(), name);
    std::ranges::sort(byUpperName);
    QStringList sorted;
    for (const auto& [upper, name] : byUpperName)
        sorted << name;
    return sorted;
}

void copyByBlocks(QFile& in, QFile& out, const FilePath& source, const FilePath& target) {
    QByteArray block(copyBlockSize, Qt::Uninitialized);
    while (true) {
        const qint64 count = in.read(block.data(), block.size());
        if (count < 0) throw Error(ErrorCode::ioFailure, source.text());
        if (count == 0) break;
        writeAll(out, block.constData(), count, target);
    }
}

/// The file's folder; where that was removed, the one above, which tells so.
std::filesystem::path folderThere(const std::filesystem::path& file) {
    std::filesystem::path folder = file.parent_path();
    while (folder.has_relative_path() && !std::filesystem::exists(folder))
        folder = folder.parent_path();
    return folder;
}

} // namespace

bool NativeFileSystem::exists(const FilePath& path) {
    return QFileInfo::exists(path.native());
}

bool NativeFileSystem::isFolder(const FilePath& path) {
    return QFileInfo(path.native()).isDir();
}

QStringList NativeFileSystem::list(const FilePath& folder, const QString& mask) {
    QStringList taken;
    tellNames(folder, [&](QStringView name) {
        if (matchesMask(name, mask)) taken << name.toString();
    });
    return sortedByUpperName(taken);
}

void NativeFileSystem::tellNames(const FilePath& folder, const std::function<void(QStringView)>& tell) {
    if (!tellNamesOfFiles(folder.native(), tell)) throw Error(ErrorCode::permissionDenied, folder.text());
}

int NativeFileSystem::namelessFiles(const FilePath& folder, const QString& ending) {
    return countNamelessFiles(folder.native(), ending);
}

QStringList NativeFileSystem::listFolders(const FilePath& folder) {
    const QDir directory(folder.native());
    if (directory.exists() && !directory.isReadable())
        throw Error(ErrorCode::permissionDenied, folder.text());
    const auto filters = QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    return sortedByUpperName(directory.entryList(filters, QDir::Unsorted));
}

void NativeFileSystem::makeFolder(const FilePath& folder) {
    std::set<std::filesystem::path> above;
    for (auto path = systemPath(folder); path.has_relative_path() && !std::filesystem::exists(path);
         path = path.parent_path())
        above.insert(path.parent_path());
    std::error_code error;
    std::filesystem::create_directories(systemPath(folder), error);
    raise(error, folder);
    const std::lock_guard lock(mutex_);
    foldersWithNew_.merge(above);
}

void NativeFileSystem::copyContents(const FilePath& source, const FilePath& target) {
    const QString from = source.native(), to = target.native();
    if (copyInsideSystem(from, to)) return;
    QFile in(from), out(to);
    openFile(in, source, QIODevice::ReadOnly | QIODevice::Unbuffered, heldFiles_);
    openFile(out, target, QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered, heldFiles_);
    copyByBlocks(in, out, source, target);
}

void NativeFileSystem::rename(const FilePath& source, const FilePath& target) {
    std::error_code error = renameInOneStep(systemPath(source), systemPath(target));
    if (error && heldFiles_.outlast(target) && heldFiles_.outlast(source))
        error = renameInOneStep(systemPath(source), systemPath(target));
    raise(error, target);
}

void NativeFileSystem::remove(const FilePath& file) {
    std::error_code error = removeFile(systemPath(file));
    if (error && heldFiles_.outlast(file)) error = removeFile(systemPath(file));
    if (error) throw Error(missingOrDenied(file), file.text());
}

void NativeFileSystem::removeFolder(const FilePath& folder) {
    const auto path = systemPath(folder);
    if (!std::filesystem::is_directory(path)) throw Error(ErrorCode::pathNotFound, folder.text());
    raise(removeEmptyFolder(path), folder);
}

bool NativeFileSystem::isLink(const FilePath& path) {
    const QFileInfo info(path.native());
    return info.isSymbolicLink() || info.isJunction(); // what Windows calls a shortcut is a file
}

bool NativeFileSystem::isReadOnly(const FilePath& file) {
    const QFileInfo info(file.native());
    return info.exists() && !info.permission(QFileDevice::WriteOwner);
}

void NativeFileSystem::setReadOnly(const FilePath& file, bool readOnly) {
    const auto write = QFileDevice::WriteOwner | QFileDevice::WriteUser;
    auto permissions = QFileInfo(file.native()).permissions();
    permissions = readOnly ? permissions & ~(write | QFileDevice::WriteGroup | QFileDevice::WriteOther)
                           : permissions | write;
    if (!QFile::setPermissions(file.native(), permissions)) throw Error(missingOrDenied(file), file.text());
}

void NativeFileSystem::copyMode(const FilePath& model, const FilePath& target) {
    setMode(target, stamp(model).mode);
}

void NativeFileSystem::setMode(const FilePath& file, unsigned mode) {
    std::error_code error;
    std::filesystem::permissions(systemPath(file), std::filesystem::perms{mode}, error);
    raise(error, file);
}

std::int64_t NativeFileSystem::size(const FilePath& file) {
    const QFileInfo info(file.native());
    if (!info.exists()) throw Error(ErrorCode::fileNotFound, file.text());
    return info.size();
}

std::int64_t NativeFileSystem::freeSpace(const FilePath& folder) {
    // The toolkit looks for the folder's volume in the list of mounts, which a sandbox may not have.
    std::error_code error;
    const std::filesystem::space_info space = std::filesystem::space(systemPath(folder), error);
    return error ? -1 : static_cast<std::int64_t>(space.available);
}

bool NativeFileSystem::isOnNetwork(const FilePath& folder) {
    return isNetworkDrive(systemPath(folder));
}

QByteArray NativeFileSystem::read(const FilePath& file) {
    const QString path = file.native();
    if (const auto contents = readAll(path)) return *contents;
    QFile in(path);
    openFile(in, file, QIODevice::ReadOnly, heldFiles_);
    const QByteArray contents = in.readAll();
    if (in.error() != QFileDevice::NoError) throw Error(ErrorCode::ioFailure, file.text());
    return contents;
}

QByteArray NativeFileSystem::readPart(const FilePath& file, std::int64_t from, std::int64_t count) {
    QFile in(file.native());
    openFile(in, file, QIODevice::ReadOnly | QIODevice::Unbuffered, heldFiles_);
    if (!in.isSequential()) { // a pipe has no size, and no other place to begin at
        if (!in.seek(from)) throw Error(ErrorCode::ioFailure, file.text());
        count = std::clamp<std::int64_t>(in.size() - from, 0, count);
    }
    const QByteArray part = readUpTo(in, count);
    if (in.error() != QFileDevice::NoError) throw Error(ErrorCode::ioFailure, file.text());
    return part;
}

void NativeFileSystem::write(const FilePath& file, const QByteArray& contents) {
    const FilePath placed = file.resolved(), part = partOf(placed);
    try {
        QFile out(part.native());
        openFile(out, part, QIODevice::WriteOnly | QIODevice::Unbuffered, heldFiles_);
        writeAll(out, contents.constData(), contents.size(), part);
        out.close();
        rename(part, placed);
    } catch (const Error&) {
        QFile::remove(part.native());
        throw;
    }
}

bool NativeFileSystem::writeNew(const FilePath& file, const QByteArray& contents) {
    QFile out(file.native());
    if (!out.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        if (exists(file) || isLink(file)) return false;
        throw Error(codeOf(out.error(), noFolderOrDenied(out)), file.text());
    }
    try {
        writeAll(out, contents.constData(), contents.size(), file);
    } catch (const Error&) {
        out.remove();
        throw;
    }
    return true;
}

void NativeFileSystem::makeDurable(const std::vector<FilePath>& files) {
    constexpr std::size_t few = 16; // from here on one by one costs more than the whole drive
    std::set<std::filesystem::path> folders;
    for (const FilePath& file : files)
        folders.insert(folderThere(systemPath(file)));
    if (files.size() > few) {
        bool areDone = true;
        for (const auto& folder : folders)
            if (const auto error = flushDrive(folder))
                raise(*error, FilePath(QString::fromStdU16String(folder.u16string())));
            else
                areDone = false;
        if (areDone) return;
    }
    flushOneByOne(files, folders);
}

void NativeFileSystem::flushOneByOne(const std::vector<FilePath>& files,
                                     const std::set<std::filesystem::path>& folders) {
    for (const FilePath& file : files)
        if (exists(file)) raise(flushToDisk(systemPath(file)), file);
    for (const auto& folder : folders)
        raise(flushToDisk(folder), FilePath(QString::fromStdU16String(folder.u16string())));
    const std::lock_guard lock(mutex_);
    for (const auto& folder : std::exchange(foldersWithNew_, {}))
        flushToDisk(folder); // one may be gone by now, or closed to readers
}

void NativeFileSystem::append(const FilePath& file, const QByteArray& contents) {
    QFile out(file.native());
    if (!openToAppend(out) && !(heldFiles_.outlast(file) && openToAppend(out)))
        throw Error(codeOf(out.error(), noFolderOrDenied(out)), file.text());
    writeAll(out, contents.constData(), contents.size(), file);
}

} // namespace morvane
