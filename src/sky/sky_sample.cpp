#include "sky/sky_sample.h"

#include "sky/sky_groups.h"

namespace morvane {

FilePath skyStockFolder(const Session& session, const QString& name) {
    return (session.AppPath / u"Resources\\Sky").child(name);
}

FilePath skySampleFile(const Session& session, const QString& baseSet) {
    return skyStockFolder(session, baseSet).child(u"sky_afternoon_3.bmp"_s);
}

void SkySample::colour(const cDIBSection& source, cDIBSection& result) {
    const SkyColourTables& tables = session_.state<SkyColourTables>();
    if (table_ == SkyTable::texture) {
        colourise_.skyTextureGroups = tables.skyTextureGroups;
        colourise_.processSkyTexture(source, result);
    } else {
        colourise_.skyPaletteGroups = tables.skyPaletteGroups;
        colourise_.processSky(source, result);
    }
}

} // namespace morvane
