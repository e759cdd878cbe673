#include "core/store.h"
#include "simulator/base_install.h"
#include "simulator/base_install_rows.h"
#include "support/failing_operations.h"
#include "support/night_install.h"
#include "support/printing.h"

#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_selection.h"
#include "night/night_texture_sets.h"

#include <QFile>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;
using test::readFile;
using test::writeFile;

struct BaseInstall : testing::Test {
    test::SmallInstall install;
    Session& session = install.session;
    FilePath world = install.simulator() / u"Scenery\\World\\texture";

    BaseInstall() {
        test::addNightStock(install);
        test::addNightSet(install, "Default", true);
        test::addNightSet(install, "2-Red", true);
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
    QStringList installedTitles() {
        clsConfigs::reload(session);
        QStringList titles;
        for (const auto& config : *session.rows<clsConfigs>())
            if (config->ConfigInstalled) titles << config->ConfigName;
        return titles;
    }
    /// How many files of the simulator the work changes.
    template <class Work>
    int changedBy(Work work) {
        const auto before = contentsBelow(install.simulator());
        work();
        const auto after = contentsBelow(install.simulator());
        return static_cast<int>(std::ranges::count_if(
            after.keys(), [&](const QString& path) { return before.value(path) != after.value(path); }));
    }
};

const QString copying = u"Copying Files to Flight Simulator"_s, none = u"No Options Selected"_s;

/// What is ticked, what is told, what counts as installed and how many files change.
TEST_F(BaseInstall, whatIsTickedIsToldMarkedAndCopied) {
    const QString nothing = "Nothing delivered";
    const struct {
        QStringList ticked;
        bool hasAddOn;
        QStringList told, installed;
        int changed;
    } cases[] = {
        {{}, true, {copying, none}, {}, 0},
        {{addOnConfig}, false, {copying}, {}, 0}, // passed over without a word
        {{nothing}, true, {copying}, {nothing}, 0},
        {{addOnConfig}, true, {copying, copying}, {addOnConfig, nothing}, 1},
        {{globalDayConfig}, true, {copying, copying}, {globalDayConfig, addOnConfig, nothing}, 3},
    };
    const FilePath addOn = install.simulator() / u"Scenery\\UTEurLC", aside = install.folder / u"aside";
    for (const auto& road : cases) {
        if (!road.hasAddOn) install.files.rename(addOn, aside);
        install.user.messages.clear();
        EXPECT_EQ(changedBy([&] { copyBaseResources(session, road.ticked); }), road.changed)
            << road.ticked.join(u' ').toStdString();
        QStringList titles;
        for (const Message& message : install.user.messages)
            titles << message.title;
        EXPECT_EQ(titles, road.told);
        EXPECT_EQ(installedTitles(), road.installed);
        const Message& last = install.user.messages.back();
        EXPECT_EQ(last.withOk && !last.isProgress, titles.contains(none)) << "it waits for its OK";
        if (!road.hasAddOn) install.files.rename(aside, addOn);
    }
}

/// Nor do the rows, which say what was wanted, know of it. Marks are cleared here; the installs of sets
/// refuse the same files.
TEST_F(BaseInstall, aSourceThatCannotBeReadIsLeftOutAndAReadOnlyTargetReplaced) {
    const FilePath texture = world / u"029H2SU6.BMP";
    install.files.setReadOnly(texture, true);
    QFile::link("/nowhere", (install.home() / u"GENERIC WORLD\\010b2su1.bmp").native());
    copyBaseResources(session, {globalDayConfig});
    EXPECT_EQ(readFile(texture), "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_FALSE(install.files.isReadOnly(texture));
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_EQ(install.user.calls.back(), "done 3 files installed, 1 left out");
    copyBaseResources(session, {addOnConfig});
    EXPECT_EQ(install.user.calls.back(), "done 1 file installed");
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
    EXPECT_EQ(test::nightSets(session), "Default+* 2-Red+");
    const auto set = findGroundSet(session, "Default");
    EXPECT_EQ(set->CloudCover + u'|' + set->ColorSettings + u'|' + set->Description,
              "Partly Cloudy|0:0:0:0:0:0|Default Morvane Texture Set with no extra settings");
    EXPECT_TRUE(session.state<GroundSelection>().RefreshGroundList &&
                session.state<NightSelection>().RefreshNightList);
    EXPECT_EQ(readFile(world / u"045B2LM1.BMP"), "body of GENERIC WORLD NIGHT\\045b2lm1.bmp");
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
    EXPECT_GT(test::failEachOperation(install.files, false, work, expectWholeFiles), 15);
}

} // namespace
} // namespace morvane
