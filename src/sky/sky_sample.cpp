#include "sky/sky_sample.h"

#include "core/failure_report.h"
#include "sky/sky_groups.h"

namespace morvane {

FilePath skyStockFolder(const Session& session, const QString& name) {
    return (session.AppPath / u"Resources\\Sky").child(name);
}

FilePath skySampleFile(const Session& session, const QString& baseSet) {
    return skyStockFolder(session, baseSet).child(u"sky_afternoon_3.bmp"_s);
}

bool SkySample::openImage(const FilePath& path) {
    const bool loaded =
        reportFailures(session_.user, {}, [&] { pictures_ = loadPicturePair(session_.files, path); });
    process();
    return loaded;
}

void SkySample::process() {
    if (!pictures_.result.isCreated()) return;
    if (table_ == SkyTable::texture) {
        colourise_.skyTextureGroups = session_.state<SkyColourTables>().skyTextureGroups;
        colourise_.processSkyTexture(pictures_.source, pictures_.result);
    } else {
        colourise_.skyPaletteGroups = session_.state<SkyColourTables>().skyPaletteGroups;
        colourise_.processSky(pictures_.source, pictures_.result);
    }
}

} // namespace morvane
