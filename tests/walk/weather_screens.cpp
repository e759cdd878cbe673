#include "core/literals.h"
#include "simulator/simulator_launch.h"
#include "walk/walk_tables.h"
#include "weather/cover_choice.h"
#include "weather/decoded_lines.h"
#include "weather/report_filter.h"
#include "weather/screens/filter_choice.h"
#include "weather/weather_refresh.h"
#include "weather/weather_state.h"

namespace morvane::test {

namespace {

/// The search is narrowed already, so that there is a filter to clear.
void openWeather(Walk& walk) {
    openHome(walk);
    walk.session().state<WeatherState>().InhibitWeatherReports = false;
    walk.program().shell.goToPage(u"frm_WxControl"_s);
    auto& country = walk.program().control<FilterChoice>(u"frm_WxControl"_s, u"cboCountry"_s);
    country.setCurrentIndex(2);
    Q_EMIT country.activated(2);
}

void openFinder(Walk& walk) {
    openHome(walk);
    walk.session().state<WeatherState>().DepIcao.clear();
    showWxFinder(walk.session());
}

bool isAirportTaken(Session& session) {
    return !session.state<WeatherState>().DepIcao.isEmpty();
}

bool isMethodTaken(Session& session) {
    return session.state<CoverChoice>().coverMethod != CoverMethod::cancelled;
}

/// Airports, of which the next search would be another one.
Effect found() {
    return label(u"lblAirportCount"_s).lasting();
}

QString cloudClass(Session& session) {
    return QString::number(session.state<CoverChoice>().cloudClass);
}

void giveAirports(Session& session) {
    session.state<WeatherState>().DepIcao = u"KSEA"_s;
    session.state<WeatherState>().DepMetar = u"KSEA 241225Z 24015KT 9999 OVC030 18/09 Q1012"_s;
    session.state<WeatherState>().DestMetar = u"KPDX 241220Z 24015KT 9999 BKN030 18/09 Q1012"_s;
}

} // namespace

std::vector<WalkScreen> weatherScreens() {
    const auto isFlightTaken = isSet(&FlightChoice::FlightSelected);
    const Effect chosenFlight = becomes(&FlightChoice::SelectedFlightName),
                 chosenReport = becomes(&WxFilter::WxSelectedIcao);
    return {
        {"page", u"frm_WxControl"_s, openWeather, false,
         mainWindowRows(u"btn_FlightConfig"_s) +
             WalkRows{{u"lblASv6Support"_s, opens(u"https://activeskypage.example/ASv6/"_s)},
                      {u"txtICAO"_s, found(), 1, u"D"_s},
                      {u"txtAirportName"_s, found(), 1, u"Abi"_s},
                      {u"txtCity"_s, found(), 1, u"Abi"_s},
                      {u"cboCountry"_s, found()},
                      {u"cboState"_s, found()},
                      {u"cboCity"_s, found()},
                      {u"btn_ClearFilter"_s, found()},
                      {u"lvwAirports"_s, shows(u"frm_metar"_s)},
                      {u"btn_FlyNow"_s, shows(u"frm_Select_CC_Method"_s)},
                      {u"btn_SelectFlight"_s, shows(u"message Start Predefined Flight"_s)},
                      {u"btn_WxFinder"_s, shows(u"frm_WxFinder"_s)},
                      {u"btn_WxRefresh"_s, shows(u"frm_metar_request"_s)}}},
        {"finder", u"frm_WxFinder"_s, openFinder, true,
         answerRows(isAirportTaken) + WalkRows{{u"txtFilter"_s, itself(), 1, u"K"_s},
                                               {u"lstMetar"_s, chosenReport},
                                               {u"lstMetar|twice"_s, closes(isAirportTaken, true)},
                                               {u"(Down)"_s, chosenReport}}},
        {"flights", u"frm_flight"_s, dialog(Screen::frm_flight), true,
         answerRows(isFlightTaken) + WalkRows{{u"lstFlights"_s, chosenFlight},
                                              {u"lstFlights|twice"_s, closes(isFlightTaken, true)},
                                              {u"(Down)"_s, chosenFlight}}},
        {"decoded_report", u"frm_metar"_s,
         dialog(Screen::frm_metar,
                [](Session& session) { session.state<DecodedReportLines>().decodedMetarLines = {u"One"_s}; }),
         true,
         WalkRows{{u"btn_Ok"_s, closes([](Session&) { return true; }, true)},
                  {u"(Enter)"_s, closes([](Session&) { return true; }, true)},
                  {u"(Escape)"_s, closes([](Session&) { return true; }, true)},
                  {u"(close)"_s, closes([](Session&) { return true; }, true)}}},
        {"new_cycle", u"frm_metar_request"_s, dialog(Screen::frm_metar_request), true,
         answerRows(isSet(&MetarRequest::metarRequested))},
    };
}

std::vector<WalkScreen> coverScreens() {
    const auto isCoverTaken = isSet(&CoverChoice::coverConfirmed);
    return {
        {"method", u"frm_Select_CC_Method"_s, dialog(Screen::frm_Select_CC_Method), true,
         answerRows(isMethodTaken)},
        {"plans", u"frm_FlightPlan"_s, dialog(Screen::frm_FlightPlan), true,
         WalkRows{{u"btn_Ok"_s, closes(isCoverTaken, true)},
                  {u"btn_Cancel"_s, closes(isCoverTaken, false)},
                  {u"lvwFPList|twice"_s, label(u"lblDepVal"_s, u"south.pln"_s)},
                  {u"lvwFlightPlan"_s, nothing("no plan is open yet")},
                  {u"lvwFlightPlan|head"_s, nothing("no plan is open yet")},
                  {u"(Enter)"_s, label(u"lblDepVal"_s, u"north.pln"_s)},
                  {u"(Escape)"_s, closes(isCoverTaken, false)},
                  {u"(close)"_s, closes(isCoverTaken, false)}}},
        {"airports", u"frm_FromDepDestVal"_s, dialog(Screen::frm_FromDepDestVal, giveAirports), true,
         answerRows(isCoverTaken)},
        {"by_hand", u"frm_CC_From_Option"_s, dialog(Screen::frm_CC_From_Option), true,
         answerRows(isCoverTaken) + WalkRows{{u"optCloudCover*"_s, becomes(cloudClass), 5}}},
        {"report", u"frm_CC_From_Metar_String"_s, dialog(Screen::frm_CC_From_Metar_String), true,
         WalkRows{{u"btn_Ok"_s, closes(isCoverTaken, true)},
                  {u"btn_Cancel"_s, closes(isCoverTaken, false)},
                  {u"txtMetarString"_s, itself(), 1, u"EGLL"_s},
                  {u"btn_MetarProcess"_s, shows(u"message METAR Format Error!"_s)},
                  {u"(Enter)"_s, shows(u"message METAR Format Error!"_s)},
                  {u"(Escape)"_s, closes(isCoverTaken, false)},
                  {u"(close)"_s, closes(isCoverTaken, false)}}},
    };
}

} // namespace morvane::test
