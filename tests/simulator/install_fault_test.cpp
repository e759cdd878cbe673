#include "core/application.h"
#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "support/faulty_store.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>
#include <iostream>

namespace morvane {
namespace {

using test::contentsBelow;
using test::FaultyStoreDisk;
using test::SmallInstall;

using Contents = QMap<QString, QByteArray>;

const QStringList dozenFiles{
    u"Texture\\029h2su6.bmp"_s, u"Texture\\029b2su6.bmp"_s, u"Texture\\002c2wi1.bmp"_s,
    u"Texture\\030a2su1.bmp"_s, u"Texture\\031a2su1.bmp"_s, u"Texture\\032a2su1.bmp"_s,
    u"Texture\\Neu Ünï.bmp"_s,  u"UTEurLC\\034b2su4.bmp"_s, u"UTEurLC\\038b2su4.bmp"_s,
    u"UTEurLC\\003a2su1.bmp"_s, u"Texture\\033a2su1.bmp"_s, u"Texture\\035a2su1.bmp"_s};

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
        install.session.ground.SelectedGroundSet = name;
        GroundInstallation(install.session).installTextureSet(true);
    }

    /// Old or new, byte for byte; nothing else but parts that the next install clears.
    void expectWholeTargets(const QString& context) {
        const Contents now = contentsBelow(install.simulator());
        for (auto file = now.begin(); file != now.end(); ++file) {
            if (file.key().endsWith(partialSuffix)) continue;
            const bool whole =
                file.value() == before.value(file.key()) || file.value() == after.value(file.key());
            EXPECT_TRUE(whole) << qPrintable(context) << ' ' << qPrintable(file.key());
        }
        for (const QString& name : before.keys())
            EXPECT_TRUE(now.contains(name)) << qPrintable(context) << ' ' << qPrintable(name);
    }

    /// The pilot's own files are all kept, as they were before the first install.
    void expectOriginals(const QString& context) {
        const Contents kept = contentsBelow(install.home() / u"Backup\\Originals");
        for (auto file = kept.begin(); file != kept.end(); ++file) {
            if (file.key() == "originals.lst" || file.key().endsWith(partialSuffix)) continue;
            bool known = false;
            for (auto own = pilots.begin(); own != pilots.end(); ++own)
                known = known || (own.key().compare(file.key(), Qt::CaseInsensitive) == 0 &&
                                  own.value() == file.value());
            EXPECT_TRUE(known) << qPrintable(context) << " kept " << qPrintable(file.key());
        }
        EXPECT_EQ(contentsBelow(install.home() / u"Texture Sets"), sets) << qPrintable(context);
    }

    void expectSoundStore(const QString& context) {
        EXPECT_EQ(test::integrityOf(install.home() / u"Morvane.mdb"), "ok") << qPrintable(context);
        EXPECT_LE(install.installedSets().size(), 1) << qPrintable(context);
    }

    /// Back to set A, then the same install without a fault.
    void recover(const QString& context) {
        install.user.messages.clear();
        put(u"3-B"_s);
        EXPECT_EQ(contentsBelow(install.simulator()), after) << qPrintable(context);
        put(u"2-Á"_s);
        EXPECT_TRUE(install.user.told().isEmpty())
            << qPrintable(context) << install.user.told().join('\n').toStdString();
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
    int hit = 0;
    for (const bool forever : {false, true}) {
        for (int n = 1;; ++n) {
            const QString context = u"operation %1%2"_s.arg(n).arg(forever ? u" and on"_s : QString());
            install.files.failAt(n, forever);
            put(u"3-B"_s);
            const bool failed = install.files.hasFailed();
            const bool atTest = install.files.failedAtTest();
            install.files.failAt(0, false);
            if (!failed) break; // the loop ends with a run without a fault
            ++hit;
            expectWholeTargets(context);
            expectOriginals(context);
            expectSoundStore(context);
            const int errors = install.user.countOfKind(MessageKind::error);
            if (atTest && !forever)
                EXPECT_EQ(errors, 0) << qPrintable(context); // as if missing
            else
                EXPECT_EQ(errors, 1) << qPrintable(context) << install.user.told().join('\n').toStdString();
            recover(context);
        }
    }
    std::cout << "install: " << hit << " failed file operations\n";
    EXPECT_GT(hit, 100);
}

TEST_F(InstallFaults, firstInstallKeepsThePilotsFilesWhateverFails) {
    int hit = 0;
    for (const bool forever : {false, true}) {
        for (int n = 1;; ++n) {
            SmallInstall fresh(
                test::SmallInstallOptions{{u"GENERIC WORLD\\029h2su6.bmp"_s, u"UTIND\\034b2su4.bmp"_s}, 16});
            fresh.addGroundSet(u"2-Á"_s, u"Overcast"_s, true, dozenFiles);
            const Contents own = contentsBelow(fresh.simulator());
            fresh.session.ground.SelectedGroundSet = u"2-Á"_s;
            fresh.files.failAt(n, forever);
            GroundInstallation(fresh.session).installTextureSet(true);
            const bool failed = fresh.files.hasFailed();
            fresh.files.failAt(0, false);
            if (!failed) break;
            ++hit;
            // Whatever was replaced is kept, byte for byte, and comes back.
            GroundInstallation(fresh.session).installTextureSet(true);
            Originals(fresh.files, fresh.session.FSPath, fresh.session.AppPath).restore();
            const Contents now = contentsBelow(fresh.simulator());
            for (auto file = own.begin(); file != own.end(); ++file)
                EXPECT_EQ(now.value(file.key()), file.value()) << n << ' ' << qPrintable(file.key());
        }
    }
    std::cout << "first install: " << hit << " failed file operations\n";
    EXPECT_GT(hit, 100);
}

TEST_F(InstallFaults, everyStoreWriteFailsOnceAndFromThenOn) {
    int hit = 0;
    for (const bool forever : {false, true}) {
        for (int n = 1;; ++n) {
            const QString context = u"store write %1%2"_s.arg(n).arg(forever ? u" and on"_s : QString());
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
            expectSoundStore(context);
            if (operations < n) break;
            ++hit;
            expectWholeTargets(context);
            EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1) << qPrintable(context);
            recover(context);
        }
        install.user.messages.clear();
    }
    std::cout << "install: " << hit << " failed store writes\n";
    EXPECT_GT(hit, 1);
}

} // namespace
} // namespace morvane
