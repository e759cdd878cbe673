#include "cli/console.h"

#include "core/store.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <QFile>
#include <QJsonDocument>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::readFile;
using test::writeFile;

struct OptionCommands : testing::Test {
    test::ConsoleInstall install;
    FilePath texture = install.simulator() / u"Scenery\\World\\texture\\029H2SU6.BMP";

    OptionCommands() {
        writeFile(install.home() / u"Media\\halo.bmp", "ours");
        writeFile(install.home() / u"Media\\dlgsplash.bmp", "the pilot's own splash");
        install.withStore([&](Session& session) {
            session.adoConn->execute("INSERT INTO MV_CONFIG(TITLE, MV_FOLDER, FS_FOLDER) VALUES "
                                     "('Global Coverage - Day', 'GENERIC WORLD', 'Scenery\\World\\texture')");
            test::addNightSet(install, "Default", true);
        });
    }
};

TEST_F(OptionCommands, baseInstallBackupAndRestore) {
    const QByteArray own = readFile(texture);
    const auto before = test::contentsBelow(install.folder.path());
    for (const QString& words : {u"base install Fog"_s, u"backup restore 1-Backup"_s}) {
        const auto run = install.run(words);
        EXPECT_EQ(run.status, 1);
        EXPECT_TRUE(run.messages.contains("There is no " + words.section(u' ', 0, 0)))
            << run.messages.toStdString();
    }
    EXPECT_TRUE(test::contentsBelow(install.folder.path()) == before);
    EXPECT_EQ(install.run(u"backup create"_s).status, 0);
    EXPECT_EQ(install.run(u"base install"_s, {u"Global Coverage - Day"_s}).status, 0);
    EXPECT_EQ(readFile(texture), "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_TRUE(install.run(u"base list"_s).array()[0].toObject()[u"ConfigInstalled"].toBool());
    EXPECT_EQ(install.sets(), u"Default+*"_s);
    const QJsonObject backup = install.run(u"backup list"_s).array()[0].toObject();
    EXPECT_EQ(backup[u"BackupName"], u"1-Backup"_s);
    EXPECT_TRUE(backup[u"complete"].toBool());
    const auto restored = install.run(u"backup restore 1-Backup"_s);
    EXPECT_EQ(restored.status, 0);
    EXPECT_TRUE(restored.messages.contains(u"3 put back (2 were there already)"_s));
    EXPECT_EQ(readFile(texture), own);
    QFile::link(u"/nowhere"_s, texture.parent().child(u"broken.bmp"_s).native());
    EXPECT_EQ(install.run(u"backup create"_s).status, 1) << "one file is missing";
    EXPECT_FALSE(install.run(u"backup list"_s).array()[1].toObject()[u"complete"].toBool());
}

TEST_F(OptionCommands, eachOptionIsKept) {
    for (const QString& name :
         {u"dutch"_s, u"tropical"_s, u"halo"_s, u"fastexit"_s, u"widefs"_s, u"inhibitsplash"_s}) {
        const auto value = [&] { return install.run(u"option get "_s + name).objects().at(0).value(name); };
        EXPECT_EQ(value(), QJsonValue(false)) << name.toStdString();
        const auto run = install.run(u"option set "_s + name + u" on"_s);
        EXPECT_EQ(run.status, 0) << name.toStdString() << run.messages.toStdString();
        EXPECT_EQ(value(), QJsonValue(true)) << name.toStdString();
    }
    EXPECT_EQ(readFile(install.simulator() / u"Texture\\halo.bmp"), "ours");
    EXPECT_EQ(readFile(install.simulator() / u"Uires\\dlgsplash.bmp"), "the pilot's own splash");
}

TEST(StockCommands, bringThePilotsTexturesAndTakeThemBack) {
    test::ConsoleInstall install;
    const FilePath own = install.folder / u"Own textures";
    const FilePath image = install.home() / u"Resources\\GENERIC WORLD\\029h2su6.bmp";
    const QByteArray before = test::readFile(image);
    test::writeFile(own / u"one.bmp", test::smallBitmap(16, 90));
    const QByteArray texture = compressTexture(loadPicture(install.files, own / u"one.bmp"));
    for (const char16_t* name : {u"029H2SU6.BMP", u"UTEurLC\\034A2SU1.BMP"})
        test::writeFile(own / name, texture);

    const auto brought = install.run(u"stock import"_s, {u"--from"_s, own.native()});
    EXPECT_EQ(brought.status, 0) << brought.messages.toStdString();
    const QJsonObject report = QJsonDocument::fromJson(brought.output).object();
    EXPECT_EQ(report[u"files"_s], 2);
    EXPECT_EQ(report[u"cancelled"_s], false);
    EXPECT_NE(test::readFile(image), before);
    EXPECT_EQ(install.run(u"stock restore"_s).status, 0);
    EXPECT_EQ(test::readFile(image), before);

    EXPECT_EQ(install.run(u"stock restore"_s).status, 1) << "nothing is kept any more";
    const FilePath nowhere = install.folder / u"nowhere";
    EXPECT_EQ(install.run(u"stock import"_s, {u"--from"_s, nowhere.native()}).status, 1);
}

} // namespace
} // namespace morvane
