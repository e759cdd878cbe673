#include "support/scripted_services.h"

#include "core/error.h"
#include "support/temporary_folder.h"

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
    hasFailed_ = failedAtTest_ = false;
}

bool FaultyFileSystem::isFailing() {
    ++operations_;
    return failing_ > 0 && (operations_ == failing_ || (forever_ && operations_ > failing_));
}

bool FaultyFileSystem::test() {
    if (!isFailing()) return true;
    failedAtTest_ = failedAtTest_ || !hasFailed_;
    hasFailed_ = true;
    return false;
}

void FaultyFileSystem::act(const FilePath& path) {
    if (!isFailing()) return;
    hasFailed_ = true;
    throw Error(ErrorCode::ioFailure, path.text());
}

QStringList FaultyFileSystem::list(const FilePath& folder, const QString& mask) {
    act(folder);
    return real_.list(folder, mask);
}

QStringList FaultyFileSystem::listFolders(const FilePath& folder) {
    act(folder);
    return real_.listFolders(folder);
}

void FaultyFileSystem::makeFolder(const FilePath& folder) {
    act(folder);
    real_.makeFolder(folder);
}

void FaultyFileSystem::copyContents(const FilePath& source, const FilePath& target) {
    if (isFailing()) {
        hasFailed_ = true;
        // As on a full disk: half of the file is there.
        const QByteArray contents = real_.read(source);
        writeFile(target, contents.left(contents.size() / 2));
        throw Error(ErrorCode::diskFull, target.text());
    }
    real_.copyContents(source, target);
}

void FaultyFileSystem::rename(const FilePath& source, const FilePath& target) {
    act(target);
    real_.rename(source, target);
}

void FaultyFileSystem::remove(const FilePath& file) {
    act(file);
    real_.remove(file);
}

void FaultyFileSystem::removeFolder(const FilePath& folder) {
    act(folder);
    real_.removeFolder(folder);
}

bool FaultyFileSystem::isReadOnly(const FilePath& file) {
    act(file);
    return real_.isReadOnly(file);
}

void FaultyFileSystem::setReadOnly(const FilePath& file, bool readOnly) {
    act(file);
    real_.setReadOnly(file, readOnly);
}

void FaultyFileSystem::copyMode(const FilePath& model, const FilePath& target) {
    act(target);
    real_.copyMode(model, target);
}

std::int64_t FaultyFileSystem::size(const FilePath& file) {
    act(file);
    return real_.size(file);
}

std::int64_t FaultyFileSystem::freeSpace(const FilePath& folder) {
    act(folder);
    return real_.freeSpace(folder);
}

QByteArray FaultyFileSystem::read(const FilePath& file) {
    act(file);
    return real_.read(file);
}

void FaultyFileSystem::write(const FilePath& file, const QByteArray& contents) {
    act(file);
    real_.write(file, contents);
}

void FaultyFileSystem::append(const FilePath& file, const QByteArray& contents) {
    act(file);
    real_.append(file, contents);
}

} // namespace morvane::test
