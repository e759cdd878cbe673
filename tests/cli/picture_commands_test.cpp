#include "cli/console.h"

#include "support/printing.h"

#include <QFileInfo>
#include <QImage>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::readFile;
using test::runConsole;
using test::smallBitmap;
using test::writeFile;

struct PictureCommands : testing::Test {
    test::TemporaryFolder folder;
    const QString in = (folder / u"base imâge.bmp").native(), out = (folder / u"out.bmp").native();

    test::ConsoleRun recolour(const QString& colours) {
        return runConsole({u"recolour"_s, colours, in, out});
    }
    test::ConsoleRun compress() { return runConsole({u"compress"_s, in, out}); }
};

TEST_F(PictureCommands, recolouringChangesEachPixelAsTheColoursSay) {
    QImage base(5, 3, QImage::Format_RGB888);
    base.fill(qRgb(120, 140, 90));
    ASSERT_TRUE(base.save(in, "BMP"));
    const std::pair<const char*, QRgb> cases[] = {
        {"10:2:1:-3:6:3", qRgb(130, 153, 88)},
        {"0:0:0:0:0:0", qRgb(120, 140, 90)},
    };
    for (const auto& [colours, expected] : cases) {
        const auto run = recolour(QString::fromLatin1(colours));
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.messages + QString::fromUtf8(run.output), QString());
        const QImage result(out);
        ASSERT_EQ(result.size(), base.size());
        for (const QPoint& point : {QPoint(0, 0), QPoint(4, 2)})
            EXPECT_EQ(result.pixel(point), expected) << colours;
    }
}

TEST_F(PictureCommands, aTextureIsMadeOfSidesThatTheSimulatorTakes) {
    writeFile(folder / u"base imâge.bmp", smallBitmap(64, 90));
    EXPECT_EQ(compress().status, 0);
    const QByteArray texture = readFile(folder / u"out.bmp");
    EXPECT_EQ(texture.mid(30, 4), "DXT1");
    EXPECT_EQ(texture.mid(54, 4), "FS70");
    EXPECT_EQ(texture.size(), 74 + 8 * (256 + 64 + 16 + 4 + 1 + 1 + 1)); // blocks of all seven levels

    // And what the console wrote, it can read.
    EXPECT_EQ(runConsole({u"recolour"_s, u"0:0:0:0:0:0"_s, out, in}).status, 0);
    EXPECT_EQ(QImage(in).size(), QSize(64, 64));
}

TEST_F(PictureCommands, otherSidesGiveNoFile) {
    writeFile(folder / u"base imâge.bmp", smallBitmap(200, 90));
    const auto run = compress();
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.messages, u"Error: Morvane Error\n  No texture was made of "_s + in + u'\n');
    EXPECT_FALSE(QFileInfo::exists(out));
}

QByteArray withBytes(QByteArray file, int at, const char* digits) {
    const QByteArray bytes = QByteArray::fromHex(digits);
    return file.replace(at, bytes.size(), bytes);
}

TEST_F(PictureCommands, spoiltPicturesEndInOneLineAndSpareWhatWasThere) {
    const QByteArray good = smallBitmap(16, 90);
    const std::pair<const char*, QByteArray> cases[] = {
        {"empty", {}},
        {"two bytes", "BM"},
        {"cut in the header", good.left(30)},
        {"cut in the pixels", good.left(good.size() / 2)},
        {"no bitmap", "GIF89a" + good.mid(6)},
        {"no width", withBytes(good, 18, "00000000")},
        {"no height", withBytes(good, 22, "00000000")},
        {"a negative width", withBytes(good, 18, "f0ffffff")},
        {"huge", withBytes(good, 18, "ffffff7fffffff7f")},
        {"as large as memory", withBytes(good, 18, "0000010000000100")},
        {"no depth", withBytes(good, 28, "0000")},
        {"a depth of 7", withBytes(good, 28, "0700")},
        {"a depth of 64", withBytes(good, 28, "4000")},
        {"an unknown compression", withBytes(good, 30, "63000000")},
        {"pixels behind the end", withBytes(good, 10, "ffffff7f")},
    };
    for (const auto& [name, contents] : cases) {
        SCOPED_TRACE(name);
        writeFile(folder / u"base imâge.bmp", contents);
        writeFile(folder / u"out.bmp", "of before");
        const auto run = recolour(u"0:1:2:3:4:5"_s);
        EXPECT_EQ(run.status, 1);
        EXPECT_TRUE(run.messages.startsWith(u"Error: Morvane Error\n  "_s)) << run.messages.toStdString();
        EXPECT_TRUE(run.messages.contains(in)) << run.messages.toStdString();
        EXPECT_EQ(run.messages.count(u'\n'), 2) << run.messages.toStdString();
        EXPECT_EQ(compress().status, 1);
        EXPECT_EQ(readFile(folder / u"out.bmp"), "of before");
    }
}

TEST_F(PictureCommands, missingAndUnwritableFilesAreTold) {
    writeFile(folder / u"base imâge.bmp", smallBitmap(16, 90));
    const QString missing = (folder / u"missing.bmp").native();
    const QString nowhere = (folder / u"no folder").native() + u"/out.bmp"_s;
    const QString taken = folder.path().native(); // a folder where the file should be
    const QStringList cases[] = {
        {u"recolour"_s, u"0:1:2:3:4:5"_s, missing, out},
        {u"recolour"_s, u"0:1:2:3:4:5"_s, in, nowhere},
        {u"recolour"_s, u"0:1:2:3:4:5"_s, in, taken},
        {u"compress"_s, missing, out},
        {u"compress"_s, in, nowhere},
        {u"compress"_s, in, taken},
    };
    for (const QStringList& arguments : cases) {
        const auto run = runConsole(arguments);
        EXPECT_EQ(run.status, 1) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(run.messages.startsWith(u"Error: Morvane Error\n  "_s)) << run.messages.toStdString();
        EXPECT_EQ(run.messages.count(u'\n'), 2) << run.messages.toStdString();
        EXPECT_EQ(test::contentsBelow(folder.path()).keys(), QStringList{u"base imâge.bmp"_s});
    }
}

} // namespace
} // namespace morvane
