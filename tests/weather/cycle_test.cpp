#include "core/error.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "loopback_server.h"
#include "support/faulty_store.h"
#include "support/small_install.h"
#include "weather/cycle_download.h"
#include "weather/reports.h"
#include "weather/weather_refresh.h"
#include "weather/weather_state.h"

#include <QCoreApplication>
#include <QFile>

namespace morvane::test {
namespace {

using Reply = LoopbackServer::Reply;

struct CycleDownloadTest : testing::Test {
    /// What a fetch of that path ends with: "done", "cancelled" or why there is no file.
    QString fetch(const QString& path, const QString& server) {
        CycleDownload download(files, limits);
        download.isCancelled = isCancelled;
        download.onProgress = [this](std::int64_t bytes, std::int64_t total) { progress = {bytes, total}; };
        try {
            const FetchedFile fetched = download.fetch(QUrl(server + path), target);
            return fetched.end == FetchedFile::End::delivered ? u"done"_s : fetched.outcome;
        } catch (const Error& error) {
            return error.description();
        }
    }
    QString fetchFrom(const LoopbackServer::Handler& handler) {
        const LoopbackServer server(handler);
        return fetch(u"/weather/09Z.TXT"_s, server.address());
    }
    QStringList filesInFolder() { return files.list(folder.path(), u"*.*"_s); }

    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
    TemporaryFolder folder;
    FaultyFileSystem files;
    FilePath target = folder / u"09Z.txt";
    CycleDownload::Limits limits{5'000, 300 << 10};
    std::function<bool()> isCancelled = [] { return false; };
    std::pair<std::int64_t, std::int64_t> progress;
};

TEST_F(CycleDownloadTest, keepsTheBytesAsTheyAreBehindARedirect) {
    const QByteArray bytes = QByteArray("KSEA\0\xFF\xE9\n", 8) + QByteArray(1 << 18, 'A');
    EXPECT_EQ(fetchFrom([&](const QByteArray& path) {
                  return path == "/moved" ? LoopbackServer::textReply(bytes)
                                          : LoopbackServer::statusReply("302 Found", "Location: /moved\r\n");
              }),
              "done");
    EXPECT_EQ(readFile(target), bytes);
    EXPECT_EQ(progress, std::pair(std::int64_t{bytes.size()}, std::int64_t{bytes.size()}));
}

/// What the server answers, what the fetch ends with and whether the file is a new one.
TEST_F(CycleDownloadTest, aPackedBodyIsUnpackedAndAFailureLeavesTheFileOfBefore) {
    const auto headed = [](const QByteArray& head, const QByteArray& body) {
        return Reply{"HTTP/1.1 200 OK\r\nConnection: close\r\n" + head + "\r\n" + body};
    };
    const auto packed = [&](const QByteArray& encoding, const QString& name) {
        return headed(encoding.isEmpty() ? "" : "Content-Encoding: " + encoding + "\r\n",
                      readFile(FilePath(QStringLiteral(MORVANE_GZIP_SAMPLES_DIR)) / name));
    };
    const QString damaged = u"the file is compressed, and damaged or cut off"_s,
                  page = u"the file is a page instead of reports"_s;
    const std::pair<Reply, QString> cases[] = {
        {packed("gzip", u"reports.gz"_s), u"done"_s},
        {packed("X-GZip", u"named.gz"_s), u"done"_s},
        {packed("gzip", u"cut_off.gz"_s), damaged},
        {packed("", u"wrong_sum.gz"_s), damaged},
        {packed("gzip", u"far_too_large.gz"_s), u"the file is far too large when unpacked"_s},
        {packed("gzip", u"twice.gz"_s), u"the file is compressed more than once"_s},
        {packed("gzip", u"page.gz"_s), page},
        {headed("Content-Encoding: br\r\n", "EHAM\n"), u"the server sends it packed as \"br\""_s},
        {LoopbackServer::statusReply("304 Not Modified"), u"304"_s},
        {LoopbackServer::statusReply("429 Too Many Requests"), u"status 429"_s},
        {LoopbackServer::statusReply("302 Found", "Location: /weather/09Z.TXT\r\n"), {}}, // to itself
        {LoopbackServer::statusReply("302 Found", "Location: file:///etc/passwd\r\n"), u"no web address"_s},
        {LoopbackServer::statusReply("301 Moved", "Location: http://weather.invalid/\r\n"),
         u"the server sends us to http://weather.invalid/"_s},
        {headed("Content-Length: 400\r\n", "EHAM"), {}},
        {headed("Content-Type: text/HTML; charset=utf-8\r\n", "EHAM"), u"the server sends a page"_s},
        {headed("", "\xEF\xBB\xBF \r\n\t<html>"), page},
        {headed("", QByteArray("\xFE\xFF\0\n\0<\0h", 8)), page},
        {headed("", "\xEF\xBB\xBF \r\n\n"), u"an empty file"_s},
        {headed("", QByteArray(1 << 19, 'A')), u"too large"_s},
        {{headed("", "A").bytes, false, QByteArray(1 << 12, 'A')}, u"too large"_s},
    };
    for (const auto& [reply, expected] : cases) {
        writeFile(target, "of before");
        const QString end = fetchFrom([&sent = reply](const QByteArray&) { return sent; });
        EXPECT_TRUE(!end.isEmpty() && end.contains(expected)) << end.toStdString();
        EXPECT_EQ(end == u"done", expected == u"done") << expected.toStdString();
        const QByteArray now = readFile(target);
        EXPECT_TRUE(end == u"done" ? now.startsWith("KSEA") && now.count('\n') == 2 : now == "of before");
        EXPECT_EQ(filesInFolder(), QStringList{u"09Z.txt"_s});
    }
    EXPECT_FALSE(fetch(u"/"_s, u"http://127.0.0.1:1"_s).isEmpty()) << "refused";
}

TEST_F(CycleDownloadTest, aSilentServerIsLeftAndACancelIsHeardMeanwhile) {
    for (const QByteArray& begun : {QByteArray(), QByteArray("HTTP/1.1 200 OK\r\n\r\nEHAM")}) {
        const auto hang = [&](const QByteArray&) { return Reply{begun, false}; };
        limits.silenceMilliseconds = 60;
        EXPECT_EQ(fetchFrom(hang), u"the server has stopped answering"_s);
        limits.silenceMilliseconds = 60'000;
        limits.wholeMilliseconds = 60;
        EXPECT_EQ(fetchFrom(hang), u"the server takes too long"_s);
        limits.wholeMilliseconds = 60'000;
        limits.silenceMilliseconds = 60'000;
        int looks = 0;
        isCancelled = [&] { return ++looks == 2; };
        EXPECT_EQ(fetchFrom(hang), "cancelled");
        isCancelled = [] { return false; };
    }
    EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_F(CycleDownloadTest, aFileThatCannotBeWrittenIsAFailure) {
    files.failAt(1, true);
    const LoopbackServer server([](const QByteArray&) { return LoopbackServer::textReply("EHAM"); });
    CycleDownload download(files);
    EXPECT_THROW(download.fetch(QUrl(server.address()), target), Error);
    EXPECT_FALSE(QFile::exists(target.native()));
}

struct CycleLoading : InstallTest {
    CycleLoading() {
        install.clock.now = QDateTime(QDate(2007, 6, 1), QTime(10, 12), Qt::UTC);
        install.user.onModal = [this](Screen screen) {
            if (screen == Screen::frm_metar_request)
                session.state<MetarRequest>().metarRequested = isRequested;
        };
    }

    void setServer(const QString& address) { storeOwnValue(install.registry, u"WeatherServer"_s, address); }
    bool importLines(const QByteArray& text, CycleForm form = CycleForm::plain) {
        writeFile(file, text);
        return clsWxFinderData(session).importCycleFile(file, form);
    }
    /// The rows, fields joined by "|", rows by "/".
    QString rows(const QString& fields) {
        QStringList lines;
        for (RowSet set(*session.adoConn, u"SELECT * FROM DECODED_METAR ORDER BY ID"_s); !set.atEnd();
             set.next()) {
            QStringList texts;
            for (const QString& field : fields.split(u'|'))
                texts << set.text(u"METAR_"_s + field);
            lines << texts.join(u'|');
        }
        return lines.join(u'/');
    }
    QString cycle() const {
        const WeatherState& now = session.state<WeatherState>();
        return u"%1/%2/%3 %4"_s.arg(now.MetarCycleYear)
            .arg(now.MetarCycleMonth)
            .arg(now.MetarCycleDay)
            .arg(now.MetarCycleHour);
    }

    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
    FilePath file = install.folder / u"cycle.txt";
    bool isRequested = true;
};

TEST_F(CycleLoading, everyLineButTheLastBecomesTheRowOfItsFirstWord) {
    const QString lines = u"2011/11/23 01:53|KSEA 230153Z 03007KT 10SM OVC030 08/06 A2992 RMK AO2|"
                          u"|EHAM 230155Z 24015KT 9999 FEW020 12/08|EGLL 230150Z Q1018"_s;
    for (const char16_t* end : {u"\n", u"\r\n"}) {
        ASSERT_TRUE(importLines(QString(lines).replace(u"|"_s, QString::fromUtf16(end)).toLatin1()));
        // No report is no reason to be left out; without a pressure group a blank stays at the end.
        EXPECT_EQ(rows(u"ICAO|STRING"_s),
                  u"2011/11/23|2011/11/23 01:53 /KSEA|KSEA 230153Z 03007KT 10SM OVC030 08/06 A2992/|/"
                  "EHAM|EHAM 230155Z 24015KT 9999 FEW020 12/08 "_s);
        EXPECT_EQ(session.rows<clsWxFinders>()->Count(), 4);
    }
    EXPECT_TRUE(user.told().isEmpty());
}

TEST_F(CycleLoading, aFileBeyondAllMeasureIsToldWithItsNameAndTheLimit) {
    EXPECT_FALSE(importLines("KSEA\n" + QByteArray(longestTextLine + 1, 'A')));
    ASSERT_TRUE(QFile::resize(file.native(), largestCycle + 1));
    EXPECT_FALSE(clsWxFinderData(session).importExportFile(file));
    ASSERT_EQ(user.told().size(), 2);
    EXPECT_TRUE(user.told()[0].endsWith(u"cycle.txt: line 2 has more than 1 MB"_s))
        << user.told()[0].toStdString();
    EXPECT_TRUE(user.told()[1].endsWith(u"cycle.txt is far too large for a cycle: more than 64 MB"_s));
}

TEST_F(CycleLoading, theServicesFormKeepsTheNewestReportOfEachStation) {
    const QByteArray text = "2011/11/23 01:53\nKSEA newest\n\n2011/11/23 00:53\nKSEA older\n\n"
                            "2011/11/23 01:53\nEHAM first\n\n2011/11/23 01:53\nEHAM second\n\n"
                            "2011/11/22 23:00\nEGLL last";
    EXPECT_TRUE(importLines(text, CycleForm::noaa));
    EXPECT_EQ(rows(u"STRING"_s), u"EGLL last /EHAM second /KSEA newest "_s);
    EXPECT_TRUE(importLines("", CycleForm::noaa)); // nothing to read, nothing lost
    EXPECT_EQ(session.rows<clsWxFinders>()->Count(), 3);
}

TEST_F(CycleLoading, aLaterCycleWritesOverAStationAndLeavesTheOthers) {
    session.adoConn->execute(u"INSERT INTO AIRPORTDATA(ICAO, LAT, LONG) VALUES ('EHAM', '52.3', '4.7')"_s);
    importLines("KSEA 230053Z OVC010\nEHAM 230155Z OVC010\nKSEA 230153Z CLR\n"); // its last one counts
    session.adoConn->execute(u"UPDATE DECODED_METAR SET METAR_LAT = '47.4' WHERE METAR_ICAO = 'KSEA'"_s);
    install.clock.now = install.clock.now.addSecs(-10 * 3600);
    importLines("EGLL 230250Z\nEHAM 230255Z FEW010\n");
    importLines("ksea 230253Z\n");
    EXPECT_EQ(rows(u"ICAO|CYCLE|MAX_CLOUD|LAT|LONG"_s), u"EHAM|23|2|52.3|4.7/ksea|23|0|47.4|/EGLL|23|0||"_s);
    EXPECT_EQ(rows(u"MONTH|YEAR"_s), u"June|/June|/June|"_s) << "the clock's month, and no year";
    EXPECT_EQ(session.rows<clsWxFinders>()->GetKey(u"EHAM"_s)->WxFinderYear, "2007");
    EXPECT_EQ(cycle(), u"2007/6/1 23"_s) << "the hour before on the same day, wanted: not of May 31st";
}

TEST_F(CycleLoading, aStoredTableTellsItsCycleByOneStation) {
    importLines("EHAM 230155Z\nKSEA 230153Z\nKSEB 240153Z\n");
    session.state<WeatherState>() = {};
    EXPECT_TRUE(clsWxFinders::reload(session));
    EXPECT_TRUE(session.state<WeatherState>().MetarDataLoaded);
    EXPECT_EQ(cycle(), u"2007/6/23 9"_s);
}

TEST_F(CycleLoading, aLineThatTheTableDoesNotTakeCostsThatLine) {
    const QByteArray text = "EHAM 1\n" + QByteArray(1 << 20, 'A') + "\nE'LL 2\n" + QByteArray("B\0B", 3) +
                            " \xFF\xE9 3\nKSEA 4\n";
    EXPECT_TRUE(importLines(text));
    EXPECT_EQ(rows(u"STRING"_s), u"EHAM 1 /E'LL 2 /B B ÿé 3 /KSEA 4 "_s);
    ASSERT_EQ(user.told().size(), 1);
    EXPECT_TRUE(user.told()[0].startsWith(u"Exclamation|Metar Decode Error!|"_s));
}

TEST_F(CycleLoading, aStoreThatCannotBeWrittenEndsTheLoadWithOneMessage) {
    importLines("EHAM 1\nKSEA 2\n");
    closeDatabase(session);
    FaultyStoreDisk disk;
    session.adoConn = std::make_unique<Store>();
    session.adoConn->open(install.home() / u"Morvane.mdb");
    QByteArray text;
    for (int line = 0; line < 8000; ++line)
        text += "X" + QByteArray::number(line) + " 230155Z 24015KT 9999 FEW020 12/08 Q1012\n";
    disk.failAt(1, true);
    EXPECT_FALSE(importLines(text));
    EXPECT_EQ(user.told().size(), 1);
    disk.heal();
    EXPECT_TRUE(clsWxFinders::reload(session));
    EXPECT_EQ(rows(u"STRING"_s), u"EHAM 1 /KSEA 2 "_s);
    closeDatabase(session); // before its disk goes
}

TEST_F(CycleLoading, aStoreThatIsLockedIsWaitedForAndLeavesMemoryAsItWas) {
    importLines("KSEA 010153Z\n");
    const clsWxFinders* const before = session.rows<clsWxFinders>().get();
    install.clock.now = install.clock.now.addSecs(3600);
    Store other;
    other.open(install.home() / u"Morvane.mdb");
    std::optional<StoreTransaction> lock(std::in_place, other);
    int looks = 0;
    user.onPump = [&] { ++looks; };
    EXPECT_FALSE(importLines("EHAM 010255Z\n"));
    EXPECT_EQ(looks, 2 + 7) << "the bar's, and between eight tries of a quarter second";
    EXPECT_TRUE(user.told().value(0).contains(u"the database is locked"_s));
    EXPECT_EQ(session.rows<clsWxFinders>().get(), before);
    EXPECT_EQ(cycle(), u"2007/6/1 9"_s);
    user.onPump = [&] { lock.reset(); };
    EXPECT_TRUE(importLines("EHAM 010255Z\n"));
    EXPECT_EQ(session.rows<clsWxFinders>()->Count(), 2);
    EXPECT_EQ(user.told().size(), 1);
}

TEST_F(CycleLoading, refreshingFetchesTheHoursFile) {
    QByteArrayList paths;
    const LoopbackServer server([&](const QByteArray& path) {
        paths << path;
        return LoopbackServer::textReply("2007/06/01 09:50\nKSEA 010950Z\n\n");
    });
    setServer(server.address() + u'/');
    refreshWeather(session);
    storeOwnValue(install.registry, u"WeatherPath"_s, u"data/cycles"_s);
    storeOwnValue(install.registry, u"WeatherFormat"_s, u"noaa"_s);
    refreshWeather(session);
    EXPECT_EQ(paths, (QByteArrayList{"/weather/09Z.TXT", "/data/cycles/09Z.TXT"}));
    EXPECT_EQ(rows(u"ICAO"_s), u"2007/06/01/KSEA/"_s);
    EXPECT_EQ(user.calls.count(u"modal frm_metar_request"_s), 1) << "the first one comes without a question";
    EXPECT_EQ(session.state<MetarRequest>().metarRequestText,
              u"Do you wish Morvane to download and decode the latest METAR cycle from Orrinsoft?"_s);
    isRequested = false;
    refreshWeather(session);
    EXPECT_EQ(server.requests(), 2);
    EXPECT_TRUE(user.told().isEmpty());
}

TEST_F(CycleLoading, anEmptyCycleEndsFlyNowAndACancelOrAFailureLeavesTheReports) {
    const LoopbackServer server([](const QByteArray&) { return LoopbackServer::textReply("KSEA cut off"); });
    setServer(server.address());
    refreshWeather(session);
    EXPECT_EQ(user.told(),
              QStringList{u"Information|No Metar Data|There is no METAR data in the data base.  Until you "
                          "download a METAR cycle no weather data can be displayed"_s});
    EXPECT_TRUE(user.calls.filter(u"done"_s).isEmpty()) << "there is no age to tell";
    EXPECT_TRUE(session.state<WeatherState>().FlyNowDisabled);

    importLines("KSEA 230153Z\n");
    const clsWxFinders* const before = session.rows<clsWxFinders>().get();
    const LoopbackServer silent([](const QByteArray&) { return LoopbackServer::Reply{"HTTP/1.1", false}; });
    setServer(silent.address());
    user.onPump = [this] { user.answers().cancelRequested = true; };
    refreshWeather(session);
    EXPECT_EQ(user.told().size(), 1) << "a cancel ends it without a word";
    EXPECT_FALSE(user.isMessageVisible() || user.answers().cancelRequested || session.jobRunning);
    user.onPump = [] {};
    setServer(u"ftp://127.0.0.1"_s);
    refreshWeather(session);
    EXPECT_TRUE(user.told().last().startsWith(u"Exclamation|File Download Error!|Type mismatch"_s));
    EXPECT_EQ(session.rows<clsWxFinders>().get(), before);
}

} // namespace
} // namespace morvane::test
