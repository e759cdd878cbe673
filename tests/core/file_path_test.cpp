#include "core/file_path.h"
#include "core/file_system.h"

#include "support/printing.h"
#include "support/raised_error.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <functional>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::TemporaryFolder;
using test::writeFile;

TEST(FilePath, findsTheSpellingOnTheDisk) {
    TemporaryFolder folder;
    const QString root = folder.path().native();
    writeFile(folder / u"Scenery/World/texture/029H2SU6.BMP", "old");
    writeFile(folder / u"Ünï.txt", "x");
    const FilePath world = folder / u"scenery\\WORLD\\Texture\\";
    EXPECT_EQ((world / u"029h2su6.bmp").native(), root + u"/Scenery/World/texture/029H2SU6.BMP"_s);
    EXPECT_EQ((world / u"new.bmp").native(), root + u"/Scenery/World/texture/new.bmp"_s);
    EXPECT_EQ((folder / u"üNÏ.TXT").native(), root + u"/Ünï.txt"_s);
    QFile other(root + u"/üNÏ.TXT"_s); // the exact spelling wins over another
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    EXPECT_EQ((folder / u"üNÏ.TXT").native(), other.fileName());
    EXPECT_EQ((folder / u"Ünï.txt").native(), root + u"/Ünï.txt"_s);
}

TEST(FilePath, noTextLeadsOutOfTheRoot) {
    const FilePath root("/somewhere");
    for (const char16_t* text : {u"..\\x", u"a\\..\\..\\b", u"C:\\x", u"a/../../etc", u"a\\.. \\b", u"..."})
        EXPECT_THROW(root / text, Error) << QStringView(text).toString().toStdString();
    for (const char* name : {"", ".", "..", " ", "a\\b", "a/b", "C:"})
        EXPECT_THROW(root.child(QString(name)), Error) << name;
    EXPECT_EQ((root / u"\\a\\\\b\\").text(), "/somewhere/a/b");
    EXPECT_EQ((FilePath("/") / u"a").text(), "/a");
}

TEST(FilePath, masksMatchWithoutRegardToCase) {
    EXPECT_TRUE(matchesMask(u"029H2SU6.BMP", u"029*2su?.bmp"));
    EXPECT_TRUE(matchesMask(u"readme", u"*.*")); // with or without a dot
    EXPECT_FALSE(matchesMask(u"x.bmp.part", u"*.bmp"));
}

TEST(NativeFileSystem, listsFilesByUpperCasedNameAndSeesTheOwnersMode) {
    TemporaryFolder folder;
    for (const char16_t* name : {u"b.bmp", u"A.BMP", u".hidden.bmp", u"_.bmp", u"c.txt"})
        writeFile(folder / name, "x");
    NativeFileSystem files;
    files.makeFolder(folder / u"folder.bmp");
    EXPECT_EQ(files.list(folder.path(), "*.bmp"), QStringList({".hidden.bmp", "A.BMP", "b.bmp", "_.bmp"}));
    EXPECT_TRUE(files.list(folder / u"missing", "*.*").isEmpty());
    files.setReadOnly(folder / u"b.bmp", true);
    EXPECT_TRUE(files.isReadOnly(folder / u"B.BMP")); // also for root, who may write to it all the same
    EXPECT_THROW(files.removeFolder(folder.path()), Error);
}

TEST(NativeFileSystem, tellsWhatIsMissingFromWhatIsClosed) {
    TemporaryFolder folder;
    NativeFileSystem files;
    const FilePath file = folder / u"a.txt", standing = folder / u"folder", orphan = folder / u"none\\a.txt";
    files.makeFolder(standing);
    files.write(file, "x");
    const struct {
        const char* what;
        std::function<void()> action;
        ErrorCode code;
    } cases[] = {
        {"read, missing", [&] { files.read(folder / u"b.txt"); }, ErrorCode::fileNotFound},
        {"copy, no source", [&] { files.copyContents(orphan, file); }, ErrorCode::fileNotFound},
        {"copy, no folder", [&] { files.copyContents(file, orphan); }, ErrorCode::pathNotFound},
        {"copy over a folder", [&] { files.copyContents(file, standing); }, ErrorCode::permissionDenied},
        {"write, no folder", [&] { files.write(orphan, "x"); }, ErrorCode::pathNotFound},
        {"append, no folder", [&] { files.append(orphan, "x"); }, ErrorCode::pathNotFound},
        {"append to a folder", [&] { files.append(standing, "x"); }, ErrorCode::permissionDenied},
        {"rename, no source", [&] { files.rename(orphan, file); }, ErrorCode::pathNotFound},
        {"rename, no folder", [&] { files.rename(file, orphan); }, ErrorCode::pathNotFound},
    };
    for (const auto& c : cases)
        EXPECT_EQ(test::codeRaisedBy(c.action), c.code) << c.what;
    EXPECT_EQ(test::readFile(file), "x");
}

} // namespace
} // namespace morvane
