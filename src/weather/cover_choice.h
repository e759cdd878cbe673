#pragma once

#include <QStringList>
#include <cstdint>

namespace morvane {

class Session;

/// The weather of the flight that is to be matched.
struct FlightWeather {
    QStringList WxCloudList, WxStrengthList; ///< one element a point
    bool CoverCancelled = false;
};

/// What the choice of a cover gives back; the cover itself stands in FlightWeather.
struct CoverChoice {
    std::int16_t coverMethod = 0; ///< frm_Select_CC_Method: the option in force (see CoverMethod)
    bool coverConfirmed = false;  ///< frm_FlightPlan, frm_FromDepDestVal, frm_CC_From_Option,
                                  ///< frm_CC_From_Metar_String: whether OK was pressed
};

/// How a cloud class is shown.
struct CoverDisplay {
    QString picture; ///< file below "\Media"
    QString text;
};

/// What is shown for a class above 0: one beyond 1 to 5, such as an obscured sky's 6, reads as scattered.
const CoverDisplay& coverDisplay(int cloudClass);

/// The class of an average. One between 1 and 2 becomes 2 and one between 4 and 5 becomes 4, so that covers
/// one step apart meet nearer the middle; any other goes to the nearest class, ties to the even one.
std::int16_t roundedCover(double average);
/// The class of a flight between two airports: that of the other where one is 0, which means not known.
std::int16_t computeAverageCover(std::int16_t departure, std::int16_t destination);

/// One point without a weather strength as the weather of the flight.
void setCover(Session& session, std::int16_t cloudClass);
/// The class between the reports of departure and destination, set as the cover of the flight; 0, and the
/// cover as it was, when neither has clouds.
std::int16_t takeCoverOfAirports(Session& session);

/// The decoder's whole text into the session's lists: its cloud class and no strength. False, after the
/// message that told so, for a report without a cloud group; the list then holds "0".
bool processMetarString(Session& session, const QString& metar);

/// Ways to a cover, as CoverChoice::coverMethod has them.
enum class CoverMethod : std::int16_t { flightPlan, airports, option, report, cancelled };

/// Asks for the way and then for the cover, over and over until one is confirmed, as a cancelled way leads
/// back to the choice. Only a cancelled choice ends it without: it sets CoverCancelled. The main window is
/// away meanwhile.
void selectCloudCoverMethod(Session& session);

} // namespace morvane
