#pragma once

#include "sets/stored_rows.h"

namespace morvane {

/// The colours of a sky set for one time of day: a row of `SKY_TEXTURE_SUB_SETS`. Each colour text holds nine
/// numbers joined by ":": saturation, red, green, blue, brightness, contrast (-100 to 100 each), first
/// column, last column and row of the pixels. The order below is not that of the pixel groups at its end:
/// main sky is group 10, high horizon group 8.
struct clsSkyTextureSubSet {
    QString timeOfDay; ///< "Day"
    bool IsNew = false;
    std::int16_t StsID = 0; ///< key of the set
    std::int16_t StsSubID = 0;
    QString SkyTextureSubSet; ///< such as "40-Day:12-Storm"
    QString GroundDark;
    QString GroundLight;
    QString CloudDark;
    QString CloudLight;
    QString WaterDark;
    QString WaterMain;
    QString WaterLight;
    QString SkyMain;
    QString HorizonLow;
    QString HorizonHigh;

    static const StoredTable<clsSkyTextureSubSet>& table();
};

/// Those of one sky set at a time. They go with their set, never alone.
using clsSkyTextureSubSets = StoredRows<clsSkyTextureSubSet>;

} // namespace morvane
