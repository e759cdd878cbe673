#include "core/store.h"
#include "sets/options_in_force.h"
#include "simulator/backup_files.h"
#include "simulator/backup_restore.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"

#include <QCheckBox>
#include <QPushButton>

namespace morvane::test {
namespace {

struct OptionsScreens : testing::Test {
    OptionsScreens() {
        session.adoConn->execute(
            u"INSERT INTO MV_CONFIG(TITLE, MV_FOLDER, FS_FOLDER, DESCRIPTION, INSTALLED) VALUES "
            "('Golf', 'GENERIC WORLD', 'Scenery\\World\\texture', 'About Golf', FALSE)"_s);
    }
    QCheckBox& box(const QString& name) { return program.control<QCheckBox>(u"frm_Switcher"_s, name); }
    WindowProgram program;
    Session& session = program.session;
};

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
    EXPECT_EQ(program.text(u"frm_Config"_s, u"lblMVDescription"_s), u"About Golf"_s);
    list.topLevelItem(0)->setCheckState(0, Qt::Checked);
    program.press(u"frm_Config"_s, u"btn_MVInstall"_s);
    EXPECT_EQ(readFile(program.install.simulator() / u"Scenery\\World\\texture\\029H2SU6.BMP"),
              "body of GENERIC WORLD\\029h2su6.bmp");
}

TEST_F(OptionsScreens, thePilotsOwnTexturesBecomeBaseImages) {
    const FilePath world = program.install.simulator() / u"Scenery\\World\\texture";
    for (const QString& name : program.install.files.list(world, u"*.bmp"_s))
        writeFile(world.child(name), smallBitmap(16, 201));
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

TEST_F(OptionsScreens, whatIsPickedGoesAndTheNextOneIsPicked) {
    createBackup(program.install.session, false);
    program.show(Screen::frm_WhatIsKept, [this](DialogForm& dialog) {
        auto& list = *dialog.findChild<SetTable*>(u"lstKept"_s);
        clickRow(list, 4);
        program.toldDuring([&] { program.press(u"frm_WhatIsKept"_s, u"btn_RemoveKept"_s); });
        EXPECT_EQ(list.selectedNames(), QStringList{u"Your originals"_s});
        EXPECT_EQ(program.stateOf(u"frm_WhatIsKept"_s, u"btn_RemoveKept"_s), ButtonState::disabled);
        dialog.cancel();
    });
}

} // namespace
} // namespace morvane::test
