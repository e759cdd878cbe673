#include "core/registry.h"
#include "core/row_set.h"
#include "core/store.h"
#include "sets/options_in_force.h"
#include "simulator/backup_restore.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;

class OptionsScreens : public testing::Test {
protected:
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
    /// Confirms every message that shows during the action and gives their titles.
    QStringList titlesDuring(const std::function<void()>& action) {
        QStringList titles;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            auto* message = qobject_cast<DialogForm*>(program.shell.loadedForm(u"frm_Msg"_s));
            if (!message || !message->isVisible()) return;
            titles << message->findChild<QLabel*>(u"lbl_Title"_s)->text();
            message->ok();
        });
        timer.start(0);
        action();
        return titles;
    }

    test::WindowProgram program;
    Session& session = program.session;
};

TEST_F(OptionsScreens, openingThePageCopiesNothingAndAsksNothing) {
    const auto before = contentsBelow(program.install.folder.path());
    bool OptionsInForce::*const flags[] = {&OptionsInForce::IsWideClient,        &OptionsInForce::IsDutch,
                                           &OptionsInForce::IsTropical,          &OptionsInForce::IsHalo,
                                           &OptionsInForce::InhibitCustomSplash, &OptionsInForce::IsFastExit};
    for (const bool isSet : {true, false}) {
        for (const auto flag : flags)
            session.state<OptionsInForce>().*flag = isSet;
        const QStringList titles = titlesDuring([&] { program.shell.goToPage(u"frm_Switcher"_s); });
        EXPECT_TRUE(titles.isEmpty()) << titles.join(u'|').toStdString();
        for (const auto* option : program.shell.form(u"frm_Switcher"_s)->findChildren<QCheckBox*>())
            EXPECT_EQ(option->isChecked(), isSet) << option->objectName().toStdString();
    }
    EXPECT_EQ(contentsBelow(program.install.folder.path()), before);
}

TEST_F(OptionsScreens, theFlightsFolderIsShownUnlessThisIsAWideClient) {
    const auto& value = program.control<QLabel>(u"frm_Switcher"_s, u"lblFSFilesPathVal"_s);
    const auto& key = program.control<SkinnedButton>(u"frm_Switcher"_s, u"btn_RegOK"_s);
    program.install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"NonEnglishPath"_s,
                                          u"/gone/Flüge"_s);
    program.shell.goToPage(u"frm_Switcher"_s);
    EXPECT_EQ(value.text(), u"/gone/Flüge"_s);
    EXPECT_EQ(titlesDuring([&] {
                  QTest::mouseClick(&box(u"chkWideFS"_s), Qt::LeftButton, {}, {7, 9});
              }),
              QStringList{u"FS9 WideFS Status"_s});
    EXPECT_FALSE(value.isVisibleTo(program.shell.form(u"frm_Switcher"_s)));
    EXPECT_EQ(key.state(), ButtonState::disabled);
    EXPECT_EQ(titlesDuring([&] { QTest::keyClick(&box(u"chkWideFS"_s), Qt::Key_Space); }),
              QStringList{u"FS9 WideFS Status"_s});
    EXPECT_TRUE(value.isVisibleTo(program.shell.form(u"frm_Switcher"_s)));
    EXPECT_EQ(key.state(), ButtonState::enabled);
}

/// The box is cleared as by a click, which tells of it once more.
TEST_F(OptionsScreens, withoutSetsTheRefusalIsToldTwice) {
    session.adoConn->execute(u"DELETE FROM TEXTURE_SETS WHERE ID <> 0"_s);
    program.shell.goToPage(u"frm_Switcher"_s);
    for (const QString& name : {u"chkDutch"_s, u"chkNonTropical"_s}) {
        const QString title = u"No Texture Sets Installed"_s;
        EXPECT_EQ(titlesDuring([&] { box(name).click(); }), (QStringList{title, title}));
        EXPECT_FALSE(box(name).isChecked());
        EXPECT_FALSE(session.StartingUp);
    }
}

TEST_F(OptionsScreens, aFailureLeavesTheBoxAsTheOptionIs) {
    program.shell.goToPage(u"frm_Switcher"_s);
    EXPECT_EQ(titlesDuring([&] { box(u"chkFastExit"_s).click(); }),
              QStringList{u"Morvane FastExit Status"_s});
    // The install has no halo of ours.
    EXPECT_EQ(titlesDuring([&] { box(u"chkHalo"_s).click(); }), QStringList{u"Morvane Error"_s});
    EXPECT_EQ(box(u"chkHalo"_s).isChecked(), session.state<OptionsInForce>().IsHalo);
    EXPECT_TRUE(session.state<OptionsInForce>().IsFastExit);
}

