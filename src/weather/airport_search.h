#pragma once

#include "weather/airport_data.h"
#include "weather/weather_state.h"

#include <QStringList>
#include <vector>

namespace morvane {

struct WeatherState;

/// What an airport's beginning can be typed for.
enum class SearchBox { icao, airportName, city };

/// What the airports found can be narrowed to: values as they are stored. An empty one, as "Any" in a list
/// is, narrows nothing.
struct AirportFilter {
    QString country, state, city;

    bool isEmpty() const { return country.isEmpty() && state.isEmpty() && city.isEmpty(); }
};

/// Values of one filter list, in their order, and the line that tells their number.
struct FilterValues {
    QStringList values;
    QString countLine; ///< "12 Countries Found"
};

/// The airports of a search and the line that tells their number.
struct FoundAirports {
    std::vector<Airport> airports;
    QString countLine; ///< "5 Airports Found"
};

/// Takes the text of a search box into the session's `AirportQueryWhere` and `AirportQueryOrder`. False for
/// an empty text, which leaves the search as it is.
bool searchAirports(WeatherState& weather, SearchBox box, const QString& text);

/// The session's search narrowed by the filter: " WHERE ..." or empty.
QString narrowedWhere(const WeatherState& weather, const AirportFilter& filter);

// Each raises what the store raises. `where` is " WHERE ..." or empty; rows without a value are left out.
FilterValues popCountries(const Session& session, const QString& where);
FilterValues popStates(const Session& session, const QString& where);
FilterValues popCities(const Session& session, const QString& where);

/// The airports of the session's search, narrowed by the filter.
FoundAirports popAirports(const Session& session, const AirportFilter& filter);

} // namespace morvane
