#include "core/wine_prefixes.h"

#include "core/registry.h"
#include "core/registry_file.h"
#include "support/home_folder.h"
#include "support/testing.h"
#include "support/wine_prefix.h"

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

namespace morvane::test {
namespace {

TEST(RegistryFile, givesWhatIsWhole) {
    const QByteArray key = "[Software\\\\A \\[\\x7a7a\\]] 17\n", path = "\"EXE Path\"=";
    const std::pair<QByteArray, QString> cases[] = {
        {key + path + R"("C:\\Games\\FS9\\")", "C:\\Games\\FS9\\"},
        {"[SOFTWARE\\\\a \\[\\x7A7a\\]]\r\n#time=1\r\n@=\"x\"\r\n\"exe path\"=\"C:\"\r\n", "C:"},
        {key + path + R"("C:\\\xf8re \x00e9a\x7a7a\xd83d\xdee9 \"\t\101\e")",
         QString::fromUtf8("C:\\øre éa空🛩 \"\tA\x1B")},
        {key + path + "str(2):\"%P%\\\\FS9\"", "%P%\\FS9"},
        {key + path + "\"first\"\n[Other]\n" + path + "\"other\"\n" + key + path + "\"last\"\n", "last"},
        {key + path + "\"cut\\0off\"", "cut"},
        {key + path + "dword:00000001", {}},
        {key + path + "hex(1):43,00,\\\n  3a,00", {}},
        {key + "\"EXE Path 2\"=\"no\"\n\"EXE Pa\"=\"no\"\n", {}},
        {key.chopped(5) + '\n' + path + "\"of no key\"", {}},
        {key + path + "\"no end", {}},
        {key + path + "\"no end\\", {}},
        {key + path + "\"no end\\x", {}},
        {key + "[x\\", {}},
        {key + path + '"' + QByteArray(9000, 'x') + '"', {}},
        {key + '[' + QByteArray(9000, 'x') + "]\n" + path + "\"of the long key\"", {}},
        {QByteArray("\0\0[\0]\n\"\"=\"\"\n\xff\xfe[", 16), {}},
        {{}, {}},
    };
    const QString name = QString::fromUtf8("Software\\A [空]");
    for (const auto& [contents, text] : cases)
        EXPECT_EQ(textsInRegistryFile(contents, {"Software", name}, "EXE Path"), QStringList({{}, text}))
            << contents.left(100).toStdString();
}

#ifndef Q_OS_WIN

struct WinePrefixTest : testing::Test {
    NativeFileSystem files;
    HomeFolder homeFolder;
    const QString home = homeFolder.path(), usual = home + u"/.wine"_s;

