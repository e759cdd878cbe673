#include "core/native_file_calls.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace morvane {

std::error_code renameInOneStep(const std::filesystem::path& source, const std::filesystem::path& target) {
    std::error_code error;
    std::filesystem::rename(source, target, error);
    return error;
}

namespace {

/// Closed with this.
class Descriptor {
public:
    Descriptor(const QString& file, int flags)
        : number_(::open(QFile::encodeName(file).constData(), flags | O_CLOEXEC, 0666)) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int number() const { return number_; }

private:
    int number_;
};

/// Of one that is no plain file, or that the system makes up while it is read: none.
std::int64_t sizeOfPlain(const Descriptor& file) {
    struct stat known {};
    return ::fstat(file.number(), &known) == 0 && S_ISREG(known.st_mode) ? known.st_size : 0;
}

} // namespace

/// A pipe has to be read here, too: opened once more it would have lost who writes into it.
std::optional<QByteArray> readAll(const QString& file) {
    constexpr qsizetype firstBlock = 1 << 16;
    const Descriptor in(file, O_RDONLY);
    const std::int64_t size = sizeOfPlain(in);
    QByteArray contents((size > 0 ? size : firstBlock) + 1, Qt::Uninitialized);
    qsizetype done = 0;
    while (true) {
        const qsizetype room = contents.size() - done;
        const ssize_t count = ::read(in.number(), contents.data() + done, static_cast<std::size_t>(room));
        if (count < 0) return std::nullopt;
        done += count;
        if (count == 0 || done == size) break;
        if (count == room) contents.resize(2 * done);
    }
    contents.truncate(done);
    return contents;
}

bool copyInsideSystem(const QString& source, const QString& target) {
    const Descriptor in(source, O_RDONLY);
    std::int64_t left = sizeOfPlain(in);
    if (left == 0) return false;
    const Descriptor out(target, O_WRONLY | O_CREAT | O_TRUNC);
    while (left > 0) {
        const ssize_t count =
            ::copy_file_range(in.number(), nullptr, out.number(), nullptr, static_cast<std::size_t>(left), 0);
        if (count <= 0) return false;
        left -= count;
    }
    return true;
}

bool openToAppend(QFile& file) {
    return file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered);
}

std::error_code removeFile(const std::filesystem::path& file) {
    return ::unlink(file.c_str()) == 0 ? std::error_code() : std::error_code(errno, std::system_category());
}

std::optional<bool> isHeldByOther(const std::filesystem::path&) {
    return std::nullopt;
}

namespace {

/// Some drives, such as those in memory or behind a network, have nothing to flush and say so.
template <class Flush>
std::error_code flushOpened(const std::filesystem::path& path, Flush flush) {
    const int opened = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool isDone = opened >= 0 && (flush(opened) == 0 || errno == EINVAL || errno == ENOSYS);
    const std::error_code error = isDone ? std::error_code() : std::error_code(errno, std::system_category());
    if (opened >= 0) ::close(opened);
    return error;
}

} // namespace

std::error_code flushToDisk(const std::filesystem::path& path) {
    return flushOpened(path, ::fsync);
}

std::optional<std::error_code> flushDrive(const std::filesystem::path& folder) {
    return flushOpened(folder, ::syncfs);
}

bool isNetworkDrive(const std::filesystem::path& folder) {
    constexpr std::int64_t kinds[] = {NFS_SUPER_MAGIC, SMB_SUPER_MAGIC, CIFS_SUPER_MAGIC, SMB2_SUPER_MAGIC,
                                      V9FS_MAGIC,      AFS_SUPER_MAGIC, CODA_SUPER_MAGIC, CEPH_SUPER_MAGIC};
    struct statfs drive {};
    return ::statfs(folder.c_str(), &drive) == 0 &&
           std::ranges::find(kinds, static_cast<std::int64_t>(drive.f_type)) != std::end(kinds);
}

std::error_code removeEmptyFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::remove(folder, error);
    return error;
}

} // namespace morvane
