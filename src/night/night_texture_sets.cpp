#include "night/night_texture_sets.h"

#include "sets/set_names.h"

namespace morvane {

const StoredTable<clsNightTextureSet>& clsNightTextureSet::table() {
    static const StoredTable<clsNightTextureSet> table{
        u"NIGHT_TEXTURE_SETS"_s,
        {u"SELECT * FROM NIGHT_TEXTURE_SETS WHERE ID = "_s,
         {u"select max(ID) as TSID from NIGHT_TEXTURE_SETS "_s, u"TSID"_s},
         u"TEXTURE_SET"_s,
         &clsNightTextureSet::NtsID,
         &clsNightTextureSet::TextureSet,
         {{u"COLOR_SETTINGS"_s, &clsNightTextureSet::ColorSettings, TextForm::localNumbers},
          {u"ACTIVATED"_s, &clsNightTextureSet::Actvated},
          {u"DESCRIPTION"_s, &clsNightTextureSet::Description},
          {u"TEXTURE_SET"_s, &clsNightTextureSet::TextureSet},
          {u"INSTALLED"_s, &clsNightTextureSet::Installed}},
         folderNames},
        &clsNightTextureSet::Actvated};
    return table;
}

} // namespace morvane
