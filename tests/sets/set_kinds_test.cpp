// What ground, night and sky do alike.

#include "core/store.h"
#include "ground/ground_sets.h"
#include "ground/ground_tuning.h"
#include "ground/texture_sets.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "night/night_tuning.h"
#include "sets/set_names.h"
#include "sets/set_removal.h"
#include "sets/temp_bitmaps.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"
#include "support/night_install.h"
#include "support/small_install.h"
#include "support/system_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace morvane::test {
namespace {

struct Kind {
    const SetKind& kind;
    QString table, nameColumn, coloursIn, texture; ///< the texture's place in the simulator
    QStringList files;                             ///< of a set
    void (*add)(SmallInstall&, const QString& name, bool activated, const QStringList& files);
    bool (*click)(Session&, const QString& name);
    void (*activate)(Session&);
    void (*remove)(Session&, bool keepsColours);
    bool (*install)(Session&);
    QString (*states)(Session&);
    /// A new favourite of these slider values; none for the sky.
    void (*nameFavourite)(Session&, const SliderValues&) = nullptr;

    bool is(const QString& word) const { return kind.facts.word == word; }
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.kind.facts.word.toStdString();
}

template <class Of>
Kind kindOf(const QString& table, const QString& nameColumn, const QString& coloursIn, const QString& texture,
            const QStringList& files, decltype(Kind::add) add, decltype(Kind::nameFavourite) nameFavourite) {
    return {setKind<Of>(),     table,        nameColumn, coloursIn,   texture,       files,        add,
            clickSetNamed<Of>, Of::activate, Of::remove, Of::install, setStates<Of>, nameFavourite};
}

void addGround(SmallInstall& install, const QString& name, bool activated, const QStringList& files) {
    install.addGroundSet(name, u"Overcast"_s, activated, files);
}

void addSky(SmallInstall& install, const QString& name, bool activated, const QStringList& files) {
    install.addSkySet(name, u"Overcast"_s, activated, files);
}

template <class Tuning>
void nameFavourite(Session& session, const SliderValues& sliders) {
    Tuning tuning(session);
    tuning.showColourPreview(sliders);
    tuning.newFavourite();
}

const Kind recoloured[] = {
    kindOf<GroundKind>("TEXTURE_SETS", "TEXTURE_SET", "TEXTURE_SETS SET COLOR_SETTINGS",
                       "Scenery\\World\\texture\\029h2su6.bmp",
                       {"Texture\\029h2su6.bmp", "UTEurLC\\034b2su4.bmp", "Dutch\\005a2su2.bmp"}, addGround,
                       nameFavourite<GroundTuning>),
    kindOf<NightKind>("NIGHT_TEXTURE_SETS", "TEXTURE_SET", "NIGHT_TEXTURE_SETS SET COLOR_SETTINGS",
                      "Scenery\\World\\texture\\029b2lm1.bmp",
                      {"Texture\\029b2lm1.bmp", "Dutch\\005a2lm2.bmp"}, addNightSet,
                      nameFavourite<NightTuning>),
};
const Kind sky = kindOf<SkyKind>("SKY_TEXTURE_SETS", "SKY_TEXTURE_SET", "SKY_TEXTURE_SUB_SETS SET MAIN_SKY",
                                 "Texture\\day.bmp", {"day.bmp"}, addSky, nullptr);

/// An install with "Default" and the activated sets "2-A", "3-B" and "4-C" of the kind.
struct SetKindTest : InstallTest, testing::WithParamInterface<Kind> {
    SetKindTest() {
        addNightStock(install);
        for (const QString& folder : {u"Default"_s, u"Sunrise"_s, u"Sunset"_s})
            writeFile(install.home() / u"Resources\\Sky" / folder / u"day.bmp", smallBitmap(32, 90));
        writeFile(install.simulator() / u"Texture\\day.bmp", "the pilot's sky");
        if (!kind.kind.find(session, u"Default"_s)) kind.add(install, u"Default"_s, true, {});
        for (const QString& name : {u"2-A"_s, u"3-B"_s, u"4-C"_s})
            add(name);
    }
    void add(const QString& name) { kind.add(install, name, true, kind.files); }
    void click(const QString& name) { EXPECT_TRUE(kind.click(session, name)) << name.toStdString(); }
    SetInHand inHand() { return kind.kind.inHand(session); }
    /// Confirms these of the several that are in hand then.
    void confirm(const QStringList& selected, const QStringList& names) {
        inHand().selection.selectedRows = selected;
        install.user.onModal = [=, this](Screen screen) {
            ASSERT_EQ(screen, Screen::frm_MultiDelete);
            offered = session.state<MultiChoice>().multiNames;
            session.state<MultiChoice>().multiConfirmed = names;
        };
    }
    /// "{sets}" and "{name}" stand for the kind's table and column.
    void execute(const QString& statement) {
        session.adoConn->execute(
            QString(statement).replace(u"{sets}"_s, kind.table).replace(u"{name}"_s, kind.nameColumn));
        kind.kind.refresh(session);
    }
    /// Takes the set away, or its files alone.
    void remove(const QString& name, bool keepsColours) {
        click(name);
        kind.remove(session, keepsColours);
    }
    void activate(const QString& name) {
        click(name);
        kind.activate(session);
    }
    /// All sets behind "Default", "+" behind an activated and "*" behind an installed one.
    QString stored() { return kind.states(session).section(u' ', 1); }
    FilePath sets() const { return install.home() / kind.kind.facts.folder; }
    QStringList folders() { return install.files.listFolders(sets()); }
    QStringList filesOf(const QString& name) const {
        return contentsBelow(sets()).keys().filter(name + u'/');
    }
    int errors() const { return install.user.countOfKind(MessageKind::error); }