    void write(const QString& path, const QByteArray& contents) {
        writeFile(FilePath(home + u'/' + path), contents);
    }
    QStringList found() {
        QStringList lines;
        for (const auto& [folder, prefix] : simulatorsInPrefixes(files))
            lines << QStringList{folder.text(), prefix.keeper, prefix.runner}.join(u'|');
        return lines;
    }
};

TEST_F(WinePrefixTest, areFoundWhereEachKeeperHasThem) {
    const QString bottles = ".local/share/bottles/", steam = ".local/share/Steam/";
    const QString flatpak = ".var/app/com.usebottles.bottles/data/bottles/bottles/";
    const QString lutrisWine = home + "/.local/share/lutris/runners/wine/b/bin/wine";
    const std::tuple<QString, QString, QString> prefixes[] = {
        {"Mitt präfix", {}, "wine"},
        {".wine", {}, "wine"},
        {"Games/Föhn 空🛩", "Lutris", '"' + lutrisWine + '"'},
        {"Games/by program", "Lutris", '"' + lutrisWine + '"'},
        {bottles + "bottles/My-Bottle", "Bottles", "bottles-cli run -b \"My Bottle\" -e"},
        {"chosen's/Other", "Bottles", "bottles-cli run -b Other -e"},
        {flatpak + "F", "Bottles", "flatpak run --command=bottles-cli com.usebottles.bottles run -b F -e"},
        {steam + "steamapps/compatdata/20920/pfx", "Steam", "protontricks-launch --appid 20920"},
        {"other drive/steamapps/compatdata/7/pfx", "Steam", "protontricks-launch --appid 7"},
    };
    QStringList expected;
    for (const auto& [folder, keeper, runner] : prefixes) {
        const QString simulator = makePrefix(home + u'/' + folder).native();
        expected << QStringList{simulator, keeper, runner}.join(u'|');
    }
    qputenv("WINEPREFIX", (home + "/Mitt präfix").toUtf8());
    QDir().mkpath(home + "/.local/share/lutris/runners/wine/a");
    QDir().mkpath(home + "/.local/share/lutris/runners/wine/b");
    const QByteArray root = QFile::encodeName(home);
    write(".config/lutris/games/föhn.yml",
          "game:\n  prefix: \"" + root + "/Games/F\\xF6hn\\\n    \\ \\u7a7a\\U0001F6E9\"\n");
    write(".local/share/lutris/games/x.yml",
          "game:\n  exe: " + root +
              "/Games/by\n    program/drive_c/Program Files\n    (x86)/FS 9/fs9.exe\n  more: x\n");
    write(".local/share/lutris/games/gone.yml", "game:\n  prefix: /nowhere\n  exe: drive_c/a.exe\n");
    write(bottles + "bottles/My-Bottle/bottle.yml", "Arch: win64\n  Name: My Bottle\n");
    write("chosen's/Other/bottle.yml", "Arch: win64\n");
    write(flatpak + "F/bottle.yml", "Name: F\n");
    write(bottles + "data.yml", "custom_bottles_path: '" + root + "/chosen''s'\r\n");
    write(steam + "steamapps/libraryfolders.vdf",
          "\"libraryfolders\"\n{\n\t\"1\"\n\t{\n\t\t\"path\"\t\t\"" + root + "/other drive\"\n");
    link(home + u'/' + steam, home + "/.steam/steam"); // the same once more
    EXPECT_EQ(found(), expected);
    EXPECT_EQ(winePrefixes(files).size(), std::size(prefixes));
}

TEST_F(WinePrefixTest, namesEveryPathThatLeadsToASimulator) {
    const QString drive = home + "/Spiele und mehr";
    for (const QString name : {"A", "B b", "空", "D", "E"})
        write("Spiele und mehr/" + name + "/fs9.exe", "MZ");
    const auto section = [](const char* path, const char* view = "Wow6432Node\\\\") {
        return simulatorSection(path, view);
    };
    makePrefix(usual);
    link(drive, usual + "/dosdevices/g:");
    link("l:", usual + "/dosdevices/l:");
    const std::pair<QByteArrayList, QString> cases[] = {
        // the machine's part and the user's, and what is found
        {{section("g:\\\\b B", "") + section("G:\\\\A\\\\"), section("G:/D", "") + section("G:\\\\\\x7a7a")},
         "A|B b|空|D"},
        {{section("G:\\\\E"), section("g:\\\\e", "")}, "E"},
        {{section("G:\\\\nowhere"), section("G:\\\\E")}, "E"},
        {{section("G:\\\\A\\\\..\\\\E"), {}}, ""},
        {{section("H:\\\\E") + section("E", ""), section("L:\\\\E") + section("", "")}, ""},
        {{section("G:E"), section("C:", "")}, ""},
    };
    for (const auto& [contents, names] : cases) {
        write(".wine/system.reg", contents[0]);
        write(".wine/user.reg", contents[1]);
        QStringList folders;
        for (const PrefixSimulator& each : simulatorsInPrefixes(files))
            folders << each.folder.text().mid(drive.size() + 1);
        EXPECT_EQ(folders.join(u'|'), names) << contents[0].toStdString();
    }
}

TEST_F(WinePrefixTest, readsAFileOfFiftyMillionBytesAndNoneWithoutEnd) {
    const QString simulator = makePrefix(usual).native() + "||wine", machine = usual + "/system.reg";
    const QByteArray named = readFile(FilePath(machine));
    const QByteArray other = "\n[Software\\\\Classes\\\\x] 17\n#time=1\n@=\"" + QByteArray(170, 'x') + "\"\n";
    write(".wine/system.reg", other.repeated(50'000'000 / other.size()) + named);
    EXPECT_EQ(found(), QStringList{simulator});
    ASSERT_TRUE(QFile::resize(machine, qint64{1} << 40)); // it has no such size on the disk
    EXPECT_EQ(found(), QStringList());
    QFile::remove(machine);
    ASSERT_EQ(mkfifo(QFile::encodeName(machine).constData(), 0600), 0);
    write(".wine/user.reg", named);
    EXPECT_EQ(found(), QStringList{simulator});
}

#endif

} // namespace
} // namespace morvane::test
