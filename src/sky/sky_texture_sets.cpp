#include "sky/sky_texture_sets.h"

#include "sets/set_names.h"

namespace morvane {

const StoredTable<clsSkyTextureSet>& clsSkyTextureSet::table() {
    static const StoredTable<clsSkyTextureSet> table{
        .name = u"SKY_TEXTURE_SETS"_s,
        .rows = {u"SELECT * FROM SKY_TEXTURE_SETS WHERE ID = "_s,
                 {u"select max(ID) as STSID from SKY_TEXTURE_SETS "_s, u"STSID"_s},
                 u"SKY_TEXTURE_SET"_s,
                 &clsSkyTextureSet::StsID,
                 &clsSkyTextureSet::SkyTextureSet,
                 {{u"SKY_TEXTURE_SET"_s, &clsSkyTextureSet::SkyTextureSet},
                  {u"CLOUD_COVER"_s, &clsSkyTextureSet::CloudCover},
                  {u"ACTIVATED"_s, &clsSkyTextureSet::Activated},
                  {u"DESCRIPTION"_s, &clsSkyTextureSet::Description},
                  {u"TEXTURE_SET_GROUP"_s, &clsSkyTextureSet::TextureSetGroup},
                  {u"INSTALLED"_s, &clsSkyTextureSet::Installed}},
                 folderNames},
        .activated = &clsSkyTextureSet::Activated,
        .deleteOwned = u"DELETE FROM SKY_TEXTURE_SUB_SETS WHERE TEXTURE_SET_ID = "_s};
    return table;
}

} // namespace morvane
