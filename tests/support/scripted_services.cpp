#include "support/scripted_services.h"

#include "support/temporary_folder.h"

#include <QDir>
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

void FaultyFileSystem::killAtChange(int n) {
    killAt(0);
    isWatching_ = true;
    unsaved_.clear();
    unsavedFolders_.clear();
    changes_ = 0;
    cutAt_ = n;
}

void FaultyFileSystem::beginChange(const FilePath& file) {
    if (cutAt_ > 0 && ++changes_ >= cutAt_) fail(ErrorCode::ioFailure, file);
    remember(file);
}

FileSystem& FaultyFileSystem::change(const FilePath& file) {
    FileSystem& real = act(file);
    beginChange(file);
    return real;
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

void FaultyFileSystem::makeFolder(const FilePath& folder) {
    std::set<QString> made;
    for (QString name = folder.native(); isWatching_ && !QFileInfo::exists(name);
         name = QFileInfo(name).path())
        made.insert(name);
    (made.empty() ? act(folder) : change(folder)).makeFolder(folder);
    const std::lock_guard lock(mutex_);
    unsaved_.erase(folder.native());
    unsavedFolders_.merge(made);
}

/// Not the real one: a test's disk need not outlast a cut.
void FaultyFileSystem::makeDurable(const std::vector<FilePath>& files) {
    if (files.empty()) return;
    act(files.front());
    const std::lock_guard lock(mutex_);
    for (const FilePath& file : files) {
        unsaved_.erase(file.native());
        std::erase_if(unsavedFolders_,
                      [&](const QString& folder) { return file.native().startsWith(folder + u'/'); });
    }
}

namespace {

/// The blocks that were not written yet are missing or zero; what was there before the end grew is there.
QByteArray torn(const QByteArray& now, const QByteArray& before, unsigned draw) {
    const qsizetype sound = now.startsWith(before) ? before.size() : 0;
    const qsizetype written = sound + (draw % 2) * (now.size() - sound) / 2;
    return now.first(written) + QByteArray(draw / 2 % 2 ? now.size() - written : 0, '\0');
}

} // namespace

void FaultyFileSystem::cutPower(unsigned seed) {
    std::mt19937 random(seed);
    for (const auto& [name, unsaved] : unsaved_) {
        const unsigned fate = random() % 3, tear = static_cast<unsigned>(random());
        const QByteArray before = unsaved.before.value_or(QByteArray());
        if (fate == 0 && !unsaved.before) QFile::remove(name);
        if (fate == 0 && unsaved.before) writeFile(FilePath(name), before);
        if (fate == 1 && !unsaved.hasContents && QFileInfo::exists(name))
            writeFile(FilePath(name), torn(readFile(FilePath(name)), before, tear));
    }
    for (const QString& folder : unsavedFolders_)
        if (random() % 8 == 0) QDir(folder).removeRecursively();
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
    beginChange(target);
    real_.copyContents(source, target);
    noteContents(target);
}

} // namespace morvane::test
