#include "cli/console.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "support/printing.h"

#include <QJsonDocument>
#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(StockCommands, bringThePilotsTexturesAndTakeThemBack) {
    test::ConsoleInstall install;
    const FilePath own = install.folder / u"Own textures";
    const FilePath image = install.home() / u"Resources\\GENERIC WORLD\\029h2su6.bmp";
    const QByteArray before = test::readFile(image);
    test::writeFile(own / u"one.bmp", test::smallBitmap(16, 90));
    const QByteArray texture = compressTexture(loadPicture(install.files, own / u"one.bmp"));
    for (const char16_t* name : {u"029H2SU6.BMP", u"UTEurLC\\034A2SU1.BMP"})
        test::writeFile(own / name, texture);

    const auto brought = install.run(u"stock import"_s, {u"--from"_s, own.native()});
    EXPECT_EQ(brought.status, 0) << brought.messages.toStdString();
    const QJsonObject report = QJsonDocument::fromJson(brought.output).object();
    EXPECT_EQ(report[u"files"_s], 2);
    EXPECT_EQ(report[u"cancelled"_s], false);
    EXPECT_NE(test::readFile(image), before);
    EXPECT_EQ(install.run(u"stock restore"_s).status, 0);
    EXPECT_EQ(test::readFile(image), before);

    EXPECT_EQ(install.run(u"stock restore"_s).status, 1) << "nothing is kept any more";
    const FilePath nowhere = install.folder / u"nowhere";
    EXPECT_EQ(install.run(u"stock import"_s, {u"--from"_s, nowhere.native()}).status, 1);
}

} // namespace
} // namespace morvane
