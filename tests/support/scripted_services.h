#pragma once

#include "core/clock.h"
#include "core/error.h"
#include "core/file_system.h"
#include "support/system_files.h"

#include <atomic>
#include <deque>
#include <map>
#include <mutex>
#include <set>
#include <vector>

namespace morvane::test {

/// A clock that stands still until told otherwise, or hands out given times one by one.
class ScriptedClock : public Clock {
public:
    QDateTime localTime() const override;
    QDateTime utcTime() const override { return now.toUTC(); }

    QDateTime now{QDate(2007, 5, 30), QTime(21, 14, 9)};
    mutable std::deque<QDateTime> upcoming;
};

/// Hands out the given numbers in turn, over and over.
class ScriptedRandom : public RandomSource {
public:
    double draw() override;

    std::vector<double> numbers{0.5};
    int draws = 0;
};

/// Thrown through everything that catches failures, as a kill ends a run: only destructors still run.
struct Killed {};

/// The real file system, but its n-th operation fails: with an Error, or, for a test of existence, with "no".
/// Counts every operation.
class FaultyFileSystem : public FileSystem {
public:
    /// Counted from 1 and from now; 0 means never. `forever`: all later ones fail, too.
    void failAt(int n, bool forever);
    /// Nothing fails any more; what has failed is still told.
    void heal() { failing_ = cutAt_ = 0; }
    /// From now on so many bytes can be written; a file that needs more fails as on a full disk. Below 0, as
    /// at first, the disk has room for everything.
    void leaveRoom(qint64 bytes) { room_ = bytes; }
    /// The n-th operation from now on, and all later ones, end the run with Killed; half of a copy is there.
    void killAt(int n);
    /// From now on the disk keeps in mind what was not made durable, and the n-th change on it and all later
    /// operations end the run with Killed: what only reads makes no moment of its own.
    void killAtChange(int n);
    /// Of each name that was changed and not made durable what stood there before, what stands there now, or
    /// that torn; of a folder that was made, nothing: any of them may be found after a cut of power. Cut once
    /// more, with the tree as it was before, it may be another one.
    void cutPower(unsigned seed);
    /// What the disk says it has free; below 0 the truth.
    qint64 toldFree = -1;
    /// Whether it says that it is another machine's.
    bool isToldNetwork = false;
    int operations() const { return operations_; }
    /// Whether the operation that failed first was a test of existence.
    bool failedAtTest() const { return failedAtTest_; }
    bool hasFailed() const { return hasFailed_; }

    bool exists(const FilePath& path) override { return test() && real_.exists(path); }
    bool isFolder(const FilePath& path) override { return test() && real_.isFolder(path); }
    bool isLink(const FilePath& path) override { return test() && real_.isLink(path); }
    QStringList list(const FilePath& folder, const QString& mask) override {
        return act(folder).list(folder, mask);
    }
    void tellNames(const FilePath& folder, const std::function<void(QStringView)>& tell) override {
        act(folder).tellNames(folder, tell);
    }
    QStringList listFolders(const FilePath& folder) override { return act(folder).listFolders(folder); }
    int namelessFiles(const FilePath& folder, const QString& ending) override {
        return act(folder).namelessFiles(folder, ending);
    }
    void makeFolder(const FilePath& folder) override;
    void copyContents(const FilePath& source, const FilePath& target) override;
    void rename(const FilePath& source, const FilePath& target) override {
        FileSystem& real = change(target);
        remember(source);
        real.rename(source, target);
        noteContents(target, &source);
    }
    void remove(const FilePath& file) override { change(file).remove(file); }
    void removeFolder(const FilePath& folder) override { act(folder).removeFolder(folder); }
    bool isReadOnly(const FilePath& file) override { return act(file).isReadOnly(file); }
    void setReadOnly(const FilePath& file, bool readOnly) override { act(file).setReadOnly(file, readOnly); }
    void copyMode(const FilePath& model, const FilePath& target) override {
        act(target).copyMode(model, target);
    }
    void setMode(const FilePath& file, unsigned mode) override { act(file).setMode(file, mode); }
    std::int64_t size(const FilePath& file) override { return act(file).size(file); }
    FileStamp stamp(const FilePath& path) override { return act(path).stamp(path); }
    bool isOnNetwork(const FilePath& folder) override {
        return isToldNetwork || act(folder).isOnNetwork(folder);
    }
    std::int64_t freeSpace(const FilePath& folder) override {
        return toldFree < 0 ? act(folder).freeSpace(folder) : toldFree;
    }
    QByteArray read(const FilePath& file) override { return act(file).read(file); }
    QByteArray readPart(const FilePath& file, std::int64_t from, std::int64_t count) override {
        return act(file).readPart(file, from, count);
    }
    void write(const FilePath& file, const QByteArray& contents) override {
        takeRoom(file, contents.size());
        change(file).write(file, contents);
        noteContents(file);
    }
    bool writeNew(const FilePath& file, const QByteArray& contents) override {
        takeRoom(file, contents.size());
        const bool isMade = change(file).writeNew(file, contents);
        if (isMade) noteContents(file);
        return isMade;
    }
    void append(const FilePath& file, const QByteArray& contents) override {
        takeRoom(file, contents.size());
        change(file).append(file, contents);
        noteContents(file);
    }
    /// Not the real one: a test's disk need not outlast a cut.
    void makeDurable(const std::vector<FilePath>& files) override;

private:
    bool isFailing();
    /// The failure of the operation, which is one to fail.
    [[noreturn]] void fail(ErrorCode code, const FilePath& path);
    bool test();
    /// The real file system, unless this operation is one to fail.
    FileSystem& act(const FilePath& path);
    /// One that changes what goes by that name.
    void beginChange(const FilePath& file);
    FileSystem& change(const FilePath& file);
    void takeRoom(const FilePath& file, qint64 size);
    void remember(const FilePath& file);
    /// As much on the disk as those of `source`; without one not at all.
    void noteContents(const FilePath& file, const FilePath* source = nullptr);
    NativeFileSystem real_;
    /// What a cut may bring back of a file, and whether its contents are on the disk under some name.
    struct Unsaved {
        std::optional<QByteArray> before;
        bool hasContents = false;
    };
    bool isWatching_ = false;
    std::mutex mutex_;
    std::map<QString, Unsaved> unsaved_;
    std::set<QString> unsavedFolders_;
    std::atomic<int> changes_ = 0;
    int cutAt_ = 0;
    // Several threads of a job work with the same files.
    std::atomic<qint64> room_ = -1;
    std::atomic<int> operations_ = 0;
    int failing_ = 0;
    bool forever_ = false, isKilling_ = false;
    std::atomic<bool> hasFailed_ = false, failedAtTest_ = false;
};

enum class Fault { once, forever, kill };

/// Does `work` with its first file operation failing, then its second and so on, until none did; `check`
/// looks at what each run left, with healed files, and takes the operation's number. Returns how many failed.
template <class Work, class Check>
int failEachOperation(FaultyFileSystem& files, Fault fault, Work work, Check check) {
    for (int n = 1;; n += faultStride) {
        fault == Fault::kill ? files.killAt(n) : files.failAt(n, fault == Fault::forever);
        try {
            work();
        } catch (const Killed&) {
        }
        const bool hasFailed = files.hasFailed();
        files.heal();
        check(n);
        if (!hasFailed) return n - 1;
    }
}

} // namespace morvane::test
