#include "simulator/base_install.h"

#include "core/row_set.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_selection.h"
#include "night/night_texture_sets.h"
#include "simulator/configs.h"
#include "support/night_install.h"
#include "support/printing.h"

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
        test::addNightSet(install, u"Default"_s, true);
        test::addNightSet(install, u"2-Red"_s, true);
        install.addGroundSet(u"2-Storm"_s, u"Overcast"_s, true);
        const QString texture = u"Scenery\\World\\texture"_s;
        addConfig(globalDayConfig, u"GENERIC WORLD"_s, texture);
        addConfig(globalNightConfig, u"GENERIC WORLD NIGHT"_s, texture);
        addConfig(addOnConfig, u"UTIND"_s, u"Scenery\\UTEurLC\\Texture"_s);
        addConfig(u"Nothing delivered"_s, u"NO SUCH FOLDER"_s, texture);
    }
    void addConfig(const QString& title, const QString& source, const QString& target) {
        RowSet rows(*session.adoConn, u"SELECT * FROM MV_CONFIG"_s);
        rows.addNew();
        rows.setText(u"TITLE", title);
        rows.setText(u"MV_FOLDER", source);
        rows.setText(u"FS_FOLDER", target);
        rows.setFlag(u"INSTALLED", false);
        rows.update();
    }
    QStringList installedTitles() {
        clsConfigs::reload(session);
        QStringList titles;
        for (const auto& config : *session.rows<clsConfigs>())
            if (config->ConfigInstalled) titles << config->ConfigName;
        return titles;
    }
    /// Titles of all messages, in order.
    QStringList titles() {
        QStringList list;
        for (const Message& message : install.user.messages)
            list << message.title;
        return list;
    }
};

const QString copying = u"Copying Files to Flight Simulator"_s, none = u"No Options Selected"_s;

/// What is ticked, what is told, what counts as installed and how many files change.
TEST_F(BaseInstall, whatIsTickedIsToldMarkedAndCopied) {
    const struct {
        QStringList ticked;
        bool hasAddOn;
        QStringList told, installed;
        int changed;
    } cases[] = {
        {{}, true, {copying, none}, {}, 0},
        {{u"Unknown"_s}, true, {copying, none}, {}, 0},
        // Without the add-on its row is passed over without a word, though it was ticked.
        {{addOnConfig}, false, {copying}, {}, 0},
        {{u"Nothing delivered"_s}, true, {copying}, {u"Nothing delivered"_s}, 0},
        {{addOnConfig}, true, {copying, copying}, {addOnConfig, u"Nothing delivered"_s}, 1},
        {{globalDayConfig},
         true,
         {copying, copying},
         {globalDayConfig, addOnConfig, u"Nothing delivered"_s},
         3},
    };
    const FilePath addOn = install.simulator() / u"Scenery\\UTEurLC", aside = install.folder / u"aside";
    for (const auto& road : cases) {
        if (!road.hasAddOn) install.files.rename(addOn, aside);
        const auto before = contentsBelow(install.simulator());
        install.user.messages.clear();
        copyBaseResources(session, road.ticked);
        EXPECT_EQ(titles(), road.told);
        EXPECT_EQ(installedTitles(), road.installed);
        int changed = 0;
        const auto after = contentsBelow(install.simulator());
        for (auto file = after.begin(); file != after.end(); ++file)
            changed += before.value(file.key()) != file.value();
        EXPECT_EQ(changed, road.changed) << road.ticked.join(u' ').toStdString();
        if (!road.hasAddOn) install.files.rename(aside, addOn);
    }
}

TEST_F(BaseInstall, nothingTickedWaitsForItsOk) {
    copyBaseResources(session, {});
    const Message& message = install.user.messages.back();
    EXPECT_TRUE(message.kind == MessageKind::progress && message.withOk && !message.isProgress);
    EXPECT_EQ(message.text, u"No options were selected and no textures will be copied to Flight Simulator"_s);
}

