#include "sets/resource_folders.h"

#include "core/failure_report.h"
#include "core/store_records.h"

namespace morvane {

namespace {

const RecordTable<clsResourceFolder> table = {
    u"SELECT * FROM RESOURCE_FOLDERS WHERE ID = "_s,
    {u"select max(ID) as RFID from RESOURCE_FOLDERS"_s, u"RFID"_s},
    {}, // the name is a category, no key goes in front
    &clsResourceFolder::resourceID,
    &clsResourceFolder::ResourceName,
    {{u"RESOURCE_NAME"_s, &clsResourceFolder::ResourceName},
     {u"RESOURCE_SOURCE"_s, &clsResourceFolder::ResourceMVFolder},
     {u"RESOURCE_TEXTURE_SET"_s, &clsResourceFolder::ResourceTSFolder},
     {u"RESOURCE_DESTINATION"_s, &clsResourceFolder::ResourceFSFolder}},
};

} // namespace

bool clsResourceFolders::reload(Session& session) {
    return reloadCollection(session, session.rows<clsResourceFolders>(), &clsResourceFolders::getResources);
}

bool clsResourceFolders::getResources() {
    return clsResourceFolderData(session_).getResourceData();
}

bool clsResourceFolders::RemoveItem(const QString& key, std::int16_t id) {
    remove(key);
    return clsResourceFolderData(session_).deleteResource(id);
}

bool clsResourceFolders::UpdateResources(clsResourceFolder& record) {
    return clsResourceFolderData(session_).Save(record);
}

bool clsResourceFolderData::getResourceData() {
    return reportInSystemBox(session_.user, [&] {
        loadRecords(session_, u"SELECT * FROM RESOURCE_FOLDERS"_s, table,
                    required(session_.rows<clsResourceFolders>()));
    });
}

bool clsResourceFolderData::deleteResource(std::int16_t id) {
    return reportFailures(session_.user, {}, [&] {
        connectedStore(session_).execute(u"DELETE FROM RESOURCE_FOLDERS WHERE ID = "_s + QString::number(id));
    });
}

bool clsResourceFolderData::Save(clsResourceFolder& record) {
    return reportFailures(session_.user, {}, [&] {
        saveRecord(session_, table, record, required(session_.rows<clsResourceFolders>()));
    });
}

std::int16_t clsResourceFolderData::getNextID() {
    return readNewestKey(connectedStore(session_), table.newestKey);
}

} // namespace morvane
