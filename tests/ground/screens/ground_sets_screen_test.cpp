#include "core/store.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/screens/ground_sets_screen.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/set_table.h"

#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <gtest/gtest.h>

namespace morvane {
namespace {

constexpr QRgb red = qRgb(255, 0, 0), blue = qRgb(0, 101, 161);

/// The window of the ground over Default (activated), an activated and a deactivated set.
struct GroundSetsScreenTest : testing::Test {
    GroundSetsScreenTest() {
        for (const auto& [name, cover, activated] :
             {std::tuple(u"2-Storm"_s, u"Overcast"_s, true), std::tuple(u"3-Haze"_s, u"Sky Clear"_s, false)})
            program.install.addGroundSet(name, cover, activated, {u"Texture\\029h2su6.bmp"_s});
    }
    void open() {
        program.shell.showHost(u"frm_MVTextures"_s);
        screen = &program.shell.screen<frm_MVTextures>(u"frm_MVTextures"_s);
        list = screen->findChild<SetTable*>(u"lstTextureSets"_s);
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
        const QRect place = list->visualItemRect(list->topLevelItem(row - 1));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, place.center());
    }
    QStringList column(int column) {
        QStringList texts;
        for (int row = 1; row <= list->rowCount(); ++row)
            texts << list->textOf(row, column);
        return texts;
    }
    SkinnedButton& key(const QString& name) { return *screen->button(name); }
    /// States of delete, create, activate and install, in the order in which the page sets them.
    std::vector<ButtonState> keyStates() {
        std::vector<ButtonState> states;
        for (const char16_t* name :
             {u"btn_TextureDelete", u"btn_textureCreate", u"btn_TextureActivate", u"btn_TextureInstall"})
            states.push_back(key(QString::fromUtf16(name)).state());
        return states;
    }
    QImage picture(const QString& name) { return screen->findChild<PictureFrame*>(name)->picture(); }
    QString description() { return screen->findChild<QLabel*>(u"lblFavDescription"_s)->text(); }

    test::WindowProgram program;
    const GroundSelection& selection = program.session.state<GroundSelection>();
    frm_MVTextures* screen = nullptr;
    SetTable* list = nullptr;

