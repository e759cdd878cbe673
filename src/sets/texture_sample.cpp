#include "sets/texture_sample.h"

#include "core/failure_report.h"

namespace morvane {

bool TextureSample::openTexImage(const FilePath& path) {
    const bool loaded =
        reportFailures(session_.user, {}, [&] { pictures_ = loadPicturePair(session_.files, path); });
    TsProcess();
    return loaded;
}

void TextureSample::TsProcess() {
    if (!pictures_.result.isCreated()) return;
    colourise_.saturation = colours_.saturation;
    colourise_.Red = colours_.red;
    colourise_.green = colours_.green;
    colourise_.blue = colours_.blue;
    colourise_.brightness = colours_.brightness;
    colourise_.contrast = colours_.contrast;
    colourise_.process(pictures_.source, pictures_.result);
}

} // namespace morvane
