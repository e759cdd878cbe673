#include "weather/cycle_download.h"

#include "core/error.h"
#include "loopback_server.h"
#include "support/printing.h"
#include "support/scripted_services.h"
#include "support/temporary_folder.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using Reply = LoopbackServer::Reply;

class CycleDownloadTest : public testing::Test {
protected:
    /// What a fetch of that path ends with: "done", "cancelled" or the reason of its failure.
    QString fetch(const QString& path, const QString& server) {
        CycleDownload download(files, limits);
        download.isCancelled = isCancelled;
        download.onProgress = [this](std::int64_t bytes, std::int64_t total) { progress = {bytes, total}; };
        try {
            return download.fetch(QUrl(server + path), target) ? u"done"_s : u"cancelled"_s;
        } catch (const Error& error) {
            return error.description().section(u"could not be downloaded: "_s, 1);
        }
    }
    QString fetchFrom(const LoopbackServer::Handler& handler) {
        const LoopbackServer server(handler);
        return fetch(u"/weather/09Z.TXT"_s, server.address());
    }
    QStringList filesInFolder() { return files.list(folder.path(), u"*.*"_s); }

    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
    test::TemporaryFolder folder;
    test::FaultyFileSystem files;
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
    EXPECT_EQ(test::readFile(target), bytes);
    EXPECT_EQ(progress, std::pair(std::int64_t{bytes.size()}, std::int64_t{bytes.size()}));
}

/// What the server answers, what the fetch ends with and whether the file is a new one.
TEST_F(CycleDownloadTest, aPackedBodyIsUnpackedAndAFailureLeavesTheFileOfBefore) {
    const auto headed = [](const QByteArray& head, const QByteArray& body) {
        return Reply{"HTTP/1.1 200 OK\r\nConnection: close\r\n" + head + "\r\n" + body};
    };
    const auto packed = [&](const QByteArray& encoding, const QString& name) {
        return headed(encoding.isEmpty() ? "" : "Content-Encoding: " + encoding + "\r\n",
                      test::readFile(FilePath(QStringLiteral(MORVANE_GZIP_SAMPLES_DIR)) / name));
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
        {LoopbackServer::statusReply("302 Found", "Location: /weather/09Z.TXT\r\n"), {}}, // to itself
        {headed("Content-Length: 400\r\n", "EHAM"), {}},
        {headed("Content-Type: text/HTML; charset=utf-8\r\n", "EHAM"), u"the server sends a page"_s},
        {headed("", "\xEF\xBB\xBF \r\n\t<html>"), page},
        {headed("", QByteArray("\xFE\xFF\0\n\0<\0h", 8)), page},
        {headed("", "\xEF\xBB\xBF \r\n\n"), u"an empty file"_s},
        {headed("", QByteArray(1 << 19, 'A')), u"too large"_s},
    };
    for (const auto& [reply, expected] : cases) {
        test::writeFile(target, "of before");
        const QString end = fetchFrom([&](const QByteArray&) { return reply; });
        EXPECT_TRUE(!end.isEmpty() && end.contains(expected)) << end.toStdString();
        EXPECT_EQ(end == u"done", expected == u"done") << expected.toStdString();
        const QByteArray now = test::readFile(target);
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

} // namespace
} // namespace morvane
