#include "core/registry.h"
#include "core/store.h"
#include "sets/options_in_force.h"
#include "simulator/backup_files.h"
#include "simulator/backup_restore.h"
#include "simulator/screens/palette_keeper.h"
#include "support/window_program.h"
#include "ui/controls/palette.h"
#include "ui/controls/set_table.h"
#include "weather/weather_rows.h"
#include "weather/weather_state.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

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

/// The row that is picked, the button that is pressed, and what is stored and picked then.
TEST_F(OptionsScreens, theWeathersSourcesAreArranged) {
    storeOwnValue(program.install.registry, u"WeatherSources"_s, u"noaa;awc;vatsim"_s);
    program.show(Screen::frm_MoreSettings, [&](DialogForm& dialog) {
        auto& list = *dialog.findChild<SetTable*>(u"lstSources"_s);
        auto& choice = *dialog.findChild<QComboBox*>(u"cboNewSource"_s);
        auto& address = *dialog.findChild<QLineEdit*>(u"txtOwnServer"_s);
        const auto button = [&](const QString& name) {
            return dialog.findChild<QPushButton*>(u"cmdSource"_s + name);
        };
        const auto own = [&](const QString& value) {
            return ownValue(program.install.registry, u"Weather"_s + value);
        };
        const struct {
            int row;
            QString pressed, sources, picked;
        } cases[] = {
            {3, u"Up"_s, u"noaa;vatsim;awc"_s, u"vatsim"_s},
            {1, u"Down"_s, u"vatsim;noaa;awc"_s, u"noaa"_s},
            {1, u"Remove"_s, u"noaa;awc"_s, u"noaa"_s},
            {2, u"Remove"_s, u"noaa"_s, u"noaa"_s},
            {1, u"Remove"_s, u"none"_s, {}},
            {0, u"Add"_s, u"noaa"_s, u"noaa"_s},
        };
        for (const auto& [row, pressed, sources, picked] : cases) {
            if (row > 0) clickRow(list, row);
            button(pressed)->click();
            EXPECT_EQ(own(u"Sources"_s), sources);
            EXPECT_EQ(list.selectedNames().join(u' '), picked);
        }
        EXPECT_FALSE(button(u"Up"_s)->isEnabled() || button(u"Down"_s)->isEnabled() || address.isVisible());
        choice.setCurrentIndex(choice.findText(u"Own server: one table"_s));
        EXPECT_TRUE(address.isVisible());
        for (const auto& [text, problems] : {std::pair(u"club.example"_s, 1),
                                             {u"https://club.example/r?id=1"_s, 1},
                                             {u" https://club.example:81/list.csv "_s, 0}}) {
            address.setText(text);
            EXPECT_EQ(program.toldDuring([&] { button(u"Add"_s)->click(); }).size(), problems)
                << text.toStdString();
        }
        EXPECT_EQ(own(u"Server"_s) + own(u"Path"_s) + own(u"Format"_s),
                  u"https://club.example:81/list.csvawc"_s);
        EXPECT_EQ(list.selectedNames(), QStringList{u"club.example"_s})
            << "before all others, and there it stays";
        EXPECT_FALSE(button(u"Up"_s)->isEnabled() || button(u"Down"_s)->isEnabled());
        button(u"Remove"_s)->click();
        EXPECT_EQ(own(u"Server"_s), QString());
        EXPECT_EQ(list.selectedNames(), QStringList{u"noaa"_s});
        dialog.cancel();
    });
}

TEST_F(OptionsScreens, thePaletteIsInUseAsSoonAsItIsChosen) {
    addAirports(session, {{u"NZAA"_s, u"Auckland"_s, {}, {}, {}, u"-37.008"_s, u"174.792"_s}});
    auto& weather = session.state<WeatherState>();
    const QDateTime noon(QDate(2026, 6, 21), QTime(12, 0), Qt::UTC);
    const struct {
        QString option, word, departure, destination;
        int hours; ///< behind noon in Greenwich
        PaperPalette palette;
    } cases[] = {
        {u"Night"_s, u"night"_s, {}, {}, 0, PaperPalette::night},
        {u"Day"_s, u"day"_s, {}, {}, 12, PaperPalette::day},
        {u"Clock"_s, u"clock"_s, {}, {}, 12, PaperPalette::night},
        {u"Clock"_s, u"clock"_s, {}, {}, 0, PaperPalette::day},
        {u"Clock"_s, u"clock"_s, u"NZAA"_s, {}, 12, PaperPalette::day},
        {u"Clock"_s, u"clock"_s, {}, u"NZAA"_s, 0, PaperPalette::night},
        {u"Clock"_s, u"clock"_s, u"XXXX"_s, u"NZAA"_s, 0, PaperPalette::day},
    };
    program.show(Screen::frm_MoreSettings, [&](DialogForm& dialog) {
        EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"optPaletteDay"_s)->isChecked()) << "the usual";
        for (const auto& [option, word, departure, destination, hours, wanted] : cases) {
            weather.DepIcao = departure;
            weather.DestIcao = destination;
            program.install.clock.now = noon.addSecs(3600 * hours);
            dialog.findChild<QRadioButton*>(u"optPalette"_s + option)->click();
            EXPECT_EQ(ownValue(session.registry, u"Palette"_s), word);
            EXPECT_EQ(palette::inUse(), wanted) << option.toStdString() << hours;
        }
        dialog.cancel();
    });
    program.install.clock.now = noon;
    weather.DestIcao.clear();
    usePaletteNow(session);
    EXPECT_EQ(palette::inUse(), PaperPalette::day) << "the sun rises";
    storeOwnValue(session.registry, u"Palette"_s, u"dusk"_s);
    program.install.clock.now = noon.addSecs(12 * 3600);
    usePaletteNow(session);
    EXPECT_EQ(palette::inUse(), PaperPalette::day) << "a word that is none";
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
