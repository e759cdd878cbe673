#pragma once

#include "core/numbers.h"
#include "core/session.h"
#include "weather/wx_finders.h"

#include <limits>

namespace morvane::test {

inline constexpr double nowhere = std::numeric_limits<double>::quiet_NaN();

/// A stored report of that cloud class; its station has a position, in degrees, where one is given.
inline void addStation(Session& session, const QString& icao, std::int16_t cloudClass,
                       double latitude = nowhere, double longitude = nowhere) {
    DecodedMetarRow row;
    row.report.WxFinderIcao = icao;
    row.report.WxFinderMetar = icao + u" 010000Z 00000KT"_s;
    row.report.WxFinderMaxCloud = cloudClass;
    if (latitude == latitude) {
        row.latitude = floatText(static_cast<float>(latitude));
        row.longitude = floatText(static_cast<float>(longitude));
    }
    if (!clsWxFinderData(session).insertDecodedMetar(row)) throw Error(ErrorCode::storeFailure);
}

} // namespace morvane::test
