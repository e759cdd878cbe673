#include "cli/console.h"

#include "core/flights_folder.h"
#include "core/store.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "support/night_install.h"
#include "support/system_files.h"

#include <QDir>

namespace morvane::test {
namespace {

struct OptionCommands : testing::Test {
    ConsoleInstall install;
    FilePath texture = install.simulator() / u"Scenery\\World\\texture\\029H2SU6.BMP";

    OptionCommands() {
        writeFile(install.home() / u"Media\\halo.bmp", "ours");
        writeFile(install.home() / u"Media\\dlgsplash.bmp", "the pilot's own splash");
        install.withStore([&](Session& session) {
            session.adoConn->execute("INSERT INTO MV_CONFIG(TITLE, MV_FOLDER, FS_FOLDER) VALUES "
                                     "('Global Coverage - Day', 'GENERIC WORLD', 'Scenery\\World\\texture')");
            addNightSet(install, "Default", true);
        });
    }
};

TEST_F(OptionCommands, baseInstallBackupAndRestore) {
    const QByteArray own = readFile(texture);
    const auto before = contentsBelow(install.folder.path());
    expectSteps(install, {{u"base|install|Fog"_s, {u"There is no base"_s}, 1},
                          {u"backup|remove|1-Backup"_s, {u"There is no backup"_s}, 1},
                          {u"backup|restore|1-Backup"_s, {u"There is no backup"_s}, 1}});
    EXPECT_TRUE(contentsBelow(install.folder.path()) == before);
    expectSteps(install, {{u"backup|create"_s}, {u"base|install|Global Coverage - Day"_s}});
    EXPECT_EQ(readFile(texture), "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_EQ(install.sets(), u"Default+*"_s);
    expectSteps(install, {{u"base|list"_s, {u"\"ConfigInstalled\":true"_s}},
                          {u"backup|list"_s, {u"\"BackupName\":\"1-Backup\""_s, u"\"complete\":true"_s}},
                          {u"backup|restore|1-Backup"_s, {u"3 put back (2 were there already)"_s}}});
    EXPECT_EQ(readFile(texture), own);
    const UnreadableFile unreadable(texture.parent().child(u"broken.bmp"_s));
    expectSteps(install, {{u"backup|create"_s, {}, 1},
                          {u"backup|list"_s, {u"\"complete\":false"_s}},
                          {u"space"_s, {u"1-Backup, "_s, u", partial"_s, u"Morvane keeps"_s}},
                          {u"space|--json"_s, {u"\"name\":\"Your originals\""_s}},
                          {u"backup|remove|2-Backup"_s, {u"2-Backup removed"_s}}});
    install.files.remove(texture.parent() / u"005A2SU2.BMP");
    expectSteps(install, {{u"backup|remove|1-Backup"_s, {u"nowhere else: 005A2SU2.BMP"_s}, 1}});
}

TEST_F(OptionCommands, eachOptionIsKept) {
    for (const QString& name :
         {u"dutch"_s, u"tropical"_s, u"halo"_s, u"fastexit"_s, u"widefs"_s, u"inhibitsplash"_s})
        expectSteps(install, {{u"option|get|"_s + name, {u"\"%1\":false"_s.arg(name)}},
                              {u"option|set|"_s + name + u"|on"_s},
                              {u"option|get|"_s + name, {u"\"%1\":true"_s.arg(name)}}});
    EXPECT_EQ(readFile(install.simulator() / u"Texture\\halo.bmp"), "ours");
    EXPECT_EQ(readFile(install.simulator() / u"Uires\\dlgsplash.bmp"), "the pilot's own splash");
}

TEST_F(OptionCommands, bringThePilotsTexturesAndTakeThemBack) {
    const FilePath own = install.folder / u"Own textures";
    const FilePath image = install.home() / u"Resources\\GENERIC WORLD\\029h2su6.bmp";
    const QByteArray before = readFile(image);
    writeFile(own / u"one.bmp", smallBitmap(16, 90));
    writeFile(own / u"029H2SU6.BMP", compressTexture(loadPicture(install.files, own / u"one.bmp")));
    expectSteps(install,
                {{u"stock|import|--from|"_s + own.native(), {u"\"cancelled\":false"_s, u"\"files\":1"_s}}});
    EXPECT_NE(readFile(image), before);
    expectSteps(install, {{u"stock|restore"_s}});
    EXPECT_EQ(readFile(image), before);
    expectSteps(install, {{u"stock|restore"_s, {}, 1}, // nothing is kept any more
                          {u"stock|import|--from|"_s + (install.folder / u"nowhere").native(), {}, 1}});
}

struct ConfigCommands : testing::Test {
    ConsoleInstall install;

    QString stored(const QString& key, const QString& name) {
        return install.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, key, name);
    }
    void forget(const QString& key, const QString& name) {
        install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, key, name, {});
    }
};

TEST_F(ConfigCommands, theSimulatorIsNamedWithoutAQuestion) {
    forget(simulatorKey, u"EXE Path"_s);
    const QString simulator = install.simulator().text();
    const FilePath own = install.home() / u"Flights";
    install.files.makeFolder(own);
    expectSteps(install, {{u"ground|list"_s, {u"config set simulator"_s}, 1},
                          {u"config|set|simulator|"_s + install.home().native(), {}, 1}, // no fs9.exe
                          {u"config|set|flights|"_s + own.native(), {u"own Flights folder"_s}, 1}});
    EXPECT_EQ(stored(morvaneKey, u"NonEnglishPath"_s), QString());
    EXPECT_EQ(stored(simulatorKey, u"EXE Path"_s), QString());

    expectSteps(install, {{u"config|set|simulator|"_s + QDir::current().relativeFilePath(simulator),
                           {quoted(simulator)}},
                          {u"ground|list"_s}});
    EXPECT_EQ(stored(simulatorKey, u"EXE Path"_s), simulator);
}

TEST_F(ConfigCommands, everythingIsShownWithoutASimulatorToo) {
    install.run(u"config set runner"_s, {u"wine --quiet"_s});
    install.run(u"option set halo on"_s);
    forget(simulatorKey, u"EXE Path"_s);
    const auto before = contentsBelow(install.folder.path());
    const auto run = install.run(u"config show"_s);
    EXPECT_EQ(run.status, 0) << run.messages.toStdString();
    const QJsonObject shown = run.objects().at(0);
    EXPECT_EQ(shown.keys().join(u' '), u"activesky flights home palette runner simulator switches weather"_s);
    EXPECT_EQ(shown["home"], install.home().text());
    EXPECT_EQ(shown["switches"]["halo"], true);
    for (const QJsonObject& object : {shown, install.run("config get runner").objects().at(0)})
        EXPECT_EQ(object["runner"], "wine --quiet");
    EXPECT_EQ(contentsBelow(install.folder.path()), before) << "looking changes nothing";
    expectSteps(install, {{u"config|get|palette"_s, {u"{\"palette\":\"day\"}"_s}},
                          {u"config|set|palette|dusk"_s, {u"day, night or clock: dusk"_s}, 1},
                          {u"config|set|palette|clock"_s, {u"{\"palette\":\"clock\"}"_s}}});

    Store store; // as one of version 2 before its upgrade
    store.open(install.home() / u"Morvane.mdb");
    store.execute(u"DROP TABLE TEXTURE_SWITCH"_s);
    store.close();
    expectSteps(install, {{u"config|show"_s, {u"\"halo\":null"_s}}});
}

/// Only a person can say which PC this is: a script's yes would end every later start of the simulator.
TEST_F(ConfigCommands, nobodyMakesTheInstallAClient) {
    forget(morvaneKey, u"IsWideClient"_s);
    for (const QString& policy : {u"yes"_s, u"no"_s, u"ask"_s}) {
        const auto run = install.run(u"ground list --answer "_s + policy);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.messages.count(u"No; use option set widefs on, or off"_s), 1)
            << run.messages.toStdString();
        EXPECT_EQ(stored(morvaneKey, u"IsWideClient"_s), QString()) << policy.toStdString();
    }
    EXPECT_EQ(Console(install.withHome(u"ground list --answer ask"_s)).finish("y\n").status, 0);
    EXPECT_EQ(stored(morvaneKey, u"IsWideClient"_s), u"True"_s);
}

} // namespace
} // namespace morvane::test
