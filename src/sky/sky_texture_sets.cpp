#include "sky/sky_texture_sets.h"

#include "core/store_records.h"
#include "sets/set_collections.h"
#include "sets/set_names.h"

namespace morvane {

namespace {

const RecordTable<clsSkyTextureSet> table = {
    u"SELECT * FROM SKY_TEXTURE_SETS WHERE ID = "_s,
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
    folderNames,
};

} // namespace

bool clsSkyTextureSets::reload(Session& session) {
    return reloadCollection(session, session.rows<clsSkyTextureSets>(),
                            &clsSkyTextureSets::getSkyTextureSets);
}

bool clsSkyTextureSets::getSkyTextureSets() {
    return clsSkyTextureSetData(session_).getSkyTextureSetData();
}

bool clsSkyTextureSets::RemoveItem(const QString& key) {
    const std::int16_t id = Item(key)->StsID;
    remove(key);
    return clsSkyTextureSetData(session_).deleteSkyTexture(id);
}

bool clsSkyTextureSets::UpdateSkyTextureSet(clsSkyTextureSet& record) {
    return clsSkyTextureSetData(session_).Save(record);
}

bool clsSkyTextureSets::markInstalled(const QString& name) {
    return writeInstalledSet(session_, table, *this, name);
}

bool clsSkyTextureSetData::getSkyTextureSetData() {
    return reportFailures(session_.user, {}, [&] {
        loadRecords(session_, u"SELECT * FROM SKY_TEXTURE_SETS"_s, table,
                    required(session_.rows<clsSkyTextureSets>()));
    });
}

bool clsSkyTextureSetData::deleteSkyTexture(std::int16_t id) {
    return reportFailures(session_.user, {}, [&] {
        Store& store = connectedStore(session_);
        StoreTransaction transaction(store);
        store.execute(u"DELETE FROM SKY_TEXTURE_SETS WHERE ID = "_s + QString::number(id));
        store.execute(u"DELETE FROM SKY_TEXTURE_SUB_SETS WHERE TEXTURE_SET_ID = "_s + QString::number(id));
        transaction.commit();
    });
}

bool clsSkyTextureSetData::Save(clsSkyTextureSet& record) {
    return reportFailures(session_.user, {}, [&] {
        saveRecord(session_, table, record, required(session_.rows<clsSkyTextureSets>()));
    });
}

std::int16_t clsSkyTextureSetData::getNextID() {
    return readNewestKey(connectedStore(session_), table.newestKey);
}

} // namespace morvane
