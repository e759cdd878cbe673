#include "weather/screens/cover_airports_screen.h"

#include "core/session.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "weather/cover_choice.h"
#include "weather/weather_state.h"

namespace morvane {

namespace {

constexpr int left = 26, right = 360, columnWidth = 310, valueOffset = 70;

} // namespace

/// It has the outline of the wide screens and not that of the message: two long reports side by side do not
/// fit into the latter's 348 by 176 pixels, and a report that is cut off is no value to choose by.
frm_FromDepDestVal::frm_FromDepDestVal(Shell& shell)
    : CoverDialog(shell, u"frm_FromDepDestVal"_s, wideDialogLook, u"Values from Wx Control Screen"_s),
      departure_(addEnd(u"lblDep"_s, u"Departure Airport"_s, left)),
      destination_(addEnd(u"lblDest"_s, u"Destination Airport"_s, right)),
      average_(*this, {u"picAverageCC"_s, u"lblAverageCCVal"_s}, {left, 340}, 400) {
    makeLabel(this, u"Average Cloud:"_s, {left, 318, columnWidth, 16}, TextRole::fieldCaption);
    addAnswerKeys(coverOkTip, coverCancelTip);
}

frm_FromDepDestVal::End frm_FromDepDestVal::addEnd(const QString& prefix, const QString& heading,
                                                   int column) {
    makeLabel(this, heading, {column, 92, columnWidth, 16}, TextRole::sectionHeading);
    const auto add = [&](const QString& caption, const QString& name, int top, int height, TextRole role) {
        makeLabel(this, caption, {column, top, valueOffset, 16}, TextRole::fieldCaption);
        QLabel* value =
            makeLabel(this, {}, {column + valueOffset, top, columnWidth - valueOffset, height}, role);
        value->setObjectName(prefix + name);
        return value;
    };
    return {add(u"ICAO"_s, u"IcaoVal"_s, 118, 16, TextRole::value),
            add(u"Airport"_s, u"AirportVal"_s, 142, 32, TextRole::body),
            add(u"City"_s, u"CityVal"_s, 180, 16, TextRole::body),
            add(u"METAR"_s, u"Metar"_s, 204, 100, TextRole::longHelp)};
}

void frm_FromDepDestVal::prepare() {
    popAirportValues();
    const std::int16_t average = coverOfAirports(session());
    if (average > 0) {
        session().state<CoverChoice>().cloudClass = average;
        average_.showCover(average);
    } else {
        average_.showText(u"No Airport data entered for processing"_s, Ink::signalRed);
    }
    allowOk(average > 0);
}

void frm_FromDepDestVal::popAirportValues() {
    const auto fill = [](const End& end, const QString& icao, const QString& airport, const QString& city,
                         const QString& metar) {
        end.icao->setText(icao);
        end.airport->setText(airport);
        end.city->setText(city);
        end.metar->setText(metar);
    };
    const WeatherState& weather = session().state<WeatherState>();
    fill(departure_, weather.DepIcao, weather.DepAirportName, weather.DepCity, weather.DepMetar);
    fill(destination_, weather.DestIcao, weather.DestAirportName, weather.DestCity, weather.DestMetar);
}

} // namespace morvane
