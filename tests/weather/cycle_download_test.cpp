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

/// A kept sample of packed bytes.
QByteArray sample(const QString& name) {
    return test::readFile(FilePath(QStringLiteral(MORVANE_GZIP_SAMPLES_DIR)) / name);
}

Reply packedReply(const QByteArray& encoding, const QByteArray& body) {
    const QByteArray head = encoding.isEmpty() ? "" : "Content-Encoding: " + encoding + "\r\n";
    return {"HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) +
            "\r\n" + head + "\r\n" + body};
}

TEST_F(CycleDownloadTest, aPackedBodyIsUnpackedOrRefusedWithItsReason) {
    const QString damaged = u"the file is compressed, and damaged or cut off"_s,
                  page = u"the file is a page instead of reports"_s;
    const std::tuple<QByteArray, QByteArray, QString> cases[] = {
        {"gzip", sample(u"reports.gz"_s), u"done"_s},
        {"X-GZip", sample(u"named.gz"_s), u"done"_s},
        {"gzip", sample(u"cut_off.gz"_s), damaged},
        {"", sample(u"wrong_sum.gz"_s), damaged},
        {"gzip", sample(u"far_too_large.gz"_s), u"the file is far too large when unpacked"_s},
        {"gzip", sample(u"twice.gz"_s), u"the file is compressed more than once"_s},
        {"gzip", sample(u"page.gz"_s), page},
        {"br", "EHAM 230055Z\n", u"the server sends it packed as \"br\""_s},
    };
    test::writeFile(target, "of before");
    for (const auto& [encoding, body, end] : cases) {
        const Reply reply = packedReply(encoding, body);
        const bool isTaken = end == u"done";
        EXPECT_EQ(fetchFrom([&](const QByteArray&) { return reply; }), end) << encoding.toStdString();
        EXPECT_EQ(test::readFile(target).left(4), isTaken ? "KSEA" : "of b") << end.toStdString();
        EXPECT_EQ(test::readFile(target).count('\n'), isTaken ? 2 : 0);
        test::writeFile(target, "of before");
    }
}

TEST_F(CycleDownloadTest, aFailureLeavesTheFileOfBefore) {
    const auto headed = [](const QByteArray& head, const QByteArray& body) {
        return Reply{"HTTP/1.1 200 OK\r\nConnection: close\r\n" + head + "\r\n" + body};
    };
    struct Case {
        const char* what;
        Reply reply;
        QString reason; ///< a part of it; where it is empty the reason is Qt's own
    };
    const Case cases[] = {
        {"a status that is no file", LoopbackServer::statusReply("304 Not Modified"), u"304"_s},
        {"a redirect to itself",
         LoopbackServer::statusReply("302 Found", "Location: /weather/09Z.TXT\r\n"),
         {}},
        {"half a body", headed("Content-Length: 400\r\n", "EHAM"), {}},
        {"a page by its type", headed("Content-Type: text/HTML; charset=utf-8\r\n", "EHAM"), u"page"_s},
        {"a page behind a mark and blanks", headed("", "\xEF\xBB\xBF \r\n\t<html>"), u"page"_s},
        {"a page in wide letters", headed("", QByteArray("\xFE\xFF\0\n\0<\0h", 8)), u"page"_s},
        {"nothing but blanks", headed("", "\xEF\xBB\xBF \r\n\n"), u"an empty file"_s},
        {"a file without end", headed("", QByteArray(1 << 19, 'A')), u"too large"_s},
    };
    test::writeFile(target, "of before");
    for (const Case& testCase : cases) {
        const QString end = fetchFrom([&](const QByteArray&) { return testCase.reply; });
        EXPECT_TRUE(!end.isEmpty() && end != u"done" && end.contains(testCase.reason))
            << testCase.what << ": " << end.toStdString();
        EXPECT_EQ(test::readFile(target), "of before") << testCase.what;
        EXPECT_EQ(filesInFolder(), QStringList{u"09Z.txt"_s}) << testCase.what;
    }
    EXPECT_FALSE(fetch(u"/"_s, u"http://127.0.0.1:1"_s).isEmpty()) << "refused";
    EXPECT_EQ(test::readFile(target), "of before");
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