TEST_F(OptionsScreens, theBaseInstallCopiesWhatIsTicked) {
    program.shell.goToPage(u"frm_Config"_s);
    auto& list = program.control<SetTable>(u"frm_Config"_s, u"lstMVMain"_s);
    const auto& description = program.control<QLabel>(u"frm_Config"_s, u"lblMVDescription"_s);
    ASSERT_EQ(list.rowCount(), 2);
    EXPECT_EQ(description.text(), u"About Global Coverage - Day"_s);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(description.text(), u"About Golf"_s);
    list.topLevelItem(0)->setCheckState(0, Qt::Checked);
    program.press(u"frm_Config"_s, u"btn_MVInstall"_s);
    EXPECT_EQ(test::readFile(program.install.simulator() / u"Scenery\\World\\texture\\029H2SU6.BMP"),
              "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_EQ(program.control<QLabel>(u"frm_Main"_s, u"lblCurrentTSName"_s).text(), u"Default"_s);
    EXPECT_FALSE(program.user.isMessageVisible());
}

TEST_F(OptionsScreens, aBackupIsMadeChosenAndRestored) {
    const FilePath texture = program.install.simulator() / u"Scenery\\World\\texture\\029H2SU6.BMP";
    const QByteArray own = test::readFile(texture);
    program.shell.goToPage(u"frm_Config"_s);
    EXPECT_EQ(titlesDuring([&] { program.press(u"frm_Config"_s, u"btn_backup"_s); }).value(0),
              u"Create New Backup?"_s);
    test::writeFile(texture, "a set");
    const auto restoreBy = [&](const std::function<void(DialogForm&, SetTable&)>& choose) {
        test::writeFile(texture, "a set");
        program.whenShown(u"frm_BackupList"_s, [choose](DialogForm& dialog) {
            auto* list = dialog.findChild<SetTable*>(u"lstBackupList"_s);
            EXPECT_EQ(list->textOf(1, 0), u"1-Backup"_s);
            EXPECT_FALSE(list->textOf(1, 1).contains(u"partial"_s));
            EXPECT_EQ(list->selectedNames(), QStringList{u"1-Backup"_s});
            EXPECT_TRUE(list->hasFocus());
            dialog.ok();
            EXPECT_TRUE(dialog.isVisible()) << "OK without a choice";
            choose(dialog, *list);
        });
        program.press(u"frm_Config"_s, u"btn_Restore_Backup"_s);
        return test::readFile(texture);
    };
    EXPECT_EQ(restoreBy([](DialogForm& dialog, SetTable&) { dialog.cancel(); }), "a set");
    EXPECT_EQ(restoreBy([](DialogForm& dialog, SetTable& list) {
                  QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                                    list.visualItemRect(list.topLevelItem(0)).center());
                  dialog.ok();
              }),
              own);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Space, Qt::Key_Return})
        EXPECT_EQ(restoreBy([key](DialogForm& dialog, SetTable& list) {
                      QTest::keyClick(&list, key);
                      EXPECT_TRUE(dialog.isVisible()) << "the first key only chooses";
                      QTest::keyClick(&list, Qt::Key_Return);
                  }),
                  own)
            << key;
}

TEST_F(OptionsScreens, thePilotsOwnTexturesBecomeBaseImages) {
    const FilePath image = program.install.home() / u"Resources\\GENERIC WORLD\\029h2su6.bmp";
    const FilePath world = program.install.simulator() / u"Scenery\\World\\texture";
    const QByteArray own = test::smallBitmap(16, 201), before = test::readFile(image);
    ASSERT_NE(QImage::fromData(own), QImage::fromData(before));
    for (const QString& name : program.install.files.list(world, u"*.bmp"_s))
        test::writeFile(world.child(name), own);
    program.shell.goToPage(u"frm_Config"_s);
    const auto& caption = program.control<QLabel>(u"frm_Config"_s, u"lblStock"_s);
    auto& useDelivered = program.control<QPushButton>(u"frm_Config"_s, u"cmdUseDelivered"_s);
    const auto click = [&](const QString& name) {
        return titlesDuring(
            [&] { QTest::mouseClick(&program.control<QPushButton>(u"frm_Config"_s, name), Qt::LeftButton); });
    };
    EXPECT_TRUE(caption.text().endsWith(u"the delivered textures"_s));
    EXPECT_FALSE(useDelivered.isEnabled());
    EXPECT_GE(click(u"cmdUseSimulator"_s).size(), 1) << "it asks";
    EXPECT_EQ(QImage::fromData(test::readFile(image)), QImage::fromData(own));
    EXPECT_TRUE(caption.text().endsWith(u"my simulator's textures"_s));
    EXPECT_TRUE(useDelivered.isEnabled());
    EXPECT_EQ(click(u"cmdUseDelivered"_s).size(), 1) << "it asks, too";
    EXPECT_EQ(test::readFile(image), before);
    EXPECT_FALSE(useDelivered.isEnabled());
}

TEST_F(OptionsScreens, aPartialBackupIsMarkedWithItsDate) {
    session.state<BackupChoice>().backups = {
        {u"3-Backup"_s, QDateTime(QDate(2026, 7, 14), QTime(14, 7)), false},
        {u"4-Backup"_s, QDateTime(QDate(2026, 7, 15), QTime(14, 7)), true}};
    program.whenShown(u"frm_BackupList"_s, [](DialogForm& dialog) {
        const auto* list = dialog.findChild<SetTable*>(u"lstBackupList"_s);
        EXPECT_EQ(list->textOf(1, 0) + u'|' + list->textOf(1, 1),
                  u"3-Backup|2026/07/14 14:07:00 (partial)"_s);
        EXPECT_EQ(list->selectedNames(), QStringList{u"4-Backup"_s}) << "the newest";
        dialog.cancel();
    });
    program.user.showModal(Screen::frm_BackupList);
    EXPECT_FALSE(session.state<BackupChoice>().backupConfirmed);
}

TEST_F(OptionsScreens, theFolderBrowserOpensInTheFolderShown) {
    const QString shown = program.install.home().native();
    session.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"NonEnglishPath"_s, shown);
    program.shell.goToPage(u"frm_Switcher"_s);
    ASSERT_EQ(program.control<QLabel>(u"frm_Switcher"_s, u"lblFSFilesPathVal"_s).accessibleName(), shown);
    QTimer timer;
    QString opened;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto* browser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!browser) return;
        opened = browser->directory().path();
        browser->reject();
    });
    timer.start(0);
    program.press(u"frm_Switcher"_s, u"btn_RegOK"_s);
    EXPECT_EQ(opened, shown);
}

} // namespace
} // namespace morvane
