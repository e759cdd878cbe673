#include "simulator/flights.h"

#include "core/error.h"
#include "sets/options_in_force.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <QFile>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;
using test::readFile;
using test::writeFile;

struct FlightsTest : testing::Test {
    FlightsTest() { storeUserFolder(user.native()); }

    test::SmallInstall install;
    Session& session = install.session;
    FilePath own = install.home() / u"Flights";
    FilePath kept = install.simulator() / u"Flights\\Morvane";
    FilePath user = install.folder / u"Çhosen flights";

    void storeUserFolder(const QString& path) {
        install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"NonEnglishPath"_s, path);
    }
    void save(const FilePath& folder, const QString& name, const QByteArray& contents) {
        writeFile(folder.child(name), contents);
    }
    QByteArray copyOf(const QString& name) { return readFile(own.child(name)); }
};

TEST_F(FlightsTest, keptFlightsAndTheUsersAreGatheredAndTheUsersWin) {
    save(kept, u"Evening.flt"_s, "kept");
    save(kept, u"Evening.wx"_s, "kept weather");
    save(kept, u"Rain.flt"_s, "kept");
    save(kept, u"Rain.wx"_s, "kept weather");
    save(user, u"EVENING.FLT"_s, "the user's");
    save(user, u"X.FLT"_s, "upper case");
    save(user, u"X.WX"_s, "its weather");
    save(user, u"Lost.wx"_s, "no flight");
    save(user, u"Ünten.flt"_s, "no weather");
    save(user, u"A.flt.old.flt"_s, "stands for A, which is not there");
    save(user, u".flt"_s, "no name");
    const auto before = contentsBelow(user);
    loadFlightFiles(session);
    EXPECT_EQ(savedFlights(session), (QStringList{u"Evening"_s, u"Rain"_s, u"X"_s, u"Ünten"_s}));
    EXPECT_EQ(contentsBelow(own).size(), 8) << "four flights, three with weather, and the list";
    EXPECT_EQ(copyOf(u"Evening.flt"_s), "the user's");
    EXPECT_EQ(copyOf(u"Evening.wx"_s), "kept weather");
    EXPECT_EQ(copyOf(u"x.wx"_s), "its weather");
    EXPECT_EQ(contentsBelow(user), before);
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_EQ(readFile(savedFlightFile(session, u"Evening"_s)), "the user's");
    EXPECT_THROW(savedFlightFile(session, u"..\\Evening"_s), Error);
}

TEST_F(FlightsTest, aNewGatheringBeginsEmptyAndLeavesOldEntriesUnread) {
    for (const QString& name : {u"A"_s, u"B"_s, u"C"_s})
        save(user, name + u".flt"_s, "flight");
    loadFlightFiles(session);
    EXPECT_EQ(savedFlights(session).size(), 3);
    for (const QString& name : {u"A"_s, u"B"_s})
        install.files.remove(user.child(name + u".flt"_s));
    save(own, u"A.wx"_s, "of a flight that is gone");
    loadFlightFiles(session);
    EXPECT_EQ(savedFlights(session), QStringList{u"C"_s});
    EXPECT_EQ(contentsBelow(own).keys(), (QStringList{u"C.flt"_s, u"flights.cfg"_s}));
    EXPECT_EQ(copyOf(u"flights.cfg"_s), "[Flights]\r\ntotal=1\r\n1=C\r\n2=B\r\n3=C\r\n");
    // A total that was edited by hand ends where the names do.
    writeFile(own / u"flights.cfg", "[Flights]\r\ntotal=2000000000\r\n1=C\r\n");
    EXPECT_EQ(savedFlights(session), QStringList{u"C"_s});
}

/// However the program's own folder is named, or made one with the pilot's: what lies there stays.
TEST_F(FlightsTest, ownFlightsAreNeverDeletedAsCopies) {
    const FilePath link = install.folder / u"Link", documents = install.folder / u"Documents";
    save(own, u"Only one.flt"_s, "saved right here");
    save(own, u"Only one.wx"_s, "its weather");
    install.files.makeFolder(documents);
    ASSERT_TRUE(QFile::link(own.native(), link.native()));
    ASSERT_TRUE(QFile::link(own.native(), (documents / u"Flight Simulator Files").native()));
    const auto expectUntouched = [this](const QString& stored) {
        loadFlightFiles(session);
        EXPECT_EQ(copyOf(u"Only one.flt"_s), "saved right here") << stored.toStdString();
        EXPECT_EQ(contentsBelow(own).size(), 3) << stored.toStdString();
        EXPECT_EQ(savedFlights(session), QStringList{u"Only one"_s});
    };
    for (const QString& path :
         {own.native(), own.native() + u'/', own.native() + u'\\', own.native().toUpper(),
          own.native() + u"/../Flights"_s, link.native(), link.native() + u'/'}) {
        storeUserFolder(path);
        expectUntouched(path);
    }
    session.MyDocumentsPath = documents.native() + u'/';
    expectUntouched(u"the usual folder"_s);
    session.MyDocumentsPath.clear();
    // The other way round: the own folder is a link to a place that is nobody's business.
    const FilePath elsewhere = install.folder / u"Elsewhere";
    install.files.rename(own, elsewhere);
    ASSERT_TRUE(QFile::link(elsewhere.native(), own.native()));
    save(user, u"Own.flt"_s, "flight");
    storeUserFolder(user.native());
    expectUntouched(u"a link"_s);
}

