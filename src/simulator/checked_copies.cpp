#include "simulator/checked_copies.h"

#include "core/attempts.h"

namespace morvane {

namespace {

std::optional<CheckedFile> tryCheck(const FileCopy& copy) {
    std::optional<CheckedFile> checked;
    attempt([&] { checked = checkCopy(copy); });
    return checked;
}

} // namespace

CheckedFile checkCopy(const FileCopy& copy) {
    NativeFileSystem files;
    const QByteArray contents = files.read(copy.source);
    CheckedFile checked{fingerprintOf(contents), std::nullopt};
    if (const auto stamp = files.stampIfThere(copy.target)) {
        const QByteArray there = files.read(copy.target);
        checked.there = SeenFile{there == contents ? checked.print : fingerprintOf(there), *stamp};
    }
    return checked;
}

CheckAhead::CheckAhead(const std::vector<FileCopy>& copies)
    : work_(copies.size(), [&copies](std::size_t i) { return tryCheck(copies[i]); }) {}

} // namespace morvane
