#include "cli/console.h"

#include <QImage>

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
            expectError(command, {in, unwritable}, unwritable);
    }
    const std::pair<int, QString> sides[] = {
        {20, u"has 20 by 20 pixels: a texture's sides are powers of two, from 4 to 1024"_s},
        {2048, u"it is larger than 1024 pixels a side"_s}};
    for (const auto& [side, why] : sides) {
        writeFile(inFile, smallBitmap(side, 90));
        expectError(compress, {in, out}, in);
        EXPECT_TRUE(runConsole(compress, {in, out}).messages.contains(why)) << side;
    }
    writeFile(inFile, good);
    const auto run = runConsole(recolour, {in, out});
    EXPECT_EQ(run.messages + QString::fromUtf8(run.output), QString());
    EXPECT_EQ(QImage(out).pixel(5, 9), qRgb(96, 185, 38));
    EXPECT_EQ(runConsole(compress, {in, out}).status, 0);
    EXPECT_EQ(readFile(outFile).mid(30, 4), "DXT1");
}

/// Of each kind and of the simulator; what is there already is written over only behind a Yes.
TEST(SheetCommands, writeAPictureOfAllTextures) {
    ConsoleInstall install;
    install.addSet(u"2-Störm"_s, u"Overcast"_s, false);
    const FilePath file = install.folder / u"shéet.png";
    const QString out = file.native();
    const std::pair<QStringList, QString> commands[] = {
        {{"ground", "sheet", "2-Störm", out}, u"2-Störm: 5 textures, not activated yet"_s},
        {{"ground", "sheet", "2-Störm", out, "--zoom", "128", "--beside"}, u"2-Störm: 5 textures"_s},
        {{"originals", "sheet", out}, u"In the simulator now: 5 textures"_s}};
    QImage last;
    for (const auto& [words, said] : commands) {
        const auto run = install.run({}, words);
        EXPECT_EQ(run.status, 0) << run.messages.toStdString();
        EXPECT_TRUE(run.messages.contains(said)) << run.messages.toStdString();
        const QImage written(out);
        EXPECT_GT(written.width(), 300);
        EXPECT_NE(written, last);
        last = written;
    }
    const QByteArray before = readFile(file);
    EXPECT_EQ(install.run(u"--answer no night sheet Default"_s, {out}).status, 1); // there is nothing to show
    EXPECT_EQ(install.run(u"--answer no ground sheet Default"_s, {out}).status, 0);
    EXPECT_EQ(install.run(u"ground sheet Nothing"_s, {out}).status, 1);
    EXPECT_EQ(readFile(file), before);
    const QString nowhere = (install.folder / u"no folder").native() + u"/out.png"_s;
    EXPECT_EQ(install.run(u"ground sheet Default"_s, {nowhere}).status, 1);
}

struct SkyCommands : testing::Test {
    ConsoleInstall install;

    void SetUp() override {
        const std::pair<QString, QString> stock[] = {{u"Pro Sky"_s, u"day.bmp"_s},
                                                     {u"Sunny"_s, u"sunny.bmp"_s},
                                                     {u"Default"_s, u"day.bmp"_s},
                                                     {u"Sunrise"_s, u"rise.bmp"_s},
                                                     {u"Sunset"_s, u"set.bmp"_s}};
        for (const auto& [folder, name] : stock)
            writeFile(install.home() / u"Resources\\Sky" / folder / name, smallBitmap(32, 90));
    }
    void expectDone(const QString& command, const QString& name, const QString& skiesAfterwards) {
        expectSteps(install, {{command + u'|' + name}});
        EXPECT_EQ(install.skies(), skiesAfterwards) << command.toStdString();
    }
    QStringList filesOf(const QString& name) {
        return install.files.list((install.home() / u"Sky Texture Sets").child(name), u"*"_s);
    }
};

TEST_F(SkyCommands, setsAreMadeListedShownSwitchedOffAndOnInstalledAndDeleted) {
    const auto created = install.run("sky create", {"Pro Sky,Sunny", "0", "1", "0", "0", "3"});
    EXPECT_EQ(created.status, 0) << created.messages.toStdString();
    const QJsonArray list = install.run(u"sky list"_s).array();
    ASSERT_EQ(list.size(), 2) << "no set of the unticked \"Overcast\"";
    const QString name = list[0].toObject()[u"SkyTextureSet"].toString();
    const QString other = list[1].toObject()[u"SkyTextureSet"].toString();
    EXPECT_EQ(filesOf(name), QStringList{u"sunny.bmp"_s});
    expectSteps(install, {{u"sky|list"_s,
                           {u"[{\"Activated\":\"True\",\"CloudCover\":\"Mostly Clear\","_s,
                            u"\"TextureSetGroup\":\"Sunny\"}"_s}},
                          {u"sky|show|"_s + name,
                           {u"\"timeOfDay\":\"Day\""_s, u"\"WaterDark\":\"0:0:0:0:0:0:5:5:32\""_s,
                            u":1:32:255\""_s}}});
    for (const QString& command : {u"sky|deactivate"_s, u"sky|activate"_s})
        expectSteps(install, {{command + u'|' + name}});
    EXPECT_EQ(filesOf(name), QStringList({u"rise.bmp"_s, u"set.bmp"_s, u"sunny.bmp"_s}));
    expectDone(u"sky|install"_s, name, name + u"+* "_s + other + u'+');
    EXPECT_EQ(install.files.list(install.simulator() / u"Texture", u"*"_s), filesOf(name));
    expectDone(u"sky|delete"_s, other, name + u"+*"_s);
    EXPECT_FALSE(install.files.exists((install.home() / u"Sky Texture Sets").child(other)));
}

TEST_F(SkyCommands, onePictureIsRecolouredByTenGroups) {
    const FilePath groups = install.folder / u"groups.json", in = install.folder / u"ïn.bmp",
                   out = install.folder / u"out.bmp";
    const QStringList files{groups.native(), in.native(), out.native()};
    writeFile(in, smallBitmap(32, 90));
    writeFile(groups, R"(["0:0:0:0:100:0:1:1:32","","","","","","","","","0:50:0:0:0:0:1:32:255"])");
    const auto run = runConsole(u"recolour-sky"_s, files);
    EXPECT_EQ(run.status, 0) << run.messages.toStdString();
    const QImage base(in.native()), result(out.native());
    EXPECT_GT(qRed(result.pixel(20, 10)), qRed(base.pixel(20, 10)));
    EXPECT_NE(result.pixel(0, 0), base.pixel(0, 0));   // group 1
    EXPECT_EQ(result.pixel(1, 0), base.pixel(1, 0));   // group 2 has no text
    EXPECT_EQ(result.pixel(5, 31), base.pixel(5, 31)); // nor has the low horizon

    const auto before = contentsBelow(install.folder.path());
    for (const QByteArray& wrong :
         {QByteArray("no JSON"), QByteArray(R"(["a:0:0:0:0:0:0:0:0","","","","","","","","",""])")}) {
        writeFile(groups, wrong);
        EXPECT_EQ(runConsole(u"recolour-sky"_s, files).status, 1) << wrong.toStdString();
        EXPECT_EQ(readFile(out), before.value(u"out.bmp"_s));
    }
}

} // namespace
} // namespace morvane::test
