#pragma once

#include "weather/active_sky.h"
#include "weather/weather_state.h"

#include <QString>

namespace morvane {

/// frm_metar_request: the question, and whether it was answered with Yes.
struct MetarRequest {
    QString metarRequestText;
    bool metarRequested = false;
};

/// Gets the newest cycle, from a supported Active Sky or from the weather server, after a question where the
/// table holds rows already (frm_metar_request). Without any report afterwards Fly Now is no longer offered
/// (WeatherState::FlyNowDisabled); after a load that failed it stays as it was.
void refreshWeather(Session& session, ActiveSkyPlatform& platform = systemActiveSky());

/// The same without a question and without anything shown but the load itself; false after the message of why
/// there is no new cycle.
bool refreshUnasked(Session& session);

} // namespace morvane
