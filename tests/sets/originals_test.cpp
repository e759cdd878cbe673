#include "sets/originals.h"

#include "core/safe_copy.h"
#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "support/small_install.h"
#include "support/system_files.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <functional>

namespace morvane::test {
namespace {

const QString a = u"Texture\\a.bmp"_s;

using Tree = QMap<QString, QByteArray>;

struct OriginalsTest : testing::Test {
    TemporaryFolder folder;
    NativeFileSystem files;
    /// The root of every path, as a session has it: what is kept is named below it.
    FilePath simulator{(folder / u"Simulator Ünï").native()};
    const FilePath app{(folder / u"Morvane").native()};
    const FilePath keptFiles = app / u"Backup\\Originals";
    const FilePath listFile = keptFiles / u"originals.lst";
    const QDate today{2006, 11, 22};

    Originals originals() { return {files, simulator, app, today}; }
    FilePath target(const QString& path) const { return simulator / path; }

    /// Puts `contents` under each of the paths as an install does; unfinished as a kill before its end
    /// leaves it.
    void install(const QByteArray& contents, const QStringList& paths, bool finished = true) {
        const FilePath source = app / u"ours.bmp";
        writeFile(source, contents);
        std::vector<FileCopy> copies;
        for (const QString& path : paths)
            copies.push_back({source, target(path)});
        Originals kept = originals();
        kept.prepare(copies);
        for (const FileCopy& copy : copies) {
            const FilePath place = kept.place(copy);
            replaceFile(files, copy.source, place);
            kept.notePlaced(copy, place);
        }
        if (finished) kept.settle();
    }
    /// "path number" of every kept file.
    QStringList keptPaths() {
        QStringList paths;
        for (const KeptOriginal& original : originals().list())
            paths << original.path + u" %1"_s.arg(original.number);
        return paths;
    }
    QByteArray contents(const QString& path) { return files.readIfThere(target(path)).value_or("none"); }
};

TEST_F(OriginalsTest, aFileIsKeptOnceWithAllThatIsKnownOfIt) {
    writeFile(target(a), "abc");
    files.setMode(target(a), 0640);
    install("ours, the first", {a});
    install("ours, the second", {a});
    ASSERT_EQ(keptPaths(), QStringList{a + u" 1"_s});
    const KeptOriginal kept = originals().list()[0];
    EXPECT_EQ(kept.checksum + u' ' + QString::number(kept.size),
              u"a9993e364706816aba3e25717850c26c9cd0d89d 3"_s);
    EXPECT_TRUE(kept.day == today && kept.mode == modeHere(0640));
    EXPECT_EQ(readFile(keptFiles / kept.copy), "abc");
    // What stands there now is known, too, and the copy before, which a cut of power may bring back.
    ASSERT_EQ(originals().records().of(a).ours.size(), 2U);
    const OriginalFact ours = originals().records().of(a).ours.back();
    const FileStamp stamp = files.stamp(target(a));
    EXPECT_EQ(ours.where, u"ours.bmp"_s);
    EXPECT_TRUE(ours.time == stamp.time && ours.print.size == stamp.size);
    EXPECT_EQ(ours.number, 0U) << "a write in the same moment would not show";
    // Two lines in one, as the blocks between them did not come to the disk.
    files.append(listFile, "gone\t\t\t\t" + QByteArray(9, '\0') + "\t\t\t\t" + a.toUtf8() + '\n');
    EXPECT_EQ(keptPaths(), QStringList{a + u" 1"_s});
}

/// Changed by another hand since ours, a file is kept beside the first; the youngest comes back. A path that
/// was given back has no facts: the next install keeps what lies there then.
TEST_F(OriginalsTest, aLaterFileOfThePilotsIsKeptBesideTheFirst) {
    const std::pair<QString, QString> paths[] = {{a, u"Texture\\a (%1).bmp"_s},
                                                 {u"Texture.old\\a"_s, u"Texture.old\\a (%1)"_s}};
    for (const auto& [path, numbered] : paths) {
        for (const char* own : {"our", "the second", "the third"}) {
            writeFile(target(path), own);
            install("ours", {path});
            install("ours again", {path});
        }
        EXPECT_EQ(keptPaths(), (QStringList{path + u" 1"_s, path + u" 2"_s, path + u" 3"_s}));
        EXPECT_EQ(readFile(keptFiles / path), "our");
        EXPECT_EQ(readFile(keptFiles / numbered.arg(2)), "the second");
        EXPECT_EQ(originals().restore().putBack, 1);
        EXPECT_EQ(contents(path), "the third");
        EXPECT_EQ(keptPaths(), QStringList());
        EXPECT_EQ(readFile(keptFiles / numbered.arg(3)), "the third"); // kept files themselves always stay
    }
}

/// Known as his, it is no part of a copy of ours, whatever it looks like.
TEST_F(OriginalsTest, anEarlierFileOfThePilotsThatHeBroughtBackIsHisYoungest) {
    for (const char* own : {"our", "the second", "our"}) {
        writeFile(target(a), own);
        install("ours", {a});
    }
    EXPECT_EQ(originals().restore().putBack, 1);
    EXPECT_EQ(contents(a), "our");
}

/// What a cut of power left of a copy of ours is no file of the pilot's: no restore brings it back, before or
/// after the next install. One byte of another hand makes it his.
TEST_F(OriginalsTest, aRemnantOfOursIsNoFileOfThePilots) {
    const std::pair<QByteArray, bool> cases[] = {{"", false},
                                                 {QByteArray(6, '\0'), false},
                                                 {QByteArray("ours\0\0", 6), false},
                                                 {"our", false},
                                                 {"ours, ", false},
                                                 {"the f", false}, // his own, on its way back
                                                 {QByteArray(400, '\0'), true},
                                                 {QByteArray("oUrs\0\0", 6), true},
                                                 {"ours, new or not", true}};
    for (const auto& [left, isPilots] : cases)
        for (const bool isInstalledAgain : {true, false}) {
            writeFile(target(a), "the first");
            install("ours, new", {a});
            writeFile(target(a), left);
            if (isInstalledAgain) install("ours, new", {a}, false);
            const auto report = originals().restore();
            EXPECT_EQ(report.left.size(), isPilots && !isInstalledAgain) << left.toStdString();
            EXPECT_EQ(contents(a), isPilots ? left : "the first") << left.toStdString();
            EXPECT_EQ(contentsBelow(keptFiles).values().contains(left), isInstalledAgain);
            QDir(keptFiles.native()).removeRecursively();
        }
}

/// What is left of one whose set is gone can be told by its zeros alone.
TEST_F(OriginalsTest, aRemnantWithoutItsSourceIsThePilotsUnlessItIsAllZeros) {
    for (const QByteArray& left : {QByteArray("our"), QByteArray(3, '\0')}) {
        writeFile(target(a), "the first");
        install("ours, new", {a});
        files.remove(app / u"ours.bmp");
        writeFile(target(a), left);
        EXPECT_EQ(originals().restore().left.size(), left == "our");
    }
}

/// An undo brings back what was to stand where a cut of power left a part of it; the next copy itself, of
/// which the cut took the fact alone, is not kept.
TEST_F(OriginalsTest, inThePlaceOfARemnantStoodWhatItIsOf) {
    const FileCopy copy{app / u"ours.bmp", target(a)};
    for (const bool isPilots : {false, true}) {
        if (isPilots) writeFile(target(a), "the pilot's");
        files.makeFolder(simulator / u"Texture");
        install("ours, old", {a});
        for (const QByteArray& left : {QByteArray("ours, o"), QByteArray("ours, new")}) {
            writeFile(copy.source, left.contains('n') ? left : "ours, old");
            writeFile(target(a), left);
            Originals again = originals();
            again.prepare({copy});
            EXPECT_EQ(again.stood().value(a).kind, isPilots ? FactKind::kept : FactKind::ours);
            EXPECT_EQ(contentsBelow(keptFiles).values().contains(left), left == "ours, o");
        }
        files.remove(target(a));
        QDir(keptFiles.native()).removeRecursively();
    }
}

/// As a restored backup has it: what stands there is kept when it is replaced, not when it was looked at.
TEST_F(OriginalsTest, aCopyThatWasNotPreparedKeepsWhatStandsInItsPlace) {
    const FileCopy back{app / u"backup.bmp", target(a)};
    writeFile(target(a), "the first");
    install("ours", {a});
    auto seen = seeFile(files, target(a));
    originals().place(back, seen);
    EXPECT_EQ(keptPaths(), QStringList(a + u" 1"_s));
    writeFile(target(a), "written since");
    originals().place(back, seen);
    EXPECT_EQ(keptPaths(), (QStringList{a + u" 1"_s, a + u" 2"_s}));
    writeFile(target(a), "the third");
    seen = seeFile(files, target(a));
    Originals third = originals();
    EXPECT_EQ(third.place(back, seen), third.place(back, seen));
    EXPECT_EQ(keptPaths(), (QStringList{a + u" 1"_s, a + u" 2"_s, a + u" 3"_s}));
}

/// A copy is spared where its bytes stand already, unless they have come to be others since they were read,
/// or it would end as another file than now.
TEST_F(OriginalsTest, aCopyWhoseBytesStandIsSpared) {
    const FileCopy copy{app / u"ours.bmp", target(a)};
    const auto nothing = [] {};
    const auto mark = [&] { files.setReadOnly(target(a), true); };
    const std::tuple<std::function<void()>, std::function<void()>, bool> cases[] = {
        {nothing, nothing, true},
        {nothing, [&] { writeFile(target(a), "another program's"); }, false},
        {nothing, [&] { files.remove(target(a)); }, false},
        {nothing, mark, false},
        {mark, nothing, false},
    };
    for (const auto& [before, meanwhile, isSpared] : cases) {
        if (files.exists(target(a))) files.setReadOnly(target(a), false);
        writeFile(copy.source, "ours");
        writeFile(target(a), "ours");
        before();
        Originals prepared = originals();
        prepared.prepare({copy});
        const FilePath place = prepared.place(copy);
        meanwhile();
        EXPECT_EQ(prepared.stands(copy, place), isSpared);
    }
}

/// What we copy may have the pilot's own bytes: his file stays his, killed installs or not.
TEST_F(OriginalsTest, aFileEqualToOursIsThePilotsWithoutAFactThatSaysOtherwise) {
    for (const int part : {1, 2, 3}) { // whole, killed before its end and before the copy
        writeFile(target(a), "the same");
        writeFile(app / u"ours.bmp", "the same");
        if (part < 3)
            install("the same", {a}, part == 1);
        else
            originals().prepare({{app / u"ours.bmp", target(a)}});
        install("another", {a});
        EXPECT_EQ(keptPaths(), QStringList{a + " 1"});
        originals().restore();
        EXPECT_EQ(contents(a), "the same");
    }
}

TEST_F(OriginalsTest, aFileOfOursIsNeverTakenForThePilots) {
    files.makeFolder(simulator / u"Texture");
    for (const int number : {1, 2, 3, 4})
        install("ours " + QByteArray::number(number), {a},
                number < 3);        // the last two are killed before their end,
    writeFile(target(a), "ours 3"); // and it is open which of them stands there
    install("ours 5", {a});
    EXPECT_EQ(keptPaths(), QStringList());
    // A file of the pilot's in the place of ours is his, and nothing was kept there before.
    writeFile(target(a), "the pilot's own");
    install("ours 6", {a});
    EXPECT_EQ(keptPaths(), QStringList{a + " 1"});
    EXPECT_EQ(readFile(keptFiles / u"Texture\\a.bmp"), "the pilot's own");
}

TEST_F(OriginalsTest, aKillAnywhereInTheListLosesNothing) {
    const QString path = u"Scenery\\World\\texture\\Größe %"_s + oddLetter + u".bmp"_s;
    writeFile(target(a), "so that there is a list");
    install("ours", {a});
    const qsizetype before = readFile(listFile).size();
    writeFile(target(path), "the pilot's");
    install("ours", {path}, false);
    const QByteArray whole = readFile(listFile);
    ASSERT_GT(whole.size(), before + 150); // a line for what is ours and one for what is kept
    for (qsizetype length = before; length < whole.size(); length += 3) {
        // The line of a kept file comes before its replacement, so the pilot's file stands there still.
        writeFile(target(path), "the pilot's");
        writeFile(listFile, whole.left(length));
        install("ours", {path}, false); // a second kill, before the list was written anew
        ASSERT_TRUE(keptPaths().contains(path + u" 1"_s)) << length;
        install("ours", {path});
        ASSERT_EQ(keptPaths().filter(path).size(), 1) << length;
        originals().restore();
        ASSERT_EQ(contents(path), "the pilot's") << length;
    }
}

TEST_F(OriginalsTest, namesAreOneWhateverTheirCaseUnlessTheDiskHasBoth) {
    const FilePath world = simulator / u"Scenery\\World\\texture", texture = simulator / u"Texture";
    writeFile(world / u"ÖSTERSUND.BMP", "the pilot's");
    install("ours, the first", {"scenery\\WORLD\\Texture\\Östersund.bmp"});
    install("ours, the second", {"Scenery\\World\\texture\\östersund.BMP"});
    EXPECT_EQ(keptPaths(), QStringList{"Scenery\\World\\texture\\ÖSTERSUND.BMP 1"});
    // Given other letters by another hand, it is the same file still.
    files.rename(world / u"ÖSTERSUND.BMP", world.exactChild("östersund.bmp"));
    install("ours, the third", {"Scenery\\World\\texture\\Östersund.bmp"});
    EXPECT_EQ(originals().restore().putBack, 1);
    EXPECT_EQ(contentsBelow(simulator).size(), 1);
    EXPECT_EQ(contents("Scenery\\World\\texture\\Östersund.bmp"), "the pilot's");
#ifndef Q_OS_WIN
    files.makeFolder(texture);
    for (const QString& name : {u"b.bmp"_s, u"B.BMP"_s, u"B.bmp"_s}) {
        QFile file(texture.exactChild(name).native());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(name.toUtf8()) > 0);
    }
    const auto before = contentsBelow(simulator);
    install("ours", {"Texture\\B.bmp", "texture\\b.bmp", "Texture\\new.bmp", "Texture\\NEW.bmp"});
    EXPECT_EQ(keptPaths(), (QStringList{"Texture\\B.bmp 1", "Texture\\b.bmp 1"}));
    EXPECT_EQ(contentsBelow(simulator).size(), before.size() + 1);
    originals().restore();
    EXPECT_EQ(contentsBelow(simulator), before);
#endif
}

/// What stands under a path by the time of a restore, and what becomes of it.
TEST_F(OriginalsTest, aRestoreTakesBackWhatIsOursAndLeavesTheRest) {
    constexpr auto none = "none";
    const struct {
        const char *before, *at, *after;
        bool isLeft = false;
    } cases[] = {
        {"pilot's", "ours", "pilot's"},         {none, "ours", none},
        {"pilot's", none, "pilot's"},           {none, none, none},
        {"pilot's", "pilot's", "pilot's"},      {"pilot's", "another's", "another's", true},
        {none, "another's", "another's", true},
    };
    QStringList paths, left;
    files.makeFolder(simulator / u"Texture");
    const auto put = [&](const QString& path, const char* text) {
        if (qstrcmp(text, none) != 0)
            writeFile(target(path), text);
        else if (files.exists(target(path)))
            files.remove(target(path));
    };
    for (const auto& road : cases) {
        paths << u"Texture\\%1.bmp"_s.arg(paths.size());
        put(paths.last(), road.before);
        if (road.isLeft) left << paths.last();
    }
    install("ours", paths);
    for (qsizetype i = 0; i < paths.size(); ++i)
        put(paths[i], cases[i].at);
    const FilePath stray = target(u"Texture\\stray.bmp"_s + partialCopySuffix);
    writeFile(stray, "what a kill left");
    for (const int done : {1, 0}) { // once more: what was left is left again
        const OriginalsReport report = originals().restore();
        EXPECT_EQ(report.left, left);
        EXPECT_TRUE(report.putBack == 2 * done && report.takenAway == done);
        EXPECT_TRUE(report.damaged.isEmpty() && !report.failure);
        for (qsizetype i = 0; i < paths.size(); ++i)
            EXPECT_EQ(contents(paths[i]), cases[i].after) << i;
        EXPECT_FALSE(files.exists(stray));
    }
    // What was left is the pilot's from now on and kept as such, beside the first.
    install("ours", paths);
    EXPECT_EQ(originals().restore().left, QStringList());
    EXPECT_EQ(contents(left[0]) + contents(left[1]), "another'sanother's");
}

/// Files are looked at ahead of their turn; what the pilot writes meanwhile is his.
TEST_F(OriginalsTest, aFileThatIsWrittenDuringARestoreStays) {
    const QString kept = u"Texture\\b.bmp"_s, added = u"Texture\\c.bmp"_s;
    for (const QString& path : {QString(a), kept})
        writeFile(target(path), "the pilot's");
    install("ours", {a, kept, added});
    const OriginalsReport report = originals().restore([&](double) {
        for (const QString& path : {kept, added})
            writeFile(target(path), "written meanwhile");
    });
    EXPECT_EQ(report.left, (QStringList{kept, added}));
    EXPECT_EQ(contents(a), "the pilot's");
    for (const QString& path : {kept, added})
        EXPECT_EQ(contents(path), "written meanwhile");
}

/// A mark that we took comes back, one that the pilot has set since stays, and a file that was away gets the
/// mode that it had.
TEST_F(OriginalsTest, aRestoreGivesTheModesBack) {
    const QString taken = "Texture\\taken.bmp", later = "Texture\\later.bmp",
                  between = "Texture\\between.bmp", away = "Texture\\away.bmp", added = "Texture\\added.bmp";
    const QStringList own{taken, later, between, away};
    for (const QString& path : own)
        writeFile(target(path), path.toUtf8());
    files.setMode(target(taken), 0444);
    files.setMode(target(away), 0600);
    writeFile(app / u"ours.bmp", "ours");
    originals().prepare({{app / u"ours.bmp", target(taken)}});
    originals().takeReadOnlyMark(target(taken));
    install("ours", own + QStringList{added});
    EXPECT_FALSE(files.isReadOnly(target(taken)));
    for (const QString& path : {later, between, added})
        files.setReadOnly(target(path), true);
    originals().takeReadOnlyMark(target(between)); // as an option does before it copies once more
    EXPECT_FALSE(files.isReadOnly(target(between)));
    files.remove(target(away));
    EXPECT_EQ(originals().restore().putBack, 4);
    for (const QString& path : own) {
        EXPECT_EQ(contents(path), path.toUtf8());
        EXPECT_EQ(files.stamp(target(path)).mode, modeHere(path == away ? 0600 : 0444)) << path.toStdString();
    }
    EXPECT_EQ(contents(added), "none");
}

TEST_F(OriginalsTest, aDamagedKeptFileIsLeftOutAndTheOthersComeBack) {
    const QString b = u"Texture\\b.bmp"_s, c = u"Texture\\c.bmp"_s;
    for (const QString& path : {a, b, c})
        writeFile(target(path), path.toUtf8());
    install("ours", {a, b, c});
    writeFile(keptFiles / a, "damaged");
    files.remove(keptFiles / b);
    const OriginalsReport report = originals().restore();
    EXPECT_EQ(report.damaged, (QStringList{a, b}));
    EXPECT_EQ(report.putBack, 1);
    EXPECT_EQ(contents(a) + '|' + contents(c), "ours|" + c.toUtf8());
}

/// The kept file stands for one of ours, or for what is left of one, and for nothing else.
TEST_F(OriginalsTest, thePilotsFileIsTakenInThePlaceOfOursAlone) {
    writeFile(target(a), "the pilot's");
    install("ours, new", {a});
    const std::pair<const char*, bool> cases[] = {{"ours, new", true}, {"ours", true}, {"another's", false}};
    for (const auto& [standing, isOurs] : cases) {
        writeFile(target(a), standing);
        EXPECT_EQ(originals().isOurs(target(a)), isOurs) << standing;
        EXPECT_EQ(originals().keptFile(target(a)).has_value(), isOurs) << standing;
    }
    writeFile(target(a), "ours, new");
    EXPECT_FALSE(originals().takeAsPilots(a));
    originals().layAside(target(a));
    EXPECT_EQ(contentsBelow(keptFiles).size(), 2) << "the list and what was kept";
    writeFile(keptFiles / a, "damaged");
    EXPECT_FALSE(originals().keptFile(target(a)));
    files.remove(target(a));
    EXPECT_FALSE(originals().isOurs(target(a)));
}

/// A folder stands where one of ours should: no look, restore or undo can read it.
TEST_F(OriginalsTest, whatCannotBeReadCostsNoOther) {
    const QString b = u"Texture\\b.bmp"_s;
    for (const QString& path : {a, b})
        writeFile(target(path), path.toUtf8());
    install("ours", {a, b});
    const auto makeUnreadable = [&] {
        files.remove(target(a));
        files.makeFolder(target(a));
    };
    makeUnreadable();
    const auto places = originals().check(CheckDepth::everyFile);
    EXPECT_TRUE(places.at(0).state == PlaceState::changed && places.at(1).state == PlaceState::ours);
    const OriginalsReport report = originals().restore();
    ASSERT_TRUE(report.failure);
    EXPECT_TRUE(report.failure->description().contains(target(a).fileName())) << report.failure->what();
    EXPECT_EQ(report.putBack, 1);
    EXPECT_EQ(contents(b), b.toUtf8());

    files.removeFolder(target(a));
    Originals step = originals();
    step.prepare({{app / u"ours.bmp", target(a)}, {app / u"ours.bmp", target(b)}});
    writeFile(target(b), "ours");
    files.makeFolder(target(a));
    const OriginalsReport undone = originals().undo({step.stood().cbegin(), step.stood().cend()}, {});
    EXPECT_TRUE(undone.failure && undone.putBack == 1);
    EXPECT_EQ(contents(b), b.toUtf8());
}

/// Of another install's kept files those come along that are whole and not known yet.
TEST_F(OriginalsTest, whatIsTakenOverIsWhole) {
    const QString b = u"Texture\\b.bmp"_s, c = u"Texture\\c.bmp"_s;
    const FilePath another = folder / u"Another Mörvane";
    for (const QString& path : {a, b, c})
        writeFile(target(path), path.toUtf8());
    install("ours", {a, b, c});
    files.rename(app, another);
    writeFile(another / u"Backup\\Originals" / b, "damaged");
    files.remove(another / u"Backup\\Originals" / c);
    for (const int time : {1, 2}) {
        originals().adopt(another);
        EXPECT_EQ(keptPaths(), QStringList(a + u" 1"_s)) << time;
        EXPECT_EQ(contentsBelow(keptFiles).size(), 2) << "the list and one file";
    }
    writeFile(another / u"Backup\\Originals\\originals.lst", "morvane-originals\t3\tnobody knows\n");
    originals().adopt(another);
    EXPECT_EQ(keptPaths(), QStringList(a + u" 1"_s));
    EXPECT_EQ(originals().restore().putBack, 1);
    EXPECT_EQ(contents(a) + '|' + contents(b), a.toUtf8() + "|ours");
}

TEST_F(OriginalsTest, foldersThatWereMadeGoWhenTheyAreEmpty) {
    files.makeFolder(simulator);
    for (const bool hasOther : {false, true}) {
        const QString made = u"Flights\\Morvane"_s;
        originals().makeFolder(simulator / made);
        install("ours", {made + u"\\Circuit.flt"_s});
        if (hasOther) writeFile(target(u"Flights\\note.txt"_s), "the pilot's");
        EXPECT_EQ(originals().restore().takenAway, 1);
        EXPECT_FALSE(files.exists(target(made)));
        EXPECT_EQ(files.exists(target(u"Flights"_s)), hasOther);
    }
    originals().makeFolder(target(u"Taken away"_s));
    files.removeFolder(target(u"Taken away"_s));
    EXPECT_FALSE(originals().restore().failure);
    EXPECT_FALSE(originals().records().contains(u"Taken away"_s));
    if (!hasLinks) return;
    // In its place the pilot has put a link.
    const FilePath link = target(u"Linked"_s);
    originals().makeFolder(link);
    files.removeFolder(link);
    ASSERT_TRUE(QFile::link(folder.path().native(), link.native()));
    originals().restore();
    EXPECT_TRUE(files.isLink(link));
}

/// Each simulator has a list of its own; one that was moved goes on with its old one, and one that seemed to
/// have moved finds what it knew when it turns up again.
TEST_F(OriginalsTest, everySimulatorHasItsOwnList) {
    const auto at = [&](const char16_t* name) { return FilePath((folder / name).native()); };
    const FilePath first = at(u"First"), second = at(u"Second"), moved = at(u"Moved"), kept = at(u"Kept");
    const QString added = "Texture\\added.bmp";
    for (const FilePath& one : {first, second}) {
        simulator = one;
        writeFile(simulator / u"fs9.exe", "MZ");
        writeFile(target(a), one.fileName().toUtf8());
        install("ours", {a, added});
        EXPECT_EQ(originals().list().size(), 1u);
    }
    EXPECT_EQ(originals().list()[0].copy, "Simulator 2\\Texture\\a.bmp");

    files.rename(first, moved);
    simulator = moved;
    const QByteArray untouched = readFile(listFile);
    EXPECT_EQ(originals().list().at(0).copy, a);
    EXPECT_EQ(readFile(listFile), untouched); // looking is not writing
    install("ours, the second", {a});
    // A drive that was only away: the list is the moved one's, which knows of the first what was known then.
    files.rename(moved, kept);
    simulator = first;
    writeFile(simulator / u"fs9.exe", "MZ");
    for (const QString& path : {a, added})
        writeFile(target(path), "ours");
    files.rename(kept, moved);
    install("ours, the third", {a});
    EXPECT_EQ(originals().list().at(0).copy, a);
    for (const FilePath& one : {first, second, moved}) {
        simulator = one;
        EXPECT_EQ(originals().restore().left, QStringList());
        EXPECT_EQ(
            contentsBelow(simulator),
            (Tree{{"Texture/a.bmp", one.fileName() == "Second" ? "Second" : "First"}, {"fs9.exe", "MZ"}}))
            << qPrintable(one.text());
    }
}

/// In it our bytes and the pilot's are the same and say nothing.
TEST_F(OriginalsTest, aFolderThatWasRenamedIsKnownByItsNumber) {
    writeFile(simulator / u"fs9.exe", "MZ");
    writeFile(target(a), "the same");
    install("the same", {a});
    const FilePath renamed((folder / u"Renamed").native());
    files.rename(simulator, renamed);
    simulator = FilePath((folder / u"Nowhere").native());
    EXPECT_EQ(keptPaths(), QStringList());
    simulator = renamed;
    EXPECT_EQ(keptPaths(), QStringList{a + u" 1"_s});
    install("ours", {a});
    if (hasLinks) {
        simulator = FilePath((folder / u"Linked").native());
        ASSERT_TRUE(QFile::link(renamed.native(), simulator.native()));
        EXPECT_EQ(keptPaths(), QStringList{a + u" 1"_s});
    }
}

TEST_F(OriginalsTest, aRenamedFolderWithNothingThatWasThereIsANewOne) {
    writeFile(simulator / u"fs9.exe", "MZ");
    writeFile(target(a), "the pilot's");
    install("ours", {a});
    const FilePath renamed((folder / u"Renamed").native());
    files.rename(simulator, renamed);
    simulator = renamed;
    EXPECT_EQ(keptPaths(), QStringList{a + u" 1"_s});
    files.remove(target(a));
    EXPECT_EQ(keptPaths(), QStringList());
}

/// What stands in the new place, and whether it is the old simulator, moved there.
TEST_F(OriginalsTest, aMovedSimulatorIsKnownByWhatWePutThere) {
    constexpr int many = 50;
    const struct {
        const char* how;
        int ours;
        bool withTimes, oldStands, isKnown;
    } cases[] = {
        {"moved to another drive", many, true, false, true},
        {"and all but one changed since", 1, true, false, true},
        {"moved, the times lost", many, false, false, true},
        {"the pilot's files and one of ours by chance", 1, false, false, false},
        {"and more by chance", 2 * many / 5 + 1, false, false, false},
        {"a copy of it", many, true, true, false},
        {"new", 0, false, false, false},
    };
    QStringList paths;
    for (int i = 0; i < many; ++i)
        paths << u"Texture\\%1.bmp"_s.arg(i);
    int number = 0;
    for (const auto& move : cases) {
        simulator = FilePath((folder / u"Old %1"_s.arg(++number)).native());
        const FilePath from = simulator, to((folder / u"New %1"_s.arg(number)).native());
        writeFile(from / u"fs9.exe", "MZ");
        const QByteArray ours = "ours " + QByteArray::number(number), own = "the pilot's " + ours;
        for (const QString& path : paths)
            writeFile(from / path, own);
        install(ours, paths);
        for (int i = 0; i < many; ++i) {
            writeFile(to / paths[i], i < move.ours ? ours : own);
            // Less exactly than the list knows it, as of some drives.
            const QDateTime time = QFileInfo((from / paths[i]).native()).lastModified();
            QFile file((to / paths[i]).native());
            ASSERT_TRUE(file.open(QIODevice::ReadWrite));
            ASSERT_TRUE(file.setFileTime(move.withTimes ? time : time.addSecs(-3600),
                                         QFileDevice::FileModificationTime));
        }
        if (!move.oldStands) files.remove(from / u"fs9.exe");
        simulator = to;
        EXPECT_EQ(originals().list().size(), move.isKnown ? many : 0) << move.how;
    }
}

/// Lists of old had no head, a line a fact and the spelling of our own files.
TEST_F(OriginalsTest, aListOfOldIsTakenOver) {
    const QString other = u"Texture\\other.bmp"_s;
    writeFile(target(a), "ours");
    writeFile(target(other), "ours");
    writeFile(keptFiles / a, "abc");
    const QByteArray ours = fingerprintOf(QByteArray("ours")).checksum.hex();
    writeFile(listFile, "\t\nours\t4\t" + ours + "\tTEXTURE\\A.bmp\n\t\nkept\t3\t" +
                            "a9993e364706816aba3e25717850c26c9cd0d89d\ttexture\\a.bmp\nours\t4\t" + ours +
                            "\tTexture\\other.bmp\nkept\t9\tbeef\t..\\..\\out.bmp\nkept\t12\ttorn");
    EXPECT_EQ(keptPaths(), QStringList{a + u" 1"_s});
    install("ours, the second", {a});
    EXPECT_TRUE(readFile(listFile).startsWith("morvane-originals\t2\t"));
    EXPECT_EQ(keptPaths(), QStringList{a + u" 1"_s});
    files.remove(target(a)); // nor was a mode noted
    // What stood in the other's place was never noted, so it is not taken away.
    EXPECT_EQ(originals().restore().left, QStringList{other});
    EXPECT_EQ(contents(a) + '|' + contents(other), "abc|ours");
}

/// Without a list that can be read and understood nothing is replaced, and one message says why.
TEST_F(OriginalsTest, anInstallWithoutAUsableListReplacesNothing) {
    const QByteArray newer = "morvane-originals\t3\tnobody knows\n";
    for (const QString& told :
         {u"The list of your kept files was written by a newer version"_s, u"Permission denied: "_s}) {
        SmallInstall small;
        small.addGroundSet("2-Storm", "Overcast", true, {"Texture\\029h2su6.bmp"});
        const FilePath list = small.home() / u"Backup\\Originals\\originals.lst";
        // A folder in its place: no mode would keep a test that runs as root from reading a file.
        told.startsWith("Perm") ? small.files.makeFolder(list) : writeFile(list, newer);
        const auto before = contentsBelow(small.simulator());
        GroundInstallation(small.session).installTextureSet("2-Storm");
        EXPECT_EQ(contentsBelow(small.simulator()), before);
        EXPECT_TRUE(small.user.told().join(u'/').startsWith("Error|Morvane Error|" + told));
        EXPECT_TRUE(small.files.isFolder(list) || readFile(list) == newer);
    }
}

} // namespace
} // namespace morvane::test
