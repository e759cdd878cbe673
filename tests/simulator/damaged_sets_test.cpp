#include "core/store.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "sets/set_removal.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace morvane {
namespace {

/// What the tests below need of ground, night and sky, which are to behave alike.
struct Kind {
    QString folder, table, nameColumn, coloursIn;
    QStringList files; ///< of a set
    void (*add)(test::SmallInstall&, const QString& name, const QStringList& files);
    bool (*click)(Session&, const QString& name);
    QStringList& (*selected)(Session&);
    void (*activate)(Session&);
    void (*remove)(Session&, bool keepsColours);
};

void addGround(test::SmallInstall& install, const QString& name, const QStringList& files) {
    install.addGroundSet(name, "Overcast", true, files);
}

void addNight(test::SmallInstall& install, const QString& name, const QStringList& files) {
    test::addNightStock(install);
    test::addNightSet(install, name, true, files);
}

void addSky(test::SmallInstall& install, const QString& name, const QStringList& files) {
    for (const QString& folder : {u"Default"_s, u"Sunrise"_s, u"Sunset"_s})
        test::writeFile(install.home() / u"Resources\\Sky" / folder / u"day.bmp", test::smallBitmap(32, 90));
    install.addSkySet(name, u"Overcast"_s, true, files);
}

/// Set kinds have everything but where their colours stand.
template <class Of>
Kind kindOf(const QString& table, const QString& nameColumn, const QString& coloursIn, const QString& file,
            void (*add)(test::SmallInstall&, const QString&, const QStringList&)) {
    return {
        Of::facts().folder,
        table,
        nameColumn,
        coloursIn,
        {file},
        add,
        clickSetNamed<Of>,
        [](Session& session) -> QStringList& { return setKind<Of>().inHand(session).selection.selectedRows; },
        Of::activate,
        Of::remove};
}

const Kind kinds[] = {
    kindOf<GroundKind>("TEXTURE_SETS", "TEXTURE_SET", "TEXTURE_SETS SET COLOR_SETTINGS",
                       "Texture\\029h2su6.bmp", addGround),
    kindOf<NightKind>("NIGHT_TEXTURE_SETS", "TEXTURE_SET", "NIGHT_TEXTURE_SETS SET COLOR_SETTINGS",
                      "Texture\\029b2lm1.bmp", addNight),
    kindOf<SkyKind>("SKY_TEXTURE_SETS", "SKY_TEXTURE_SET", "SKY_TEXTURE_SUB_SETS SET MAIN_SKY", "day.bmp",
                    addSky),
};

/// An install with one activated set of the kind, "2-Odd".
struct OddSet {
    explicit OddSet(const Kind& ofKind) : kind(ofKind) { kind.add(install, odd, kind.files); }

    void execute(const QString& statement) {
        session.adoConn->execute(statement);
        session.rows<clsTextureSets>().reset();
        session.rows<clsNightTextureSets>().reset();
        session.rows<clsSkyTextureSets>().reset();
    }
    void put(const QString& column, const QString& text) {
        execute(
            u"UPDATE %1 SET %2 = '%3' WHERE %4 = '%5'"_s.arg(kind.table, column, text, kind.nameColumn, odd));
    }
    /// "True", "False" or "gone".
    QString activationOf(const QString& name) {
        for (RowSet rows(*session.adoConn, u"SELECT * FROM "_s + kind.table); !rows.atEnd(); rows.next())
            if (rows.text(kind.nameColumn) == name) return rows.text(u"ACTIVATED");
        return u"gone"_s;
    }
    /// Takes the set away, or its files alone, and tells its activation then.
    QString remove(const QString& name, bool keepsColours) {
        EXPECT_TRUE(kind.click(session, name)) << name.toStdString();
        kind.remove(session, keepsColours);
        return activationOf(name);
    }
    QString activate(const QString& name) {
        EXPECT_TRUE(kind.click(session, name)) << name.toStdString();
        kind.activate(session);
        return activationOf(name);
    }
    void activateSeveral(const QStringList& names) {
        install.user.onModal = [this](Screen) {
            session.state<MultiChoice>().multiConfirmed = session.state<MultiChoice>().multiNames;
        };
        kind.selected(session) = names;
        kind.activate(session);
    }
    FilePath sets() const { return install.home() / kind.folder; }
    FilePath folder() const { return sets() / odd; }
    auto files() const { return test::contentsBelow(sets()); }
    int errors() const { return install.user.countOfKind(MessageKind::error); }