    const Kind& kind = GetParam();
    QStringList offered; ///< by frm_MultiDelete
};

INSTANTIATE_TEST_SUITE_P(Recoloured, SetKindTest, testing::ValuesIn(recoloured));
INSTANTIATE_TEST_SUITE_P(Sky, SetKindTest, testing::Values(sky));

TEST_P(SetKindTest, deactivatingKeepsRowAndFoldersAndDeletingNothing) {
    install.user.answersToGive = {false, true, true};
    remove(u"2-A"_s, true);
    EXPECT_EQ(stored(), "2-A+ 3-B+ 4-C+") << "answered with no";
    inHand().refreshList = false;
    kind.remove(session, true);
    EXPECT_EQ(stored(), "2-A 3-B+ 4-C+");
    EXPECT_TRUE(inHand().refreshList && filesOf(u"2-A"_s).isEmpty());
    EXPECT_EQ(install.files.listFolders(sets() / u"2-A").size(), kind.kind.facts.subfolders.size());
    EXPECT_EQ(install.user.calls.filter("done "), QStringList({"done 1 texture set deactivated"}));
    remove(u"2-A"_s, false);
    EXPECT_EQ(stored(), "3-B+ 4-C+");
    EXPECT_EQ(folders(), QStringList({"3-B", "4-C"}));
    const QString title = u"Question|Morvane Information|Do you wish to "_s;
    EXPECT_EQ(
        install.user.told().mid(1),
        QStringList({title + u"deactivate this the texture set: '2-A'?\n\nSelect Ok, to deactivate the "
                             "set or select Cancel to cancel the deactivate."_s,
                     title + u"delete the texture set: '2-A'?  This action cannot be reversed\n\nSelect "
                             "Ok, to delete the file or select Cancel to cancel the delete."_s}));
}

/// At night the installed set alone may go: wanted. Among several both are passed over without a word.
TEST_P(SetKindTest, defaultAndTheInstalledSetAreProtected) {
    execute(u"UPDATE {sets} SET INSTALLED = TRUE WHERE ID = 3"_s);
    ASSERT_TRUE(stored().contains(u"3-B+*")) << stored().toStdString();
    confirm({u"Default"_s, u"2-A"_s, u"3-B"_s, u"4-C"_s}, {u"2-A"_s, u"3-B"_s});
    kind.remove(session, false);
    EXPECT_EQ(offered, QStringList({"2-A", "3-B", "4-C"}));
    EXPECT_EQ(stored(), "3-B+* 4-C+");
    EXPECT_EQ(install.user.calls.filter("done "), QStringList({"done 1 texture set deleted"}));
    EXPECT_EQ(install.user.doneRemark, "1 set left");
    EXPECT_TRUE(install.user.told().isEmpty());

    inHand().selection.selectedRows.clear();
    inHand().refreshList = false;
    for (const auto& [name, words] :
         {std::pair(u"Default"_s, u"Default"_s), {u"3-B"_s, u"currently installed"_s}}) {
        remove(name, false);
        if (name == u"3-B" && kind.is(u"Night"_s)) continue;
        EXPECT_EQ(inHand().refreshList, !kind.is(u"Sky"_s)) << "nothing was done, and the sky knows";
        EXPECT_EQ(install.user.told().last(),
                  u"Exclamation|Morvane Information|You have selected the %1 texture set to "
                  "delete/deactivate.%2This is a protected texture set and no changes can be made to "
                  "this set."_s.arg(words, kind.is(u"Sky"_s) ? u"\n\n"_s : u"\n"_s));
    }
    EXPECT_EQ(stored(), kind.is(u"Night"_s) ? "4-C+" : "3-B+* 4-C+");
}

TEST_P(SetKindTest, aRemovalShowsThatItIsBusyAndCanBeEndedBeforeEachSet) {
    confirm({u"2-A"_s, u"3-B"_s, u"4-C"_s}, {u"2-A"_s, u"3-B"_s});
    install.user.onPump = [&] {
        if (install.user.calls.filter("progress").size() == 2) install.user.answers().cancelRequested = true;
    };
    kind.remove(session, false);
    const QString text = u"%1 Deleting texture set %2 of 2, '%3'.  Please wait............"_s;
    EXPECT_EQ(
        install.user.calls.mid(1, 5),
        QStringList({"message Progress Morvane Information", text.arg("progress 0", "1", "2-A"),
                     text.arg("progress 50", "2", "3-B"), "hide message", "done 1 texture set deleted"}));
    EXPECT_EQ(stored(), "3-B+ 4-C+");
}

TEST_P(SetKindTest, severalRowsAreNotInstalled) {
    click(u"2-A"_s);
    inHand().selection.selectedRows = QStringList{u"2-A"_s, u"Default"_s};
    EXPECT_FALSE(kind.install(session));
    EXPECT_EQ(stored(), "2-A+ 3-B+ 4-C+");
    const QString one = kind.is(u"Sky"_s) ? u"one"_s : u"one sky"_s; // so also of the ground
    EXPECT_EQ(install.user.told(),
              QStringList{u"Exclamation|Multiple Selection Detetected!|Morvane has detected more than one "
                          "selection for installation.  You can only select %1 texture set to be installed "
                          "at any one time.  Please check your selection and try again!."_s.arg(one)});
}

/// A file that cannot be replaced ends the install behind the row, which names the set already.
TEST_P(SetKindTest, theStoreNamesTheSetBeforeTheFirstFile) {
    const FilePath target = install.simulator() / kind.texture;
    const QByteArray before = readFile(target);
    install.files.setReadOnly(target, true);
    click(u"2-A"_s);
    execute(u"CREATE TRIGGER T BEFORE UPDATE ON {sets} BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
    kind.kind.install(session, u"2-A"_s);
    EXPECT_EQ(errors(), 1);
    EXPECT_EQ(stored(), "2-A+ 3-B+ 4-C+");
    execute(u"DROP TRIGGER T"_s);
    install.user.messages.clear();
    kind.kind.install(session, u"2-A"_s);
    EXPECT_EQ(stored(), "2-A+* 3-B+ 4-C+");
    EXPECT_EQ(readFile(target), before);
    EXPECT_TRUE(install.user.told().join(u'/').startsWith("Error|Morvane Error|Permission denied: "));
    install.files.setReadOnly(target, false);
    // In memory "3-B" still says "True": what another hand wrote stands.
    kind.kind.storeActivation(session, u"3-B"_s, false);
    kind.kind.install(session, u"2-A"_s);
    EXPECT_EQ(stored(), "2-A+* 3-B 4-C+");
    EXPECT_NE(readFile(target), before);
}

TEST_P(SetKindTest, withoutReadableColoursIsDeactivatedAndDeletedAndNotMade) {
    for (const auto& [name, colours] : {std::pair(u"2-A"_s, u"x:0:0:0:0:0:0:0:0"_s), {u"3-B"_s, u"1:2"_s}}) {
        execute(u"UPDATE %1 = '%2'"_s.arg(kind.coloursIn, colours));
        install.user.messages.clear();
        remove(name, true);
        EXPECT_TRUE(stored().contains(name + u' '));
        EXPECT_EQ(errors(), 0);
        activate(name);
        EXPECT_TRUE(stored().contains(name + u' ')) << "nothing is stored before the colours are read";
        EXPECT_TRUE(filesOf(name).isEmpty());
        EXPECT_EQ(errors(), 1);
        remove(name, false);
        EXPECT_FALSE(stored().contains(name) || folders().contains(name));
    }
}

TEST_P(SetKindTest, whoseNameIsNoFoldersIsARowAlone) {
    writeFile(install.home() / u"Resources\\Texture\\a.bmp", "not a set's");
    const auto files = contentsBelow(sets()), resources = contentsBelow(install.home() / u"Resources");
    for (const QString& name :
         {u".."_s, QString(), u"..\\Resources"_s, u"../Resources"_s, u"C:"_s, u"2-A\\..\\..\\Resources"_s}) {
        kind.add(install, u"5-D"_s, false, {});
        execute(u"UPDATE {sets} SET {name} = '%1' WHERE {name} = '5-D'"_s.arg(name));
        install.user.messages.clear();
        activate(name);
        remove(name, false);
        EXPECT_EQ(errors(), 1) << name.toStdString();
        EXPECT_EQ(stored(), "2-A+ 3-B+ 4-C+") << name.toStdString();
        EXPECT_EQ(contentsBelow(sets()), files);
        EXPECT_EQ(contentsBelow(install.home() / u"Resources"), resources);
    }
}

TEST_P(SetKindTest, linksGoAsLinksAndWhatTheyPointToStays) {
    if (!hasLinks) GTEST_SKIP() << "no links on this system";
    const QString below = kind.kind.facts.subfolders.value(0);
    const std::tuple<QString, QString, bool, bool> cases[] = {
        // Of the set the link, empty for its folder itself; whether it dangles, and whether the colours stay.
        {u"2-A"_s, {}, false, false},
        {u"3-B"_s, {}, true, false},
        {u"4-C"_s, {}, false, true},
        {u"5-D"_s, below, true, false},
        {u"6-E"_s, below, false, true}};
    for (const auto& [name, place, isDangling, keepsColours] : cases) {
        SCOPED_TRACE(name.toStdString());
        if (!contentsBelow(sets()).keys().join(u' ').contains(name)) add(name);
        const FilePath elsewhere = install.folder / (u"anderswo ä "_s + name),
                       aside = install.folder / u"aside" / name, link = sets() / name / place;
        writeFile(elsewhere / kind.files[0], "mine");
        writeFile(elsewhere / u"day.bmp", "mine");
        ASSERT_TRUE(QDir(link.native()).removeRecursively());
        ASSERT_TRUE(QFile::link(elsewhere.native(), link.native()));
        install.files.makeFolder(aside.parent());
        if (isDangling) install.files.rename(elsewhere, aside);
        remove(name, keepsColours);
        EXPECT_EQ(QFileInfo(link.native()).isSymLink(), keepsColours);
        EXPECT_EQ(install.files.exists(sets() / name), keepsColours);
        EXPECT_EQ(contentsBelow(isDangling ? aside : elsewhere).size(), kind.is(u"Sky"_s) ? 1 : 2);
        EXPECT_EQ(errors(), 0);
    }
}

TEST_P(SetKindTest, ofSeveralDamagedOnesArePassedOverAndARefusingStoreEndsTheRun) {
    execute(u"UPDATE {sets} SET ACTIVATED = 'False' WHERE ID > 1"_s);
    execute(u"CREATE TRIGGER T BEFORE UPDATE ON {sets} BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
    const QStringList all{u"2-A"_s, u"3-B"_s, u"4-C"_s};
    confirm(all, all);
    kind.activate(session);
    EXPECT_EQ(errors(), 1);
    EXPECT_EQ(stored(), "2-A 3-B 4-C");
    execute(u"DROP TRIGGER T"_s);
    execute(u"UPDATE {sets} SET {name} = '..' WHERE {name} = '2-A'"_s);
    confirm({u"Default"_s, u".."_s, u"4-C"_s}, {u".."_s, u"4-C"_s});
    kind.activate(session);
    EXPECT_EQ(errors(), 2);
    EXPECT_EQ(stored(), ".. 3-B 4-C+");
}

TEST_P(SetKindTest, foldersThatAreMissingAreMadeAgain) {
    activate(u"2-A"_s);
    const auto made = filesOf(u"2-A"_s);
    for (const QString& missing : {QString(), kind.kind.facts.subfolders.value(0)}) {
        remove(u"2-A"_s, true);
        for (const FilePath& folder : {sets() / u"2-A" / missing, install.home() / u"TempBitmaps"})
            QDir(folder.native()).removeRecursively();
        activate(u"2-A"_s);
        EXPECT_EQ(filesOf(u"2-A"_s), made);
    }
    EXPECT_FALSE(made.isEmpty());
    EXPECT_EQ(errors(), 0);
}

struct RecolouredKindTest : SetKindTest {
    void nameFavourite(const QString& name, const QString& description = {}) {
        install.user.onModal = [=, this](Screen screen) {
            ASSERT_EQ(screen, Screen::frm_AddFav);
            auto& answer = session.state<FavouriteAnswer>();
            EXPECT_EQ(answer.favName + answer.favDescription, u""_s) << "not those of last time";
            answer = {name, description, true};
        };
        kind.nameFavourite(session, {5, 0, -7, 0, 0, 10});
    }
};

INSTANTIATE_TEST_SUITE_P(Recoloured, RecolouredKindTest, testing::ValuesIn(recoloured));

TEST_P(RecolouredKindTest, aCancelLeavesTheSetDeactivatedInBothPasses) {
    remove(u"2-A"_s, true);
    for (const QString& pass : {u"Process 1"_s, u"Process 2"_s}) {
        install.user.onPump = [&] {
            if (install.user.messages.back().text.contains(pass))
                install.user.answers().cancelRequested = true;
        };
        activate(u"2-A"_s);
        EXPECT_EQ(stored(), "2-A 3-B+ 4-C+");
        EXPECT_TRUE(filesOf(u"2-A"_s).isEmpty());
        EXPECT_TRUE(contentsBelow(install.home() / u"TempBitmaps\\Texture").isEmpty());
    }
}

TEST_P(RecolouredKindTest, noTitleLeadsOutOfTheSetsFolder) {
    const QStringList before = install.files.listFolders(install.home());
    for (const QString& title : {u""_s, u"..\\..\\Resources"_s, u"../../../evil"_s, u"con."_s,
                                 u"' OR 1=1 --"_s, u"a\nb"_s + QChar(0)})
        nameFavourite(title, title);
    EXPECT_EQ(folders().join(u'|'),
              u"10-a_b_|2-A|3-B|4-C|5-|6-.._.._Resources|7-.._.._.._evil|8-con|9-' OR 1=1 --"_s);
    EXPECT_EQ(install.files.listFolders(install.home()), before);
    EXPECT_TRUE(install.user.told().isEmpty());
}

/// Were the list's last record taken for the one just saved, another set would stand as the selected one.
TEST_P(RecolouredKindTest, aRefusedSaveChangesNothingAndARowStandsWithoutItsFolders) {
    click(u"2-A"_s);
    execute(u"CREATE TRIGGER T BEFORE INSERT ON {sets} BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
    nameFavourite(u"Calm"_s);
    EXPECT_EQ(errors(), 1);
    EXPECT_EQ(inHand().name, "2-A");
    EXPECT_FALSE(inHand().refreshList || folders().size() > 3);
    EXPECT_TRUE(install.user.calls.filter(u"show frm_"_s).isEmpty());
    execute(u"DROP TRIGGER T"_s);
    writeFile(sets() / u"5-Calm", "in the way");
    nameFavourite(u"Calm"_s);
    EXPECT_EQ(errors(), 2);
    EXPECT_TRUE(inHand().refreshList);
    EXPECT_EQ(stored(), "2-A+ 3-B+ 4-C+ 5-Calm");
}

TEST(SetNames, nothingThatAPathDoesNotTake) {
    const QString fifty = u"12-"_s + QString(47, u'n');
    const QString emoji = u"\U0001F324"_s;
    const QString cases[][2] = {
        {u"a:b*c?d<e>f|g\"h"_s, u"12-a_b_c_d_e_f_g_h"_s},
        {u"a\r\nb\tc"_s + QChar(0) + QChar(0x7f) + QChar(0x85), u"12-a__b_c___"_s},
        {QString(300, u'n'), fifty},
        {QString(44, u'n') + u" . storm"_s,
         u"12-"_s + QString(44, u'n')}, // the cut lays bare a dot and a blank
        {QString(46, u'n') + emoji, u"12-"_s + QString(46, u'n')},
        {QString(45, u'n') + emoji, u"12-"_s + QString(45, u'n') + emoji},
    };
    for (const auto& [title, name] : cases)
        EXPECT_EQ(newSetName(12, title), name) << title.toStdString();
}

TEST(CleanTempBitmaps, leavesTheDutchFolderWhatIsNoBitmapAndWhatCannotBeRemoved) {
    SmallInstall install;
    const FilePath folder = install.home() / u"TempBitmaps";
    for (const char16_t* name :
         {u"a.bmp", u"Texture\\b.BMP", u"Texture\\notes.txt", u"UTEurLC\\c.bmp", u"Dutch\\d.bmp"})
        writeFile(folder / name, "pixels");
    const auto left = [&] { return contentsBelow(folder).keys().join(u' '); };
    install.files.failAt(4, false); // list, remove, list, and the removal of "b.BMP"
    cleanTempBitmaps(install.session);
    EXPECT_EQ(left(), "Dutch/d.bmp Texture/b.BMP Texture/notes.txt");
    cleanTempBitmaps(install.session);
    EXPECT_EQ(left(), "Dutch/d.bmp Texture/notes.txt");
    EXPECT_TRUE(install.user.told().isEmpty());
}

} // namespace
} // namespace morvane::test