/// Nor do the rows, which say what was wanted, know of it.
TEST_F(BaseInstall, aSourceThatCannotBeReadIsLeftOut) {
    QFile::link(u"/nowhere"_s, (install.home() / u"GENERIC WORLD\\010b2su1.bmp").native());
    copyBaseResources(session, {globalDayConfig});
    EXPECT_EQ(readFile(world / u"029H2SU6.BMP"), "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_EQ(install.user.calls.back(), u"done 3 files installed, 1 left out"_s);
    copyBaseResources(session, {addOnConfig});
    EXPECT_EQ(install.user.calls.back(), u"done 1 file installed"_s);
}

TEST_F(BaseInstall, theEndOfTheSessionEndsItAtTheNextFileAndTellsNothingDone) {
    const auto before = contentsBelow(world);
    install.user.onPump = [&] {
        if (contentsBelow(world) != before) session.ExitInProgress.moveTo(ExitStage::sessionEnd);
    };
    copyBaseResources(session, {globalDayConfig});
    const auto after = contentsBelow(world);
    int changed = 0;
    for (auto file = after.cbegin(); file != after.cend(); ++file)
        changed += before.value(file.key()) != file.value();
    EXPECT_EQ(changed, 1) << "of 3";
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_FALSE(install.user.calls.back().startsWith(u"done "_s));
}

/// Marks are cleared here; the installs of sets refuse the same files.
TEST_F(BaseInstall, readOnlyTargetsAreReplacedAndLoseTheMark) {
    const FilePath texture = world / u"029H2SU6.BMP";
    install.files.setReadOnly(texture, true);
    copyBaseResources(session, {globalDayConfig});
    EXPECT_EQ(readFile(texture), "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_FALSE(install.files.isReadOnly(texture));
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST_F(BaseInstall, theGlobalTitlesLeaveDefaultAsTheOneInstalledSet) {
    session.rows<clsTextureSets>()->markInstalled(u"2-Storm"_s);
    session.rows<clsNightTextureSets>()->markInstalled(u"2-Red"_s);
    install.reload();
    clsTextureSet changed = *findGroundSet(session, u"Default"_s);
    changed.CloudCover = u"Overcast"_s;
    changed.ColorSettings = u"1:2:3:4:5:6"_s;
    session.rows<clsTextureSets>()->UpdateTextureSet(changed);
    copyBaseResources(session, {globalDayConfig, globalNightConfig});
    EXPECT_EQ(install.installedSets(), QStringList{u"Default"_s});
    EXPECT_EQ(test::nightSets(session), u"Default+* 2-Red+"_s);
    const auto set = findGroundSet(session, u"Default"_s);
    EXPECT_EQ(set->CloudCover + u'|' + set->ColorSettings + u'|' + set->Description,
              u"Partly Cloudy|0:0:0:0:0:0|Default Morvane Texture Set with no extra settings"_s);
    EXPECT_TRUE(session.state<GroundSelection>().RefreshGroundList &&
                session.state<NightSelection>().RefreshNightList);
    EXPECT_EQ(readFile(world / u"045B2LM1.BMP"), "body of GENERIC WORLD NIGHT\\045b2lm1.bmp");
}

TEST_F(BaseInstall, subfoldersAreNotEntered) {
    writeFile(install.home() / u"GENERIC WORLD\\deeper\\a.bmp", "deep");
    std::vector<FileCopy> copies;
    collectFolderFiles(session, install.home() / u"GENERIC WORLD", world, copies);
    QStringList names;
    for (const FileCopy& copy : copies)
        names << copy.target.fileName();
    EXPECT_EQ(names, (QStringList{u"002c2wi1.bmp"_s, u"029b2su6.bmp"_s, u"029h2su6.bmp"_s}));
}

/// Whatever fails, each file of the simulator is an old or a new one as a whole.
TEST_F(BaseInstall, everyFailingOperationLeavesWholeFiles) {
    const auto before = contentsBelow(install.simulator());
    bool hasFailed = true;
    int failures = 0;
    for (; hasFailed; ++failures) {
        install.files.failAt(failures + 1, false);
        copyBaseResources(session, {globalDayConfig, addOnConfig});
        hasFailed = install.files.hasFailed();
        install.files.failAt(0, false);
        const auto after = contentsBelow(install.simulator());
        for (auto file = before.begin(); file != before.end(); ++file) {
            const QByteArray contents = after.value(file.key());
            EXPECT_TRUE(contents == file.value() || contents.startsWith("body of")) << failures;
        }
    }
    EXPECT_GT(failures, 15);
}

} // namespace
} // namespace morvane
