#include "core/store.h"
#include "simulator/base_install.h"
#include "simulator/base_install_rows.h"
#include "support/night_install.h"
#include "support/small_install.h"

#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_selection.h"
#include "night/night_texture_sets.h"
#include "support/system_files.h"

namespace morvane::test {
namespace {

struct BaseInstall : InstallTest {
    FilePath world = install.simulator() / u"Scenery\\World\\texture";

    BaseInstall() {
        addNightStock(install);
        addNightSet(install, "Default", true);
        addNightSet(install, "2-Red", true);
        install.addGroundSet("2-Storm", "Overcast", true);
        writeFile(install.home() / u"GENERIC WORLD\\deeper\\a.bmp", "no folder below is entered");
        const QString texture = "Scenery\\World\\texture";
        addConfig(globalDayConfig, "GENERIC WORLD", texture);
        addConfig(globalNightConfig, "GENERIC WORLD NIGHT", texture);
        addConfig(addOnConfig, "UTIND", "Scenery\\UTEurLC\\Texture");
        addConfig("Nothing delivered", "NO SUCH FOLDER", texture);
    }
    void addConfig(const QString& title, const QString& source, const QString& target) {
        const QString row = "INSERT INTO MV_CONFIG(TITLE, MV_FOLDER, FS_FOLDER) VALUES ('%1', '%2', '%3')";
        session.adoConn->execute(row.arg(title, source, target));
    }
    QString installedTitles() {
        QStringList titles;
        for (RowSet rows(*session.adoConn, u"SELECT * FROM MV_CONFIG"_s); !rows.atEnd(); rows.next())
            if (rows.flag(u"INSTALLED")) titles << rows.text(u"TITLE");
        return titles.join(u'|');
    }
};

TEST_F(BaseInstall, whatIsTickedIsToldMarkedAndCopied) {
    const auto before = contentsBelow(install.simulator());
    copyBaseResources(session, {});
    EXPECT_EQ(install.user.messages.back().title, "No Options Selected");
    EXPECT_TRUE(install.user.messages.back().withOk && !install.user.messages.back().isProgress);
    const FilePath addOn = install.simulator() / u"Scenery\\UTEurLC", aside = install.folder / u"aside";
    install.files.rename(addOn, aside);
    copyBaseResources(session, {addOnConfig}); // passed over without a word
    install.files.rename(aside, addOn);
    EXPECT_EQ(installedTitles(), QString());
    EXPECT_EQ(contentsBelow(install.simulator()), before);
    copyBaseResources(session, {"Nothing delivered", addOnConfig});
    EXPECT_EQ(installedTitles(), addOnConfig + "|Nothing delivered");
    EXPECT_EQ(readFile(addOn / u"Texture\\034B2SU4.BMP"), "body of UTIND\\034b2su4.bmp");
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 0);
}

/// Nor do the rows, which say what was wanted, know of it. Marks are cleared here; the installs of sets
/// refuse the same files.
TEST_F(BaseInstall, aSourceThatCannotBeReadIsLeftOutAndAReadOnlyTargetReplaced) {
    const FilePath texture = world / u"029H2SU6.BMP";
    install.files.setReadOnly(texture, true);
    const UnreadableFile unreadable(install.home() / u"GENERIC WORLD\\010b2su1.bmp");
    copyBaseResources(session, {globalDayConfig});
    EXPECT_EQ(readFile(texture), "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_FALSE(install.files.isReadOnly(texture));
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_EQ(install.user.calls.back(), "done 3 files installed, 1 left out");
    EXPECT_TRUE(install.user.calls.contains("refresh frm_Main"));
}

TEST_F(BaseInstall, theGlobalTitlesLeaveDefaultAsTheOneInstalledSet) {
    session.rows<clsTextureSets>()->markInstalled("2-Storm");
    session.rows<clsNightTextureSets>()->markInstalled("2-Red");
    install.reload();
    clsTextureSet changed = *findGroundSet(session, "Default");
    changed.CloudCover = "Overcast";
    changed.ColorSettings = "1:2:3:4:5:6";
    session.rows<clsTextureSets>()->Save(changed);
    copyBaseResources(session, {globalDayConfig, globalNightConfig});
    EXPECT_EQ(install.installedSets(), QStringList{"Default"});
    EXPECT_EQ(nightSets(session), "Default+* 2-Red+");
    const auto set = findGroundSet(session, "Default");
    EXPECT_EQ(set->CloudCover + u'|' + set->ColorSettings + u'|' + set->Description,
              "Partly Cloudy|0:0:0:0:0:0|Default Morvane Texture Set with no extra settings");
    EXPECT_TRUE(session.state<GroundSelection>().RefreshGroundList &&
                session.state<NightSelection>().RefreshNightList);
    EXPECT_EQ(readFile(world / u"045B2LM1.BMP"), "body of GENERIC WORLD NIGHT\\045b2lm1.bmp");
}

/// The rows say what is installed; where the store has none or refuses them, the files come all the same.
TEST_F(BaseInstall, aStoreThatRefusesItsRowsKeepsNoFileBack) {
    const QStringList both{globalDayConfig, globalNightConfig};
    const QString refusal = u"CREATE TRIGGER refused_%1 BEFORE UPDATE ON %1 "_s;
    const QString refusing = u"BEGIN SELECT RAISE(ABORT, 'no'); END"_s;
    const auto refuse = [&](const QString& of) {
        for (const QString& table : {u"TEXTURE_SETS"_s, u"NIGHT_TEXTURE_SETS"_s})
            session.adoConn->execute(of.arg(table));
    };
    const std::pair<QString, int> cases[] = {
        // What is done to both tables, and the messages of failures.
        {refusal + u"WHEN new.TEXTURE_SET LIKE '2-%' "_s + refusing, 2},
        {refusal + refusing, 2},
        {u"DELETE FROM %1"_s, 0},
        {u"DROP TABLE %1"_s, 2},
    };
    for (const auto& [statement, failures] : cases) {
        SCOPED_TRACE(statement.toStdString());
        writeFile(world / u"029H2SU6.BMP", "a set");
        writeFile(world / u"045B2LM1.BMP", "a set");
        user.messages.clear();
        refuse(statement);
        copyBaseResources(session, both);
        EXPECT_GE(user.countOfKind(MessageKind::error), failures);
        EXPECT_EQ(readFile(world / u"029H2SU6.BMP"), "body of GENERIC WORLD\\029h2su6.bmp");
        EXPECT_EQ(readFile(world / u"045B2LM1.BMP"), "body of GENERIC WORLD NIGHT\\045b2lm1.bmp");
        if (statement.startsWith(u"CREATE")) refuse(u"DROP TRIGGER refused_%1"_s);
    }
}

/// The desktop's session ends between two files, of which some came ahead: each is whole, and nothing is
/// told.
TEST_F(BaseInstall, theEndOfTheSessionEndsItBehindAFile) {
    const auto before = contentsBelow(install.simulator());
    user.onPump = [&] {
        if (contentsBelow(install.simulator()) != before)
            session.ExitInProgress.moveTo(ExitStage::sessionEnd);
    };
    copyBaseResources(session, {globalDayConfig});
    const auto after = contentsBelow(install.simulator());
    EXPECT_NE(after, before);
    for (const auto& [path, contents] : after.asKeyValueRange())
        EXPECT_TRUE(contents == before.value(path) || contents.startsWith("body of")) << path.toStdString();
    EXPECT_EQ(user.calls.filter(u"done"_s), QStringList());
    EXPECT_EQ(user.countOfKind(MessageKind::error), 0);
}

/// Whatever fails, each file of the simulator is an old or a new one as a whole.
TEST_F(BaseInstall, everyFailingOperationLeavesWholeFiles) {
    const auto before = contentsBelow(install.simulator());
    const auto expectWholeFiles = [&](int n) {
        const auto after = contentsBelow(install.simulator());
        for (auto file = before.begin(); file != before.end(); ++file)
            EXPECT_TRUE(after.value(file.key()) == *file || after.value(file.key()).startsWith("body of"))
                << n;
    };
    const auto work = [&] { copyBaseResources(session, {globalDayConfig, addOnConfig}); };
    EXPECT_GT(failEachOperation(install.files, Fault::once, work, expectWholeFiles), 15);
}

} // namespace
} // namespace morvane::test
