#include "made_install.h"

#include "support/printing.h"
#include "support/small_install.h"

#include <QFileInfo>

namespace morvane {
namespace {

using test::MadeInstall;
using test::runContentTool;
using test::ToolRun;

using InstallContent = MadeInstall;

TEST_F(InstallContent, hasTheFoldersThatTheProgramReadsOrWrites) {
    for (const char16_t* folder : {u"Media",
                                   u"Flights",
                                   u"METAR",
                                   u"Backup",
                                   u"MV Help",
                                   u"Resources\\GENERIC WORLD",
                                   u"Resources\\UT EUROPE",
                                   u"Resources\\UTIND",
                                   u"Resources\\DUTCH",
                                   u"Resources\\GENERIC WORLD NIGHT",
                                   u"Resources\\DUTCH NIGHT",
                                   u"Resources\\Sky\\Default",
                                   u"Resources\\Sky\\Default Softer",
                                   u"Resources\\Sky\\Horizons",
                                   u"Resources\\Sky\\Pro Sky",
                                   u"Resources\\Sky\\Sunny",
                                   u"Resources\\Sky\\Tropical",
                                   u"Resources\\Sky\\Overcast",
                                   u"Resources\\Sky\\Sunrise",
                                   u"Resources\\Sky\\Sunset",
                                   u"GENERIC WORLD",
                                   u"UT EUROPE",
                                   u"UTIND",
                                   u"DUTCH",
                                   u"GENERIC WORLD NIGHT",
                                   u"DUTCH NIGHT",
                                   u"Texture Sets",
                                   u"Night Texture Sets",
                                   u"Sky Texture Sets",
                                   u"TempBitmaps\\Texture",
                                   u"TempBitmaps\\UTEurLC",
                                   u"TempBitmaps\\Dutch"})
        EXPECT_TRUE(files.isFolder(home() / folder)) << QString::fromUtf16(folder).toStdString();
    for (const char16_t* folder :
         {u"Scenery\\World\\Texture", u"Scenery\\UTEurLC\\Texture", u"Texture", u"Uires", u"Flights"})
        EXPECT_TRUE(files.isFolder(simulator() / folder)) << QString::fromUtf16(folder).toStdString();
}

TEST_F(InstallContent, isCurrentForItsOwnDensityAndOnlyWhenWhole) {
    EXPECT_EQ(runContentTool(home(), simulator(), {u"--check"_s}).status, 0);
    EXPECT_EQ(runContentTool(home(), simulator(), {u"--check"_s, u"--density"_s, u"2"_s}).status, 1);
    EXPECT_EQ(runContentTool(home(), beside(u"No simulator"), {u"--check"_s}).status, 1);
    for (const char16_t* part : {u"content.version", u"Morvane.mdb"}) {
        const FilePath file = home() / part, aside = home() / u"aside";
        files.rename(file, aside);
        EXPECT_EQ(runContentTool(home(), simulator(), {u"--check"_s}).status, 1);
        files.rename(aside, file);
    }
    EXPECT_EQ(runContentTool(home(), simulator(), {u"--check"_s}).status, 0);
}

TEST_F(InstallContent, ofAnotherVersionIsNotCurrent) {
    const FilePath mark = home() / u"content.version";
    const QByteArray own = files.read(mark);
    files.write(mark, "content 0 density 1\n");
    EXPECT_EQ(runContentTool(home(), simulator(), {u"--check"_s}).status, 1);
    files.write(mark, own);
}

/// The tool must refuse and leave both places as they are.
void expectRefusal(const FilePath& home, const FilePath& simulator, const QString& fullFolder) {
    const auto before = std::pair(test::contentsBelow(home), test::contentsBelow(simulator));
    const ToolRun run = runContentTool(home, simulator);
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.errors.contains(u"'"_s + fullFolder + u"' is not empty"_s)) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.contains(u"remove it first"_s)) << run.errors.toStdString();
    EXPECT_EQ(run.errors.count(u'\n'), 1);
    EXPECT_TRUE(before == std::pair(test::contentsBelow(home), test::contentsBelow(simulator)));
}

TEST_F(InstallContent, neverTouchesAFolderThatHoldsSomething) {
    expectRefusal(home(), simulator(), home().text());
    // A pilot's own simulator, and an install of which only a folder is there.
    const FilePath own = beside(u"Own simulator"), unused = beside(u"Unused");
    test::writeFile(own / u"FS9.EXE", "the real one");
    test::writeFile(own / u"Scenery\\World\\Texture\\029H2SU6.BMP", "the pilot's");
    expectRefusal(unused, own, own.text());
    EXPECT_FALSE(files.exists(unused));
    files.makeFolder(beside(u"Begun\\METAR"));
    expectRefusal(beside(u"Begun"), unused, beside(u"Begun").text());
}

TEST_F(InstallContent, cutShortIsNotTakenForWhole) {
    const FilePath cut = beside(u"Cut"), cutSimulator = beside(u"Cut simulator");
    const ToolRun run = runContentTool(cut, cutSimulator, {u"--data"_s, beside(u"no source data").native()});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.errors.contains(u"airports.tsv")) << run.errors.toStdString();
    EXPECT_EQ(runContentTool(cut, cutSimulator, {u"--check"_s}).status, 1);
    expectRefusal(cut, cutSimulator, cut.text());
}

TEST_F(InstallContent, wrongUsageMakesNothing) {
    const FilePath none = beside(u"None");
    const QStringList wrong[] = {{u"--density"_s, u"0"_s},
                                 {u"--density"_s, u"7"_s},
                                 {u"--density"_s, u"many"_s},
                                 {u"--check"_s, u"--density"_s, u"0"_s},
                                 {u"extra"_s}};
    for (const QStringList& options : wrong)
        EXPECT_EQ(runContentTool(none, none, options).status, 2) << options.join(u' ').toStdString();
    EXPECT_FALSE(files.exists(none));
}

} // namespace
} // namespace morvane
