// One step back, and what lies in the simulator.

#include "core/safe_copy.h"
#include "core/store.h"
#include "ground/ground_generation.h"
#include "ground/ground_installation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "sets/cloud_cover.h"
#include "sets/simulator_copy.h"
#include "sets/simulator_note.h"
#include "sets/undo_step.h"
#include "simulator/base_install.h"
#include "simulator/base_install_rows.h"
#include "simulator/difference_choices.h"
#include "simulator/installed_rows.h"
#include "simulator/options.h"
#include "simulator/restored_files.h"
#include "simulator/set_matching.h"
#include "simulator/simulator_check.h"
#include "simulator/simulator_restore.h"
#include "simulator/texture_switches.h"
#include "simulator/undo_install.h"
#include "support/small_install.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <chrono>
#include <filesystem>
#include <fstream>

namespace morvane::test {
namespace {

struct UndoTest : InstallTest {
    UndoTest() {
        const QStringList names{u"Texture\\029h2su6.bmp"_s, u"Texture\\029b2su6.bmp"_s,
                                u"Texture\\neu.bmp"_s};
        install.addGroundSet(u"2-Á"_s, u"Overcast"_s, true, names);
        install.addGroundSet(u"3-B"_s, u"Overcast"_s, true, names + QStringList{u"Texture\\zwei.bmp"_s});
        install.addSkySet(u"1-Sky"_s, u"Overcast"_s, true, {u"cloud.bmp"_s});
        session.adoConn->execute(
            u"INSERT INTO MV_CONFIG(TITLE, MV_FOLDER, FS_FOLDER) VALUES ('%1', 'GENERIC WORLD', "
            "'Scenery\\World\\texture')"_s.arg(globalDayConfig));
        writeFile(install.home() / u"Media\\halo.bmp", "our halo");
        writeFile(simulator / u"Texture\\halo.bmp", "the pilot's halo");
        install.files.setReadOnly(world / u"002c2wi1.bmp", true);
        pilots = files();
    }

    void put(const QString& name) { GroundInstallation(session).installTextureSet(name); }
    QString rows() { return QString::fromUtf8(QJsonDocument(installedRows(session)).toJson()); }
    /// Every file with what it holds and whether it is marked, a line each.
    QStringList files() {
        QStringList lines;
        for (const auto& [path, contents] : contentsBelow(simulator).asKeyValueRange())
            lines << path + u": "_s + QString::fromUtf8(contents.left(60)) +
                         (install.files.isReadOnly(FilePath(simulator.native() + u'/' + path))
                              ? u" (read-only)"_s
                              : QString());
        return lines;
    }
    QString summary(CheckDepth depth = CheckDepth::changedFiles) { return summaryOf(session, depth); }
    static QString summaryOf(Session& session, CheckDepth depth = CheckDepth::changedFiles) {
        const SimulatorCheck check = checkSimulator(session, depth, false);
        QStringList texts{u"%1 ours, %2 own, %3 changed, %4 missing, %5 damaged"_s.arg(
            QString::number(check.ours), QString::number(check.pilots), QString::number(check.changed),
            QString::number(check.missing), QString::number(check.damagedKept.size()))};
        for (const InstalledPart& part : check.installed)
            texts << part.kind + u' ' + part.name + u": "_s + part.stateText();
        return texts.join(u"; "_s);
    }

