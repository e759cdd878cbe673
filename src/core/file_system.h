#pragma once

#include "core/file_path.h"
#include "core/held_files.h"

#include <QByteArray>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

namespace morvane {

/// What the system knows of a file or folder without reading it.
struct FileStamp {
    std::int64_t size = 0;
    std::int64_t time = 0;    ///< of the last write, in nanoseconds since 1970
    std::uint64_t number = 0; ///< stays when the file is renamed; no other one on its drive has it
    std::uint64_t drive = 0;  ///< tells the numbers of two drives apart as long as both are there
    unsigned mode = 0;        ///< permission bits, as of chmod; elsewhere 0444 or 0666

    bool operator==(const FileStamp&) const = default;
    bool isSameFile(const FileStamp& other) const { return number == other.number && drive == other.drive; }
    /// Its owner may not write to it.
    bool isReadOnly() const { return (mode & 0200U) == 0; }
};

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
    /// Tells the names of all its files in the order of the system; the text stands for the call alone.
    /// Folders have thousands of names, and few are asked for.
    virtual void tellNames(const FilePath& folder, const std::function<void(QStringView)>& tell) = 0;
    /// Names of the folders in it, sorted alike, links left out. A missing folder lists nothing.
    virtual QStringList listFolders(const FilePath& folder) = 0;
    /// How many files in the folder have such an ending and a name that is no text on this system: no listing
    /// has them and no path reaches them.
    virtual int namelessFiles(const FilePath& folder, const QString& ending) = 0;
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
    virtual void setMode(const FilePath& file, unsigned mode) = 0;
    virtual std::int64_t size(const FilePath& file) = 0;
    /// Of a link, what it points to.
    virtual FileStamp stamp(const FilePath& path) = 0;
    /// Nothing where none is.
    std::optional<FileStamp> stampIfThere(const FilePath& path);
    /// In bytes, for this user; -1 where the system does not tell.
    virtual std::int64_t freeSpace(const FilePath& folder) = 0;
    /// Whether it lies on another machine, whose files no two programs can share as memory.
    virtual bool isOnNetwork(const FilePath& folder) = 0;
    virtual QByteArray read(const FilePath& file) = 0;
    /// So many bytes from that offset; fewer where the file ends before.
    virtual QByteArray readPart(const FilePath& file, std::int64_t from, std::int64_t count) = 0;
    /// Nothing for a file that is not there, nor for a link that leads nowhere.
    std::optional<QByteArray> readIfThere(const FilePath& file);
    /// Replaces the file's contents; never leaves half of them, nor anything else when it fails.
    virtual void write(const FilePath& file, const QByteArray& contents) = 0;
    /// Makes a file; a kill may leave half of it. False when something of that name is there, which stays.
    virtual bool writeNew(const FilePath& file, const QByteArray& contents) = 0;
    /// Adds to the file's end, making it when missing, and hands it to the system before it returns.
    virtual void append(const FilePath& file, const QByteArray& contents) = 0;
    /// Returns when what stands in these files, that they go by these names in folders that may be new, and
    /// that those of them which are missing are gone, outlasts a cut of power. Takes as long as the disk
    /// does; raises when the system cannot do it.
    virtual void makeDurable(const std::vector<FilePath>& files) = 0;
};

/// The files of a listing, in their own spelling: no operation on one of them looks for another. A name that
/// the system takes and no path of ours can have is passed over: the file is nobody's that we know.
std::vector<FilePath> filesIn(FileSystem& files, const FilePath& folder, const QString& mask);

/// The real one.
class NativeFileSystem : public FileSystem {
public:
    bool exists(const FilePath& path) override;
    bool isFolder(const FilePath& path) override;
    QStringList list(const FilePath& folder, const QString& mask) override;
    void tellNames(const FilePath& folder, const std::function<void(QStringView)>& tell) override;
    QStringList listFolders(const FilePath& folder) override;
    int namelessFiles(const FilePath& folder, const QString& ending) override;
    void makeFolder(const FilePath& folder) override;
    void copyContents(const FilePath& source, const FilePath& target) override;
    void rename(const FilePath& source, const FilePath& target) override;
    void remove(const FilePath& file) override;
    void removeFolder(const FilePath& folder) override;
    bool isLink(const FilePath& path) override;
    bool isReadOnly(const FilePath& file) override;
    void setReadOnly(const FilePath& file, bool readOnly) override;
    void copyMode(const FilePath& model, const FilePath& target) override;
    void setMode(const FilePath& file, unsigned mode) override;
    std::int64_t size(const FilePath& file) override;
    FileStamp stamp(const FilePath& path) override;
    std::int64_t freeSpace(const FilePath& folder) override;
    bool isOnNetwork(const FilePath& folder) override;
    QByteArray read(const FilePath& file) override;
    QByteArray readPart(const FilePath& file, std::int64_t from, std::int64_t count) override;
    void write(const FilePath& file, const QByteArray& contents) override;
    bool writeNew(const FilePath& file, const QByteArray& contents) override;
    void append(const FilePath& file, const QByteArray& contents) override;
    void makeDurable(const std::vector<FilePath>& files) override;

private:
    void flushOneByOne(const std::vector<FilePath>& files, const std::set<std::filesystem::path>& folders);

    HeldFiles heldFiles_;
    std::mutex mutex_;
    std::set<std::filesystem::path> foldersWithNew_; ///< in which a folder was made and not made durable
};

} // namespace morvane
