#pragma once

#include "core/literals.h"

#include <QStringList>
#include <array>

namespace morvane {

/// frm_SelectBaseSky: whether OK was pressed. The choice itself is in force at its click (SkyTuningState).
struct BaseSkyAnswer {
    bool baseSkyConfirmed = false;
};

/// How the generator and the randomiser treat a base set. "Overcast" is in neither family, and so is any name
/// that is unknown.
enum class SkyFamily { a, b, neither };

/// The family of a base set, blanks around its name passed over.
SkyFamily skyFamily(const QString& baseSet);

inline const QString overcastBaseSet = u"Overcast"_s;

/// The times of day, each a word of the store and, but for the first, a folder of the stock beside the base
/// sets. Only "Day" has colours.
inline const QString skyDay = u"Day"_s;
inline const QStringList skyTimesOfDay{skyDay, u"Sunrise"_s, u"Sunset"_s};

inline constexpr int skyBaseSetCount = 7;

/// All base sets in the order of the boxes of frm_SelectSkyTexture.
const QStringList& skyBaseSetBoxes();
/// The same in the order of the options of frm_SelectBaseSky.
const QStringList& skyBaseSetOptions();
/// The six that share the counts of four cloud covers, in the order in which a run makes them.
const QStringList& skyBaseSetsInRun();

} // namespace morvane
