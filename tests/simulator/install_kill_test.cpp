#include "core/store_connection.h"
#include "ground/ground_installation.h"
#include "sets/originals.h"
#include "support/faulty_store.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <thread>

namespace morvane {
namespace {

using test::contentsBelow;
using test::SmallInstall;
using test::writeFile;

constexpr int fileCount = 300;
constexpr int fileSize = 60'000;
constexpr int rounds = 24;
constexpr qint64 patienceMilliseconds = 60'000;

QString fileName(int i) {
    return u"%1a2su1.bmp"_s.arg(i, 3, 10, QChar(u'0'));
}

/// Two sets of the same names but other contents lie ready; set A stands in the simulator.
class InstallKills : public testing::Test {
protected:
    void SetUp() override {
        for (const auto& [set, letter] : {std::pair{setA, 'A'}, std::pair{setB, 'B'}}) {
            install.addGroundSet(set, u"Overcast"_s, true);
            for (int i = 0; i < fileCount; ++i)
                writeFile(install.home() / u"Texture Sets" / set / u"Texture" / fileName(i),
                          QByteArray(fileSize, letter));
        }
        for (int i = 0; i < fileCount; i += 3)
            writeFile(world() / fileName(i).toUpper(), "the pilot's");
        pilots = contentsBelow(install.simulator());
        closeDatabase(install.session);
        putWhole(setA);
    }

    FilePath world() const { return install.simulator() / u"Scenery\\World\\texture"; }

    /// A process of its own that installs a set.
    struct Install : QProcess {
        Install(const FilePath& home, const QString& set) {
            setStandardErrorFile(nullDevice());
            start(QStringLiteral(MORVANE_BIN_DIR "/morvane-cli"),
                  {u"--home"_s, home.native(), u"ground"_s, u"install"_s, set});
        }
        /// Waits for its end; whether it came by itself and well.
        bool isDone() { return waitForFinished(-1) && exitStatus() == NormalExit && exitCode() == 0; }
    };

    void putWhole(const QString& set) { ASSERT_TRUE(Install(install.home(), set).isDone()); }

    bool isOfSetB(int i) {
        QFile file((world() / fileName(i)).native());
        return file.open(QIODevice::ReadOnly) && file.read(1) == "B";
    }

    /// Kills the install of set B as soon as its file of that number has come. True when it was still alive.
    bool killAt(int moment) {
        Install process(install.home(), setB);
        const QDeadlineTimer patience(patienceMilliseconds);
        while (!isOfSetB(moment) && !patience.hasExpired())
            std::this_thread::yield();
        process.kill();
        return !process.isDone();
    }

    /// Counts files of each set; anything else but whole files and parts fails the test.
    std::pair<int, int> countWhole() {
        int a = 0, b = 0;
        const auto now = contentsBelow(world());
        for (auto file = now.begin(); file != now.end(); ++file) {
            if (file.key().endsWith(".morvane-part") || file.value().startsWith("the pilot's")) continue;
            const char letter = file.value().startsWith('A') ? 'A' : 'B';
            EXPECT_TRUE(file.value() == QByteArray(fileSize, letter)) << "torn: " << qPrintable(file.key());
            ++(letter == 'A' ? a : b);
        }
        return {a, b};
    }

    const QString setA = u"2-Á"_s, setB = u"3-B"_s;
    SmallInstall install{test::SmallInstallOptions{QStringList{}, 16}};
    QMap<QString, QByteArray> pilots;
};

TEST_F(InstallKills, leaveNoTornFileAndNothingStray) {
    std::mt19937 random(20040729);
    int cut = 0;
    for (int round = 0; round < rounds; ++round) {
        const int moment = static_cast<int>(random() % fileCount);
        const bool killed = killAt(moment);
        const auto [a, b] = countWhole();
        EXPECT_EQ(a + b, fileCount);
        cut += killed && a > 0 && b > 0;
        EXPECT_EQ(test::integrityOf(install.home() / u"Morvane.mdb"), "ok");

        putWhole(setA);
        EXPECT_EQ(countWhole(), std::pair(fileCount, 0));
        EXPECT_TRUE(install.files.list(world(), "*.morvane-part").isEmpty());
    }
    std::cout << "install: " << cut << " of " << rounds << " kills came in the middle\n";
    EXPECT_GE(cut, rounds / 2);

    Originals(install.files, install.session.FSPath, install.session.AppPath).restore();
    EXPECT_EQ(contentsBelow(install.simulator()), pilots);
}

} // namespace
} // namespace morvane
