#include "core/disk_spelling.h"
#include "core/file_path.h"
#include "core/file_system.h"
#include "core/safe_copy.h"

#include "support/raised_error.h"
#include "support/system_files.h"
#include "support/temporary_folder.h"
#include "support/testing.h"

#include <functional>
#include <optional>
#include <thread>

#ifndef Q_OS_WIN
#include <csignal>
#include <sys/resource.h>
#endif

namespace morvane::test {
namespace {

TEST(FilePath, noTextLeadsOutOfTheRoot) {
    const FilePath root("/somewhere");
    for (const char16_t* text : {u"..\\x", u"a\\..\\..\\b", u"C:\\x", u"a/../../etc", u"a\\.. \\b", u"..."})
        EXPECT_THROW(root / text, Error) << QStringView(text).toString().toStdString();
    for (const char* name : {"", ".", "..", " ", "a\\b", "a/b", "C:"})
        EXPECT_THROW(root.child(QString(name)), Error) << name;
    EXPECT_EQ((root / u"\\a\\\\b\\").native(), "/somewhere/a/b");
}

TEST(NativeFileSystem, tellsWhatIsMissingFromWhatIsClosed) {
    TemporaryFolder folder;
    NativeFileSystem files;
    const FilePath file = folder / u"a.txt", standing = folder / u"folder", orphan = folder / u"none\\a.txt";
    files.makeFolder(standing);
    files.write(file, "x");
    const std::pair<std::function<void()>, ErrorCode> cases[] = {
        {[&] { files.read(folder / u"b.txt"); }, ErrorCode::fileNotFound},
        {[&] { files.copyContents(file, orphan); }, ErrorCode::pathNotFound},
        {[&] { files.copyContents(file, standing); }, ErrorCode::permissionDenied},
        {[&] { files.rename(orphan, file); }, ErrorCode::pathNotFound},
        {[&] { files.removeFolder(folder.path()); }, ErrorCode::folderNotEmpty},
    };
    for (const auto& [action, code] : cases)
        EXPECT_EQ(codeRaisedBy(action), code);
    EXPECT_EQ(readFile(file), "x");
}

#ifdef Q_OS_WIN

TEST(NativeFileSystem, waitsForAFileThatAnotherProgramLetsGoOf) {
    TemporaryFolder folder;
    NativeFileSystem files;
    std::optional<UnreadableFile> held(std::in_place, folder / u"Ünï.bmp");
    std::jthread other([&] { held.reset(); });
    EXPECT_EQ(files.read(folder / u"Ünï.bmp"), "held");
}

#else

/// While it lives no file can be made longer than that, as on a full disk.
struct FileSizeLimit {
    explicit FileSizeLimit(rlim_t bytes) : handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }
    void (*handler)(int);
    rlimit before{};
};

/// The message speaks of the file that was to be, and nothing but that file is there.
TEST(NativeFileSystem, makesAFileOnlyWhereNoneIsAndFlushesWhatIsGoneToo) {
    const TemporaryFolder folder;
    NativeFileSystem files;
    const FilePath inside = folder / u"new Ü\\newer", file = inside / u"a.bmp";
    files.makeFolder(inside);
    EXPECT_TRUE(files.writeNew(file, "the first"));
    EXPECT_FALSE(files.writeNew(file, "another"));
    EXPECT_EQ(readFile(file), "the first");
    files.setReadOnly(file, true);
    files.makeFolder(folder / u"passing Ü\\inner");
    files.removeFolder(folder / u"passing Ü\\inner");
    files.removeFolder(folder / u"passing Ü");
    EXPECT_NO_THROW(files.makeDurable({file, folder / u"passing Ü\\inner\\gone.bmp"}));
    EXPECT_NO_THROW(files.makeDurable(std::vector(20, folder / u"passing Ü\\inner\\gone.bmp")));
    EXPECT_TRUE(files.isReadOnly(file));
    EXPECT_THROW(files.writeNew(folder / u"none\\a.bmp", "a"), Error);
}

TEST(NativeFileSystem, aFailedWriteLeavesNothingAndNamesTheFile) {
    TemporaryFolder folder;
    NativeFileSystem files;
    const FilePath source = folder / u"source.bmp", target = folder / u"Ünï.bmp", fresh = folder / u"new.bmp";
    const QByteArray contents(5000, 'x');
    files.write(source, contents);
    files.write(target, "old");
    for (const FilePath& file : {target, fresh}) {
        const std::function<void()> actions[] = {[&] { replaceFile(files, source, file); },
                                                 [&] { files.write(file, contents); }};
        for (const auto& action : actions) {
            const FileSizeLimit limit(1000);
            EXPECT_EQ(descriptionRaisedBy(action), u"Disk full: "_s + file.text());
            EXPECT_TRUE(files.list(folder.path(), u"*"_s + partialCopySuffix).isEmpty());
        }
    }
    EXPECT_EQ(readFile(target), "old");
    EXPECT_EQ(files.list(folder.path(), u"*"_s), (QStringList{u"source.bmp"_s, u"Ünï.bmp"_s}));
}

/// On a disk that tells letters apart.
TEST(DiskSpelling, findsTheNameItselfElseTheFirstThatDiffersInCaseAlone) {
    const TemporaryFolder folder;
    NativeFileSystem files;
    files.makeFolder(folder / u"Ünder\\inner.part");
    for (const char16_t* name : {u"ab.bmp", u"Ab.bmp", u"aB.bmp", u"straße.bmp", u"Ärger.BMP", u"\u212A.bmp",
                                 u"STRASSE.txt", u"a\U00010400.bmp", u"one.bmp.Part", u"part", u"liquid"})
        files.write((folder / u"Ünder").exactChild(QStringView(name).toString()), "x");
    DiskSpelling spelling(files, folder.path());
    const std::pair<QStringView, QStringView> cases[] = {
        {u"aB.bmp", u"aB.bmp"},
        {u"AB.BMP", u"Ab.bmp"},
        {u"äRGER.bmp", u"Ärger.BMP"},
        {u"STRASSE.bmp", u"STRASSE.bmp"},
        {u"k.bmp", u"\u212A.bmp"},
        {u"strasse.TXT", u"STRASSE.txt"},
        {u"A\U00010428.bmp", u"a\U00010400.bmp"},
        {u"New.bmp", u"New.bmp"},
        {u"new.bmp", u"New.bmp"},
        {u"costarring", u"costarring"}, // has the hash of "liquid"
        {u"zap.bmp", u"zap.bmp"},
    };
    for (const auto& [asked, found] : cases)
        EXPECT_EQ(spelling.find(u"ünder\\"_s + asked.toString()).fileName(), found.toString());
    EXPECT_EQ(spelling.findExactly(u"ünder\\Zap.bmp"_s).fileName(), "Zap.bmp");
    EXPECT_EQ(spelling.find(u"ünder\\ZAP.bmp"_s).fileName(), "zap.bmp"); // the first of them
    EXPECT_EQ(spelling.findExactly(u"ünder\\STRAßE.bmp"_s).fileName(), "STRAßE.bmp");
    const std::vector<FilePath> parts = spelling.filesEndingWith(u"Ünder"_s, u".part");
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_EQ(parts[0].fileName(), "one.bmp.Part");
}

#endif

} // namespace
} // namespace morvane::test
