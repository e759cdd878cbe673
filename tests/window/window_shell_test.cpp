#include "support/window_program.h"

#include "core/store.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/screens/ground_sets_screen.h"
#include "ground/texture_sets.h"
#include "sets/options_in_force.h"
#include "ui/controls/foot_line.h"
#include "window/form_table.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

namespace morvane::test {
namespace {

struct ShellTest : testing::Test {
    WindowProgram program;
    WindowShell& shell = program.shell;
};

TEST_F(ShellTest, findsHomeFromAPageThatAListWindowHasComeBackTo) {
    program.press(u"frm_Main"_s, u"btn_FlightConfig"_s);
    program.press(u"frm_Main"_s, u"btn_MVTextures"_s);
    program.press(u"frm_MVTextures"_s, u"btn_Main"_s);
    const Form* weather = shell.loadedForm(u"frm_WxControl"_s);
    EXPECT_TRUE(weather->isVisible());
    program.press(u"frm_Main"_s, u"btn_Home"_s);
    EXPECT_FALSE(weather->isVisible());
    EXPECT_EQ(program.stateOf(u"frm_Main"_s, u"btn_Home"_s), ButtonState::disabled);
}

TEST_F(ShellTest, theStatusPageCountsSetsAndTellsOfAWideClient) {
    program.install.addGroundSet(u"7-Fair"_s, u"Sky Clear"_s, true);
    program.install.addGroundSet(u"8-Fair"_s, u"Sky Clear"_s, false);
    program.install.addGroundSet(u"9-Grey"_s, u"Overcast"_s, true);
    refreshGroundSets(program.session);
    program.session.rows<clsTextureSets>()->markInstalled(u"9-Grey"_s);
    for (const bool isClient : {false, true}) {
        program.session.state<OptionsInForce>().IsWideClient = isClient;
        shell.refreshMainStatus();
        EXPECT_EQ(program.control<QLabel>(u"frm_Main"_s, u"lblWideFS"_s).isVisible(), isClient);
    }
    const std::pair<QString, QString> labels[] = {
        {u"lblGroundSkcValue"_s, u"2"_s},
        {u"lblGroundSkcActivatedValue"_s, u"1"_s},
        {u"lblCurrentTSName"_s, u"9-Grey"_s},
        {u"lblGroundCloudValue"_s, u"Overcast"_s},
        {u"lblBackupValue"_s, u"No backups created yet"_s},
        {u"lblGroundTextureSets"_s,
         u"Currently you have 3 sets active and the more sets you create for each cloud type (weather "
         "condition) the more variety you will enjoy in game"_s}};
    for (const auto& [label, text] : labels)
        EXPECT_EQ(program.text(u"frm_Main"_s, label), text);
}

/// A page's own text goes and comes with the page; what a job said is on whichever window is shown next.
TEST_F(ShellTest, hasOneLineBelowThePageInEveryWindow) {
    const auto lineOf = [this](const QString& window) {
        return shell.form(window)->findChild<FootLine*>()->shown().text;
    };
    shell.goToPage(u"frm_About"_s);
    shell.screen<PageForm>(u"frm_About"_s).setFootText({u"a text of its own"_s});
    EXPECT_EQ(lineOf(u"frm_Main"_s), u"a text of its own"_s);
    shell.goToPage(u"frm_Links"_s);
    EXPECT_EQ(lineOf(u"frm_Main"_s), QString());
    shell.goToPage(u"frm_About"_s);
    EXPECT_EQ(lineOf(u"frm_Main"_s), u"a text of its own"_s);

    for (const QString& window : windowNames)
        shell.form(window);
    program.user.tellDone({u"2 texture sets deleted"_s});
    for (const QString& window : windowNames)
        EXPECT_EQ(lineOf(window), u"2 texture sets deleted"_s);
    QTest::mouseClick(shell.form(u"frm_Main"_s), Qt::RightButton);
    EXPECT_EQ(lineOf(u"frm_MVTextures"_s), QString());
    EXPECT_EQ(lineOf(u"frm_Main"_s), u"a text of its own"_s);
}

TEST_F(ShellTest, theInstallKeyInstallsWhatIsSelected) {
    const QString host = u"frm_NightTextures"_s;
    addNightSet(program.install, u"2-Red"_s, true, {u"Texture\\008b2lm1.bmp"_s});
    addNightSet(program.install, u"3-Blue"_s, false);
    program.press(u"frm_Main"_s, u"btn_NightTextures"_s);
    auto& table = program.control<SetTable>(host, u"lstTextureSets"_s);
    EXPECT_EQ(shell.form(host)->focusWidget(), &table) << "the keyboard is on the page";
    clickRow(table, 1);
    program.press(host, u"btn_TextureInstall"_s);
    EXPECT_EQ(nightSets(program.install.session), u"2-Red+* 3-Blue"_s);
    EXPECT_EQ(table.columnCount(), 2);
    EXPECT_EQ(table.storedColour(1), qRgb(255, 0, 0));
    EXPECT_EQ(table.storedColour(2), qRgb(0, 101, 161));
    EXPECT_EQ(program.text(host, u"lblFavDescription"_s), u"A night of a test"_s);
    EXPECT_NE(program.picture(host, u"picTextureSetSource"_s),
              program.picture(host, u"picTextureSetResult"_s));
    program.press(host, u"btn_Main"_s);
    EXPECT_EQ(program.text(u"frm_Main"_s, u"lblCurrentNightTSName"_s), u"2-Red"_s);
}

TEST_F(ShellTest, asksBeforeMoreThanTwentySets) {
    const auto create = [this](const QString& count) {
        program.whenShown(u"frm_TsRequired"_s, [this, count](DialogForm& dialog) {
            program.control<QLineEdit>(u"frm_TsRequired"_s, u"txtOvercastClouds"_s).setText(count);
            dialog.ok();
        });
        program.press(u"frm_MVTextures"_s, u"btn_textureCreate"_s);
        refreshGroundSets(program.session);
        return program.session.rows<clsTextureSets>()->Count();
    };
    shell.showHost(u"frm_MVTextures"_s);
    QString question;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
        question = program.text(u"frm_Msg"_s, u"lbl_Message"_s);
        message.cancel();
    });
    EXPECT_EQ(create(u"21"_s), 1);
    EXPECT_TRUE(question.startsWith(u"21 ground sets: less than a minute, 1 MB of "_s))
        << question.toStdString();
    EXPECT_EQ(program.toldDuring([&] { EXPECT_EQ(create(u"20"_s), 21); }).size(), 1) << "a report alone";
    const auto askForMore = [this] {
        EXPECT_FALSE(
            program.user.allowsRun({u"105 ground sets"_s, 240, 5'200'000'000, 1'100'000'000, false}));
    };
    EXPECT_EQ(program.toldDuring(askForMore, {}, u"lbl_Message"_s),
              QStringList{u"105 ground sets: 5.2 GB needed, 1.1 GB free"_s});
}

