#include "sets/texture_sample.h"

#include "core/failure_report.h"

namespace morvane {

Reported PictureSample::openImage(const FilePath& path) {
    const bool loaded = reportFailures(session_.user, morvaneError,
                                       [&] { pictures_ = loadPicturePair(session_.files, path); });
    process();
    return loaded;
}

void PictureSample::process() {
    if (pictures_.result.isCreated()) colour(pictures_.source, pictures_.result);
}

void TextureSample::colour(const cDIBSection& source, cDIBSection& result) {
    colourise_.saturation = colours_.saturation;
    colourise_.Red = colours_.red;
    colourise_.green = colours_.green;
    colourise_.blue = colours_.blue;
    colourise_.brightness = colours_.brightness;
    colourise_.contrast = colours_.contrast;
    colourise_.process(source, result);
}

} // namespace morvane