TEST_F(FlightsTest, whatNoFolderHoldsGoesToTheBackups) {
    const FilePath backups = install.home() / u"Backup\\Flights";
    save(user, u"Own.flt"_s, "flight");
    for (const QByteArray contents : {"first", "second", "second", "first"}) {
        save(own, u"A.b.flt"_s, contents);
        save(own, u"Own.flt"_s, "an older copy");
        loadFlightFiles(session);
        EXPECT_EQ(savedFlights(session), QStringList{u"Own"_s});
    }
    EXPECT_EQ(contentsBelow(backups),
              (QMap<QString, QByteArray>{{u"A.b.flt"_s, "first"}, {u"A.b (2).flt"_s, "second"}}));
}

TEST_F(FlightsTest, theFolderOfTheUsualNameComesFirst) {
    save(user, u"Elsewhere.flt"_s, "flight");
    session.MyDocumentsPath = (install.folder / u"Documents").native() + u'/';
    loadFlightFiles(session);
    EXPECT_EQ(savedFlights(session), QStringList{u"Elsewhere"_s});
    save(install.folder / u"Documents\\Flight Simulator Files", u"Usual.flt"_s, "flight");
    loadFlightFiles(session);
    EXPECT_EQ(savedFlights(session), QStringList{u"Usual"_s});
}

TEST_F(FlightsTest, cancellingTheFoldersChoiceLeavesTheUsersFlightsAlone) {
    save(kept, u"Kept.flt"_s, "flight");
    save(user, u"Own.flt"_s, "flight");
    storeUserFolder(QString());
    loadFlightFiles(session);
    EXPECT_EQ(install.user.calls.count(u"browse"_s), 1);
    EXPECT_EQ(savedFlights(session), QStringList{u"Kept"_s});
}

TEST_F(FlightsTest, aWideClientHasNoFlightsOfItsOwn) {
    save(own, u"Left.flt"_s, "flight");
    save(user, u"Own.flt"_s, "flight");
    session.state<OptionsInForce>().IsWideClient = true;
    loadFlightFiles(session);
    EXPECT_EQ(contentsBelow(own).keys(), QStringList{u"Left.flt"_s});
}

TEST_F(FlightsTest, aMissingListIsToldInItsOwnWords) {
    EXPECT_EQ(savedFlights(session), QStringList());
    EXPECT_EQ(
        install.user.told(),
        QStringList{u"Error|Morvane Fatal Error|Your flight.cfg file has not been found.\n\nMorvane will "
                    u"not be able to load any flights.\n\nPress the checkmark to Exit."_s});
}

/// Whatever fails is told, the start goes on, and the list never names more than there is.
TEST_F(FlightsTest, aFailureIsToldAndTheListNamesWhatIsThere) {
    save(kept, u"Kept.flt"_s, "flight");
    save(user, u"Own.flt"_s, "flight");
    loadFlightFiles(session);
    const auto before = contentsBelow(user);
    install.files.failAt(0, false);
    loadFlightFiles(session);
    const int operations = install.files.operations();
    ASSERT_GT(operations, 10);
    for (int n = 1; n <= operations; ++n) {
        install.user.messages.clear();
        install.files.failAt(n, false);
        loadFlightFiles(session);
        EXPECT_TRUE(install.files.failedAtTest() || install.user.told().size() == 1) << n;
        EXPECT_EQ(install.user.countOfKind(MessageKind::error), 0) << "its kind is misspelt";
        install.files.failAt(0, false);
        for (const QString& name : savedFlights(session))
            EXPECT_TRUE(install.files.exists(savedFlightFile(session, name))) << n;
        EXPECT_EQ(contentsBelow(user), before);
        loadFlightFiles(session);
    }
}

} // namespace
} // namespace morvane
