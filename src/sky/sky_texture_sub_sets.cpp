#include "sky/sky_texture_sub_sets.h"

#include "core/failure_report.h"
#include "core/store_records.h"

namespace morvane {

namespace {

const RecordTable<clsSkyTextureSubSet> table = {
    u"SELECT * FROM SKY_TEXTURE_SUB_SETS WHERE ID = "_s,
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
     {u"TIME_OF_DAY"_s, &clsSkyTextureSubSet::timeOfDay}},
};

} // namespace

bool clsSkyTextureSubSets::reload(Session& session, std::int16_t stsID) {
    return reloadCollection(session, session.rows<clsSkyTextureSubSets>(),
                            &clsSkyTextureSubSets::getSkyTextureSubSets, stsID);
}

bool clsSkyTextureSubSets::getSkyTextureSubSets(std::int16_t stsID) {
    return clsSkyTextureSubSetData(session_).getSkyTextureSubSetData(stsID);
}

bool clsSkyTextureSubSets::UpdateSkyTextureSubSet(clsSkyTextureSubSet& record) {
    return clsSkyTextureSubSetData(session_).Save(record);
}

bool clsSkyTextureSubSetData::getSkyTextureSubSetData(std::int16_t stsID) {
    return reportFailures(session_.user, {}, [&] {
        loadRecords(session_,
                    u"SELECT * FROM SKY_TEXTURE_SUB_SETS WHERE TEXTURE_SET_ID = "_s + QString::number(stsID),
                    table, required(session_.rows<clsSkyTextureSubSets>()));
    });
}

bool clsSkyTextureSubSetData::Save(clsSkyTextureSubSet& record) {
    return reportFailures(session_.user, {}, [&] {
        saveRecord(session_, table, record, required(session_.rows<clsSkyTextureSubSets>()));
    });
}

std::int16_t clsSkyTextureSubSetData::getNextSubID() {
    return readNewestKey(connectedStore(session_), table.newestKey);
}

} // namespace morvane