    const Kind& kind;
    const QString odd = u"2-Odd"_s;
    test::SmallInstall install;
    Session& session = install.session;
};

void removeTree(const FilePath& folder) {
    ASSERT_TRUE(QDir(folder.native()).removeRecursively());
}

TEST(DamagedSets, withoutReadableColoursAreDeactivatedAndDeletedAndNotMade) {
    for (const Kind& kind : kinds)
        for (const QString& colours : {u"0:x:0:0:0:0:0:0:0"_s, u"1:2"_s}) {
            SCOPED_TRACE((kind.table + u' ' + colours).toStdString());
            OddSet set(kind);
            set.execute(u"UPDATE %1 = '%2'"_s.arg(kind.coloursIn, colours));
            EXPECT_EQ(set.remove(set.odd, true), "False");
            EXPECT_TRUE(set.files().isEmpty());
            EXPECT_EQ(set.errors(), 0);
            EXPECT_EQ(set.activate(set.odd), "False") << "nothing is stored before the colours are read";
            EXPECT_TRUE(set.files().isEmpty());
            EXPECT_EQ(set.errors(), 1);
            EXPECT_EQ(set.remove(set.odd, false), "gone");
            EXPECT_FALSE(set.install.files.exists(set.folder()));
            EXPECT_EQ(set.errors(), 1);
        }
}

TEST(DamagedSets, whoseNameIsNoFoldersAreRowsAlone) {
    for (const Kind& kind : kinds)
        for (const QString& name : {u".."_s, QString(), u"..\\Resources"_s, u"../Resources"_s, u"C:"_s,
                                    u"2-Odd\\..\\..\\Resources"_s}) {
            SCOPED_TRACE((kind.table + u' ' + name).toStdString());
            OddSet set(kind);
            test::writeFile(set.install.home() / u"Resources\\Texture\\a.bmp", "not a set's");
            set.put(u"ACTIVATED"_s, u"False"_s);
            set.put(kind.nameColumn, name);
            const auto files = set.files(),
                       resources = test::contentsBelow(set.install.home() / u"Resources");
            EXPECT_EQ(set.activate(name), "False");
            EXPECT_EQ(set.errors(), 1);
            EXPECT_EQ(set.remove(name, false), "gone");
            EXPECT_EQ(set.errors(), 1);
            EXPECT_EQ(set.files(), files);
            EXPECT_EQ(test::contentsBelow(set.install.home() / u"Resources"), resources);
        }
}

TEST(DamagedSets, linksGoAsLinksAndWhatTheyPointToStays) {
    const struct {
        QString link; ///< below the set's folder, empty for the folder itself
        bool isDangling, keepsColours;
    } cases[] = {{{}, false, false},           {{}, true, false},           {{}, false, true},
                 {u"Texture"_s, false, false}, {u"Texture"_s, true, false}, {u"Texture"_s, false, true}};
    for (const Kind& kind : kinds)
        for (const auto& [name, isDangling, keepsColours] : cases) {
            SCOPED_TRACE((kind.table + u' ' + name).toStdString());
            if (kind.nameColumn.startsWith(u"SKY") && !name.isEmpty())
                continue; // its files lie in the folder
            OddSet set(kind);
            const FilePath elsewhere = set.install.folder / u"anderswo ä";
            for (const QString& file : {u"Texture\\029h2su6.bmp"_s, u"day.bmp"_s})
                test::writeFile(elsewhere / file, "mine");
            const FilePath link = set.folder() / name;
            removeTree(link);
            ASSERT_TRUE(QFile::link(elsewhere.native(), link.native()));
            const FilePath aside = set.install.folder / u"aside";
            if (isDangling) set.install.files.rename(elsewhere, aside);
            EXPECT_EQ(set.remove(set.odd, keepsColours), keepsColours ? "False" : "gone");
            EXPECT_EQ(QFileInfo(link.native()).isSymLink(), keepsColours);
            EXPECT_EQ(set.install.files.exists(set.folder()), keepsColours);
            EXPECT_EQ(test::contentsBelow(isDangling ? aside : elsewhere).size(), 2);
            EXPECT_EQ(set.errors(), 0);
        }
}

TEST(DamagedSets, amongSeveralArePassedOverAndARefusingStoreEndsTheRun) {
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.table.toStdString());
        OddSet set(kind);
        const QStringList names{set.odd, u"3-B"_s, u"4-C"_s};
        for (const QString& name : names.mid(1))
            kind.add(set.install, name, {});
        set.execute(u"UPDATE %1 SET ACTIVATED = 'False'"_s.arg(kind.table));
        set.execute(
            u"CREATE TRIGGER T BEFORE UPDATE ON %1 BEGIN SELECT RAISE(ABORT, 'no'); END"_s.arg(kind.table));
        set.activateSeveral(names);
        EXPECT_EQ(set.errors(), 1);
        set.execute(u"DROP TRIGGER T"_s);
        set.put(kind.nameColumn, u".."_s);
        set.activateSeveral({u".."_s, u"3-B"_s, u"4-C"_s});
        EXPECT_EQ(set.errors(), 2);
        EXPECT_EQ(set.activationOf(u".."_s), "False");
        EXPECT_EQ(set.activationOf(u"4-C"_s), "True");
    }
}

TEST(DamagedSets, foldersThatAreMissingAreMadeAgain) {
    for (const Kind& kind : kinds)
        for (const QString& missing : {QString(), u"Texture"_s}) {
            SCOPED_TRACE((kind.table + u' ' + missing).toStdString());
            OddSet set(kind);
            set.remove(set.odd, true);
            set.activate(set.odd);
            const auto made = set.files();
            EXPECT_FALSE(made.isEmpty());
            set.remove(set.odd, true);
            removeTree(set.folder() / missing);
            removeTree(set.install.home() / u"TempBitmaps");
            set.activate(set.odd);
            EXPECT_EQ(set.files(), made);
            EXPECT_EQ(set.errors(), 0);
        }
}

} // namespace
} // namespace morvane
