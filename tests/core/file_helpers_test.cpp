#include "core/file_helpers.h"

#include "support/printing.h"
#include "support/small_install.h"

#include <QFile>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::writeFile;

TEST(FileTime, isLocalAndWithoutSeconds) {
    test::SmallInstall install;
    const FilePath file = install.folder / u"Export_Cycle.dat";
    writeFile(file, "EHAM");
    const std::pair<QDateTime, QString> cases[] = {
        {{QDate(2006, 7, 14), QTime(14, 7, 33)}, u"2006/07/14 14:07:00"_s},
        {{QDate(1999, 12, 31), QTime(23, 59, 59)}, u"1999/12/31 23:59:00"_s},
        {{QDate(2007, 1, 2), QTime(0, 0, 1)}, u"2007/01/02 00:00:00"_s},
    };
    for (const auto& [time, text] : cases) {
        QFile opened(file.native());
        ASSERT_TRUE(opened.open(QIODevice::ReadWrite));
        ASSERT_TRUE(opened.setFileTime(time, QFileDevice::FileModificationTime));
        opened.close();
        EXPECT_EQ(GetFileTime(install.session, file), text);
    }
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST(FileTime, ofAFileThatCannotBeOpenedIsToldAndEmpty) {
    test::SmallInstall install;
    EXPECT_EQ(GetFileTime(install.session, install.folder / u"missing.dat"), QString());
    EXPECT_EQ(GetFileTime(install.session, install.home()), QString());
    const QString told = u"Error|Morvane Error|Error opening file"_s;
    EXPECT_EQ(install.user.told(), QStringList({told, told}));
}

TEST(SystemTimeTexts, onlyTheDateIsPadded) {
    const QDateTime time(QDate(2006, 7, 4), QTime(4, 7, 3, 25));
    EXPECT_EQ(FormatSystemTimeTime(time), u"4:7:3.25"_s);
    EXPECT_EQ(FormatSystemTimeDate(time), u"2006/07/04"_s);
    test::ScriptedClock clock;
    clock.now = QDateTime(QDate(2007, 3, 1), QTime(0, 5, 9), Qt::OffsetFromUTC, 3600);
    EXPECT_EQ(getUtcText(clock), u"2007/02/28 23:05"_s);
}

TEST(Existence, aFolderTestCleansTheCallersText) {
    const test::TemporaryFolder folder;
    NativeFileSystem files;
    writeFile(folder / u"Flights\\a.flt", "[Main]");
    const QString path = (folder / u"Flights").native();
    struct Case {
        QString given;
        bool found;
        QString after;
    };
    const Case cases[] = {
        {path, true, path},
        {path + u'\\', true, path},
        {u"  "_s + path + u"\\ "_s, true, path},
        {path + u"/a.flt"_s, false, path + u"/a.flt"_s},
        {path + u"/none\\"_s, false, path + u"/none"_s},
        {u" \\ "_s, false, {}},
        {{}, false, {}},
    };
    for (const Case& c : cases) {
        QString text = c.given;
        EXPECT_EQ(FolderExists(files, text), c.found) << c.given.toStdString();
        EXPECT_EQ(text, c.after) << c.given.toStdString();
    }
    EXPECT_TRUE(FileExists(files, folder / u"Flights")); // a folder counts, too
    EXPECT_TRUE(FileExists(files, folder / u"FLIGHTS\\A.FLT"));
    EXPECT_FALSE(FileExists(files, folder / u"Flights\\b.flt"));
}

/// The fixed version record as executables carry it: a mark, its own version, the file's version.
QByteArray versionRecord(const char* fileVersion) {
    return QByteArray::fromHex("bd04effe"
                               "00000100") +
           QByteArray::fromHex(fileVersion);
}

TEST(FileVersion, isReadFromTheFixedRecord) {
    const test::TemporaryFolder folder;
    NativeFileSystem files;
    const std::pair<QByteArray, QString> cases[] = {
        // 16-bit numbers, the higher one of each pair behind the lower.
        {"MZ..." + versionRecord("00000600"
                                 "07000114"),
         u"6.0.5121.7"_s},
        {versionRecord("ffffffff"
                       "ffffffff") +
             "tail",
         u"65535.65535.65535.65535"_s},
        {"MZ, an executable without a record", {}},
        {"MZ..." + versionRecord("00000600"
                                 "070001"),
         {}}, // cut inside the record
        {{}, {}},
    };
    for (const auto& [contents, text] : cases) {
        writeFile(folder / u"ASv6.exe", contents);
        EXPECT_EQ(getFileVersionText(files, folder / u"ASv6.exe"), text);
    }
    EXPECT_EQ(getFileVersionText(files, folder / u"missing.exe"), QString());
}

TEST(FileVersion, missingAndOddPartsCountAsNothing) {
    struct Case {
        QString version;
        int parts[4];
    };
    const Case cases[] = {{u"6.0.5121.7"_s, {6, 0, 5121, 7}},
                          {u"7.0"_s, {7, 0, 0, 0}},
                          {u"6.x.5120"_s, {6, 0, 5120, 0}},
                          {{}, {0, 0, 0, 0}}};
    for (const Case& c : cases)
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(versionPart(c.version, i), c.parts[i]) << c.version.toStdString() << ' ' << i;
}

} // namespace
} // namespace morvane
