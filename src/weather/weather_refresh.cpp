#include "weather/weather_refresh.h"

#include "weather/wx_finders.h"

namespace morvane {

namespace {

bool isWanted(Session& session) {
    session.modal.metarRequestText =
        session.weather.ASv6VersionOK
            ? u"Do you wish Morvane import and decode the latest METAR cycle from Active Sky?"_s
            : u"Do you wish Morvane to download and decode the latest METAR cycle from Orrinsoft?"_s;
    session.modal.metarRequested = false;
    session.user.showModal(Screen::frm_metar_request);
    return session.modal.metarRequested;
}

/// The first cycle of a table comes without a question, a picture or a wait.
bool loadFirstCycle(Session& session) {
    clsWxFinderData data(session);
    return session.weather.ASv6VersionOK ? data.GetWeatherFromASv6() : data.GetWeatherFromNOAA();
}

bool loadNewCycle(Session& session, ActiveSkyPlatform& platform) {
    if (session.weather.ASv6VersionOK) return ActiveSky(session, platform).refresh();
    return clsWxFinderData(session, u"orrinsoft.jpg"_s).GetWeatherFromNOAA();
}

} // namespace

void refreshWeather(Session& session, ActiveSkyPlatform& platform) {
    const bool hasData = session.weather.MetarDataLoaded;
    if (hasData && !isWanted(session)) return;
    if (!(hasData ? loadNewCycle(session, platform) : loadFirstCycle(session))) return;
    session.weather.FlyNowDisabled = session.gWxFinders->Count() == 0;
    if (session.weather.FlyNowDisabled)
        session.user.showMessage(
            {MessageKind::information, u"No Metar Data"_s,
             u"There is no METAR data in the data base.  Until you download a METAR cycle "
             "no weather data can be displayed"_s});
    session.user.refreshScreen(Screen::frm_WxControl);
}

} // namespace morvane