    static constexpr auto alive = ButtonState::enabled, dead = ButtonState::disabled;
};

TEST_F(GroundSetsScreenTest, listsEverySetAndShowsTheFirstOnItsSample) {
    open();
    EXPECT_EQ(column(0), (QStringList{u"Default"_s, u"2-Storm"_s, u"3-Haze"_s}));
    EXPECT_EQ(column(1), (QStringList{u"True"_s, u"True"_s, u"False"_s}));
    EXPECT_EQ(column(2), (QStringList{u"Partly Cloudy"_s, u"Overcast"_s, u"Sky Clear"_s}));
    EXPECT_EQ(list->headerItem()->text(2), u"Cloud Cover"_s);
    EXPECT_EQ(list->topLevelItem(1)->toolTip(0), u"2-Storm"_s);
    EXPECT_EQ(list->topLevelItem(1)->toolTip(1), u"Activated?"_s);
    EXPECT_EQ(list->selectedNames(), QStringList{u"Default"_s});
    EXPECT_EQ(description(), u"A set of a test"_s);
    const QImage source = picture(u"picTextureSetSource"_s), result = picture(u"picTextureSetResult"_s);
    EXPECT_EQ(source.size(), QSize(16, 16));
    EXPECT_NE(source, result);
    EXPECT_FALSE(program.session.state<GroundSelection>().RefreshGroundList);
    EXPECT_FALSE(program.shell.form(u"frm_Main"_s)->isVisible());
    EXPECT_EQ(key(u"btn_TextureSets"_s).state(), dead);
}

/// The asymmetry is wanted: after the list was built anew a set can be deactivated only once it was clicked.
TEST_F(GroundSetsScreenTest, onlyAClickOffersDeactivation) {
    open();
    EXPECT_EQ(keyStates(), (std::vector{alive, alive, dead, alive})) << "Default, selected by the page";
    EXPECT_EQ(key(u"btn_TextureActivate"_s).ButtonText(), u"Activate"_s);
    clickRow(2);
    EXPECT_EQ(keyStates(), (std::vector{alive, alive, ButtonState::deactivate, alive}));
    EXPECT_EQ(key(u"btn_TextureActivate"_s).ButtonText(), u"Deactivate"_s);
    clickRow(3);
    EXPECT_EQ(keyStates(), (std::vector{alive, alive, alive, dead}));
    screen->selectGroundRow(2);
    EXPECT_EQ(keyStates(), (std::vector{alive, alive, dead, alive}));
    EXPECT_EQ(selection.SelectedGroundSet, u"2-Storm"_s);
}

TEST_F(GroundSetsScreenTest, aDoubleClickInstallsWhatHasFilesAndActivatesWhatHasNone) {
    open();
    const auto doubleClick = [&](int row) {
        const QPoint place = list->visualItemRect(list->topLevelItem(row - 1)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, place);
    };
    QTimer declining; // the matching sky, the start of the simulator, and that folders are missing
    QObject::connect(&declining, &QTimer::timeout, [this] {
        Form* message = program.shell.loadedForm(u"frm_Msg"_s);
        if (message && message->button(u"btn_Ok"_s)->isVisible()) message->cancel();
    });
    declining.start(0);
    doubleClick(2);
    EXPECT_EQ(list->storedColour(2), red) << "it is installed";
    doubleClick(3);
    EXPECT_EQ(list->textOf(3, 1), u"True"_s);
    EXPECT_EQ(list->selectedNames(), QStringList{u"3-Haze"_s});
}

TEST_F(GroundSetsScreenTest, clicksTakeRowsInHand) {
    open();
    clickRow(3);
    EXPECT_EQ(selection.SelectedGroundKey, list->keyOf(3));
    EXPECT_EQ(selection.SelectedGroundCover, u"Sky Clear"_s);
    EXPECT_FALSE(selection.SelectedGroundActivated);
    clickRow(2, Qt::ControlModifier);
    EXPECT_EQ(selection.SelectedGroundSet, u"2-Storm"_s) << "the last one clicked";
    EXPECT_EQ(selection.selectedRows, (QStringList{u"2-Storm"_s, u"3-Haze"_s}));
    QTest::keyClick(list, Qt::Key_Up);
    EXPECT_EQ(selection.selectedRows, QStringList{u"Default"_s}) << "the arrow keys select as clicks do";
}

TEST_F(GroundSetsScreenTest, keepsTheRowInHandWhenItIsFilledAnew) {
    open();
    list->header()->setSortIndicatorShown(false);
    Q_EMIT list->header()->sectionClicked(0);
    ASSERT_EQ(column(0), (QStringList{u"2-Storm"_s, u"3-Haze"_s, u"Default"_s}));
    clickRow(2);
    program.user.refreshScreen(Screen::frm_MVTextures);
    EXPECT_EQ(list->selectedNames(), QStringList{u"3-Haze"_s}) << "though it was the second when sorted";

    program.install.addGroundSet(u"4-Late"_s, u"Overcast"_s, false);
    program.user.refreshScreen(Screen::frm_MVTextures);
    EXPECT_EQ(list->rowCount(), 3) << "without the flag the collection is shown as it stands";
    program.session.state<GroundSelection>().RefreshGroundList = true;
    loadedGroundSets(program.session).markInstalled(u"3-Haze"_s);
    program.user.refreshScreen(Screen::frm_MVTextures);
    EXPECT_EQ(list->rowCount(), 4);
    EXPECT_EQ(list->storedColour(3), red);
    EXPECT_EQ(list->storedColour(4), blue);

    int row = 4;
    screen->formatGroundSets(row);
    EXPECT_EQ(row, 0);
    EXPECT_EQ(list->selectedNames(), QStringList{u"4-Late"_s});
}

TEST_F(GroundSetsScreenTest, anEmptyTableLeavesOnlyCreate) {
    for (const auto& set : loadedGroundSets(program.install.session))
        clsTextureSetData(program.install.session).deleteTexture(set->TsID);
    open();
    EXPECT_EQ(list->rowCount(), 0);
    EXPECT_EQ(keyStates(), (std::vector{dead, alive, dead, dead}));
    EXPECT_EQ(description(), QString());
    EXPECT_FALSE(picture(u"picTextureSetSource"_s).isNull());
}

TEST_F(GroundSetsScreenTest, aMissingSampleIsToldAndLeavesTheListUsable) {
    ASSERT_TRUE(QFile::remove((program.install.home() / u"Resources\\GENERIC WORLD\\029h2su6.bmp").native()));
    program.confirmNext(u"frm_Msg"_s);
    open();
    EXPECT_TRUE(picture(u"picTextureSetSource"_s).isNull());
    program.confirmNext(u"frm_Msg"_s);
    clickRow(2);
    EXPECT_EQ(keyStates()[2], ButtonState::deactivate);
}

/// Each click shows one message, and the keys are never those of the row before.
TEST_F(GroundSetsScreenTest, aSetOfDamagedColoursCanOnlyBeTakenAway) {
    program.install.addGroundSet(u"4-Odd"_s, u"Mostly Clear"_s, true, {u"Texture\\029h2su6.bmp"_s});
    program.install.addGroundSet(u"5-Odd"_s, u"Overcast"_s, false);
    program.install.session.adoConn->execute(
        u"UPDATE TEXTURE_SETS SET COLOR_SETTINGS = '0:x' WHERE TEXTURE_SET LIKE '%Odd'"_s);
    open();
    EXPECT_EQ(selection.SelectedGroundCover, u"Partly Cloudy"_s) << "the page's choice has a cover, too";
    for (const auto& [row, activate] : {std::pair(4, ButtonState::deactivate), std::pair(5, dead)}) {
        clickRow(2);
        program.confirmNext(u"frm_Msg"_s);
        clickRow(row);
        EXPECT_EQ(selection.SelectedGroundSet, list->textOf(row, 0));
        EXPECT_EQ(keyStates(), (std::vector{alive, alive, activate, dead})) << row;
        EXPECT_EQ(picture(u"picTextureSetSource"_s), picture(u"picTextureSetResult"_s));
    }
    clickRow(2);
    program.confirmNext(u"frm_Msg"_s);
    program.press(u"frm_MVTextures"_s, u"btn_TextureDelete"_s);
    EXPECT_EQ(list->selectedNames(), QStringList{u"3-Haze"_s});
    EXPECT_EQ(selection.SelectedGroundCover, u"Sky Clear"_s) << "after a removal as well";
}

/// The key looks dead and is not.
TEST_F(GroundSetsScreenTest, deactivateTakesTheFilesAndKeepsTheRow) {
    open();
    clickRow(2);
    SkinnedButton& activate = key(u"btn_TextureActivate"_s);
    QString question;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
        question = message.findChild<QLabel*>(u"lbl_Message"_s)->text();
        message.ok();
    });
    QTest::keyRelease(&activate, Qt::Key_Return);
    ASSERT_EQ(question, QString()) << "this release belonged to a press that went elsewhere";
    program.press(u"frm_MVTextures"_s, u"btn_TextureActivate"_s);
    EXPECT_TRUE(question.contains(u"2-Storm"_s)) << question.toStdString();
    EXPECT_EQ(list->textOf(2, 1), u"False"_s);
    EXPECT_FALSE(program.session.files.exists(program.install.home() /
                                              u"Texture Sets\\2-Storm\\Texture\\029h2su6.bmp"));
    EXPECT_EQ(list->selectedNames(), QStringList{u"2-Storm"_s});
    EXPECT_EQ(activate.state(), ButtonState::highlight) << "alive again, and the mouse is on it";
    EXPECT_EQ(activate.ButtonText(), u"Activate"_s);
    EXPECT_EQ(key(u"btn_TextureInstall"_s).state(), dead);
}

} // namespace
} // namespace morvane
