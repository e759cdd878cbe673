#include "core/error.h"
#include "core/registry.h"
#include "core/row_set.h"
#include "core/store.h"
#include "loopback_server.h"
#include "support/small_install.h"
#include "weather/awc_reports.h"
#include "weather/nearest_station.h"
#include "weather/report_age.h"
#include "weather/reports.h"
#include "weather/weather_download.h"
#include "weather/weather_rows.h"
#include "weather/weather_state.h"

#include <QCoreApplication>

namespace morvane::test {
namespace {

using Reply = LoopbackServer::Reply;
using Values = std::vector<std::pair<QString, QString>>;

struct WeatherSourcesTest : InstallTest {
    WeatherSourcesTest() { install.clock.now = QDateTime(QDate(2026, 11, 21), QTime(14, 0), Qt::UTC); }
    void store(const Values& values) {
        for (const auto& [name, text] : values)
            storeOwnValue(install.registry, name, text);
    }
    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
};

/// The values, and what they give: "own" or a name, form and address of each source.
TEST_F(WeatherSourcesTest, whichOnesAreAskedInWhichOrder) {
    const QString noaa = u"noaa 1 https://tgftp.nws.noaa.gov/data/observations/metar/cycles/05Z.TXT"_s,
                  awc = u"awc 2 https://aviationweather.gov/data/cache/metars.cache.csv.gz"_s,
                  vatsim = u"vatsim 0 https://metar.vatsim.net/metar.php?id=all"_s;
    const QString server = u"WeatherServer"_s, path = u"WeatherPath"_s, form = u"WeatherFormat"_s,
                  names = u"WeatherSources"_s;
    const std::pair<Values, QStringList> cases[] = {
        {{}, {noaa, awc}},
        {{{names, u"vatsim; AWC ;;awc"_s}}, {vatsim, awc}},
        {{{names, u"moon"_s}}, {noaa, awc}},
        {{{names, u"none"_s}}, {}},
        {{{names, u"none;awc"_s}}, {awc}},
        {{{server, u"http://a.example:81"_s}}, {u"own 0 http://a.example:81/weather/05Z.TXT"_s, noaa, awc}},
        {{{server, u"https://a.example"_s}, {path, u"c/list.gz"_s}, {form, u"awc"_s}, {names, u"none"_s}},
         {u"own 2 https://a.example/c/list.gz"_s}},
        // As earlier versions wrote at their first start.
        {{{server, u"https://tgftp.nws.noaa.gov"_s},
          {path, u"/data/observations/metar/cycles/"_s},
          {form, u"noaa"_s},
          {names, u"awc"_s}},
         {awc}},
        {{{u"WeatherSource-awc"_s, u"awc https://new.example/a.csv"_s},
          {u"WeatherSource-my-club"_s, u"noaa http://club.example/cycles/"_s},
          {u"WeatherSource-..\\x"_s, u"awc https://x.example/"_s},
          {names, u"my-club;awc;..\\x;con"_s}},
         {u"my-club 1 http://club.example/cycles/05Z.TXT"_s, u"awc 2 https://new.example/a.csv"_s}},
        {{{u"WeatherSource-club"_s, u"rss https://club.example/"_s}, {names, u"club"_s}},
         {u"club Type mismatch: WeatherSource-club \"rss https://club.example/\""_s}},
        {{{server, u"file:///etc"_s}, {names, u"none"_s}},
         {u"own Type mismatch: WeatherServer \"file:///etc\""_s}},
    };
    for (const auto& [values, expected] : cases) {
        for (const QString& name : {server, path, form, names, u"WeatherSource-awc"_s})
            storeOwnValue(install.registry, name, {});
        store(values);
        QStringList found;
        for (const WeatherSource& source : weatherSources(install.registry))
            found << (source.isOwn ? u"own"_s : source.name) + u' ' +
                         (source.problem.isEmpty() ? QString::number(static_cast<int>(source.form)) + u' ' +
                                                         source.fileOf(u"05"_s).toString()
                                                   : source.problem);
        EXPECT_EQ(found, expected) << values.size();
    }
    EXPECT_TRUE(weatherSourcesProblem(install.registry, u"noaa;moon"_s).contains(u"\"moon\""_s));
    EXPECT_EQ(weatherSourcesProblem(install.registry, u"none"_s), QString());
}

/// The lines behind "raw_text,station_id,observation_time,latitude,longitude", and the reports that they
/// give.
TEST(AwcReports, theNewestOfEachStationWithItsPlace) {
    const QString names = u"raw_text,station_id,observation_time,latitude,longitude\n"_s;
    const std::pair<QString, QString> cases[] = {
        {names + u"METAR KSEA 1 A2992,KSEA,2026-11-21T13:53:00Z,47.45,-122.31\r\n"_s,
         u"KSEA 1 A2992@47.45:-122.31"_s},
        {u"No errors\n2 results\n"_s + names + u"SPECI EHAM 2,EHAM\n\n,KPDX,,1,1\nEGLL 3"_s,
         u"EGLL 3@:/EHAM 2@:"_s},
        {names + u"\"METAR KSEA 1, TOWER \"\"B\"\"\",KSEA,,91,0\n"_s, u"KSEA 1, TOWER \"B\"@:"_s},
        {names + u"\"KSEA 1,KSEA,,1,1\nKPDX 2,KPDX,,x,1\n"_s,
         u"KPDX 2@:/KSEA 1,KSEA,,1,1@:"_s}, // a quote left open
        {names + u"METAR COR KSEA 1,KSEA\nMETAR 5,METAR\n"_s, u"KSEA 1@:/METAR 5@:"_s},
        {names +
             u"KSEA new,KSEA,2026-11-21T13:53:00.000Z\nKSEA old,KSEA,2026-11-21T13:52:59Z\nKSEA none,KSEA\n"_s,
         u"KSEA new@:"_s},
        {names + u"KSEA 1,KSEA,2026-11-21T13:53:00Z\nKSEA 2,KSEA,2026-11-21T13:53:00.000Z"_s, u"KSEA 2@:"_s},
        {u"latitude,\"raw_text\",longitude\n-7,KSEA 1,9"_s, u"KSEA 1@-7:9"_s},
        {names, u"the file has no reports"_s},
        {u"raw,station_id\nKSEA,KSEA\n"_s, u"the file has no line of column names"_s},
        {QString(), u"the file has no line of column names"_s},
    };
    for (const auto& [text, expected] : cases) {
        QStringList found;
        try {
            for (const StationReport& report : awcReports(text))
                found << report.line + u'@' + report.place.latitude + u':' + report.place.longitude;
        } catch (const Error& error) {
            found << error.description();
        }
        EXPECT_EQ(found.join(u'/'), expected) << text.toStdString();
    }
}

/// One source after the other, each a server of our own.
struct WeatherDownloadTest : WeatherSourcesTest {
    WeatherDownloadTest() {
        store({{u"WeatherSource-one"_s, u"plain "_s + one.address() + u"/one.txt"_s},
               {u"WeatherSource-two"_s, u"awc "_s + two.address() + u"/two.csv"_s},
               {u"WeatherSources"_s, u"one;two"_s}});
    }
    Reply answer(std::deque<Reply>& replies, const LoopbackServer::Request& request) {
        heads << request.head;
        if (replies.empty()) return LoopbackServer::statusReply("404 Not Found");
        const Reply reply = replies.front();
        replies.pop_front();
        return reply;
    }
    /// What a refresh ends with, and what each source said.
    QString refresh() {
        const bool isDone = clsWxFinderData(session).GetWeatherFromNOAA();
        QStringList lines{isDone ? u"done"_s : u"failed"_s};
        for (const SourceLine& line : session.state<WeatherArrival>().lines)
            lines << line.name + u": "_s + line.text;
        return lines.join(u" / "_s);
    }
    QString stored() {
        QStringList reports;
        for (RowSet row(*session.adoConn, u"SELECT * FROM DECODED_METAR ORDER BY METAR_ICAO"_s); !row.atEnd();
             row.next())
            reports << row.text(u"METAR_STRING"_s);
        return reports.join(u'/');
    }
    void wait(int minutes) { install.clock.now = install.clock.now.addSecs(60 * minutes); }
    static Reply tagged(const QByteArray& text) {
        return {"HTTP/1.1 200 OK\r\nETag: \"a1\"\r\nLast-Modified: Sat, 21 Nov 2026 13:55:00 GMT\r\n"
                "Connection: close\r\nContent-Length: " +
                QByteArray::number(text.size()) + "\r\n\r\n" + text};
    }

