#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "sets/originals.h"
#include "simulator/base_install.h"
#include "support/faulty_store.h"
#include "support/small_install.h"

namespace morvane::test {
namespace {

using Contents = QMap<QString, QByteArray>;

const QStringList dozenFiles =
    u"Texture\\029h2su6.bmp|Texture\\029b2su6.bmp|Texture\\002c2wi1.bmp|Texture\\030a2su1.bmp|"
    u"Texture\\031a2su1.bmp|Texture\\032a2su1.bmp|Texture\\Neu Ünï.bmp|UTEurLC\\034b2su4.bmp|"
    u"UTEurLC\\038b2su4.bmp|UTEurLC\\003a2su1.bmp|Texture\\033a2su1.bmp|Texture\\035a2su1.bmp"_s.split(u'|');

/// An install of a dozen files: set A stands in the simulator, set B is put over it, and one operation fails.
struct InstallFaults : testing::Test {
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

    void put(const QString& name) { GroundInstallation(install.session).installTextureSet(name); }

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

    void expectSoundStore() const {
        EXPECT_EQ(integrityOf(install.home() / u"Morvane.mdb"), "ok");
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
        SmallInstallOptions{{u"GENERIC WORLD\\029h2su6.bmp"_s, u"GENERIC WORLD\\029b2su6.bmp"_s,
                             u"GENERIC WORLD\\002c2wi1.bmp"_s, u"UTIND\\034b2su4.bmp"_s},
                            16}};
    const QString partialSuffix = u".morvane-part"_s;
    Contents pilots, before, after, sets;
};

/// A kill leaves half a copy behind.
TEST_F(InstallFaults, everyFileOperationFailsOnceAndFromThenOnOrIsKilled) {
    put("2-Á");
    int faults = 0;
    for (const Fault fault : {Fault::once, Fault::forever, Fault::kill})
        faults += failEachOperation(
            install.files, fault, [this] { put("3-B"); },
            [&](int n) {
                SCOPED_TRACE(n);
                const bool isTold =
                    install.files.hasFailed() && (fault == Fault::forever || !install.files.failedAtTest());
                const int told = install.user.countOfKind(MessageKind::error);
                const bool wentThrough = contentsBelow(install.simulator()) == after; // nothing to tell then
                EXPECT_TRUE(fault == Fault::kill || told == (isTold ? 1 : 0) || (told == 0 && wentThrough));
                expectWholeTargets();
                expectOriginals();
                expectSoundStore();
                recover();
            });
    EXPECT_GT(faults, 200);
}

/// Whatever was replaced is kept, byte for byte, and comes back.
TEST_F(InstallFaults, firstInstallKeepsThePilotsFilesWhateverFails) {
    const auto restore = [this] {
        Originals(install.files, install.session.FSPath, install.session.AppPath).restore();
        EXPECT_EQ(contentsBelow(install.simulator()), pilots);
    };
    int failures = 0;
    for (const Fault fault : {Fault::once, Fault::forever}) {
        restore();
        failures += failEachOperation(
            install.files, fault, [this] { put("2-Á"); },
            [&](int n) {
                SCOPED_TRACE(n);
                put("2-Á");
                restore();
            });
    }
    EXPECT_GT(failures, 100);
}

/// What the end of an install waits for is no concern of the pilot's.
TEST_F(InstallFaults, theListIsWrittenAnewWhenTheMessageHasClosed) {
    const FilePath list = install.home() / u"Backup\\Originals\\originals.lst";
    for (const bool isBase : {false, true}) {
        QByteArray whenClosed;
        install.user.onHide = [&] { whenClosed = whenClosed.isEmpty() ? readFile(list) : whenClosed; };
        if (isBase)
            install.session.adoConn->execute("INSERT INTO MV_CONFIG(TITLE, MV_FOLDER, FS_FOLDER) VALUES ('" +
                                             globalDayConfig +
                                             "', 'GENERIC WORLD', 'Scenery\\World\\texture')");
        isBase ? copyBaseResources(install.session, {globalDayConfig}) : put("2-Á");
        install.user.onHide = [] {};
        EXPECT_FALSE(whenClosed.isEmpty());
        EXPECT_NE(readFile(list), whenClosed) << isBase;
    }
}

} // namespace
} // namespace morvane::test
