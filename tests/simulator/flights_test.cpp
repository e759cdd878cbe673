#include "simulator/flights.h"

#include "core/error.h"
#include "core/flights_folder.h"
#include "sets/options_in_force.h"
#include "support/small_install.h"

#include <QFile>

namespace morvane::test {
namespace {

struct FlightsTest : InstallTest {
    FlightsTest() { storeUserFolder(chosen.native()); }

    FilePath own = install.home() / u"Flights";
    FilePath kept = install.simulator() / u"Flights\\Morvane";
    FilePath chosen = install.folder / u"Çhosen flights";

    void storeUserFolder(const QString& path) { storeOwnValue(install.registry, "NonEnglishPath", path); }
    /// A flight of its folder's own contents in each of the files.
    void save(const FilePath& folder, const QStringList& names) {
        for (const QString& name : names)
            writeFile(folder.child(name), folder.fileName().toUtf8());
    }
    QStringList loaded() {
        loadFlightFiles(session);
        return savedFlights(session);
    }
    QByteArray copyOf(const QString& name) const { return readFile(own.child(name)); }
};

TEST_F(FlightsTest, keptFlightsAndTheUsersAreGatheredAndTheUsersWin) {
    save(kept, {"Evening.flt", "Evening.wx", "Rain.flt", "Rain.wx"});
    save(chosen, {"EVENING.FLT", "X.FLT", "X.WX", "Ünten.flt"});
    save(chosen, {"Lost.wx", "A.flt.old.flt", ".flt"}); // weather alone, what stands for A, and no name
    const auto before = contentsBelow(chosen);
    EXPECT_EQ(loaded(), (QStringList{"Evening", "Rain", "X", "Ünten"}));
    EXPECT_EQ(contentsBelow(own).size(), 8) << "four flights, three with weather, and the list";
    EXPECT_EQ(copyOf("Evening.flt"), "Çhosen flights");
    EXPECT_EQ(copyOf("Evening.wx"), "Morvane");
    EXPECT_EQ(copyOf("x.wx"), "Çhosen flights");
    EXPECT_EQ(contentsBelow(chosen), before);
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_EQ(readFile(savedFlightFile(session, "Evening")), "Çhosen flights");
    EXPECT_THROW(savedFlightFile(session, "..\\Evening"), Error);
}

TEST_F(FlightsTest, aNewGatheringBeginsEmptyAndLeavesOldEntriesUnread) {
    save(chosen, {"A.flt", "B.flt", "C.flt"});
    EXPECT_EQ(loaded().size(), 3);
    for (const char16_t* name : {u"A.flt", u"B.flt"})
        install.files.remove(chosen / name);
    save(own, {"A.wx"}); // of a flight that is gone
    EXPECT_EQ(loaded(), QStringList{"C"});
    EXPECT_EQ(contentsBelow(own).keys(), (QStringList{"C.flt", "flights.cfg"}));
    EXPECT_EQ(copyOf("flights.cfg"), "[Flights]\r\ntotal=1\r\n1=C\r\n2=B\r\n3=C\r\n");
    // A total that was edited by hand ends where the names do.
    writeFile(own / u"flights.cfg", "[Flights]\r\ntotal=2000000000\r\n1=C\r\n");
    EXPECT_EQ(savedFlights(session), QStringList{"C"});
}

/// However the program's own folder is named, or made one with the pilot's: what lies there stays.
TEST_F(FlightsTest, ownFlightsAreNeverDeletedAsCopies) {
    if (!hasLinks) GTEST_SKIP() << "no links on this system";
    const FilePath link = install.folder / u"Link", documents = install.folder / u"Documents";
    save(own, {"Only one.flt", "Only one.wx"});
    install.files.makeFolder(documents);
    ASSERT_TRUE(QFile::link(own.native(), link.native()));
    ASSERT_TRUE(QFile::link(own.native(), (documents / u"Flight Simulator Files").native()));
    const auto expectUntouched = [this](const QString& stored) {
        storeUserFolder(stored);
        EXPECT_EQ(loaded(), QStringList{"Only one"}) << stored.toStdString();
        EXPECT_EQ(copyOf("Only one.flt"), "Flights") << stored.toStdString();
        EXPECT_EQ(contentsBelow(own).size(), 3) << stored.toStdString();
    };
    const QString path = own.native();
    for (const QString& stored : {path, path + u'/', path + u'\\', path.toUpper(), path + "/../Flights",
                                  link.native(), link.native() + u'/'})
        expectUntouched(stored);
    session.MyDocumentsPath = documents.native() + u'/';
    expectUntouched("the usual folder");
    session.MyDocumentsPath.clear();
    // The other way round: the own folder is a link to a place that is nobody's business.
    const FilePath elsewhere = install.folder / u"Elsewhere";
    install.files.rename(own, elsewhere);
    ASSERT_TRUE(QFile::link(elsewhere.native(), path));
    save(chosen, {"Own.flt"});
    expectUntouched(chosen.native());
}

TEST_F(FlightsTest, whatNoFolderHoldsGoesToTheBackups) {
    save(chosen, {"Own.flt"});
    for (const QByteArray contents : {"first", "second", "second", "first"}) {
        writeFile(own / u"A.b.flt", contents);
        writeFile(own / u"Own.flt", "an older copy");
        EXPECT_EQ(loaded(), QStringList{"Own"});
    }
    EXPECT_EQ(contentsBelow(install.home() / u"Backup\\Flights"),
              (QMap<QString, QByteArray>{{"A.b.flt", "first"}, {"A.b (2).flt", "second"}}));
}

TEST_F(FlightsTest, theFolderOfTheUsualNameComesFirstAndOneThatIsNotNamedIsAskedForOnce) {
    save(kept, {"Kept.flt"});
    save(chosen, {"Elsewhere.flt"});
    session.MyDocumentsPath = (install.folder / u"Documents").native() + u'/';
    EXPECT_EQ(loaded(), (QStringList{"Elsewhere", "Kept"}));
    save(install.folder / u"Documents\\Flight Simulator Files", {"Usual.flt"});
    EXPECT_EQ(loaded(), (QStringList{"Kept", "Usual"}));
    session.MyDocumentsPath.clear();
    storeUserFolder({});
    EXPECT_EQ(loaded(), QStringList{"Kept"}) << "the choice is cancelled";
    EXPECT_EQ(install.user.calls.count("browse"), 1);
}

TEST_F(FlightsTest, aWideClientHasNoFlightsOfItsOwnAndAMissingListIsToldInItsOwnWords) {
    save(own, {"Left.flt"});
    save(chosen, {"Own.flt"});
    session.state<OptionsInForce>().IsWideClient = true;
    EXPECT_EQ(loaded(), QStringList());
    EXPECT_EQ(contentsBelow(own).keys(), QStringList{"Left.flt"});
    EXPECT_EQ(install.user.told().join(u'/').section(u'\n', 0, 0),
              "Error|Morvane Fatal Error|Your flight.cfg file has not been found.");
}

/// Whatever fails is told, the start goes on, and the list never names more than there is.
TEST_F(FlightsTest, aFailureIsToldAndTheListNamesWhatIsThere) {
    save(kept, {"Kept.flt"});
    save(chosen, {"Own.flt"});
    loadFlightFiles(session);
    const auto before = contentsBelow(chosen);
    const auto load = [this] {
        install.user.messages.clear();
        loadFlightFiles(session);
    };
    const auto check = [&](int n) {
        const bool isTold = install.files.hasFailed() && !install.files.failedAtTest();
        EXPECT_TRUE(install.user.told().size() == 1 || !isTold) << n;
        EXPECT_EQ(install.user.countOfKind(MessageKind::error), 0) << "its kind is misspelt";
        for (const QString& name : savedFlights(session))
            EXPECT_TRUE(install.files.exists(savedFlightFile(session, name))) << n;
        EXPECT_EQ(contentsBelow(chosen), before);
        loadFlightFiles(session);
    };
    EXPECT_GT(failEachOperation(install.files, Fault::once, load, check), 10);
}

} // namespace
} // namespace morvane::test
