#include "weather/cover_choice.h"

#include "core/numbers.h"
#include "core/session.h"
#include "weather/metar_decoder.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

constexpr Screen methodScreens[] = {Screen::frm_FlightPlan, Screen::frm_FromDepDestVal,
                                    Screen::frm_CC_From_Option, Screen::frm_CC_From_Metar_String};

std::int16_t cloudClassOf(Session& session, const QString& report) {
    return clsDecodeMetar(session.user).decodeMetarString(trimmedBlanks(report)).WxFinderMaxCloud;
}

/// False when the way that was chosen was cancelled.
bool chooseCover(Session& session) {
    session.user.showModal(Screen::frm_Select_CC_Method);
    const auto method = static_cast<CoverMethod>(session.state<CoverChoice>().coverMethod);
    session.state<FlightWeather>().CoverCancelled = method == CoverMethod::cancelled;
    if (session.state<FlightWeather>().CoverCancelled) return true;
    session.state<CoverChoice>().coverConfirmed = false;
    session.user.showModal(methodScreens[session.state<CoverChoice>().coverMethod]);
    return session.state<CoverChoice>().coverConfirmed;
}

} // namespace

const CoverDisplay& coverDisplay(int cloudClass) {
    static const CoverDisplay displays[] = {
        {u"skc.bmp"_s, u"Clear Skies"_s},      {u"few.bmp"_s, u"Few Clouds"_s},
        {u"sct.bmp"_s, u"Scattered Clouds"_s}, {u"bkn.bmp"_s, u"Broken Clouds"_s},
        {u"ovc.bmp"_s, u"Overcast"_s},
    };
    return displays[cloudClass >= 1 && cloudClass <= 5 ? cloudClass - 1 : 2];
}

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

void setCover(Session& session, std::int16_t cloudClass) {
    session.state<FlightWeather>().WxCloudList = QStringList{QString::number(cloudClass)};
    session.state<FlightWeather>().WxStrengthList = QStringList{QString()};
}

std::int16_t takeCoverOfAirports(Session& session) {
    const std::int16_t average =
        computeAverageCover(cloudClassOf(session, session.state<WeatherState>().DepMetar),
                            cloudClassOf(session, session.state<WeatherState>().DestMetar));
    if (average > 0) setCover(session, average);
    return average;
}

bool processMetarString(Session& session, const QString& metar) {
    const std::int16_t cloudClass = cloudClassOf(session, metar);
    setCover(session, cloudClass);
    if (cloudClass != 0) return true;
    session.user.showMessage({MessageKind::error, u"METAR Format Error!"_s,
                              u"METAR String format not recognised please enter new string to process"_s,
                              true, false, false});
    return false;
}

void selectCloudCoverMethod(Session& session) {
    session.user.hideScreen(Screen::frm_Main);
    // A program that ends closes each screen at once, which must not bring up the next one.
    while (!chooseCover(session))
        if (session.ExitInProgress.endsWork()) break;
    session.state<FlightWeather>().CoverCancelled |= session.ExitInProgress.endsWork();
    session.user.showScreen(Screen::frm_Main);
}

} // namespace morvane