    std::deque<Reply> ofOne, ofTwo;
    QByteArrayList heads;
    LoopbackServer one{
        LoopbackServer::RequestHandler([this](const auto& request) { return answer(ofOne, request); })};
    LoopbackServer two{
        LoopbackServer::RequestHandler([this](const auto& request) { return answer(ofTwo, request); })};
    const QByteArray list = "raw_text,station_id,observation_time,latitude,longitude\n"
                            "METAR EHAM 211355Z OVC010 Q1000,EHAM,2026-11-21T13:55:00Z,52.3,4.7\n"
                            "METAR KXYZ 211351Z Q1000,KXYZ,2026-11-21T13:51:00Z,47.4,-122.3\n";
};

TEST_F(WeatherDownloadTest, theFirstThatDeliversWinsAndIsNamed) {
    addAirports(session, {{u"EHAM"_s, u"Schiphol"_s, {}, {}, {}, u"52.31"_s, u"4.76"_s}});
    ofOne = {LoopbackServer::textReply("<html>sign in")};
    ofTwo = {LoopbackServer::textReply(list)};
    EXPECT_EQ(refresh(), u"done / one: the file is a page instead of reports / two: delivered"_s);
    EXPECT_TRUE(user.told().isEmpty()) << "which one failed is told where one looks for it";
    EXPECT_EQ(stored(), u"EHAM 211355Z OVC010 Q1000/KXYZ 211351Z Q1000"_s);
    EXPECT_EQ(user.doneRemark, u"Source: two, all current reports"_s);
    EXPECT_EQ(reportAgeText(session), u"2 reports of 13:00Z, 21 Nov; the youngest is 5 minutes old"_s);
    EXPECT_EQ(getClosestMetarStation(session, u"47"_s, u"-122"_s), u"KXYZ"_s) << "by the list's own places";
    RowSet airport(*session.adoConn, u"SELECT * FROM DECODED_METAR WHERE METAR_ICAO = 'EHAM'"_s);
    EXPECT_EQ(airport.text(u"METAR_LAT"_s), u"52.31"_s) << "the directory's";
    EXPECT_TRUE(heads[0].contains("User-Agent: Morvane/")) << heads[0].constData();

    EXPECT_EQ(
        refresh(),
        u"failed / one: the server answers with status 404 / two: the server answers with status 404"_s);
    EXPECT_EQ(user.told(),
              QStringList{u"Exclamation|File Download Error!|one: the server answers with status "
                          "404\ntwo: the server answers with status 404"_s});
    EXPECT_EQ(user.calls.filter(u"done"_s).last(),
              u"done No source answered; 2 stored reports, the youngest 5 minutes old"_s);
    EXPECT_EQ(reportSourceText(session), u"Source: two, all current reports"_s) << "of what is stored";
    EXPECT_EQ(session.rows<clsWxFinders>()->Count(), 2);
}

TEST_F(WeatherDownloadTest, whatIsStoredIsNotFetchedAgain) {
    ofOne = {tagged("KSEA 211353Z\n"), LoopbackServer::statusReply("304 Not Modified"),
             tagged("KSEA 211355Z\n"), LoopbackServer::statusReply("304 Not Modified")};
    EXPECT_EQ(refresh(), u"done / one: delivered"_s);
    wait(1);
    const clsWxFinders* const before = session.rows<clsWxFinders>().get();
    EXPECT_EQ(refresh(), u"done / one: nothing newer"_s);
    EXPECT_TRUE(heads[1].contains("If-None-Match: \"a1\"\r\n") &&
                heads[1].contains("If-Modified-Since: Sat, 21 Nov 2026 13:55:00 GMT\r\n"));
    EXPECT_EQ(session.rows<clsWxFinders>().get(), before);
    EXPECT_EQ(user.doneRemark, u"one: nothing newer"_s);
    EXPECT_EQ(noteOf(session, QUrl(one.address() + u"/one.txt"_s)).asked, install.clock.now);

    // Reports from elsewhere end it: "nothing newer" would be nothing newer than they.
    writeFile(install.folder / u"cycle.txt", "KSEA 211300Z\n");
    EXPECT_TRUE(clsWxFinderData(session).importCycleFile(install.folder / u"cycle.txt", CycleForm::plain));
    EXPECT_EQ(reportSourceText(session), u"Source: a file"_s);
    EXPECT_EQ(refresh(), u"done / one: delivered"_s);
    EXPECT_FALSE(heads[2].contains("If-None-Match"));
    EXPECT_EQ(stored(), u"KSEA 211355Z "_s);
    session.adoConn->execute(u"DELETE FROM DECODED_METAR"_s);
    refresh();
    EXPECT_FALSE(heads[3].contains("If-")) << "nor is it where nothing is stored";
}

/// How often a source that refuses is left alone, by what it said and how often.
TEST_F(WeatherDownloadTest, aSourceThatRefusesIsLeftAlone) {
    const struct {
        QByteArray status, head;
        QString again;
    } cases[] = {
        {"429 Too Many Requests", "Retry-After: 1800\r\n", u"14:30"_s},
        {"503 Service Unavailable", "Retry-After: Sat, 21 Nov 2026 14:07:10 GMT\r\n", u"14:08"_s},
        {"503 Service Unavailable", "", u"14:10"_s},
        {"429 Too Many Requests", "Retry-After: 99999999999999999999\r\n", u"16:00"_s},
        {"429 Too Many Requests", "Retry-After: soon\r\n", u"14:10"_s},
    };
    const QDateTime begin = install.clock.now;
    for (const auto& [status, head, again] : cases) {
        install.clock.now = begin;
        session.adoConn->execute(u"DELETE FROM WEATHER_SOURCES"_s);
        ofOne = {LoopbackServer::statusReply(status, head)};
        ofTwo = {LoopbackServer::textReply(list), LoopbackServer::textReply(list)};
        EXPECT_TRUE(refresh().startsWith(u"done / one: the server answers with status "_s))
            << status.constData();
        wait(3);
        const int asked = one.requests();
        EXPECT_EQ(refresh(),
                  u"done / one: asked 3 minutes ago; again at "_s + again + u"Z / two: delivered"_s);
        EXPECT_EQ(one.requests(), asked);
    }
    const QUrl address(one.address() + u"/one.txt"_s);
    ofOne = {LoopbackServer::statusReply("503 Unavailable"), LoopbackServer::statusReply("503 Unavailable"),
             LoopbackServer::textReply("KSEA 211355Z\n")};
    session.adoConn->execute(u"DELETE FROM WEATHER_SOURCES"_s);
    for (const int minutes : {10, 20, 0}) {
        refresh();
        const SourceNote note = noteOf(session, address);
        EXPECT_EQ(note.notBefore.isValid() ? note.asked.secsTo(note.notBefore) : 0, 60 * minutes);
        wait(minutes);
    }
    EXPECT_EQ(stored(), u"EHAM 211355Z OVC010 Q1000/KSEA 211355Z /KXYZ 211351Z Q1000"_s);
}

/// An address of the world, which nothing is ever sent to here: 192.0.2.1 is nobody's.
TEST_F(WeatherDownloadTest, nobodyElseIsAskedTwiceInFiveMinutes) {
    const QUrl address(u"http://192.0.2.1/reports"_s);
    store({{u"WeatherSource-one"_s, u"plain "_s + address.toString()}});
    const auto note = [&](bool hasAnswered) {
        return SourceNote{.address = address,
                          .text = u"one"_s,
                          .asked = install.clock.now.addSecs(-210),
                          .hasAnswered = hasAnswered,
                          .outcome = u"delivered"_s};
    };
    const QString waits = u"one: asked 3 minutes ago; again at 14:02Z"_s;
    ofTwo = {LoopbackServer::textReply(list), LoopbackServer::textReply(list)};
    keepNote(session, note(false));
    EXPECT_EQ(refresh(), u"done / "_s + waits + u" / two: delivered"_s) << "it gave nothing";
    keepNote(session, note(true));
    EXPECT_EQ(refresh(), u"done / "_s + waits + u" / two: delivered"_s)
        << "what it gave is not what is stored";
    keepStoredNote(session, note(true));
    EXPECT_EQ(refresh(), u"done / "_s + waits);
    EXPECT_EQ(user.doneRemark, waits);
    const std::pair<int, QString> ages[] = {{20, u"just now; again at 14:05Z"_s},
                                            {299, u"4 minutes ago; again at 14:01Z"_s},
                                            {300, {}},
                                            {-60, {}}};
    for (const auto& [seconds, text] : ages) {
        const SourceNote asked{.address = address, .asked = install.clock.now.addSecs(-seconds)};
        EXPECT_EQ(waitingText(asked, install.clock.now), text.isEmpty() ? QString() : u"asked "_s + text);
    }
    store({{u"WeatherSource-one"_s, u"plain http://127.0.0.1:1/"_s}, {u"WeatherSources"_s, u"one"_s}});
    EXPECT_TRUE(refresh().startsWith(u"failed / one: "_s));
    EXPECT_FALSE(noteOf(session, QUrl(u"http://127.0.0.1:1/"_s)).asked.isValid()) << "it was never reached";
}

/// A load that fails behind the download leaves the marks of what is stored.
TEST_F(WeatherDownloadTest, aReportThatWasNotStoredIsNoNewestOne) {
    ofOne = {tagged("KSEA 211353Z\n"), tagged("KSEA 211355Z\n")};
    Store other;
    other.open(install.home() / u"Morvane.mdb");
    std::optional<StoreTransaction> lock(std::in_place, other);
    EXPECT_TRUE(refresh().startsWith(u"failed"_s));
    lock.reset();
    EXPECT_FALSE(storedNote(session));
    EXPECT_EQ(refresh(), u"done / one: delivered"_s);
    EXPECT_FALSE(heads[1].contains("If-None-Match"));
}

} // namespace
} // namespace morvane::test
