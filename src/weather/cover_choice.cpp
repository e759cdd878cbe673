#include "weather/cover_choice.h"

#include "core/numbers.h"
#include "core/session.h"
#include "weather/flight_plan.h"
#include "weather/metar_decoder.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

constexpr Screen methodScreens[] = {Screen::frm_FlightPlan, Screen::frm_FromDepDestVal,
                                    Screen::frm_CC_From_Option, Screen::frm_CC_From_Metar_String};

std::int16_t cloudClassOf(Session& session, const QString& report) {
    return clsDecodeMetar(session.user).decodeMetarString(trimmedBlanks(report)).WxFinderMaxCloud;
}

/// False when the way that was chosen was cancelled; true also when there is no way any more.
bool chooseCover(Session& session) {
    auto& choice = session.state<CoverChoice>();
    session.user.showModal(Screen::frm_Select_CC_Method);
    if (choice.coverMethod == CoverMethod::cancelled) return true;
    choice.coverConfirmed = false;
    session.user.showModal(methodScreens[static_cast<int>(choice.coverMethod)]);
    return choice.coverConfirmed;
}

} // namespace

std::int16_t roundedCover(double average) {
    if (average > 1 && average < 2) return 2;
    if (average > 4 && average < 5) return 4;
    return roundToInteger(average);
}

std::int16_t computeAverageCover(std::int16_t departure, std::int16_t destination) {
    if (departure == 0) return destination;
    if (destination == 0) return departure;
    return roundedCover((departure + destination) / 2.0);
}

std::int16_t coverOfAirports(Session& session) {
    return computeAverageCover(cloudClassOf(session, session.state<WeatherState>().DepMetar),
                               cloudClassOf(session, session.state<WeatherState>().DestMetar));
}

std::int16_t processMetarString(Session& session, const QString& metar) {
    const std::int16_t cloudClass = cloudClassOf(session, metar);
    if (cloudClass == 0)
        session.user.showMessage({MessageKind::error, u"METAR Format Error!"_s,
                                  u"METAR String format not recognised please enter new string to process"_s,
                                  true, false, false});
    return cloudClass;
}

std::optional<std::int16_t> coverAlongPlan(Session& session, const FilePath& file) {
    if (!readFlightPlan(session, file)) return std::nullopt; // told before there is an empty dialog
    auto& choice = session.state<CoverChoice>();
    choice.planFile = file;
    choice.coverConfirmed = false;
    session.user.showModal(Screen::frm_FlightPlan);
    choice.planFile = {};
    if (!choice.coverConfirmed || session.ExitInProgress.endsWork()) return std::nullopt;
    return choice.cloudClass;
}

std::optional<std::int16_t> selectCloudCoverMethod(Session& session) {
    session.user.hideScreen(Screen::frm_Main);
    // A program that ends closes each screen at once, which must not bring up the next one.
    while (!chooseCover(session) && !session.ExitInProgress.endsWork()) {
    }
    session.user.showScreen(Screen::frm_Main);
    const auto& choice = session.state<CoverChoice>();
    if (choice.coverMethod == CoverMethod::cancelled || session.ExitInProgress.endsWork())
        return std::nullopt;
    return choice.cloudClass;
}

} // namespace morvane
