#include "weather/weather_refresh.h"

#include "weather/reports.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

bool isWanted(Session& session) {
    session.state<MetarRequest>().metarRequestText =
        session.state<WeatherState>().ASv6VersionOK
            ? u"Do you wish Morvane import and decode the latest METAR cycle from Active Sky?"_s
            : u"Do you wish Morvane to download and decode the latest METAR cycle from Orrinsoft?"_s;
    session.state<MetarRequest>().metarRequested = false;
    session.user.showModal(Screen::frm_metar_request);
    return session.state<MetarRequest>().metarRequested;
}

bool loadNewCycle(Session& session, ActiveSkyPlatform& platform) {
    if (session.state<WeatherState>().ASv6VersionOK) return ActiveSky(session, platform).refresh();
    return clsWxFinderData(session, u"orrinsoft.jpg"_s).GetWeatherFromNOAA();
}

} // namespace

bool refreshUnasked(Session& session) {
    clsWxFinderData data(session);
    WeatherState& weather = session.state<WeatherState>();
    if (!(weather.ASv6VersionOK ? data.GetWeatherFromASv6() : data.GetWeatherFromNOAA())) return false;
    weather.FlyNowDisabled = session.rows<clsWxFinders>()->Count() == 0;
    return true;
}

/// The first cycle of a table comes without a question, a picture or a wait, too.
void refreshWeather(Session& session, ActiveSkyPlatform& platform) {
    const bool hasData = session.state<WeatherState>().MetarDataLoaded;
    if (hasData && !isWanted(session)) return;
    if (!(hasData ? loadNewCycle(session, platform) : refreshUnasked(session))) return;
    session.state<WeatherState>().FlyNowDisabled = session.rows<clsWxFinders>()->Count() == 0;
    if (session.state<WeatherState>().FlyNowDisabled)
        session.user.showMessage(
            {MessageKind::information, u"No Metar Data"_s,
             u"There is no METAR data in the data base.  Until you download a METAR cycle "
             "no weather data can be displayed"_s});
    session.user.refreshScreen(Screen::frm_WxControl);
}

} // namespace morvane
