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
    CycleDownload::Limits limits{5'000, 4 << 20};
    std::function<bool()> isCancelled = [] { return false; };
    std::pair<std::int64_t, std::int64_t> progress;
};

TEST_F(CycleDownloadTest, keepsTheBytesAsTheyAre) {
    const std::pair<const char*, QByteArray> cases[] = {
        {"reports", "KSEA 230053Z\nEHAM 230055Z\n"},
        {"NULs and bytes above 127", QByteArray("KSEA\0\xFF\xE9\n", 8)},
        {"a megabyte line", QByteArray(1 << 20, 'A')},
        {"nothing at all", ""},
    };
    for (const auto& [what, bytes] : cases) {
        EXPECT_EQ(fetchFrom([sent = bytes](const QByteArray&) { return LoopbackServer::textReply(sent); }),
                  "done")
            << what;
        EXPECT_EQ(test::readFile(target), bytes) << what;
        EXPECT_EQ(progress, std::pair(std::int64_t{bytes.size()}, std::int64_t{bytes.size()})) << what;
    }
}

TEST_F(CycleDownloadTest, followsARedirect) {
    EXPECT_EQ(fetchFrom([](const QByteArray& path) {
                  return path == "/moved" ? LoopbackServer::textReply("EHAM")
                                          : LoopbackServer::statusReply("302 Found", "Location: /moved\r\n");
              }),
              "done");
    EXPECT_EQ(test::readFile(target), "EHAM");
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
        {"404", LoopbackServer::statusReply("404 Not Found"), u"Not Found"_s},
        {"500", LoopbackServer::statusReply("500 Broken"), u"Broken"_s},
        {"a status that is no file", LoopbackServer::statusReply("304 Not Modified"), u"304"_s},
        {"a redirect to itself",
         LoopbackServer::statusReply("302 Found", "Location: /weather/09Z.TXT\r\n"),
         {}},
        {"half a body", headed("Content-Length: 400\r\n", "EHAM"), {}},
        {"nothing of a body", headed("Content-Length: 400\r\n", ""), {}},
        {"a page by its type", headed("Content-Type: text/HTML; charset=utf-8\r\n", "EHAM"), u"page"_s},
        {"a page by its text", headed("Content-Type: text/plain\r\n", "<!doctype html>"), u"page"_s},
        {"no head", {"EHAM 230055Z\r\n"}, {}},
        {"a file without end", headed("", QByteArray(5 << 20, 'A')), u"too large"_s},
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
