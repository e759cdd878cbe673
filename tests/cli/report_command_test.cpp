// The log, and the report that holds it: what went wrong is in them, and nothing that the pilot typed.

#include "cli/console.h"
#include "core/program_log.h"
#include "core/store.h"
#include "weather/gzip_reader.h"

#include <QDir>
#include <QRegularExpression>
#include <QtEndian>

namespace morvane::test {
namespace {

template <class Number>
Number numberAt(const QByteArray& bytes, qsizetype place) {
    return qFromLittleEndian<Number>(bytes.mid(place, sizeof(Number)).constData());
}

/// As any such program reads it, from the directory at the end; sizes and check sums are looked at.
QMap<QString, QByteArray> unzipped(const QByteArray& zip) {
    QMap<QString, QByteArray> files;
    qsizetype at = numberAt<std::uint32_t>(zip, zip.size() - 6);
    for (int left = numberAt<std::uint16_t>(zip, zip.size() - 12); left > 0; --left) {
        const qsizetype nameSize = numberAt<std::uint16_t>(zip, at + 28);
        const qsizetype place = numberAt<std::uint32_t>(zip, at + 42);
        EXPECT_EQ(zip.mid(at + 6, 26), zip.mid(place + 4, 26)) << "both heads say the same";
        const QByteArray packed = zip.mid(place + 30 + nameSize, numberAt<std::uint32_t>(zip, at + 20));
        const QByteArray gzip = QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\xFF", 10) + packed +
                                zip.mid(at + 16, 4) + zip.mid(at + 24, 4);
        files[QString::fromUtf8(zip.mid(at + 46, nameSize))] = unpackGzip(gzip, 1 << 24);
        at += 46 + nameSize;
    }
    EXPECT_EQ(at, zip.size() - 22);
    return files;
}

struct Report : testing::Test {
    ConsoleInstall install;
    FilePath file = install.folder / u"Mein Gehéim.zip";

    QByteArray log() const { return readFile(logFiles(install.home())[0]); }
    QMap<QString, QByteArray> saved() const {
        EXPECT_EQ(install.run(u"report"_s, {file.native()}).status, 0);
        return unzipped(readFile(file));
    }
};

TEST_F(Report, HoldsWhatHappenedAndNothingThatWasTyped) {
    install.addSet(u"7-Gehéim storm"_s, u"Overcast"_s);
    install.withStore([](Session& session) {
        session.adoConn->execute(u"UPDATE TEXTURE_SETS SET DESCRIPTION = 'Gehéim, too'"_s);
        storeOwnValue(session.registry, u"WeatherServer"_s, u"https://geheim.example/metar/"_s);
        storeOwnValue(session.registry, u"WeatherSources"_s, u"geheim;awc;geheimer"_s);
        storeOwnValue(session.registry, u"WeatherSource-geheim"_s, u"plain https://b.example/geheim.txt"_s);
        storeOwnValue(session.registry, u"WeatherFormat"_s, u"geheim"_s);
        storeOwnValue(session.registry, u"SimulatorRunner"_s, u"/bin/geheim"_s);
        storeOwnValue(session.registry, u"NonEnglishPath"_s, QDir::homePath() + u"/Flights"_s);
    });
    expectSteps(install, {{u"ground|install|7-Gehéim storm"_s},
                          {u"undo"_s, {u"7-Gehéim storm"_s}},
                          {u"ground|install|7-Gehéim storm"_s},
                          {u"ground|deactivate|7-Gehéim storm"_s, {}, 1},
                          {u"sky|install|Gehéim"_s, {}, 1},
                          {u"metar|import|/nowhere/gehéim.csv"_s, {}, 1},
                          {u"night|favourite|Gehéim of mine|1:2:3:4:5:6"_s},
                          {u"fly|--metar|EHAM GEHÉIM"_s, {}, 1}});
    const auto parts = saved();
    EXPECT_EQ(parts.keys().join(u' '),
              u"Morvane.log real-simulator.txt rows.txt settings.txt verify.txt versions.txt"_s);
    for (const auto& [name, contents] : parts.asKeyValueRange()) {
        EXPECT_FALSE(QString::fromUtf8(contents).contains(
            QRegularExpression(u"geh[eé]im"_s, QRegularExpression::CaseInsensitiveOption |
                                                   QRegularExpression::UseUnicodePropertiesOption)))
            << name.toStdString() << '\n'
            << contents.toStdString();
        EXPECT_FALSE(contents.contains(QDir::homePath().toUtf8())) << contents.toStdString();
    }
    for (const char* line : {": ground install\n", " Job install of a ground set began\n",
                             " Job install of a ground set ended\n", "set #7", " Answer ", " End\n",
                             "There is no sky texture set named '<typed>'"})
        EXPECT_TRUE(parts[u"Morvane.log"_s].contains(line)) << line << log().toStdString();
    EXPECT_TRUE(parts[u"rows.txt"_s].contains("\n  2 | Overcast | "));
    EXPECT_TRUE(parts[u"settings.txt"_s].contains("~/Flights\n"));
    EXPECT_TRUE(parts[u"settings.txt"_s].contains("SimulatorRunner:         set\n"));
    EXPECT_TRUE(parts[u"verify.txt"_s].contains("Kept originals"));
}

TEST_F(Report, IsSavedWithoutAStoreThatOpensAndTakesTicks) {
    writeFile(install.home() / u"real-simulator.txt", "- [X] UT EUROPE: its own textures are met, Gehéim\n");
    writeFile(install.home() / u"Morvane.mdb", "damaged");
    EXPECT_EQ(install.run(u"report"_s, {file.native()}).status, 1) << "the store's failure is told";
    const auto parts = unzipped(readFile(file));
    EXPECT_TRUE(parts[u"rows.txt"_s].startsWith("This part could not be had: "));
    EXPECT_EQ(parts[u"real-simulator.txt"_s].count("- [x]"), 1);
    EXPECT_FALSE(parts[u"real-simulator.txt"_s].contains("Geh"));
    writeFile(file, "mine");
    EXPECT_EQ(install.run(u"report"_s, {file.native(), u"--answer=no"_s}).status, 1);
    EXPECT_EQ(readFile(file), "mine");
}

TEST_F(Report, OfADryRunAndWithoutAnInstallThereIsNoLog) {
    install.addSet(u"7-A"_s, u"Overcast"_s);
    install.run(u"fly --cover OVC --dry-run"_s);
    EXPECT_FALSE(QFileInfo::exists(logFiles(install.home())[0].native()));
    const QString empty = (install.folder / u"empty").native();
    QDir().mkpath(empty);
    runConsole(u"config show --home"_s, {empty});
    EXPECT_TRUE(QDir(empty).isEmpty());
}

} // namespace
} // namespace morvane::test
