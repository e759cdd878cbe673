#include "app/command_line_run.h"

#include "core/session.h"
#include "sets/cloud_cover.h"
#include "simulator/set_matching.h"
#include "weather/cover_choice.h"

namespace morvane {

void runCommandLine(Session& session, const QString& argument) {
    session.state<FlightWeather>().WxCloudList.clear();
    session.state<FlightWeather>().WxStrengthList.clear();
    if (const CloudCover* cover = cloudCoverOfCode(argument)) {
        session.state<FlightWeather>().WxCloudList = QStringList{QString::number(cover->number)};
        session.state<FlightWeather>().WxStrengthList = QStringList{QString()};
    }
    flyNow(session);
}

} // namespace morvane
