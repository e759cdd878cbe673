#include "weather/report_filter.h"

#include "core/failure_report.h"
#include "core/session.h"
#include "weather/airport_report.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

const QString any = u"Any"_s, none = u"None"_s, towering = u"Towering Cumulonimbus"_s;

/// "None" asks for an empty text.
bool isAsked(const QString& wanted, const QString& text) {
    if (wanted == any) return true;
    return wanted == none ? text.isEmpty() : text.contains(wanted);
}

bool hasPrecipitation(const WxFilter& filter, const clsWxFinder& finder) {
    if (!isAsked(filter.precipitation, finder.WxFinderWeather)) return false;
    const bool asksIntensity = hasIntensity(filter) && filter.intensity != any;
    return !asksIntensity || trimmedBlanks(finder.WxFinderWeatherStrength) == filter.intensity;
}

bool hasClouds(const WxFilter& filter, const QString& clouds) {
    if (filter.cloudCover != any && !clouds.contains(filter.cloudCover)) return false;
    if (filter.towering && !clouds.contains(towering)) return false;
    if (filter.cumulonimbus && !clouds.contains(u"Cumulonimbus")) return false;
    if (filter.cumulonimbus && !filter.towering && clouds.contains(towering)) return false;
    return !filter.cumulus || clouds.contains(u"Cumulus");
}

bool passes(const WxFilter& filter, const clsWxFinder& finder) {
    return hasPrecipitation(filter, finder) && isAsked(filter.obscuration, finder.WxFinderFog) &&
           hasClouds(filter, finder.WxFinderCloudCover) &&
           finder.WxFinderIcao.startsWith(filter.WxFilterText, Qt::CaseInsensitive);
}

} // namespace

bool hasIntensity(const WxFilter& filter) {
    return filter.precipitation != any && filter.precipitation != none;
}

const QStringList& precipitationEntries() {
    static const QStringList entries{any,
                                     none,
                                     u"Rain"_s,
                                     u"Shower(s)"_s,
                                     u"Drizzle"_s,
                                     u"Snow"_s,
                                     u"Snow Grains"_s,
                                     u"Ice Crystals"_s,
                                     u"Ice Pellets"_s,
                                     u"Hail"_s,
                                     u"Small Hail"_s,
                                     u"Thunderstorm"_s};
    return entries;
}

const QStringList& intensityEntries() {
    static const QStringList entries{any, u"Light"_s, u"Moderate"_s, u"Heavy"_s};
    return entries;
}

const QStringList& obscurationEntries() {
    static const QStringList entries{any,       none,       u"Mist"_s,         u"Fog"_s,
                                     u"Haze"_s, u"Smoke"_s, u"Volcanic Ash"_s, u"Widespread Dust"_s,
                                     u"Sand"_s};
    return entries;
}

const QStringList& cloudCoverEntries() {
    static const QStringList entries{
        any, u"Sky Clear"_s, u"Mostly Clear"_s, u"Partly Cloudy"_s, u"Mostly Cloudy"_s, u"Overcast"_s};
    return entries;
}

void openWxFilter(Session& session) {
    const std::int16_t maxResults = session.state<WxFilter>().WxMaxResults;
    session.state<WxFilter>() = {};
    session.state<WxFilter>().WxMaxResults = maxResults;
    for (QString* entry : {&session.state<WxFilter>().precipitation, &session.state<WxFilter>().intensity,
                           &session.state<WxFilter>().obscuration, &session.state<WxFilter>().cloudCover})
        *entry = any;
    session.state<WxFilter>().WxFinderIsDeparture = session.state<WeatherState>().optDepAirport;
}

std::vector<clsWxFinders::Pointer> filterMetars(Session& session) {
    if (!session.rows<clsWxFinders>()) clsWxFinders::reload(session);
    std::vector<clsWxFinders::Pointer> found;
    for (int count = 1; const auto& finder : *session.rows<clsWxFinders>()) {
        if (!passes(session.state<WxFilter>(), *finder)) continue;
        found.push_back(finder);
        if (count++ == session.state<WxFilter>().WxMaxResults) break;
    }
    return found;
}

void showWxFinder(Session& session) {
    session.user.hideScreen(Screen::frm_Main);
    session.user.showModal(Screen::frm_WxFinder);
    session.user.showScreen(Screen::frm_Main);
}

void selectWxAirport(Session& session) {
    const FailureReport report{u"METAR Error!"_s, MessageKind::exclamation};
    // The page goes along with the end that was chosen, so that name and report of an end never part.
    session.state<WeatherState>().optDepAirport = session.state<WxFilter>().WxFinderIsDeparture;
    session.state<WeatherState>().optDestAirport = !session.state<WxFilter>().WxFinderIsDeparture;
    session.user.refreshScreen(Screen::frm_WxControl);
    reportFailures(session.user, report, [&] {
        if (const auto airport = findAirport(session, session.state<WxFilter>().WxSelectedIcao))
            chooseAirport(session, *airport);
        else
            session.user.showMessage({report.kind, report.title,
                                      u"METAR file cannot be accessed at this time or is not available "
                                      "please try again later"_s});
    });
}

} // namespace morvane
