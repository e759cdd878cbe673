#include "version_two.h"

#include "core/error.h"
#include "core/registry.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "ground/ground_generation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "quiet_user.h"
#include "sets/set_removal.h"
#include "simulator/upgrade.h"
#include "simulator/upgrade_tables.h"

namespace morvane {

namespace {

const QString dutchFolder = u"Dutch"_s;

void removeBitmaps(Session& session, const FilePath& folder) {
    if (!session.files.isFolder(folder)) return;
    emptyBitmapFolder(session, folder);
    session.files.removeFolder(folder);
}

void addOwnSet(Session& session, const QString& name, const QString& colours, const QString& cover) {
    clsTextureSet set;
    set.IsNew = true;
    set.TextureSet = name;
    set.ColorSettings = colours;
    set.Actvated = u"False"_s;
    set.Description = u"A set made with version 2"_s;
    set.CloudCover = cover;
    if (!loadedGroundSets(session).Save(set)) return;
    session.state<GroundSelection>().SelectedGroundSet = set.TextureSet;
    GroundGeneration(session).activateInHand();
    removeBitmaps(session, groundSetFolder(session, set.TextureSet) / dutchFolder);
}

/// The table as the upgrade reads it; the names of its columns are the heading.
QByteArray tableText(Store& store, const QString& table) {
    QStringList heading{u"ID"_s};
    for (const SchemaColumn& column : shippedColumns(table))
        heading << column.name;
    QString text = heading.join(u';') + u"\r\n"_s;
    for (RowSet rows(store, u"SELECT * FROM "_s + table); !rows.atEnd(); rows.next()) {
        QStringList fields;
        for (const QString& column : heading)
            fields << rows.text(column).replace(u';', u',');
        text += fields.join(u';') + u"\r\n"_s;
    }
    return text.toUtf8();
}

void writeImportFiles(Session& session) {
    Store& store = *session.adoConn;
    session.files.write(airportFile(session), tableText(store, u"AIRPORTDATA"_s));
    session.files.write(decodedMetarFile(session), tableText(store, u"DECODED_METAR"_s));
}

void makeTablesOld(Store& store) {
    StoreTransaction whole(store);
    for (const char16_t* statement :
         {u"CREATE TABLE COUNTRIES(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, COUNTRY TEXT(255))",
          u"INSERT INTO COUNTRIES(COUNTRY) SELECT DISTINCT COUNTRY FROM AIRPORTDATA",
          u"DELETE FROM AIRPORTDATA WHERE ID > 1000", u"DELETE FROM DECODED_METAR WHERE ID > 100",
          u"ALTER TABLE AIRPORTDATA DROP COLUMN STATE", u"ALTER TABLE DECODED_METAR DROP COLUMN METAR_LAT",
          u"ALTER TABLE DECODED_METAR DROP COLUMN METAR_LONG", u"ALTER TABLE TEXTURE_SETS DROP COLUMN DUTCH",
          u"DELETE FROM RESOURCE_FOLDERS WHERE RESOURCE_NAME = 'DUTCH'", u"DROP TABLE TEXTURE_SWITCH",
          u"DROP TABLE NIGHT_TEXTURE_SETS"})
        store.execute(QStringView(statement).toString());
    whole.commit();
}

} // namespace

void makeVersionTwo(FileSystem& files, const FilePath& home) {
    QuietUser user;
    SystemClock clock;
    ReseedingRandomSource random;
    const auto registry = openRegistry(files, home, FolderChoice::named);
    Session session({user, files, clock, random, *registry}, home);
    connectDatabase(session);
    addOwnSet(session, u"Harvest"_s, u"12:2.4:0:-1.6:3:1.5"_s, u"Sky Clear"_s);
    addOwnSet(session, u"Grey day"_s, u"-30:0:0:1.2:-6:-3"_s, u"Overcast"_s);
    for (const QString& folder : GroundKind::facts().subfolders)
        emptyBitmapFolder(session, home / u"TempBitmaps" / folder);
    removeBitmaps(session, home / u"TempBitmaps" / dutchFolder);
    writeImportFiles(session);
    makeTablesOld(*session.adoConn);
    closeDatabase(session);
    registry->SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"FirstTime"_s, u"False"_s);
    if (user.hasFailed()) throw Error(ErrorCode::ioFailure, (home / u"Texture Sets").text());
}

} // namespace morvane
