#pragma once

#include "core/keyed_collection.h"

namespace morvane {

class Session;

/// The colours of a sky set for one time of day. Each colour text holds nine numbers joined by ":":
/// saturation, red, green, blue, brightness, contrast (-100 to 100 each), first column, last column and row
/// of the pixels. The order below is not that of the pixel groups at its end: main sky is group 10, high
/// horizon group 8.
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
};

inline QString keyOf(const clsSkyTextureSubSet& record) {
    return QString::number(record.StsSubID);
}
inline const QString& nameOf(const clsSkyTextureSubSet& record) {
    return record.SkyTextureSubSet;
}

/// Rows of `SKY_TEXTURE_SUB_SETS`: those of one sky set at a time. They go with their set, never alone.
/// Its operations that reach the store give false after the message of a failure.
class clsSkyTextureSubSets : public KeyedCollection<clsSkyTextureSubSet> {
public:
    explicit clsSkyTextureSubSets(Session& session) : session_(session) {}
    /// A fresh collection with the sub sets of that sky set in the session's rows.
    static bool reload(Session& session, std::int16_t stsID);

    const KeyedCollection<clsSkyTextureSubSet>& GetSkyTextureSubSet() const { return *this; }
    std::int16_t findIndex(const QString& name) const { return findName(name); }
    bool getSkyTextureSubSets(std::int16_t stsID);
    bool UpdateSkyTextureSubSet(clsSkyTextureSubSet& record);

private:
    Session& session_;
};

/// Runs the statements; it fills the session's collection, whichever one asked.
class clsSkyTextureSubSetData {
public:
    explicit clsSkyTextureSubSetData(Session& session) : session_(session) {}

    bool getSkyTextureSubSetData(std::int16_t stsID);
    /// A new record gets its key and its final name and joins the collection.
    bool Save(clsSkyTextureSubSet& record);
    std::int16_t getNextSubID();

private:
    Session& session_;
};

} // namespace morvane
