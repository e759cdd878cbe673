#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace morvane {

/// A text that is nobody's business but the pilot's, and what stands in its place where others may read.
struct PrivateText {
    QString text;
    QString standIn;
};

/// What the rooms know of such texts: each adds a function that gives those of now.
struct PrivateTexts {
    std::vector<std::function<std::vector<PrivateText>()>> sources;

    std::vector<PrivateText> all() const;
};

/// What a pilot typed, as a whole and its longer words: a message may name one of them. Nothing for a number
/// and for less than two letters.
std::vector<PrivateText> typedTexts(const QString& typed);

/// A folder in each spelling that a message may have of it.
std::vector<PrivateText> folderTexts(const QString& folder, const QString& standIn);

/// One line without control characters and of a bounded length, in which the home folder is "~", each private
/// text its stand-in (as a whole word, in any case of letters, with either separator in a path), a set's name
/// its key, and a name that a pilot gave a file of his own nothing but its ending.
QString withoutPrivate(const QString& text, const std::vector<PrivateText>& texts);

} // namespace morvane
