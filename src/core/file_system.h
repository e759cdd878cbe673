#pragma once

#include "core/file_path.h"

#include <QByteArray>
#include <cstdint>

namespace morvane {

/// Every operation of the engine on files and folders, so that a test can make the n-th one fail.
/// Failures raise Error with the path in the description.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// Something of that name is there, file or folder.
    virtual bool exists(const FilePath& path) = 0;
    virtual bool isFolder(const FilePath& path) = 0;
    /// Names of the files (never folders) that the mask takes, hidden and read-only ones included, sorted by
    /// upper-cased name: the order decides the order of a copy. A missing folder lists nothing.
    virtual QStringList list(const FilePath& folder, const QString& mask) = 0;
    /// Names of the folders in it, sorted alike, links left out.
    virtual QStringList listFolders(const FilePath& folder) = 0;
    /// Makes the folder and those above it; an existing one is no failure.
    virtual void makeFolder(const FilePath& folder) = 0;
    /// Copies the contents only, to a new file with the normal mode.
    virtual void copyContents(const FilePath& source, const FilePath& target) = 0;
    /// Renames, replacing a file of that name in one step.
    virtual void rename(const FilePath& source, const FilePath& target) = 0;
    virtual void remove(const FilePath& file) = 0;
    /// Removes the folder when it is empty; raises otherwise. Never recursive.
    virtual void removeFolder(const FilePath& folder) = 0;
    virtual bool isLink(const FilePath& path) = 0;
    /// The owner may not write: tested on the mode, as root may write to anything and would not notice.
    virtual bool isReadOnly(const FilePath& file) = 0;
    virtual void setReadOnly(const FilePath& file, bool readOnly) = 0;
    /// Gives `target` the mode of `model`.
    virtual void copyMode(const FilePath& model, const FilePath& target) = 0;
    virtual std::int64_t size(const FilePath& file) = 0;
    virtual std::int64_t freeSpace(const FilePath& folder) = 0;
    virtual QByteArray read(const FilePath& file) = 0;
    /// Replaces the file's contents; never leaves half of them.
    virtual void write(const FilePath& file, const QByteArray& contents) = 0;
    /// Adds to the file's end, making it when missing, and hands it to the system before it returns.
    virtual void append(const FilePath& file, const QByteArray& contents) = 0;
};

/// The real one.
class NativeFileSystem : public FileSystem {
public:
    bool exists(const FilePath& path) override;
    bool isFolder(const FilePath& path) override;
    QStringList list(const FilePath& folder, const QString& mask) override;
    QStringList listFolders(const FilePath& folder) override;
    void makeFolder(const FilePath& folder) override;
    void copyContents(const FilePath& source, const FilePath& target) override;
    void rename(const FilePath& source, const FilePath& target) override;
    void remove(const FilePath& file) override;
    void removeFolder(const FilePath& folder) override;
    bool isLink(const FilePath& path) override;
    bool isReadOnly(const FilePath& file) override;
    void setReadOnly(const FilePath& file, bool readOnly) override;
    void copyMode(const FilePath& model, const FilePath& target) override;
    std::int64_t size(const FilePath& file) override;
    std::int64_t freeSpace(const FilePath& folder) override;
    QByteArray read(const FilePath& file) override;
    void write(const FilePath& file, const QByteArray& contents) override;
    void append(const FilePath& file, const QByteArray& contents) override;
};

} // namespace morvane
