#include "ground/ground_sample.h"

#include "core/failure_report.h"

namespace morvane {

bool GroundSample::openTexImage(const FilePath& path) {
    const bool loaded =
        reportFailures(session_.user, {}, [&] { pictures_ = loadPicturePair(session_.files, path); });
    TsProcess();
    return loaded;
}

void GroundSample::TsProcess() {
    if (!pictures_.result.isCreated()) return;
    const ColourValues& colours = session_.ground.colours;
    colourise_.saturation = colours.saturation;
    colourise_.Red = colours.red;
    colourise_.green = colours.green;
    colourise_.blue = colours.blue;
    colourise_.brightness = colours.brightness;
    colourise_.contrast = colours.contrast;
    colourise_.process(pictures_.source, pictures_.result);
}

} // namespace morvane
