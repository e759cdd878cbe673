#include "ground/ground_sets.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "simulator/backup_files.h"
#include "simulator/stock_requests.h"
#include "support/small_install.h"
#include "support/system_files.h"

#include <QFile>

namespace morvane::test {
namespace {

struct StockImportTest : InstallTest {
    FilePath world = install.simulator() / u"Scenery\\World\\texture";
    FilePath addOn = install.simulator() / u"Scenery\\UTEurLC\\Texture";
    QByteArray texture;

    void SetUp() override {
        const FilePath one = install.folder / u"one.bmp";
        writeFile(one, smallBitmap(16, 90));
        texture = compressTexture(loadPicture(install.files, one));
        for (const char16_t* name : {u"029H2SU6.BMP", u"029B2SU6.BMP", u"005A2SU2.BMP", u"030A2WI1.BMP",
                                     u"029A2LM1.BMP", u"008A2LM3.BMP", u"lights2lm.bmp", u"029a2xx1.bmp"})
            writeFile(world / name, texture);
        writeFile(addOn / u"034B2SU4.BMP", texture);
        writeFile(world.exactChild(u"029h2Su6.bmp"_s), texture); // the first one again
        for (const char16_t* name : {u"029h2an1.agn", u"005a2an1.agn"})
            writeFile(world / name, "the pilot's trees");
        writeFile(install.home() / u"DUTCH\\005a2an1.agn", "our trees");
    }
    /// Everything below the install but the store, what is kept and parts of copies.
    QMap<QString, QByteArray> stock() {
        auto contents = contentsBelow(install.home());
        contents.removeIf([](const std::pair<const QString&, QByteArray&>& file) {
            return file.first.startsWith(u"Morvane.mdb") || file.first.startsWith(u"Resources kept") ||
                   file.first.endsWith(u".morvane-part");
        });
        return contents;
    }
    QByteArray pixels(const FilePath& file) {
        const Picture picture = loadPicture(install.files, file);
        return QByteArray(reinterpret_cast<const char*>(picture.rows.data()),
                          static_cast<qsizetype>(picture.rows.size()));
    }
};

TEST_F(StockImportTest, everyFileThatAPatternTakesBecomesABaseImageAndComesBack) {
    const auto before = stock();
    const FilePath left = install.home() / u"Resources\\GENERIC WORLD\\030A2WI1.BMP.morvane-part";
    if (hasLinks) QFile::link((world / u"005A2AN1.AGN").native(), left.native());
    const auto report = importSimulatorStock(session);
    ASSERT_TRUE(report);
    EXPECT_EQ(readFile(world / u"005A2AN1.AGN"), "the pilot's trees")
        << "what a kill left is not written into";
    EXPECT_TRUE(install.user.calls.contains("progress 92.3077")) << "before the last of thirteen";
    for (const char16_t* path :
         {u"GENERIC WORLD\\029h2su6.bmp", u"GENERIC WORLD\\029b2su6.bmp", u"GENERIC WORLD\\030A2WI1.BMP",
          u"GENERIC WORLD\\005A2SU2.BMP", u"DUTCH\\005a2su2.bmp", u"UTIND\\034b2su4.bmp",
          u"GENERIC WORLD NIGHT\\029A2LM1.BMP", u"GENERIC WORLD NIGHT\\008A2LM3.BMP",
          u"DUTCH NIGHT\\008A2LM3.BMP"}) {
        const FilePath file = install.home() / u"Resources" / path;
        EXPECT_EQ(readFile(file).at(28), 24) << file.text().toStdString();
        EXPECT_EQ(pixels(file), pixels(world / u"029H2SU6.BMP")) << file.text().toStdString();
    }
    for (const char16_t* path :
         {u"Resources\\GENERIC WORLD NIGHT\\lights2lm.bmp", u"Resources\\DUTCH NIGHT\\029A2LM1.BMP",
          u"Resources\\GENERIC WORLD\\029a2xx1.bmp", u"DUTCH\\029h2an1.agn"})
        EXPECT_FALSE(install.files.exists(install.home() / path));
    for (const char16_t* path : {u"GENERIC WORLD\\029h2an1.agn", u"DUTCH\\005a2an1.agn"})
        EXPECT_EQ(readFile(install.home() / path), "the pilot's trees");
    EXPECT_EQ(report->files, 12);
    EXPECT_EQ(report->unreadable, QStringList{"002C2WI1.BMP"});
    EXPECT_EQ(report->categories[0].name, "1 GENERIC WORLD");
    EXPECT_EQ(report->categories[0].count, 3);
    EXPECT_FALSE(report->categories[0].emptyPatterns.contains("029*2"));
    writeFile(world / u"031A2SU1.BMP", texture);
    importSimulatorStock(session); // a second one keeps what the first one found
    EXPECT_EQ(restoreStock(session), 5);
    EXPECT_EQ(stock(), before);
    EXPECT_FALSE(hasKeptStock(session));
}

/// One among the textures and one among the annotations that cannot be read, and sides that no texture has.
TEST_F(StockImportTest, whatHoldsNoTextureIsNamedAndCostsNothingElse) {
    const auto before = stock();
    QFile::remove((world / u"002C2WI1.BMP").native());
    const UnreadableFile bitmap(world / u"031A2SU1.BMP"), annotation(world / u"031a2an1.agn");
    writeFile(world / u"032A2SU1.BMP", smallBitmap(12, 90));
    const auto report = importSimulatorStock(session);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->unreadable, (QStringList{u"031A2SU1.BMP"_s, u"032A2SU1.BMP"_s, u"031a2an1.agn"_s}));
    EXPECT_EQ(report->files, 12);
    EXPECT_TRUE(install.user.told().back().contains(report->unreadable.join(u", "_s)));
    EXPECT_EQ(install.user.calls.back(), u"done 12 files imported, 3 left out"_s);
    restoreStock(session);
    EXPECT_EQ(install.user.calls.back(), u"done 5 delivered files put back"_s);
    EXPECT_EQ(stock(), before);
}

TEST_F(StockImportTest, aCancelledImportCanBeUndoneAtEveryFile) {
    const auto before = stock();
    for (int files = 1;; ++files) {
        int left = files;
        install.user.onPump = [&] {
            if (--left == 0) session.user.answers().cancelRequested = true;
        };
        const auto report = importSimulatorStock(session);
        install.user.onPump = [] {};
        if (!report->isCancelled) break;
        ASSERT_LT(files, 100);
        restoreStock(session);
        EXPECT_EQ(stock(), before) << files;
    }
}

TEST_F(StockImportTest, whileASetStandsInTheSimulatorTheNewestBackupIsOffered) {
    const auto before = stock();
    writeFile(world / u"031A2SU1.BMP", texture);
    loadedGroundSets(session).markInstalled(u"Default"_s);
    EXPECT_FALSE(importSimulatorStock(session));
    EXPECT_TRUE(install.user.told().back().contains(u"there is no backup"_s));
    createBackup(session, true);
    install.files.remove(world / u"031A2SU1.BMP");
    install.user.otherwise = false;
    EXPECT_FALSE(importSimulatorStock(session, true));
    EXPECT_TRUE(install.user.told().back().contains(u"1-Backup"_s));
    EXPECT_FALSE(install.files.exists(install.home() / u"Resources kept"));
    install.user.otherwise = true;
    EXPECT_TRUE(importSimulatorStock(session));
    EXPECT_TRUE(install.files.exists(install.home() / u"Resources\\GENERIC WORLD\\031A2SU1.BMP"));
}

TEST_F(StockImportTest, whatDoesNotFitIsNotBegun) {
    const auto before = stock();
    install.files.toldFree = 100;
    const auto report = importSimulatorStock(session, true);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->files, 0);
    EXPECT_TRUE(report->failure.contains(u"needed"_s)) << report->failure.toStdString();
    EXPECT_EQ(stock(), before);
}

TEST_F(StockImportTest, noFailureOfAFileLosesTheStock) {
    const auto before = stock();
    int failures = 0;
    for (const Fault fault : {Fault::once, Fault::forever})
        failures += failEachOperation(
            install.files, fault,
            [&] {
                importSimulatorStock(session, true);
                if (install.files.hasFailed() && fault == Fault::once) { // the old file or the new one
                    for (const QString& path : before.keys())
                        ASSERT_TRUE(install.files.exists(install.home() / path)) << path.toStdString();
                }
                restoreStock(session, true);
            },
            [&](int n) {
                restoreStock(session);
                ASSERT_EQ(stock(), before) << n;
            });
    EXPECT_GT(failures, 100);
}

} // namespace
} // namespace morvane::test
