#pragma once

#include "imaging/colour_values.h"

#include <QByteArray>
#include <QStringList>

namespace morvane {

/// The ending of the files in which pilots pass a look on, without the dot.
inline const QString sharedSetEnding = QStringLiteral("morvaneset");

/// Raises that a look is not to be taken: "Nothing is taken from storm.morvaneset: " stands before the
/// reason.
[[noreturn]] void refuseLook(const QString& reason);

inline const QString damagedColours = QStringLiteral("its colours are damaged");

/// What a set is made of, without its files.
struct SharedSet {
    QString kind = {};    ///< as SetKindFacts::word
    QString name = {};    ///< without a key
    QString cover = {};   ///< a cloud cover's word; empty for a kind that has nothing to do with the weather
    QString baseSet = {}; ///< of a sky; empty else
    QStringList colours = {}; ///< one `ColorSettings` text; of a sky the ten of its groups, in order
    QString description = {};
    QString author = {}; ///< what the author says of himself

    bool operator==(const SharedSet&) const = default;
};

/// The set as a JSON object in UTF-8, of this form's version 1:
/// {"morvaneset": 1, "kind": "ground", "name", "cover", "baseSet", "colours": [...], "description",
/// "author"}.
QByteArray sharedSetBytes(const SharedSet& set);
/// Raises what is wrong with it, as half a sentence, for bytes that are none. Texts come without blanks
/// and line ends at their ends; whether colours and words are some is the kind's to say.
SharedSet readSharedSet(const QByteArray& bytes);

/// The word of its cloud cover; raises as above for one that is none.
QString checkedCover(const SharedSet& set);
/// Its only colour text; raises as above for one that no sliders can give.
ColourValues checkedColours(const SharedSet& set);

/// The name without the key that a stored set's name begins with: "Storm" of "12-Storm".
QString nameWithoutKey(const QString& name);
/// What a set's row takes as its description: the set's own and its author's text, cut to the column.
QString sharedDescription(const SharedSet& set);

} // namespace morvane
