#pragma once

#include <QStringList>

namespace morvane {

/// The known word that was most likely meant: the one with the fewest slips of the keyboard between them
/// (a letter too many, too few, another one or two swapped), in any case; or one that the word is a part of.
/// Empty when none is near.
QString nearestWord(const QString& word, const QStringList& known);

} // namespace morvane
