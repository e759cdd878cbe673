#pragma once

#include "imaging/paper_palette.h"
#include "weather/airport_data.h"

#include <QStringList>

namespace morvane {

class Clock;
class Registry;

/// What the pilot wants the pages to be painted in. By the clock is night from sunset to sunrise.
enum class PaletteChoice { day, night, byClock };

/// "day", "night" and "clock", as they are stored and as the console takes them.
const QStringList& paletteWords();
/// What is stored; day where nothing is, or a word that is none of those.
PaletteChoice paletteChoice(const Registry& registry);
void storePaletteChoice(Registry& registry, PaletteChoice choice);

/// The palette of this moment. The sun is that of the airport; without one, or without its position, that of
/// 52 degrees north in the middle of this computer's time zone.
PaperPalette paletteNow(const Registry& registry, const Clock& clock,
                        const std::optional<Airport>& airport = {});
/// With the airport that is chosen for the weather: the departure, else the destination.
PaperPalette paletteNow(Session& session);

} // namespace morvane
