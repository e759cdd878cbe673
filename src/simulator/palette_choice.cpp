#include "simulator/palette_choice.h"

#include "core/attempts.h"
#include "core/registry.h"
#include "core/session.h"
#include "weather/coordinates.h"
#include "weather/daylight.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

const QString paletteValue = u"Palette"_s;
constexpr double usualLatitude = 52;

/// Where the sun is highest at noon by this computer's clock.
double longitudeOfZone(const QDateTime& local) {
    constexpr double secondsOfDegree = 240, summerTime = 3600;
    return (local.offsetFromUtc() - (local.isDaylightTime() ? summerTime : 0)) / secondsOfDegree;
}

bool isNight(const Clock& clock, const std::optional<Airport>& airport) {
    const QDateTime now = clock.utcTime();
    if (airport) {
        const auto latitude = storedDegrees(airport->latitude), longitude = storedDegrees(airport->longitude);
        if (latitude && longitude) return isNightAt(*latitude, *longitude, now);
    }
    return isNightAt(usualLatitude, longitudeOfZone(clock.localTime()), now);
}

} // namespace

const QStringList& paletteWords() {
    static const QStringList words{u"day"_s, u"night"_s, u"clock"_s};
    return words;
}

PaletteChoice paletteChoice(const Registry& registry) {
    const qsizetype index = paletteWords().indexOf(ownValue(registry, paletteValue));
    return index < 0 ? PaletteChoice::day : static_cast<PaletteChoice>(index);
}

void storePaletteChoice(Registry& registry, PaletteChoice choice) {
    storeOwnValue(registry, paletteValue, paletteWords()[static_cast<qsizetype>(choice)]);
}

PaperPalette paletteNow(const Registry& registry, const Clock& clock, const std::optional<Airport>& airport) {
    switch (paletteChoice(registry)) {
    case PaletteChoice::day:
        return PaperPalette::day;
    case PaletteChoice::night:
        return PaperPalette::night;
    case PaletteChoice::byClock:
        break;
    }
    return isNight(clock, airport) ? PaperPalette::night : PaperPalette::day;
}

PaperPalette paletteNow(Session& session) {
    const WeatherState& weather = session.state<WeatherState>();
    const QString icao = weather.DepIcao.isEmpty() ? weather.DestIcao : weather.DepIcao;
    std::optional<Airport> airport;
    const bool isAsked = paletteChoice(session.registry) == PaletteChoice::byClock && !icao.isEmpty();
    if (isAsked) attempt([&] { airport = findAirport(session, icao); });
    return paletteNow(session.registry, session.clock, airport);
}

} // namespace morvane
