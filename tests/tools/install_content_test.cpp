#include "app/start_up.h"
#include "core/delivered_list.h"
#include "core/file_fingerprint.h"
#include "core/install_lock.h"
#include "core/registry.h"
#include "core/row_set.h"
#include "core/session.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "imaging/bitmap_header.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "night/night_files.h"
#include "night/night_sets.h"
#include "sets/catalogue_file.h"
#include "support/small_install.h"

#include <QProcess>
#include <memory>
#include <stdexcept>

namespace morvane::test {
namespace {

/// How a run of the content tool ended and what it said.
struct ToolRun {
    int status = -1;
    QString errors;
};

ToolRun runContentTool(const FilePath& home, const FilePath& simulator, const QStringList& options = {}) {
    QProcess tool;
    tool.start(QStringLiteral(MORVANE_BIN_DIR "/morvane-content"),
               QStringList{u"--home"_s, home.native(), u"--simulator"_s, simulator.native()} + options);
    tool.waitForFinished(-1);
    const bool hasExited =
        tool.exitStatus() == QProcess::NormalExit && tool.error() == QProcess::UnknownError;
    return {hasExited ? tool.exitCode() : -1, QString::fromUtf8(tool.readAllStandardError())};
}

/// One whole install of density 1, made once by the real tool for all tests of the program; each of them
/// leaves it as it was.
struct InstallContent : testing::Test {
    static void SetUpTestSuite() {
        if (root) return; // another suite has made it
        root = std::make_unique<TemporaryFolder>();
        const ToolRun run = runContentTool(home(), simulator());
        if (run.status != 0) throw std::runtime_error("no install: " + run.errors.toStdString());
    }
    static FilePath home() { return *root / u"Morvane"; }
    static FilePath simulator() { return *root / u"Simulator"; }
    /// Another place beside them.
    static FilePath beside(QStringView name) { return *root / name; }

    inline static std::unique_ptr<TemporaryFolder> root;
    NativeFileSystem files;
};

/// The same with a session that has been started on the install.
struct StartedContent : InstallContent {
    ~StartedContent() override { closeDatabase(session); }

    ScriptedUser user;
    ScriptedClock clock;
    ScriptedRandom random;
    IniRegistry registry{files, home() / u"registry.ini"};
    Session session{{user, files, clock, random, registry}, home()};
    bool hasStarted = startUp(session);
};

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
    older += (fingerprintOf(QByteArray("older")).checksum.text() + u"\tMV Help\\index.html\n"_s).toUtf8();
    files.write(list, older);
    const QByteArray drawn = files.read(picture);
    files.write(picture, "the pilot's");
    files.write(cursor, "of before the list");
    writeFile(beside(u"Data\\delivered\\earlier.sums"),
              fingerprintOf(files.read(cursor)).checksum.hex() + '\n');
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

TEST_F(StartedContent, deliveredRowsHaveTheirTextsBehindAFirstRunWithoutAQuestion) {
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

const QStringList resourceFolders{u"GENERIC WORLD"_s, u"UT EUROPE"_s,           u"UTIND"_s,
                                  u"DUTCH"_s,         u"GENERIC WORLD NIGHT"_s, u"DUTCH NIGHT"_s};
constexpr int textureSize = 43778; ///< of 256 x 256 pixels with all levels
/// One file in eight is compressed again: all of them would take as long as making the install.
bool isSampled(const QString& name) {
    return qChecksum(name.toLatin1()) % 8 == 0;
}

BitmapHeader headerOf(const QByteArray& file) {
    return readBitmapHeader(
        {reinterpret_cast<const std::uint8_t*>(file.constData()), static_cast<std::size_t>(file.size())});
}

TEST_F(InstallContent, everyBaseImageHasItsBodyAndTheBodyShowsIt) {
    for (const QString& folder : resourceFolders) {
        const FilePath resources = (home() / u"Resources").child(folder), bodies = home().child(folder);
        const QStringList names = files.list(resources, u"*.*"_s);
        EXPECT_FALSE(names.isEmpty());
        EXPECT_EQ(files.list(bodies, u"*.*"_s), names);
        for (const QString& name : names) {
            const QByteArray base = files.read(resources.child(name)), body = files.read(bodies.child(name));
            const BitmapHeader header = headerOf(base);
            ASSERT_TRUE(header.kind == PixelKind::plain && header.bitsPerPixel == 24) << name.toStdString();
            ASSERT_EQ(std::pair(header.width, header.height), std::pair(256, 256)) << name.toStdString();
            EXPECT_EQ(body.size(), textureSize);
            if (isSampled(name)) {
                EXPECT_EQ(body, compressTexture(readPicture(base))) << name.toStdString();
            }
        }
    }
}

TEST_F(InstallContent, deliveredFlightsAndSkiesStandTwice) {
    const std::tuple<FilePath, FilePath, int> copies[] = {
        {home() / u"Resources\\Sky\\Default", home() / u"Sky Texture Sets\\Default", 24},
        {home() / u"Flights", simulator() / u"Flights\\Morvane", 6}};
    for (const auto& [one, other, count] : copies) {
        EXPECT_EQ(contentsBelow(one).size(), count);
        EXPECT_TRUE(contentsBelow(one) == contentsBelow(other)) << one.text().toStdString();
    }
}

TEST_F(StartedContent, deliveredNightSetsHaveTheirFiles) {
    QStringList contents;
    for (const auto& set : loadedNightSets(session)) {
        if (set->TextureSet == u"Default") continue;
        for (const CatalogueFile& file : popNightTextureList(session, set->TextureSet))
            EXPECT_TRUE(files.exists(file.targetFolder.child(file.fileName)))
                << set->TextureSet.toStdString() << ' ' << file.fileName.toStdString();
        contents << files.read(nightSetFolder(session, set->TextureSet) / u"Texture\\029b2lm1.bmp").toHex();
    }
    contents.removeDuplicates();
    EXPECT_EQ(contents.size(), 4) << "no two have the same colours";
    for (const QString& folder : NightKind::facts().subfolders)
        EXPECT_TRUE(files.list(home() / u"TempBitmaps" / folder, u"*.*"_s).isEmpty());
}

} // namespace
} // namespace morvane::test
