#include "cli/console.h"

#include "support/printing.h"

#include <QImage>
#include <gtest/gtest.h>

namespace morvane::test {
namespace {

struct PictureCommands : testing::Test {
    TemporaryFolder folder;
    const FilePath inFile = folder / u"base imâge.bmp", outFile = folder / u"out.bmp";
    const QString in = inFile.native(), out = outFile.native();

    /// The run ends in one line of an error and leaves what was there.
    void expectError(const QString& command, const QStringList& files, const QString& said) const {
        const auto before = contentsBelow(folder.path());
        const auto run = runConsole(command, files);
        SCOPED_TRACE((command + u' ' + files.join(u' ') + run.messages).toStdString());
        EXPECT_EQ(run.status, 1);
        EXPECT_TRUE(run.messages.startsWith("Error: Morvane Error\n  ") &&
                    run.messages.contains(FilePath(said).text()));
        EXPECT_EQ(run.messages.count(u'\n'), 2);
        EXPECT_EQ(contentsBelow(folder.path()), before);
    }
};

const QString recolour = u"recolour 10:2:1:-3:6:3"_s, compress = u"compress"_s;

TEST_F(PictureCommands, spoiltMissingAndUnwritableFilesAreTold) {
    const QByteArray good = smallBitmap(16, 90);
    const QByteArray huge = QByteArray(good).replace(18, 8, QByteArray::fromHex("ffffff7fffffff7f"));
    writeFile(outFile, "of before");
    const QString missing = (folder / u"missing.bmp").native();
    const QString nowhere = (folder / u"no folder").native() + u"/out.bmp"_s;
    const QString taken = folder.path().native(); // a folder where the file should be
    for (const QString& command : {recolour, compress}) {
        for (const QByteArray& contents : {QByteArray(), good.left(good.size() / 2), huge, good}) {
            writeFile(inFile, contents);
            if (contents != good) expectError(command, {in, out}, in);
        }
        expectError(command, {missing, out}, missing);
        for (const QString& unwritable : {nowhere, taken})
            expectError(command, {in, unwritable}, command == compress ? in : unwritable);
    }
    const auto run = runConsole(recolour, {in, out});
    EXPECT_EQ(run.messages + QString::fromUtf8(run.output), QString());
    EXPECT_EQ(QImage(out).pixel(5, 9), qRgb(96, 185, 38));
    EXPECT_EQ(runConsole(compress, {in, out}).status, 0);
    EXPECT_EQ(readFile(outFile).mid(30, 4), "DXT1");
}

} // namespace
} // namespace morvane::test
