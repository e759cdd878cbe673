#include "simulator/originals.h"

#include "core/safe_copy.h"
#include "ground/ground_installation.h"
#include "ground/ground_selection.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <QFile>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::readFile;
using test::writeFile;

struct OriginalsTest : testing::Test {
    test::TemporaryFolder folder;
    NativeFileSystem files;
    /// The root of every path, as a session has it: what is kept is named below it.
    const FilePath simulator{(folder / u"Simulator").native()};
    const FilePath app = folder / u"Morvane";
    const FilePath listFile = app / u"Backup\\Originals\\originals.lst";

    Originals originals() { return {files, simulator, app}; }
    FilePath target(const QString& path) const { return simulator / path; }

    /// Puts `contents` under each of the paths as an install does; unfinished as a kill before its end
    /// leaves it.
    void install(const QByteArray& contents, const QStringList& paths, bool finished = true) {
        const FilePath source = folder / u"ours.bmp";
        writeFile(source, contents);
        std::vector<FileCopy> copies;
        for (const QString& path : paths)
            copies.push_back({source, target(path)});
        Originals kept = originals();
        kept.announce(copies);
        for (const FileCopy& copy : copies) {
            kept.keep(copy.target);
            replaceFile(files, copy.source, copy.target);
        }
        if (finished) kept.settle();
    }
    QStringList keptPaths() {
        QStringList paths;
        for (const KeptOriginal& original : originals().list())
            paths << original.path;
        return paths;
    }
};

TEST_F(OriginalsTest, aFileIsKeptOnceWithSizeAndCheckSum) {
    writeFile(target(u"Texture\\a.bmp"_s), "abc");
    install("ours, the first", {u"Texture\\a.bmp"_s});
    install("ours, the second", {u"Texture\\a.bmp"_s});
    const auto list = originals().list();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].path, u"Texture\\a.bmp"_s);
    EXPECT_EQ(list[0].size, 3);
    EXPECT_EQ(list[0].checksum, u"a9993e364706816aba3e25717850c26c9cd0d89d"_s);
    EXPECT_EQ(readFile(app / u"Backup\\Originals\\Texture\\a.bmp"), "abc");

    // Kept is kept: what the pilot puts there later does not take its place.
    writeFile(target(u"Texture\\a.bmp"_s), "the pilot's next");
    install("ours, the third", {u"Texture\\a.bmp"_s});
    EXPECT_EQ(originals().restore(), 1);
    EXPECT_EQ(readFile(target(u"Texture\\a.bmp"_s)), "abc");
}

TEST_F(OriginalsTest, aFileOfOursIsNeverTakenForThePilots) {
    files.makeFolder(simulator / u"Texture");
    const QStringList added{u"Texture\\new.bmp"_s};
    install("ours, the first", added);
    install("ours, the second", added);
    install("ours, the third", added, false); // killed before its end,
    install("ours, the fourth", added, false);
    writeFile(target(added[0]), "ours, the third"); // and it is open which of the two stands there
    install("ours, the fifth", added);
    EXPECT_EQ(keptPaths(), QStringList());

    // A file of the pilot's in the place of ours is his, and nothing was kept there before.
    writeFile(target(added[0]), "the pilot's own");
    install("ours, the sixth", added);
    EXPECT_EQ(keptPaths(), added);
    EXPECT_EQ(readFile(app / u"Backup\\Originals\\Texture\\new.bmp"), "the pilot's own");
}

TEST_F(OriginalsTest, aKillAtAnyByteOfTheListLosesNothing) {
    const QString path = u"Scenery\\World\\texture\\Größe.bmp"_s;
    writeFile(target(path), "the pilot's");
    install("ours", {path}, false);
    const QByteArray whole = readFile(listFile);
    ASSERT_GT(whole.size(), 150); // a line for what is ours and one for what is kept
    for (qsizetype length = 0; length < whole.size(); ++length) {
        // The line of a kept file comes before its replacement, so the pilot's file stands there still.
        writeFile(target(path), "the pilot's");
        writeFile(listFile, whole.left(length));
        install("ours", {path}, false); // a second kill, before the list was written anew
        ASSERT_EQ(keptPaths(), QStringList{path}) << length;
        install("ours", {path});
        ASSERT_EQ(keptPaths(), QStringList{path}) << length;
        ASSERT_EQ(originals().restore(), 1) << length;
        ASSERT_EQ(readFile(target(path)), "the pilot's") << length;
    }
}

TEST_F(OriginalsTest, aFileKeptWithoutItsLineIsListedByTheNextInstall) {
    writeFile(target(u"Texture\\a.bmp"_s), "the pilot's");
    writeFile(app / u"Backup\\Originals\\Texture\\a.bmp", "the pilot's");
    // A copy cut short beside it is not taken for the file.
    writeFile(app / (u"Backup\\Originals\\Texture\\a.bmp"_s + partialCopySuffix), "the pi");
    EXPECT_EQ(keptPaths(), QStringList());
    install("ours", {u"Texture\\a.bmp"_s});
    EXPECT_EQ(keptPaths(), QStringList{u"Texture\\a.bmp"_s});
    EXPECT_EQ(originals().restore(), 1);
    EXPECT_EQ(readFile(target(u"Texture\\a.bmp"_s)), "the pilot's");
}

TEST_F(OriginalsTest, namesAreOneWhateverTheirCase) {
    writeFile(target(u"Scenery\\World\\texture\\ÖSTERSUND.BMP"_s), "the pilot's");
    install("ours, the first", {u"scenery\\WORLD\\Texture\\Östersund.bmp"_s});
    install("ours, the second", {u"Scenery\\World\\texture\\östersund.BMP"_s});
    EXPECT_EQ(keptPaths().size(), 1);
    EXPECT_EQ(originals().restore(), 1);
    const auto inside = test::contentsBelow(simulator);
    EXPECT_EQ(inside.keys(), QStringList{u"Scenery/World/texture/ÖSTERSUND.BMP"_s});
    EXPECT_EQ(inside.first(), "the pilot's");
}

TEST_F(OriginalsTest, restoreWritesToReadOnlyFilesAndLeavesThemSo) {
    const QString path = u"Texture\\a.bmp"_s;
    writeFile(target(path), "the pilot's");
    install("ours", {path});
    files.setReadOnly(target(path), true);
    EXPECT_EQ(originals().restore(), 1);
    EXPECT_EQ(readFile(target(path)), "the pilot's");
    EXPECT_TRUE(files.isReadOnly(target(path)));
    EXPECT_EQ(originals().restore(), 1); // and once more: what is kept stays kept
}

TEST_F(OriginalsTest, anInstallWithoutAReadableListReplacesNothing) {
    test::SmallInstall small;
    small.addGroundSet(u"2-Storm"_s, u"Overcast"_s, true, {u"Texture\\029h2su6.bmp"_s});
    // A folder in its place: no mode would keep a test that runs as root from reading a file.
    small.files.makeFolder(small.home() / u"Backup\\Originals\\originals.lst");
    const auto before = test::contentsBelow(small.simulator());
    clickGroundRow(small.session, u"2-Storm"_s);
    GroundInstallation(small.session).installTextureSet(true);
    EXPECT_EQ(test::contentsBelow(small.simulator()), before);
    ASSERT_EQ(small.user.told().size(), 1);
    EXPECT_TRUE(small.user.told()[0].startsWith(u"Error|Morvane Error|Permission denied: "_s));
}

} // namespace
} // namespace morvane
