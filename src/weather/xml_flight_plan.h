#pragma once

#include "weather/flight_plan.h"

namespace morvane {

/// The plan of a text in one of two XML forms: that of the simulator's later versions (FSX, Prepar3D and
/// after) and Little Navmap's. Coordinates become those of the simulator's own form. Nothing for a text that
/// is neither, or that declares a document type, as only those can hold entities; raises for one of the two
/// that is damaged, as half a route would have another weather.
std::optional<FlightPlan> parseXmlFlightPlan(const QString& text);

} // namespace morvane
