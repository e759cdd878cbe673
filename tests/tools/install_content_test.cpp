#include "made_install.h"

#include "core/delivered_list.h"
#include "core/file_fingerprint.h"
#include "core/install_lock.h"
#include "core/row_set.h"
#include "core/store.h"
#include "support/printing.h"
#include "support/small_install.h"


namespace morvane::test {
namespace {

using InstallContent = MadeInstall;

TEST_F(InstallContent, isCurrentForItsOwnVersionAndDensityAndOnlyWhenWhole) {
    const auto check = [&](const FilePath& simulator, const QString& density) {
        return runContentTool(home(), simulator, {u"--check"_s, u"--density"_s, density}).status;
    };
    EXPECT_EQ(check(simulator(), u"2"_s), 1);
    EXPECT_EQ(check(beside(u"No simulator"), u"1"_s), 1);
    const FilePath mark = home() / u"content.version", aside = home() / u"aside";
    for (const FilePath& file : {mark, home() / u"Morvane.mdb"}) {
        files.rename(file, aside);
        EXPECT_EQ(check(simulator(), u"1"_s), 1);
        files.rename(aside, file);
    }
    const QByteArray own = files.read(mark);
    files.write(mark, "content 0 density 1\n");
    EXPECT_EQ(check(simulator(), u"1"_s), 1);
    files.write(mark, own);
    EXPECT_EQ(check(simulator(), u"1"_s), 0);
}

/// The tool must refuse and leave both places as they are.
void expectRefusal(const FilePath& home, const FilePath& simulator, const QString& fullFolder) {
    const auto before = std::pair(contentsBelow(home), contentsBelow(simulator));
    const ToolRun run = runContentTool(home, simulator);
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.errors.contains(u"'"_s + fullFolder + u"' is not empty"_s)) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.contains(u"remove it first"_s)) << run.errors.toStdString();
    EXPECT_EQ(run.errors.count(u'\n'), 1);
    EXPECT_TRUE(before == std::pair(contentsBelow(home), contentsBelow(simulator)));
}

TEST_F(InstallContent, neverTouchesAFolderThatHoldsSomething) {
    expectRefusal(home(), simulator(), home().text());
    // A pilot's own simulator, and an install of which only a folder is there.
    const FilePath own = beside(u"Own simulator"), unused = beside(u"Unused");
    writeFile(own / u"FS9.EXE", "the real one");
    writeFile(own / u"Scenery\\World\\Texture\\029H2SU6.BMP", "the pilot's");
    expectRefusal(unused, own, own.text());
    EXPECT_FALSE(files.exists(unused));
    files.makeFolder(beside(u"Begun\\METAR"));
    expectRefusal(beside(u"Begun"), unused, beside(u"Begun").text());
}

TEST_F(InstallContent, isBroughtUpToDateByANewerVersionOnly) {
    const auto update = [&](const FilePath& folder) {
        return runContentTool(folder, simulator(), {u"--update"_s, u"--data"_s, beside(u"Data").native()})
            .status;
    };
    const FilePath list = home() / u"content.version", help = home() / u"MV Help\\index.html",
                   picture = home() / u"Media\\morvane.png", cursor = home() / u"Media\\Hand.cur";
    const auto all = [&] {
        return std::tuple(contentsBelow(home() / u"Media"), contentsBelow(simulator()).keys(),
                          files.read(help), files.read(list), files.read(home() / u"registry.ini"),
                          files.read(home() / u"Morvane.mdb"));
    };
    const auto whole = all();
    files.write(help, "older");
    EXPECT_EQ(update(home()), 0);
    EXPECT_EQ(files.read(help), "older") << "the version is the same";
    QByteArray older = files.read(list).replace(contentHeading(1), "content 7 density 1 by 2.0.9\n");
    older += (fingerprintOf(QByteArray("older")).checksum + u"\tMV Help\\index.html\n"_s).toUtf8();
    files.write(list, older);
    const QByteArray drawn = files.read(picture);
    files.write(picture, "the pilot's");
    files.write(cursor, "of before the list");
    writeFile(beside(u"Data\\delivered\\earlier.sums"),
              fingerprintOf(files.read(cursor)).checksum.toLatin1() + '\n');
    EXPECT_EQ(update(home()), 0);
    EXPECT_EQ(files.read(picture), "the pilot's");
    files.write(picture, drawn);
    EXPECT_TRUE(all() == whole);
    InstallLock other(home(), u"Writing.lock"_s);
    EXPECT_TRUE(other.tryTake());
    EXPECT_EQ(update(home()), 3);
    EXPECT_EQ(update(beside(u"No install")), 1);
}

TEST_F(InstallContent, cutShortIsNotTakenForWhole) {
    const FilePath cut = beside(u"Cut"), cutSimulator = beside(u"Cut simulator");
    const ToolRun run = runContentTool(cut, cutSimulator, {u"--data"_s, beside(u"no source data").native()});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.errors.contains(u"airports.tsv")) << run.errors.toStdString();
    EXPECT_EQ(runContentTool(cut, cutSimulator, {u"--check"_s}).status, 1);
    expectRefusal(cut, cutSimulator, cut.text());
}

using DeliveredRows = StartedInstall;

TEST_F(DeliveredRows, haveTheirTextsBehindAFirstRunWithoutAQuestion) {
    EXPECT_TRUE(hasStarted);
    EXPECT_EQ(user.countOfKind(MessageKind::question), 0);
    const QString delivered = files.read(FilePath(QStringLiteral(MORVANE_TEST_FOLDER "/delivered_rows.txt")));
    const QStringList blocks = delivered.trimmed().split(u"\n\n"_s).mid(1); // behind the file's own words
    EXPECT_EQ(blocks.size(), 11);
    for (const QString& block : blocks) {
        const QStringList lines = block.split(u'\n');
        QStringList found = lines.mid(0, 2);
        RowSet rows(*session.adoConn, u"SELECT DISTINCT * FROM "_s + lines[0] + u" ORDER BY ID"_s);
        for (; !rows.atEnd(); rows.next()) {
            QStringList fields;
            for (const QString& column : lines[1].split(u'|'))
                fields << rows.text(column);
            found << fields.join(u'|');
        }
        EXPECT_EQ(found, lines);
    }
}

} // namespace
} // namespace morvane::test
