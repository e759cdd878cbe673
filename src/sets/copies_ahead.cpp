#include "sets/copies_ahead.h"

#include "core/attempts.h"
#include "core/safe_copy.h"

#include <algorithm>
#include <span>

namespace morvane {

namespace {

std::vector<bool> secondOnes(const std::vector<FilePath>& places) {
    std::vector<bool> isSecond;
    QSet<QString> earlier;
    for (const FilePath& place : places) {
        const QString name = place.relative().toCaseFolded();
        isSecond.push_back(earlier.contains(name));
        earlier.insert(name);
    }
    return isSecond;
}

} // namespace

CopiesAhead::CopiesAhead(FileSystem& files, const Originals& originals, std::vector<FileCopy> copies,
                         std::vector<FilePath> places)
    : files_(files), originals_(originals), copies_(std::move(copies)), places_(std::move(places)),
      isSecond_(secondOnes(places_)),
      ahead_(std::in_place, copies_.size(), [this](std::size_t index) { return work(index); }) {}

CopiesAhead::~CopiesAhead() {
    ahead_.reset(); // waits for the parts under way
    try {
        for (const std::size_t index : parts_)
            attempt([&] { files_.remove(partOf(places_[index])); });
    } catch (...) { // what is no failure of a file has ended all work
        return;
    }
}

AheadOfCopy CopiesAhead::next(const FileCopy& copy) {
    const auto left = std::span(copies_).subspan(next_);
    const auto found = std::ranges::find_if(left, [&](const FileCopy& other) { return other.isFor(copy); });
    if (found == left.end()) return AheadOfCopy::nothing;
    Work work;
    for (auto passed = left.begin(); passed <= found; ++passed, ++next_)
        work = ahead_->next();
    if (work.failure) throw *work.failure;
    return work.done;
}

void CopiesAhead::noteTaken() {
    const std::lock_guard lock(mutex_);
    parts_.erase(next_ - 1);
}

CopiesAhead::Work CopiesAhead::work(std::size_t index) {
    Work work;
    work.failure = failureOf([&] { work.done = doAhead(index); });
    return work;
}

AheadOfCopy CopiesAhead::doAhead(std::size_t index) {
    if (isSecond_[index]) return AheadOfCopy::nothing;
    if (originals_.stands(copies_[index], places_[index])) return AheadOfCopy::stands;
    {
        const std::lock_guard lock(mutex_);
        parts_.insert(index);
    }
    writePart(files_, copies_[index].source, places_[index]);
    return AheadOfCopy::part;
}

} // namespace morvane
