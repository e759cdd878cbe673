#include "sky/sky_sample.h"

#include "core/failure_report.h"
#include "imaging/picture_reader.h"

namespace morvane {

FilePath skyStockFolder(const Session& session, const QString& name) {
    return (session.AppPath / u"Resources\\Sky").child(name);
}

FilePath skySampleFile(const Session& session, const QString& baseSet) {
    return skyStockFolder(session, baseSet).child(u"sky_afternoon_3.bmp"_s);
}

bool SkySample::openImage(const FilePath& path) {
    const bool loaded = reportFailures(session_.user, {}, [&] {
        cDIBSection source, result;
        source.CreateFromPicture(loadPicture(session_.files, path));
        if (!result.Create(source.Width(), source.Height())) throw Error(ErrorCode::outOfMemory);
        sourceDib_ = std::move(source);
        resultDib_ = std::move(result);
    });
    process();
    return loaded;
}

void SkySample::process() {
    if (!resultDib_.isCreated()) return;
    if (table_ == SkyTable::texture) {
        colourise_.skyTextureGroups = session_.skyTextureGroups;
        colourise_.processSkyTexture(sourceDib_, resultDib_);
    } else {
        colourise_.skyPaletteGroups = session_.skyPaletteGroups;
        colourise_.processSky(sourceDib_, resultDib_);
    }
}

} // namespace morvane
