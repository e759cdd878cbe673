#include "app/command_line_run.h"

#include "core/session.h"
#include "sets/cloud_cover.h"
#include "simulator/set_matching.h"

namespace morvane {

void runCommandLine(Session& session, const QString& argument) {
    const CloudCover* cover = cloudCoverOfCode(argument);
    flyWithCover(session, cover ? *cover : coverOfClass(0));
}

} // namespace morvane
