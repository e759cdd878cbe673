#include "cli/console.h"
#include "core/row_set.h"
#include "core/store_connection.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <QFile>
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
        connectDatabase(install.session);
        RowSet rows(*install.session.adoConn, u"SELECT * FROM MV_CONFIG"_s);
        rows.addNew();
        rows.setText(u"TITLE", u"Global Coverage - Day"_s);
        rows.setText(u"MV_FOLDER", u"GENERIC WORLD"_s);
        rows.setText(u"FS_FOLDER", u"Scenery\\World\\texture"_s);
        rows.setFlag(u"INSTALLED", false);
        rows.update();
        test::addNightSet(install, u"Default"_s, true);
        closeDatabase(install.session);
    }
};

TEST_F(OptionCommands, baseInstallBackupAndRestore) {
    const QByteArray own = readFile(texture);
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

TEST_F(OptionCommands, refusalsChangeNothing) {
    const auto before = test::contentsBelow(install.folder.path());
    const std::pair<QString, QString> cases[] = {
        {u"base install Fog"_s, u"There is no base install named 'Fog'"_s},
        {u"backup restore 1-Backup"_s, u"There is no backup named '1-Backup'"_s},
    };
    for (const auto& [words, text] : cases) {
        const auto run = install.run(words);
        EXPECT_EQ(run.status, 1) << words.toStdString();
        EXPECT_TRUE(run.messages.contains(text)) << run.messages.toStdString();
    }
    EXPECT_EQ(test::contentsBelow(install.folder.path()), before);
}

} // namespace
} // namespace morvane
