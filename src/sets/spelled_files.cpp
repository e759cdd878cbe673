#include "sets/spelled_files.h"

namespace morvane {

void SpelledFiles::add(const FilePath& folder, const QString& name) {
    const FilePath file = spelling_.find(folder.child(name).relativeTo(root_));
    const QString spelled = file.fileName() == name ? name : file.fileName(); // one text with the list's
    const std::pair place(indexOf(file.parent()), spelled);
    files_.push_back({place.first, spelled, seen_.contains(place)});
    seen_.insert(place);
}

std::size_t SpelledFiles::indexOf(const FilePath& folder) {
    const auto known = indices_.constFind(folder.text());
    if (known != indices_.cend()) return *known;
    indices_.insert(folder.text(), folders_.size());
    folders_.push_back(folder.resolved());
    return folders_.size() - 1;
}

FilePath SpelledFiles::operator[](std::size_t index) const {
    const File& file = files_[index];
    return folders_[file.folder].exactChild(file.name);
}

} // namespace morvane
