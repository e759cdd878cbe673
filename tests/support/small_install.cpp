#include "support/small_install.h"

#include "app/start_up.h"
#include "core/flag_text.h"
#include "core/program_log.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_schema.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"

#include <QBuffer>
#include <QDirIterator>
#include <QImage>

namespace morvane::test {

namespace {

void addSetRow(Store& store, const QString& name, const QString& cover, bool activated) {
    store.execute(
        u"INSERT INTO TEXTURE_SETS(TEXTURE_SET, CLOUD_COVER, ACTIVATED, COLOR_SETTINGS, DESCRIPTION, "
        "DUTCH, INSTALLED) VALUES ('%1', '%2', '%3', '0:1.4:0:-1:3:-1.5', 'A set of a test', 1, 0)"_s.arg(
            name, cover, flagText(activated)));
}

void addSkyColours(Store& store, int key, const QString& name) {
    store.execute(u"INSERT INTO SKY_TEXTURE_SUB_SETS(TEXTURE_SET_ID, SKY_TEXTURE_SUB_SET, TIME_OF_DAY, "
                  "DARK_GROUND, LIGHT_GROUND, DARK_CLOUD, LIGHT_CLOUD, DARK_WATER, MAIN_WATER, LIGHT_WATER, "
                  "HIGH_HORIZON, LOW_HORIZON, MAIN_SKY) VALUES (%1, 'Day:%2', 'Day', '0:0:0:0:0:0:1:1:32', "
                  "'0:0:0:0:0:0:2:2:32', '0:0:0:0:0:0:3:3:32', '0:0:0:0:0:0:4:4:32', '0:0:0:0:0:0:5:5:32', "
                  "'0:0:0:0:0:0:6:31:32', '0:0:0:0:0:0:32:32:32', '0:0:0:0:0:0:1:32:2', "
                  "'0:0:0:0:0:0:1:32:1', '0:50:0:0:0:0:1:32:255')"_s.arg(QString::number(key), name));
}

/// `column` is the name column of the table of nearly the same name.
QStringList installedNames(Store& store, const QString& column) {
    RowSet rows(store, u"SELECT * FROM %1S"_s.arg(column));
    QStringList names;
    for (; !rows.atEnd(); rows.next())
        if (rows.flag(u"INSTALLED")) names << rows.text(column);
    return names;
}

QByteArray makeStore() {
    const TemporaryFolder folder;
    const FilePath path = folder / u"Morvane.mdb";
    Store store;
    store.create(path);
    createSchema(store);
    store.execute(u"INSERT INTO RESOURCE_FOLDERS(RESOURCE_NAME, RESOURCE_SOURCE, RESOURCE_TEXTURE_SET, "
                  "RESOURCE_DESTINATION) VALUES "
                  "('GENERIC WORLD', 'GENERIC WORLD', 'Texture', 'Scenery\\World\\texture'), "
                  "('UT EUROPE', 'UT EUROPE', 'Texture', 'Scenery\\World\\texture'), "
                  "('UTIND', 'UTIND', 'UTEurLC', 'Scenery\\UTEurLC\\Texture'), "
                  "('DUTCH', 'DUTCH', 'Dutch', 'Scenery\\World\\texture')"_s);
    store.execute(u"INSERT INTO TEXTURE_SWITCH DEFAULT VALUES"_s);
    addSetRow(store, u"Default"_s, u"Partly Cloudy"_s, true);
    store.close();
    return readFile(path);
}

/// Made once for all small installs of a test program: making one waits for the disk.
const QByteArray& storeBytes() {
    static const QByteArray bytes = makeStore();
    return bytes;
}

void makeFolders(const FilePath& home, const FilePath& simulator) {
    NativeFileSystem files;
    for (const char16_t* name : {u"Media", u"Texture Sets", u"Sky Texture Sets", u"TempBitmaps\\Texture",
                                 u"TempBitmaps\\UTEurLC", u"TempBitmaps\\Dutch", u"Backup", u"METAR"})
        files.makeFolder(home / name);
    for (const char16_t* name : {u"SKC", u"FEW", u"SCT", u"BKN", u"OVC"})
        writeFile(home / u"Media" / (u"dlgSplash"_s + QStringView(name).toString() + u".bmp"_s),
                  "splash " + QStringView(name).toUtf8());
    writeFile(simulator / u"fs9.exe", "MZ");
    writeFile(simulator / u"Uires\\dlgsplash.bmp", "the pilot's splash");
    files.makeFolder(simulator / u"Texture");
    files.makeFolder(simulator / u"Scenery\\World\\texture");
    files.makeFolder(simulator / u"Scenery\\UTEurLC\\Texture");
}

void makeBaseImages(const FilePath& home, const FilePath& simulator, const SmallInstallOptions& options) {
    int shade = 20;
    for (const QString& path : options.baseImages) {
        writeFile(home / u"Resources" / path, smallBitmap(options.side, shade += 17));
        writeFile(home / path, "body of " + path.toUtf8());
        const bool isAddOn = path.startsWith(u"UTIND");
        writeFile(simulator / (isAddOn ? u"Scenery\\UTEurLC\\Texture" : u"Scenery\\World\\texture") /
                      path.section(u'\\', 1).toUpper(),
                  "the pilot's " + path.toUtf8());
    }
}

} // namespace

QByteArray smallBitmap(int side, int shade) {
    QImage image(side, side, QImage::Format_RGB888);
    image.fill(qRgb(shade, 255 - shade, shade / 2));
    for (int i = 0; i < side; ++i)
        image.setPixel(i, i, qRgb(200, shade, i * 8 % 256));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "BMP");
    return bytes;
}

