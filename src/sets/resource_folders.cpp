#include "sets/resource_folders.h"

namespace morvane {

const StoredTable<clsResourceFolder>& clsResourceFolder::table() {
    static const StoredTable<clsResourceFolder> table{
        .name = u"RESOURCE_FOLDERS"_s,
        .rows = {u"SELECT * FROM RESOURCE_FOLDERS WHERE ID = "_s,
                 {u"select max(ID) as RFID from RESOURCE_FOLDERS"_s, u"RFID"_s},
                 {}, // the name is a category, no key goes in front
                 &clsResourceFolder::resourceID,
                 &clsResourceFolder::ResourceName,
                 {{u"RESOURCE_NAME"_s, &clsResourceFolder::ResourceName},
                  {u"RESOURCE_SOURCE"_s, &clsResourceFolder::ResourceMVFolder},
                  {u"RESOURCE_TEXTURE_SET"_s, &clsResourceFolder::ResourceTSFolder},
                  {u"RESOURCE_DESTINATION"_s, &clsResourceFolder::ResourceFSFolder}}},
        .tellsLoadInSystemBox = true};
    return table;
}

const clsResourceFolders& resourceFolders(Session& session) {
    auto& folders = session.rows<clsResourceFolders>();
    if (!folders && !clsResourceFolders::reload(session)) {
        folders.reset();
        throw Error(ErrorCode::interrupted);
    }
    return *folders;
}

} // namespace morvane
