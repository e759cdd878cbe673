#include "simulator/checked_copies.h"

#include "core/attempts.h"

#include <algorithm>

namespace morvane {

namespace {

constexpr std::size_t share = 32; ///< files of one piece of work

std::optional<CheckedFile> tryCheck(const FileCopy& copy) {
    std::optional<CheckedFile> checked;
    attempt([&] { checked = checkCopy(copy); });
    return checked;
}

} // namespace

CheckedFile checkCopy(const FileCopy& copy) {
    NativeFileSystem files;
    const QByteArray contents = files.read(copy.source);
    const bool stands = files.exists(copy.target) && files.read(copy.target) == contents;
    return {fingerprintOf(contents), stands};
}

CheckAhead::CheckAhead(const std::vector<FileCopy>& copies)
    : work_(static_cast<int>((copies.size() + share - 1) / share), [&copies](int index) {
          Checked checked;
          const std::size_t first = static_cast<std::size_t>(index) * share;
          for (std::size_t i = first; i < std::min(first + share, copies.size()); ++i)
              checked.push_back(tryCheck(copies[i]));
          return checked;
      }) {}

std::optional<CheckedFile> CheckAhead::next() {
    if (checked_.empty()) checked_ = work_.next();
    const std::optional<CheckedFile> file = checked_.front();
    checked_.pop_front();
    return file;
}

} // namespace morvane
