#include "ground/texture_sets.h"

#include "sets/set_names.h"

namespace morvane {

const StoredTable<clsTextureSet>& clsTextureSet::table() {
    static const StoredTable<clsTextureSet> table{
        u"TEXTURE_SETS"_s,
        {u"SELECT * FROM TEXTURE_SETS WHERE ID = "_s,
         {u"select max(ID) as TSID from TEXTURE_SETS "_s, u"TSID"_s},
         u"TEXTURE_SET"_s,
         &clsTextureSet::TsID,
         &clsTextureSet::TextureSet,
         {{u"COLOR_SETTINGS"_s, &clsTextureSet::ColorSettings, TextForm::localNumbers},
          {u"ACTIVATED"_s, &clsTextureSet::Actvated},
          {u"DESCRIPTION"_s, &clsTextureSet::Description},
          {u"CLOUD_COVER"_s, &clsTextureSet::CloudCover},
          {u"TEXTURE_SET"_s, &clsTextureSet::TextureSet},
          {u"DUTCH"_s, &clsTextureSet::IsDutch},
          {u"INSTALLED"_s, &clsTextureSet::Installed}},
         folderNames},
        &clsTextureSet::Actvated};
    return table;
}

} // namespace morvane
