#include "core/folder_names.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace morvane {

namespace {

bool isPlain(QStringView name) {
    return std::ranges::all_of(name, [](QChar c) { return c.unicode() < 128; });
}

/// Of names that are one without regard to case the same (FNV-1a).
std::uint32_t hashOf(QStringView name) {
    std::uint32_t hash = 2'166'136'261U;
    const auto add = [&](char16_t c) { hash = (hash ^ c) * 16'777'619U; };
    if (!isPlain(name)) {
        for (const QChar c : name.toString().toCaseFolded())
            add(c.unicode());
        return hash;
    }
    for (const QChar c : name)
        add(c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c.unicode() + ('a' - 'A')) : c.unicode());
    return hash;
}

} // namespace

QStringView FolderNames::text(std::size_t index) const {
    const Name& name = names_[index];
    return QStringView(letters_).mid(name.begin, name.size);
}

void FolderNames::add(QStringView name) {
    const std::uint32_t hash = hashOf(name);
    names_.push_back({letters_.size(), name.size(), last_.value(hash, none)});
    letters_ += name;
    last_.insert(hash, names_.size() - 1);
}

/// Where `index` is the earlier one.
bool FolderNames::comesFirst(std::size_t index, std::size_t later) const {
    if (later >= listed_) return true;
    const QString one = text(index).toString(), other = text(later).toString();
    return std::pair(one.toUpper(), one) < std::pair(other.toUpper(), other);
}

QString FolderNames::spellingOf(const QString& name) const {
    std::size_t found = none;
    for (std::size_t index = last_.value(hashOf(name), none); index != none; index = names_[index].before) {
        if (text(index) == name) return name;
        // The hash may be another name's, too.
        if (text(index).compare(name, Qt::CaseInsensitive) != 0) continue;
        if (found == none || comesFirst(index, found)) found = index;
    }
    return found == none ? QString() : text(found).toString();
}

std::vector<QString> FolderNames::endingWith(QStringView ending) const {
    std::vector<QString> found;
    for (std::size_t index = 0; index < names_.size(); ++index)
        if (text(index).endsWith(ending, Qt::CaseInsensitive)) found.push_back(text(index).toString());
    return found;
}

} // namespace morvane
