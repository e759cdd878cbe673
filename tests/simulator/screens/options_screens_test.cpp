#include "core/flights_folder.h"
#include "core/registry.h"
#include "core/row_set.h"
#include "core/store.h"
#include "simulator/backup_restore.h"
#include "simulator/option_table.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"

#include <QCheckBox>
#include <QPushButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;

struct OptionsScreens : testing::Test {
    OptionsScreens() {
        RowSet rows(*program.session.adoConn, u"SELECT * FROM MV_CONFIG"_s);
        for (const QString& title : {u"Global Coverage - Day"_s, u"Golf"_s}) {
            rows.addNew();
            rows.setText(u"TITLE", title);
            rows.setText(u"MV_FOLDER", u"GENERIC WORLD"_s);
            rows.setText(u"FS_FOLDER", u"Scenery\\World\\texture"_s);
            rows.setText(u"DESCRIPTION", u"About "_s + title);
            rows.setFlag(u"INSTALLED", false);
            rows.update();
        }
    }
    QCheckBox& box(const QString& name) { return program.control<QCheckBox>(u"frm_Switcher"_s, name); }
    test::WindowProgram program;
    Session& session = program.session;
};

TEST_F(OptionsScreens, openingThePageCopiesNothingAndAsksNothing) {
    const auto before = contentsBelow(program.install.folder.path());
    for (const bool isSet : {true, false}) {
        for (const SimulatorOption& option : simulatorOptions())
            session.state<OptionsInForce>().*option.flag = isSet;
        const QStringList titles = program.toldDuring([&] { program.shell.goToPage(u"frm_Switcher"_s); });
        EXPECT_TRUE(titles.isEmpty()) << titles.join(u'|').toStdString();
        for (const auto* option : program.shell.form(u"frm_Switcher"_s)->findChildren<QCheckBox*>())
            EXPECT_EQ(option->isChecked(), isSet) << option->objectName().toStdString();
    }
    EXPECT_EQ(contentsBelow(program.install.folder.path()), before);
}

/// The box is cleared as by a click, which tells of it once more.
TEST_F(OptionsScreens, withoutSetsTheRefusalIsToldTwice) {
    session.adoConn->execute(u"DELETE FROM TEXTURE_SETS WHERE ID <> 0"_s);
    program.shell.goToPage(u"frm_Switcher"_s);
    for (const QString& name : {u"chkDutch"_s, u"chkNonTropical"_s}) {
        const QString title = u"No Texture Sets Installed"_s;
        EXPECT_EQ(program.toldDuring([&] { box(name).click(); }), (QStringList{title, title}));
        EXPECT_FALSE(box(name).isChecked());
        EXPECT_FALSE(session.StartingUp);
    }
}

TEST_F(OptionsScreens, aFailureLeavesTheBoxAsTheOptionIs) {
    program.shell.goToPage(u"frm_Switcher"_s);
    EXPECT_EQ(program.toldDuring([&] { box(u"chkFastExit"_s).click(); }),
              QStringList{u"Morvane FastExit Status"_s});
    // The install has no halo of ours.
    EXPECT_EQ(program.toldDuring([&] { box(u"chkHalo"_s).click(); }), QStringList{u"Morvane Error"_s});
    EXPECT_EQ(box(u"chkHalo"_s).isChecked(), session.state<OptionsInForce>().IsHalo);
    EXPECT_TRUE(session.state<OptionsInForce>().IsFastExit);
}

TEST_F(OptionsScreens, theBaseInstallCopiesWhatIsTicked) {
    program.shell.goToPage(u"frm_Config"_s);
    auto& list = program.control<SetTable>(u"frm_Config"_s, u"lstMVMain"_s);
    EXPECT_EQ(program.text(u"frm_Config"_s, u"lblMVDescription"_s), u"About Global Coverage - Day"_s);
    list.topLevelItem(0)->setCheckState(0, Qt::Checked);
    program.press(u"frm_Config"_s, u"btn_MVInstall"_s);
    EXPECT_EQ(test::readFile(program.install.simulator() / u"Scenery\\World\\texture\\029H2SU6.BMP"),
              "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_EQ(program.text(u"frm_Main"_s, u"lblCurrentTSName"_s), u"Default"_s);
    EXPECT_FALSE(program.user.isMessageVisible());
}

TEST_F(OptionsScreens, thePilotsOwnTexturesBecomeBaseImages) {
    const FilePath world = program.install.simulator() / u"Scenery\\World\\texture";
    for (const QString& name : program.install.files.list(world, u"*.bmp"_s))
        test::writeFile(world.child(name), test::smallBitmap(16, 201));
    program.shell.goToPage(u"frm_Config"_s);
    const auto& useDelivered = program.control<QPushButton>(u"frm_Config"_s, u"cmdUseDelivered"_s);
    const auto expectOwn = [&](bool isOwn) {
        EXPECT_EQ(program.text(u"frm_Config"_s, u"lblStock"_s).endsWith(u"my simulator's textures"_s), isOwn);
        EXPECT_EQ(useDelivered.isEnabled(), isOwn);
    };
    expectOwn(false);
    for (const QString& button : {u"cmdUseSimulator"_s, u"cmdUseDelivered"_s}) {
        program.toldDuring([&] { program.control<QPushButton>(u"frm_Config"_s, button).click(); });
        expectOwn(button == u"cmdUseSimulator");
    }
}

TEST_F(OptionsScreens, aBackupIsChosenBeforeOkAndAPartialOneIsMarked) {
    session.state<BackupChoice>().backups = {
        {u"3-Backup"_s, QDateTime(QDate(2026, 7, 14), QTime(14, 7)), false},
        {u"4-Backup"_s, QDateTime(QDate(2026, 7, 15), QTime(14, 7)), true}};
    program.show(Screen::frm_BackupList, [](DialogForm& dialog) {
        auto* list = dialog.findChild<SetTable*>(u"lstBackupList"_s);
        EXPECT_EQ(list->textOf(1, 0) + u'|' + list->textOf(1, 1),
                  u"3-Backup|2026/07/14 14:07:00 (partial)"_s);
        dialog.ok();
        EXPECT_TRUE(dialog.isVisible()) << "OK without a choice";
        QTest::keyClick(list, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "the first key only chooses";
        QTest::keyClick(list, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(session.state<BackupChoice>().chosenBackup, u"4-Backup"_s);
}

} // namespace
} // namespace morvane