    FilePath simulator = install.simulator();
    QStringList pilots;
    FilePath world = simulator / u"Scenery\\World\\texture";
};

/// Whatever the last step was, and whatever became of the set that stood there before it.
TEST_F(UndoTest, bringsBackWhatStoodBeforeTheLastStep) {
    const auto take2 = [&] { session.state<GroundSelection>().SelectedGroundSet = u"2-Á"_s; };
    const auto put2 = [&] { put(u"2-Á"_s); };
    const auto put3 = [&] { put(u"3-B"_s); };
    const auto nothing = [] {};
    const auto write2 = [&](const QByteArray& bytes) {
        writeFile(install.home() / u"Texture Sets\\2-Á\\Texture\\neu.bmp", bytes);
    };
    struct Case {
        const char* name;
        std::function<void()> before, step, meanwhile;
    };
    const Case cases[] = {
        {"the first install", nothing, put2, nothing},
        {"two at once", put3, [&] { installMatchingSets(session, *cloudCover(u"Overcast"_s)); }, nothing},
        {"an option", put2, [&] { switchHalo(session, true); }, nothing},
        {"the splash", put2, [&] { setCustomSplashVal(session, true); }, nothing},
        {"a base install", put2, [&] { copyBaseResources(session, {globalDayConfig}); }, nothing},
        {"a second set", put2, put3, nothing},
        {"over one that was written to since", [&] { put2(), write2("longer than it was before"); }, put3,
         nothing},
        {"over one that was made anew since", put2, put3, [&] { take2(), GroundKind::activate(session); }},
        {"over one that was deleted since", put2, put3, [&] { take2(), GroundKind::remove(session, false); }},
    };
    writeFile(install.home() / u"Media\\dlgsplash.bmp", "the default splash");
    for (const auto& [name, before, step, meanwhile] : cases) {
        SCOPED_TRACE(name);
        restoreOriginals(session);
        setCustomSplashVal(session, false);
        before();
        const QStringList first = files();
        const QString firstRows = rows();
        step();
        EXPECT_NE(files(), first);
        EXPECT_EQ(summary(), summary(CheckDepth::everyFile));
        meanwhile();
        EXPECT_TRUE(undoLastInstall(session));
        EXPECT_EQ(files(), first);
        const bool isDeleted = std::string(name) == "over one that was deleted since";
        EXPECT_EQ(rows() == firstRows, !isDeleted);
        EXPECT_FALSE(lastStep(session));
        EXPECT_FALSE(undoLastInstall(session)) << "a second step back";
    }
    restoreOriginals(session);
    EXPECT_EQ(files(), pilots);
}

/// What another hand did since stays, but what it took away comes back; no Yes changes nothing.
TEST_F(UndoTest, leavesWhatAnotherHandChanged) {
    put(u"2-Á"_s);
    writeFile(world / u"neu.bmp", "another hand's");
    QFile::remove((world / u"029h2su6.bmp").native());
    const QStringList changed = files();
    user.otherwise = false;
    EXPECT_FALSE(undoLastInstall(session));
    EXPECT_EQ(files(), changed);
    user.otherwise = true;
    const auto report = undoLastInstall(session);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->left, QStringList(u"Scenery\\World\\texture\\neu.bmp"_s));
    QStringList now = files();
    EXPECT_TRUE(now.removeOne(u"Scenery/World/texture/neu.bmp: another hand's"_s));
    EXPECT_EQ(now, pilots);
}

/// A set that was changed, and then deleted, cannot give its files back; those of the others come.
TEST_F(UndoTest, namesWhatItCannotBringBack) {
    put(u"2-Á"_s);
    put(u"3-B"_s);
    writeFile(install.home() / u"Texture Sets\\2-Á\\Texture\\neu.bmp", "2-Á Texture\\neu.BMP");
    session.state<GroundSelection>().SelectedGroundSet = u"2-Á"_s;
    GroundKind::remove(session, false);
    EXPECT_EQ(undoLastInstall(session)->damaged, QStringList(u"Scenery\\World\\texture\\neu.bmp"_s));
    EXPECT_TRUE(readFile(world / u"029H2SU6.BMP").startsWith("2-"));
    EXPECT_TRUE(lastStep(session)) << "its files may turn up again";
}

/// The pilot may do without, and then nothing is kept for it.
TEST_F(UndoTest, leavesNoRecordWhereItIsNotWanted) {
    put(u"2-Á"_s);
    ASSERT_TRUE(canUndo(session));
    setUndoWanted(session, true);
    EXPECT_TRUE(canUndo(session));
    setUndoWanted(session, false);
    EXPECT_FALSE(canUndo(session));
    put(u"3-B"_s);
    EXPECT_FALSE(canUndo(session) || undoLastInstall(session));
    EXPECT_EQ(user.told().last(), u"Information|Undo Last Install|There is no install to undo."_s);
}

/// Nor does one of another simulator, or one that cannot be understood, bring anything back.
TEST_F(UndoTest, takesNoRecordThatIsNotOfThisSimulator) {
    put(u"2-Á"_s);
    const FilePath file = undoFolder(session) / u"undo.lst";
    const QByteArray whole = readFile(file), head = whole.first(whole.indexOf('\n') + 1);
    for (const QByteArray& bytes : {QByteArray(), head, head + "undo\t[]\n", head + "undo\t{\n",
                                    QByteArray(whole).replace("Simulator", "Another simulator")}) {
        writeFile(file, bytes);
        EXPECT_FALSE(canUndo(session) || lastStep(session)) << bytes.toStdString();
    }
    writeFile(file, whole);
    EXPECT_TRUE(canUndo(session));
}

/// What was asked about is what is undone.
TEST_F(UndoTest, refusesWhenAnotherProgramInstalledMeanwhile) {
    const std::function<void()> meanwhile[] = {[&] { forgetLastStep(session); }, [&] { put(u"3-B"_s); },
                                               [&] {
                                                   install.clock.now = install.clock.now.addSecs(60);
                                                   put(u"2-Á"_s);
                                               }};
    for (const auto& happens : meanwhile) {
        put(u"2-Á"_s);
        user.onQuestion = happens;
        undoLastInstall(session);
        EXPECT_TRUE(user.told().last().contains(u"Another program has installed or undone something"_s));
        EXPECT_NE(files(), pilots);
    }
}

/// An undo that failed or was killed anywhere is undone by the next one.
TEST_F(UndoTest, comesToItsEndAfterAnyFault) {
    put(u"2-Á"_s);
    const QStringList before = files();
    const QString beforeRows = rows();
    int faults = 0;
    for (const Fault fault : {Fault::once, Fault::kill}) {
        put(u"3-B"_s);
        faults += failEachOperation(
            install.files, fault, [this] { undoLastInstall(session); },
            [&](int n) {
                SCOPED_TRACE(n);
                if (lastStep(session)) undoLastInstall(session);
                EXPECT_EQ(files(), before);
                EXPECT_EQ(rows(), beforeRows);
                put(u"3-B"_s);
                user.messages.clear();
            });
        undoLastInstall(session);
    }
    EXPECT_GT(faults, 100);
}

/// What is told of each place, and what the three choices make of it.
TEST_F(UndoTest, tellsAndSettlesDifferences) {
    EXPECT_EQ(summary(), "0 ours, 0 own, 0 changed, 0 missing, 0 damaged");
    put(u"2-Á"_s);
    EXPECT_EQ(summary(), "4 ours, 0 own, 0 changed, 0 missing, 0 damaged; Ground 2-Á: whole");
    const QString inWorld = u"Scenery\\World\\texture\\"_s;
    const QStringList names{inWorld + u"029h2su6.bmp"_s, inWorld + u"029b2su6.bmp"_s, inWorld + u"neu.bmp"_s};
    const auto spoil = [&](const QByteArray& bytes) {
        for (const QString& name : names.first(2))
            writeFile(simulator / name, bytes);
        install.files.remove(simulator / names[2]);
    };
    spoil("another hand's");
    EXPECT_EQ(summary(), "1 ours, 0 own, 2 changed, 1 missing, 0 damaged; Ground 2-Á: 2 changed, 1 missing");
    EXPECT_EQ(settleDifferences(session, DifferenceChoice::takeAsMine, names)->leftOut, names.mid(2));
    EXPECT_EQ(settleDifferences(session, DifferenceChoice::putOursBack, names.mid(2))->done, 1);
    EXPECT_EQ(settleDifferences(session, DifferenceChoice::takeAsMine, names.mid(2))->leftOut, names.mid(2));
    EXPECT_EQ(summary(), "2 ours, 2 own, 0 changed, 0 missing, 0 damaged; Ground 2-Á: 2 not there");
    put(u"2-Á"_s);
    restoreOriginals(session);
    EXPECT_EQ(readFile(simulator / names[0]), "another hand's") << "his youngest";

    put(u"2-Á"_s);
    spoil("nobody's");
    settleDifferences(session, DifferenceChoice::putOursBack, names);
    restoreOriginals(session);
    EXPECT_EQ(readFile(simulator / names[0]), "another hand's") << "not what he did not want";

    put(u"2-Á"_s);
    spoil("a third hand's");
    for (const KeptOriginal& kept : originalsOf(session).list())
        if (kept.path.compare(names[0], Qt::CaseInsensitive) == 0)
            writeFile(install.home() / u"Backup\\Originals" / kept.copy, "damaged");
    EXPECT_EQ(summary().section(u';', 0, 0), "1 ours, 0 own, 2 changed, 1 missing, 1 damaged");
    const auto report = settleDifferences(session, DifferenceChoice::putOwnBack, names);
    EXPECT_EQ(report->leftOut.join(u' ').compare(names[0] + u' ' + names[2], Qt::CaseInsensitive), 0)
        << "damaged, and never his";
    EXPECT_EQ(readFile(simulator / names[1]), "another hand's");
    QDir((install.home() / u"Backup\\Originals\\Scenery").native()).removeRecursively();
    EXPECT_TRUE(summary().section(u';', 0, 0).endsWith(u", 1 damaged"_s)) << summary().toStdString();
}

TEST(ListedPaths, tenAreNamedAndTheRestIsCounted) {
    QStringList paths;
    for (const int count : {10, 11}) {
        while (paths.size() < count)
            paths << u"a"_s;
        EXPECT_EQ(listedPaths(paths).endsWith(u"a\nand 1 more"_s), count == 11);
        EXPECT_EQ(listedPaths(paths).count(u'a'), count);
    }
}

/// Two installs on one simulator: the second asks before it takes the first one's textures for the pilot's.
TEST_F(UndoTest, asksBeforeItTakesOverTheSimulatorOfAnother) {
    put(u"2-Á"_s);
    SmallInstall second;
    second.session.FSPath = simulator;
    second.addGroundSet(u"2-Zwei"_s, u"Few"_s, true, {u"Texture\\029h2su6.bmp"_s, u"Texture\\zwei.bmp"_s});
    const auto put2 = [&] { GroundInstallation(second.session).installTextureSet(u"2-Zwei"_s); };
    const QStringList before = files();
    second.user.otherwise = false;
    put2();
    EXPECT_THROW(switchHalo(second.session, true), Error);
    EXPECT_EQ(files(), before);
    EXPECT_TRUE(second.installedSets().isEmpty() && originalsOf(second.session).list().empty());
    second.user.otherwise = true;
    put2();
    EXPECT_NE(files(), before);
    EXPECT_EQ(summaryOf(second.session).section(u';', 0, 0),
              "5 ours, 0 own, 0 changed, 0 missing, 0 damaged");

    user.otherwise = false;
    put(u"3-B"_s);
    EXPECT_EQ(user.told().last().section(u'|', 1, 1), u"Another Morvane"_s) << "whose turn it was before";
    restoreOriginals(second.session);
    EXPECT_EQ(files(), pilots);
    EXPECT_FALSE(readSimulatorNote(install.files, simulator));
    put(u"2-Á"_s);
    EXPECT_EQ(files(), before);
    // An install that was moved finds its own note.
    writeFile(simulator / u"Morvane note.ini", "[Morvane]\nInstallFolder=/gone\n");
    put(u"2-Á"_s);
    EXPECT_EQ(readSimulatorNote(install.files, simulator)->installFolder, install.home().native());
}

/// A write that leaves size, time and number is seen by the thorough look alone.
TEST_F(UndoTest, theQuickLookGoesByStampAndTheThoroughOneReads) {
    namespace fs = std::filesystem;
    put(u"2-Á"_s);
    const fs::path file = (world / u"neu.bmp").native().toStdU16String();
    const auto longAgo = fs::last_write_time(file) - std::chrono::hours(1);
    const auto setOld = [&] { fs::last_write_time(file, longAgo); };
    setOld();
    put(u"2-Á"_s); // notes the stamp, as nothing is to be copied
    std::fstream(file, std::ios::in | std::ios::out).put('!');
    setOld();
    EXPECT_EQ(summary().section(u';', 0, 0), "4 ours, 0 own, 0 changed, 0 missing, 0 damaged");
    const auto changed = "3 ours, 0 own, 1 changed, 0 missing, 0 damaged";
    EXPECT_EQ(summary(CheckDepth::everyFile).section(u';', 0, 0), changed);
    // Whatever of the three is another, the quick look reads.
    const FilePath aside = world / u"aside";
    const QByteArray bytes = readFile(world / u"neu.bmp");
    const std::function<void()> ways[] = {[&] { writeFile(world / u"neu.bmp", bytes); },
                                          [&] {
                                              writeFile(aside, bytes);
                                              install.files.rename(aside, world / u"neu.bmp");
                                              setOld();
                                          },
                                          [&] {
                                              put(u"2-Á"_s);
                                              setOld();
                                              put(u"2-Á"_s);
                                              writeFile(world / u"neu.bmp", bytes + '!');
                                              setOld();
                                          }};
    for (const auto& change : ways) {
        change();
        EXPECT_EQ(summary().section(u';', 0, 0), changed);
    }
}

} // namespace
} // namespace morvane::test
