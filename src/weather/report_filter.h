#pragma once

#include "weather/reports.h"

#include <vector>

namespace morvane {

class Session;

/// What the weather finder asks for.
struct WxFilter {
    QString precipitation, intensity, obscuration, cloudCover; ///< entries of the lists
    bool towering = false, cumulonimbus = false, cumulus = false;
    QString WxFilterText; ///< beginning of a station code
    std::int16_t WxMaxResults = 25;
    bool WxFinderIsDeparture = true;
    QString WxSelectedIcao;
    bool WxFinderLoading = false; ///< the screen opens: nothing is filtered yet
};

// What the lists of the weather finder offer, "Any" first.
const QStringList& precipitationEntries();
const QStringList& intensityEntries();
const QStringList& obscurationEntries();
const QStringList& cloudCoverEntries();

inline constexpr std::int16_t usualMaxResults = 25;

/// The session's filter as the finder opens with it: any weather, the end of the flight that the weather page
/// shows. The most results stay as they were chosen.
void openWxFilter(Session& session);
/// True when there is a precipitation to ask an intensity of.
bool hasIntensity(const WxFilter& filter);
/// The stored reports that have the weather of the session's filter, in order of their codes, at most
/// `WxMaxResults` of them; 0 means all, since the count passes it at once. Loads the reports when nobody has
/// yet.
std::vector<clsWxFinders::Pointer> filterMetars(Session& session);

/// Opens the weather finder in the place of the main window.
void showWxFinder(Session& session);
/// Makes the airport of `WxSelectedIcao` the end of the flight that `WxFinderIsDeparture` says, and the
/// page's choice with it; a station that is no airport is told.
void selectWxAirport(Session& session);

} // namespace morvane
