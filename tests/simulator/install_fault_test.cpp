#include "core/store_connection.h"
#include "ground/ground_installation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "support/faulty_store.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <functional>
#include <gtest/gtest.h>
#include <iostream>

namespace morvane {
namespace {

using test::contentsBelow;
using test::FaultyStoreDisk;
using test::SmallInstall;

using Contents = QMap<QString, QByteArray>;

const QStringList dozenFiles =
    u"Texture\\029h2su6.bmp|Texture\\029b2su6.bmp|Texture\\002c2wi1.bmp|Texture\\030a2su1.bmp|"
    u"Texture\\031a2su1.bmp|Texture\\032a2su1.bmp|Texture\\Neu Ünï.bmp|UTEurLC\\034b2su4.bmp|"
    u"UTEurLC\\038b2su4.bmp|UTEurLC\\003a2su1.bmp|Texture\\033a2su1.bmp|Texture\\035a2su1.bmp"_s.split(u'|');

/// Runs `test` with the first operation failing, the second and so on, until it says that none failed: first
/// with that one alone, then with all that follow. Tells how many did.
void failEach(const char* kind, int least, const std::function<bool(int n, bool forever)>& test) {
    int hit = 0;
    for (const bool forever : {false, true})
        for (int n = 1;; ++n) {
            SCOPED_TRACE(u"operation %1%2"_s.arg(n).arg(forever ? u" and on"_s : QString()).toStdString());
            if (!test(n, forever)) break;
            ++hit;
        }
    std::cout << hit << " failed " << kind << '\n';
    EXPECT_GT(hit, least);
}

/// An install of a dozen files: set A stands in the simulator, set B is put over it, and one operation fails.
class InstallFaults : public testing::Test {
protected:
    void SetUp() override {
        install.addGroundSet(u"2-Á"_s, u"Overcast"_s, true, dozenFiles);
        install.addGroundSet(u"3-B"_s, u"Sky Clear"_s, true, dozenFiles);
        pilots = contentsBelow(install.simulator());
        put(u"2-Á"_s);
        ASSERT_TRUE(install.user.told().isEmpty());
        before = contentsBelow(install.simulator());
        put(u"3-B"_s);
        after = contentsBelow(install.simulator());
        ASSERT_TRUE(install.user.told().isEmpty());
        sets = contentsBelow(install.home() / u"Texture Sets");
    }

    void put(const QString& name) {
        install.session.state<GroundSelection>().SelectedGroundSet = name;
        GroundInstallation(install.session).installTextureSet(true);
    }

    /// Old or new, byte for byte; nothing else but parts that the next install clears.
    void expectWholeTargets() {
        const Contents now = contentsBelow(install.simulator());
        for (auto file = now.begin(); file != now.end(); ++file)
            EXPECT_TRUE(file.key().endsWith(partialSuffix) || file.value() == before.value(file.key()) ||
                        file.value() == after.value(file.key()))
                << qPrintable(file.key());
        for (const QString& name : before.keys())
            EXPECT_TRUE(now.contains(name)) << qPrintable(name);
    }

    /// The pilot's own files are all kept, as they were before the first install.
    void expectOriginals() {
        const Contents kept = contentsBelow(install.home() / u"Backup\\Originals");
        for (auto file = kept.begin(); file != kept.end(); ++file) {
            if (file.key() == "originals.lst" || file.key().endsWith(partialSuffix)) continue;
            const QString own = pilots.key(file.value());
            EXPECT_EQ(own.compare(file.key(), Qt::CaseInsensitive), 0) << qPrintable(file.key());
        }
        EXPECT_EQ(contentsBelow(install.home() / u"Texture Sets"), sets);
    }

    void expectSoundStore() {
        EXPECT_EQ(test::integrityOf(install.home() / u"Morvane.mdb"), "ok");
        EXPECT_LE(install.installedSets().size(), 1);
    }

    /// The same install without a fault, and back to set A.
    void recover() {
        install.user.messages.clear();
        put(u"3-B"_s);
        EXPECT_EQ(contentsBelow(install.simulator()), after);
        put(u"2-Á"_s);
        EXPECT_EQ(install.user.told(), QStringList());
        install.user.messages.clear();
    }

    SmallInstall install{
        test::SmallInstallOptions{{u"GENERIC WORLD\\029h2su6.bmp"_s, u"GENERIC WORLD\\029b2su6.bmp"_s,
                                   u"GENERIC WORLD\\002c2wi1.bmp"_s, u"UTIND\\034b2su4.bmp"_s},
                                  16}};
    const QString partialSuffix = u".morvane-part"_s;
    Contents pilots, before, after, sets;
};

TEST_F(InstallFaults, everyFileOperationFailsOnceAndFromThenOn) {
    put(u"2-Á"_s);
    failEach("file operations", 100, [&](int n, bool forever) {
        install.files.failAt(n, forever);
        put(u"3-B"_s);
        const bool failed = install.files.hasFailed();
        const bool isAsIfMissing = install.files.failedAtTest() && !forever;
        install.files.failAt(0, false);
        if (!failed) return false;
        expectWholeTargets();
        expectOriginals();
        expectSoundStore();
        EXPECT_EQ(install.user.countOfKind(MessageKind::error), isAsIfMissing ? 0 : 1);
        recover();
        return true;
    });
}

TEST_F(InstallFaults, firstInstallKeepsThePilotsFilesWhateverFails) {
    failEach("file operations of a first install", 100, [&](int n, bool forever) {
        SmallInstall fresh(
            test::SmallInstallOptions{{u"GENERIC WORLD\\029h2su6.bmp"_s, u"UTIND\\034b2su4.bmp"_s}, 16});
        fresh.addGroundSet(u"2-Á"_s, u"Overcast"_s, true, dozenFiles);
        const Contents own = contentsBelow(fresh.simulator());
        fresh.session.state<GroundSelection>().SelectedGroundSet = u"2-Á"_s;
        fresh.files.failAt(n, forever);
        GroundInstallation(fresh.session).installTextureSet(true);
        const bool failed = fresh.files.hasFailed();
        fresh.files.failAt(0, false);
        if (!failed) return false;
        // Whatever was replaced is kept, byte for byte, and comes back.
        GroundInstallation(fresh.session).installTextureSet(true);
        Originals(fresh.files, fresh.session.FSPath, fresh.session.AppPath).restore();
        EXPECT_EQ(contentsBelow(fresh.simulator()), own);
        return true;
    });
}

TEST_F(InstallFaults, everyStoreWriteFailsOnceAndFromThenOn) {
    failEach("store writes", 1, [&](int n, bool forever) {
        install.user.messages.clear();
        closeDatabase(install.session);
        int operations = 0;
        {
            FaultyStoreDisk disk;
            connectDatabase(install.session);
            disk.failAt(n, forever);
            put(u"3-B"_s);
            operations = disk.operations();
            disk.heal();
            closeDatabase(install.session);
        }
        connectDatabase(install.session);
        expectSoundStore();
        if (operations < n) return false;
        expectWholeTargets();
        EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
        recover();
        return true;
    });
}

} // namespace
} // namespace morvane
