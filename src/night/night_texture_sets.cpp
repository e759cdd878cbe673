#include "night/night_texture_sets.h"

#include "core/store_records.h"
#include "sets/set_collections.h"
#include "sets/set_names.h"

namespace morvane {

namespace {

const RecordTable<clsNightTextureSet> table = {
    u"SELECT * FROM NIGHT_TEXTURE_SETS WHERE ID = "_s,
    {u"select max(ID) as TSID from NIGHT_TEXTURE_SETS "_s, u"TSID"_s},
    u"TEXTURE_SET"_s,
    &clsNightTextureSet::NtsID,
    &clsNightTextureSet::TextureSet,
    {{u"COLOR_SETTINGS"_s, &clsNightTextureSet::ColorSettings, TextForm::localNumbers},
     {u"ACTIVATED"_s, &clsNightTextureSet::Actvated},
     {u"DESCRIPTION"_s, &clsNightTextureSet::Description},
     {u"TEXTURE_SET"_s, &clsNightTextureSet::TextureSet},
     {u"INSTALLED"_s, &clsNightTextureSet::Installed}},
    folderNames,
};

} // namespace

bool clsNightTextureSets::reload(Session& session) {
    return reloadCollection(session, session.rows<clsNightTextureSets>(),
                            &clsNightTextureSets::getNightTextureSets);
}

bool clsNightTextureSets::getNightTextureSets() {
    return clsNightTextureSetData(session_).getNightTextureSetData();
}

bool clsNightTextureSets::RemoveItem(const QString& key, std::int16_t id) {
    remove(key);
    return clsNightTextureSetData(session_).deleteNightTexture(id);
}

bool clsNightTextureSets::UpdateNightTextureSet(clsNightTextureSet& record) {
    return clsNightTextureSetData(session_).Save(record);
}

bool clsNightTextureSets::markInstalled(const QString& name) {
    return writeInstalledSet(session_, table, *this, name);
}

bool clsNightTextureSetData::getNightTextureSetData() {
    return reportFailures(session_.user, {}, [&] {
        loadRecords(session_, u"SELECT * FROM NIGHT_TEXTURE_SETS"_s, table,
                    required(session_.rows<clsNightTextureSets>()));
    });
}

bool clsNightTextureSetData::deleteNightTexture(std::int16_t id) {
    return reportFailures(session_.user, {}, [&] {
        connectedStore(session_).execute(u"DELETE FROM NIGHT_TEXTURE_SETS WHERE ID = "_s +
                                         QString::number(id));
    });
}

bool clsNightTextureSetData::Save(clsNightTextureSet& record) {
    return reportFailures(session_.user, {}, [&] {
        saveRecord(session_, table, record, required(session_.rows<clsNightTextureSets>()));
    });
}

} // namespace morvane
