#include "sky/sky_texture_sub_sets.h"

namespace morvane {

const StoredTable<clsSkyTextureSubSet>& clsSkyTextureSubSet::table() {
    static const StoredTable<clsSkyTextureSubSet> table{
        .name = u"SKY_TEXTURE_SUB_SETS"_s,
        .rows = {u"SELECT * FROM SKY_TEXTURE_SUB_SETS WHERE ID = "_s,
                 {u"select max(ID) as STSID from SKY_TEXTURE_SUB_SETS "_s, u"STSID"_s},
                 u"SKY_TEXTURE_SUB_SET"_s,
                 &clsSkyTextureSubSet::StsSubID,
                 &clsSkyTextureSubSet::SkyTextureSubSet,
                 {{u"TEXTURE_SET_ID"_s, &clsSkyTextureSubSet::StsID},
                  {u"SKY_TEXTURE_SUB_SET"_s, &clsSkyTextureSubSet::SkyTextureSubSet},
                  {u"DARK_GROUND"_s, &clsSkyTextureSubSet::GroundDark, TextForm::storedNumbers},
                  {u"LIGHT_GROUND"_s, &clsSkyTextureSubSet::GroundLight, TextForm::storedNumbers},
                  {u"DARK_CLOUD"_s, &clsSkyTextureSubSet::CloudDark, TextForm::storedNumbers},
                  {u"LIGHT_CLOUD"_s, &clsSkyTextureSubSet::CloudLight, TextForm::storedNumbers},
                  {u"HIGH_HORIZON"_s, &clsSkyTextureSubSet::HorizonHigh, TextForm::storedNumbers},
                  {u"LOW_HORIZON"_s, &clsSkyTextureSubSet::HorizonLow, TextForm::storedNumbers},
                  {u"MAIN_SKY"_s, &clsSkyTextureSubSet::SkyMain, TextForm::storedNumbers},
                  {u"LIGHT_WATER"_s, &clsSkyTextureSubSet::WaterLight, TextForm::storedNumbers},
                  {u"MAIN_WATER"_s, &clsSkyTextureSubSet::WaterMain, TextForm::storedNumbers},
                  {u"DARK_WATER"_s, &clsSkyTextureSubSet::WaterDark, TextForm::storedNumbers},
                  {u"TIME_OF_DAY"_s, &clsSkyTextureSubSet::timeOfDay}}},
        .ownerColumn = u"TEXTURE_SET_ID"_s};
    return table;
}

} // namespace morvane
