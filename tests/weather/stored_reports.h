#pragma once

#include "core/numbers.h"
#include "core/session.h"
#include "weather/report_rows.h"

#include <limits>

namespace morvane::test {

inline constexpr double nowhere = std::numeric_limits<double>::quiet_NaN();

/// A stored report of that cloud class; its station has a position, in degrees, where one is given.
inline void addStation(Session& session, const QString& icao, std::int16_t cloudClass,
                       double latitude = nowhere, double longitude = nowhere) {
    clsWxFinder report;
    report.WxFinderIcao = icao;
    report.WxFinderMetar = icao + u" 010000Z 00000KT"_s;
    report.WxFinderMaxCloud = cloudClass;
    const auto degrees = [](double angle) {
        return angle == angle ? floatText(static_cast<float>(angle)) : QString();
    };
    storeReport(session, report, {degrees(latitude), degrees(longitude)});
}

} // namespace morvane::test
