#pragma once

#include "core/file_path.h"

#include <QString>
#include <cstdint>
#include <optional>

namespace morvane {

struct CloudCover;
class Session;

/// Ways to the cover of a flight.
enum class CoverMethod : std::int16_t { flightPlan, airports, option, report, cancelled };

/// What the dialogs of a cover give back.
struct CoverChoice {
    CoverMethod coverMethod = CoverMethod::flightPlan; ///< frm_Select_CC_Method: the option in force
    bool coverConfirmed = false; ///< frm_FlightPlan, frm_FromDepDestVal, frm_CC_From_Option,
                                 ///< frm_CC_From_Metar_String: whether OK was pressed
    /// The class that the last of them found, 0 where none is known. It outlives them: OK on a report that
    /// was not processed takes the class of before.
    std::int16_t cloudClass = 0;
    FilePath planFile =
        {}; ///< frm_FlightPlan: the only plan that it shows; empty for those of the user's folder
};

/// The class of an average. One between 1 and 2 becomes 2 and one between 4 and 5 becomes 4, so that covers
/// one step apart meet nearer the middle; any other goes to the nearest class, ties to the even one.
std::int16_t roundedCover(double average);
/// The class of a flight between two airports: that of the other where one is 0, which means not known.
std::int16_t computeAverageCover(std::int16_t departure, std::int16_t destination);
/// That of the session's departure and destination, by their reports; 0 when neither has clouds.
std::int16_t coverOfAirports(Session& session);

/// The class of a report, 6 for an obscured sky. 0, after the message that told so, for one without a cloud
/// group.
std::int16_t processMetarString(Session& session, const QString& metar);

/// Asks for the way and then for the cover, over and over until one is confirmed, as a cancelled way leads
/// back to the choice. Nothing when the choice is cancelled or the program ends. The main window is away
/// meanwhile.
std::optional<std::int16_t> selectCloudCoverMethod(Session& session);
/// The same by one plan, which was chosen already: it is shown with its weather, and cancel is the end.
/// Nothing after the message that its form is not known, too; raises when it cannot be read.
std::optional<std::int16_t> coverAlongPlan(Session& session, const FilePath& file);

} // namespace morvane