QMap<QString, QByteArray> contentsBelow(const FilePath& folder) {
    QMap<QString, QByteArray> contents;
    const QString root = folder.native();
    QDirIterator entry(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entry.hasNext()) {
        const QString path = entry.next();
        if (entry.fileName() == u"Morvane note.ini" || entry.fileName() == logFileName) continue;
        contents.insert(path.mid(root.size() + 1), readFile(FilePath(path)));
    }
    return contents;
}

SmallInstall::SmallInstall(const SmallInstallOptions& options)
    : registry(files, home() / u"registry.ini"), session({user, files, clock, random, registry}, home()) {
    makeFolders(home(), simulator());
    makeBaseImages(home(), simulator(), options);
    writeFile(home() / u"Morvane.mdb", storeBytes());
    registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, simulatorKey);
    registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s, simulator().native());
    registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, morvaneKey);
    registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"IsWideClient"_s, u"False"_s);
    storeOwnValue(registry, u"WeatherSources"_s, u"none"_s); // no test asks the world
    if (!startUp(session) || !user.messages.empty())
        throw std::runtime_error("the small install does not start");
}

SmallInstall::~SmallInstall() {
    files.failAt(0, false);
}

int SmallInstall::addGroundSet(const QString& name, const QString& cover, bool activated,
                               const QStringList& names) {
    addSetRow(*session.adoConn, name, cover, activated);
    for (const QString& file : names)
        writeFile(home() / u"Texture Sets" / name / file, name.toUtf8() + ' ' + file.toUtf8());
    reload();
    return findGroundSet(session, name)->TsID;
}

int SmallInstall::addSkySet(const QString& name, const QString& cover, bool activated,
                            const QStringList& names, const QString& baseSet) {
    session.adoConn->execute(u"INSERT INTO SKY_TEXTURE_SETS(SKY_TEXTURE_SET, CLOUD_COVER, ACTIVATED, "
                             u"DESCRIPTION, TEXTURE_SET_GROUP, "
                             "INSTALLED) VALUES ('%1', '%2', '%3', 'A sky of a test', '%4', 0)"_s.arg(
                                 name, cover, flagText(activated), baseSet));
    for (const QString& file : names)
        writeFile(home() / u"Sky Texture Sets" / name / file, name.toUtf8() + ' ' + file.toUtf8());
    reload();
    const std::int16_t key = findSkySet(session, name)->StsID;
    addSkyColours(*session.adoConn, key, name);
    return key;
}

QStringList SmallInstall::installedSets() const {
    return installedNames(*session.adoConn, u"TEXTURE_SET"_s);
}

QStringList SmallInstall::installedSkySets() const {
    return installedNames(*session.adoConn, u"SKY_TEXTURE_SET"_s);
}

void SmallInstall::reload() {
    session.rows<clsTextureSets>().reset();
    loadedGroundSets(session);
    session.rows<clsSkyTextureSets>().reset();
    loadedSkySets(session);
}

} // namespace morvane::test
