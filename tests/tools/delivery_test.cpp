#include "delivery.h"

#include "core/attempts.h"
#include "core/file_fingerprint.h"
#include "support/small_install.h"

namespace morvane::test {
namespace {

/// A file of an install of before, and what the next version makes of it.
struct Piece {
    QString path;
    QByteArray present, known; ///< null for none; `known` is what the list says was delivered
    QByteArray delivered;      ///< now; null where nothing is
    QByteArray after;
};

const QString theirs = u"Resources\\GENERIC WORLD\\"_s;
const Piece pieces[] = {
    {u"Media\\one.bmp"_s, "old", "old", "new", "new"},
    {u"Media\\two.bmp"_s, "same", "same", "same", "same"},
    {u"Media\\gone.bmp"_s, {}, "old", "new", "new"},
    {u"MV Help\\added.html"_s, {}, {}, "new", "new"},
    {u"Media\\dlgSplash.bmp"_s, "old", "old", "new", "old"}, // stands in for the simulator's own
    {theirs + u"replaced.bmp"_s, "the pilot's", "old", "new", "the pilot's"},
    {theirs + u"unknown.bmp"_s, "the pilot's", {}, "new", "the pilot's"},
    {u"UTIND\\earlier.bmp"_s, "earlier", {}, "new", "new"},    // of before there was a list
    {theirs + u"protected.bmp"_s, "old", "old", "new", "old"}, // marked as read-only
    {theirs + u"imported.bmp"_s, "the pilot's", "old", "new", "the pilot's"},
    {u"Resources kept\\"_s + theirs + u"imported.bmp"_s, "old", {}, {}, "new"},
    {theirs + u"brought.bmp"_s, {}, {}, "new", {}}, // by an import, which its way back takes away
    {u"Texture Sets\\2-Storm\\one.bmp"_s, "old", "old", {}, "old"},
};

struct DeliveryTest : testing::Test {
    TemporaryFolder folder;
    FilePath home = folder / u"Mörvane";
    FaultyFileSystem files;
    QByteArray newest = "new"; ///< what "new" stands for

    QByteArray asNow(const QByteArray& contents) const { return contents == "new" ? newest : contents; }
    void makeInstall() {
        QByteArray list = "content 7 density 2 by 2.0.9\n";
        for (const Piece& piece : pieces) {
            const FilePath file = home / piece.path;
            files.makeFolder(file.parent());
            if (files.exists(file)) files.setReadOnly(file, false), files.remove(file);
            if (!piece.present.isNull()) writeFile(file, piece.present);
            if (!piece.known.isNull())
                list += (fingerprintOf(piece.known).checksum.text() + u'\t' + piece.path + u'\n').toUtf8();
        }
        writeFile(home / u"content.version", list + "0123456789"); // its last line was cut
        writeFile(home / u"Resources kept\\kept.lst",
                  ("kept\t" + theirs + "imported.bmp\nnew\t" + theirs + "brought.bmp\n").toUtf8());
        files.setReadOnly(home / (theirs + u"protected.bmp"_s), true);
    }
    void deliver() {
        Delivery delivery(files, home, {fingerprintOf(QByteArray("earlier")).checksum.text()});
        for (const Piece& piece : pieces)
            if (!piece.delivered.isNull()) delivery.put(home / piece.path, asNow(piece.delivered));
        delivery.finish(2);
    }
    /// Names the pieces that are neither as before nor, where they may be, as behind a whole run.
    QStringList wrong(bool isWhole) {
        QStringList paths;
        for (const Piece& piece : pieces) {
            const QByteArray now = files.readIfThere(home / piece.path).value_or(QByteArray());
            const bool isRight = now == asNow(piece.after) || (!isWhole && now == piece.present);
            if (!isRight) paths << piece.path;
        }
        return paths;
    }
};

/// The next run can be that of a version after, which has to know what the cut one put there.
TEST_F(DeliveryTest, cutOrFailedAnywhereLeavesOldOrNewAndTheNextRunGoesOn) {
    const auto check = [&](int n) {
        EXPECT_EQ(wrong(false), QStringList()) << n;
        newest = "newer";
        deliver();
        EXPECT_EQ(wrong(true), QStringList()) << n;
        newest = "new";
        makeInstall();
    };
    makeInstall();
    const auto work = [&] { attempt([&] { deliver(); }); };
    for (const Fault fault : {Fault::once, Fault::kill})
        EXPECT_GT(failEachOperation(files, fault, work, check), 20);
}

TEST_F(DeliveryTest, comesWithANewerVersionOnly) {
    const std::pair<QByteArray, bool> lists[] = {{contentHeading(1), false},
                                                 {"content 7 density 1\n", true},
                                                 {"content 9 density 4 by 2.0.9 of version 2\n", true},
                                                 {"content 1 density 1 by 999.0\n", false},
                                                 {"", false},
                                                 {"\n0123\tMedia\\one.bmp\n", false}};
    files.makeFolder(home);
    for (const auto& [list, isOlder] : lists) {
        writeFile(home / u"content.version", list);
        EXPECT_EQ(DeliveredList(files, home).isOlder(), isOlder) << list.toStdString();
    }
    files.remove(home / u"content.version");
    EXPECT_FALSE(DeliveredList(files, home).isOlder()) << "nothing was delivered";
}

} // namespace
} // namespace morvane::test