/// Two programs, as two sessions on one store: the other one is the install's own.
TEST_F(ShellTest, aKeyWaitsForASecondClickWhenItsListHasChanged) {
    const int storm = program.install.addGroundSet("2-Storm", "Overcast", true);
    program.press(u"frm_Main"_s, u"btn_MVTextures"_s);
    program.shell.screen<frm_MVTextures>(u"frm_MVTextures"_s).selectSetRow(2);
    EXPECT_EQ(program.session.state<GroundSelection>().SelectedGroundSet, u"2-Storm"_s);
    program.install.session.adoConn->execute(u"DELETE FROM TEXTURE_SETS WHERE ID = "_s +
                                             QString::number(storm));
    program.confirmNext(u"frm_Msg"_s);
    program.press(u"frm_MVTextures"_s, u"btn_TextureInstall"_s);
    EXPECT_EQ(program.session.state<GroundSelection>().SelectedGroundSet, u"Default"_s);
    EXPECT_TRUE(program.install.installedSets().isEmpty());
    program.install.addGroundSet("3-Calm", "Mostly Clear", true);
    bool isAsked = false;
    program.whenShown(u"frm_TsRequired"_s, [&](DialogForm& dialog) {
        isAsked = true;
        dialog.cancel();
    });
    program.press(u"frm_MVTextures"_s, u"btn_textureCreate"_s);
    EXPECT_TRUE(isAsked) << "new sets are made whatever the list shows";
}

TEST_F(ShellTest, whatCannotBeOpenedIsTold) {
    const QString help = (program.install.home() / u"MV Help\\index.html").native();
    writeFile(program.install.home() / u"MV Help\\index.html", "help");
    program.install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"UpdateServer"_s,
                                          u"http://updates.example.org"_s);
    const QString none = u"There is no program here that opens "_s;
    const std::pair<std::function<void()>, QString> cases[] = {
        {[&] { shell.openHelp(); }, none + help},
        {[&] { shell.openWebPage(u"https://example.org/"_s); }, none + u"https://example.org/"_s},
        {[&] { shell.openUpdatePage(); },
         none + u"http://updates.example.org/updates.asp?product=Morvane&version=2.1.0"_s},
        {[&] { shell.openWebPage(u"file:///etc/passwd"_s, u"HomePage"_s); },
         u"There is no address yet. It would stand in the registry value \"HomePage\" of Morvane."_s},
    };
    for (const auto& [open, said] : cases)
        EXPECT_EQ(program.toldDuring(open, {}, u"lbl_Message"_s), QStringList{said});
}

TEST_F(ShellTest, aFolderIsNamedAsTheSystemNamesIt) {
    const QString home = program.install.home().native();
    QTimer answer;
    answer.callOnTimeout([] {
        if (auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
            QTest::keyClick(box, Qt::Key_Return);
    });
    answer.start(0);
    EXPECT_EQ(program.user.browseForFolder(home), QDir::toNativeSeparators(home));
}

} // namespace
} // namespace morvane::test
