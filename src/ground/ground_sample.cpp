#include "ground/ground_sample.h"

#include "core/failure_report.h"
#include "imaging/picture_reader.h"

namespace morvane {

bool GroundSample::openTexImage(const FilePath& path) {
    const bool loaded = reportFailures(session_.user, {}, [&] {
        cDIBSection source, result;
        source.CreateFromPicture(loadPicture(session_.files, path));
        if (!result.Create(source.Width(), source.Height())) throw Error(ErrorCode::outOfMemory);
        sourceDib_ = std::move(source);
        resultDib_ = std::move(result);
    });
    TsProcess();
    return loaded;
}

void GroundSample::TsProcess() {
    if (!resultDib_.isCreated()) return;
    const ColourValues& colours = session_.ground.colours;
    colourise_.saturation = colours.saturation;
    colourise_.Red = colours.red;
    colourise_.green = colours.green;
    colourise_.blue = colours.blue;
    colourise_.brightness = colours.brightness;
    colourise_.contrast = colours.contrast;
    colourise_.process(sourceDib_, resultDib_);
}

} // namespace morvane
