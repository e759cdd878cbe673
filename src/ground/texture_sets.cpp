#include "ground/texture_sets.h"

#include "core/store_records.h"
#include "sets/set_collections.h"
#include "sets/set_names.h"

namespace morvane {

namespace {

const RecordTable<clsTextureSet> table = {
    u"SELECT * FROM TEXTURE_SETS WHERE ID = "_s,
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
    folderNames,
};

} // namespace

bool clsTextureSets::reload(Session& session) {
    return reloadCollection(session, session.rows<clsTextureSets>(), &clsTextureSets::getTextureSets);
}

bool clsTextureSets::getTextureSets() {
    return clsTextureSetData(session_).getTextureSetData();
}

bool clsTextureSets::RemoveItem(const QString& key, std::int16_t id) {
    remove(key);
    return clsTextureSetData(session_).deleteTexture(id);
}

bool clsTextureSets::UpdateTextureSet(clsTextureSet& record) {
    return clsTextureSetData(session_).Save(record);
}

bool clsTextureSets::markInstalled(const QString& name) {
    return writeInstalledSet(session_, table, *this, name);
}

bool clsTextureSetData::getTextureSetData() {
    return reportFailures(session_.user, {}, [&] {
        loadRecords(session_, u"SELECT * FROM TEXTURE_SETS"_s, table,
                    required(session_.rows<clsTextureSets>()));
    });
}

bool clsTextureSetData::deleteTexture(std::int16_t id) {
    return reportFailures(session_.user, {}, [&] {
        connectedStore(session_).execute(u"DELETE FROM TEXTURE_SETS WHERE ID = "_s + QString::number(id));
    });
}

bool clsTextureSetData::Save(clsTextureSet& record) {
    return reportFailures(session_.user, {}, [&] {
        saveRecord(session_, table, record, required(session_.rows<clsTextureSets>()));
    });
}

} // namespace morvane
