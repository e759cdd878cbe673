#include "support/scripted_services.h"

#include "support/temporary_folder.h"

#include <QFile>
#include <random>

namespace morvane::test {

QDateTime ScriptedClock::localTime() const {
    if (upcoming.empty()) return now;
    const QDateTime time = upcoming.front();
    upcoming.pop_front();
    return time;
}

double ScriptedRandom::draw() {
    return numbers[static_cast<std::size_t>(draws++) % numbers.size()];
}

void FaultyFileSystem::failAt(int n, bool forever) {
    operations_ = 0;
    failing_ = n;
    forever_ = forever;
    isKilling_ = false;
    hasFailed_ = failedAtTest_ = false;
}

void FaultyFileSystem::killAt(int n) {
    failAt(n, true);
    isKilling_ = true;
}

void FaultyFileSystem::fail(ErrorCode code, const FilePath& path) {
    hasFailed_ = true;
    if (isKilling_) throw Killed();
    throw Error(code, path.text());
}

bool FaultyFileSystem::isFailing() {
    const int operation = ++operations_;
    return failing_ > 0 && (operation == failing_ || (forever_ && operation > failing_));
}

bool FaultyFileSystem::test() {
    if (!isFailing()) return true;
    failedAtTest_ = failedAtTest_ || !hasFailed_;
    hasFailed_ = true;
    if (isKilling_) throw Killed();
    return false;
}

FileSystem& FaultyFileSystem::act(const FilePath& path) {
    if (!isFailing()) return real_;
    fail(ErrorCode::ioFailure, path);
}

void FaultyFileSystem::takeRoom(const FilePath& file, qint64 size) {
    if (room_ < 0) return;
    if (size > room_) throw Error(ErrorCode::diskFull, file.text());
    room_ -= size;
}

/// Before the first change since it was durable.
void FaultyFileSystem::remember(const FilePath& file) {
    if (!isWatching_) return;
    const std::lock_guard lock(mutex_);
    const QString name = file.native();
    if (!unsaved_.contains(name)) unsaved_[name] = {real_.readIfThere(file), true};
}

void FaultyFileSystem::noteContents(const FilePath& file, const FilePath* source) {
    if (!isWatching_) return;
    const std::lock_guard lock(mutex_);
    unsaved_[file.native()].hasContents = source && unsaved_[source->native()].hasContents;
}

/// Not the real one: a test's disk need not outlast a cut.
void FaultyFileSystem::makeDurable(const std::vector<FilePath>& files) {
    if (files.empty()) return;
    act(files.front());
    const std::lock_guard lock(mutex_);
    for (const FilePath& file : files)
        unsaved_.erase(file.native());
}

void FaultyFileSystem::cutPower(unsigned seed) {
    std::mt19937 random(seed);
    for (const auto& [name, unsaved] : unsaved_) {
        const unsigned fate = random() % 3;
        QFile file(name);
        if (fate == 0 && !unsaved.before) file.remove();
        if (fate == 0 && unsaved.before) writeFile(FilePath(name), *unsaved.before);
        if (fate == 1 && !unsaved.hasContents && file.exists()) file.resize(0);
    }
    unsaved_.clear();
    isWatching_ = false;
}

void FaultyFileSystem::copyContents(const FilePath& source, const FilePath& target) {
    if (isFailing()) {
        // As on a full disk: half of the file is there.
        const QByteArray contents = real_.read(source);
        writeFile(target, contents.left(contents.size() / 2));
        fail(ErrorCode::diskFull, target);
    }
    if (room_ >= 0 && real_.exists(source)) takeRoom(target, real_.size(source));
    remember(target);
    real_.copyContents(source, target);
    noteContents(target);
}

} // namespace morvane::test
