#include "core/store.h"
#include "ground/ground_installation.h"
#include "sets/set_removal.h"
#include "simulator/backup_files.h"
#include "simulator/backup_removal.h"
#include "simulator/backups.h"
#include "simulator/kept_removal.h"
#include "support/small_install.h"
#include "support/system_files.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <fstream>

namespace morvane::test {
namespace {

/// With a backup of the simulator's six textures.
struct KeptInstall : SmallInstall {
    KeptInstall() { createBackup(session, false); }

    void installSet(const QByteArray& bytes = "ours") {
        addGroundSet(u"1-Blue"_s, u"Sunny"_s, true);
        writeFile(home() / u"Texture Sets\\1-Blue\\Texture" / texture, bytes);
        GroundInstallation(session).installTextureSet(u"1-Blue"_s);
    }
    /// "name, how many, bytes", and a sign where it can be removed.
    QString lines() {
        QString lines;
        for (const KeptItem& item : keptRoom(session).items)
            lines += u"%1, %2, %3%4\n"_s.arg(item.name, item.countWords(), QString::number(item.bytes),
                                             item.isRemovable ? u" -"_s : QString());
        return lines;
    }
    bool has(const QString& backup) { return lines().contains(backup); }
    void addRow(const QString& name) {
        session.adoConn->execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('%1')"_s.arg(name));
    }
    void write(const QString& file) const { writeFile(backups / file, "another hand's"); }
    /// Its files stay where they were.
    void linkFolder(const QString& path) {
        const FilePath link = backups / path, aside = folder / u"aside";
        files.rename(link, aside);
        ASSERT_TRUE(QFile::link(aside.native(), link.native()));
    }
    /// One thing that happens to the backups and to a texture in them.
    void happens(const QString& what) {
        if (what == u"taken away") files.remove(place);
        if (what == u"changed") writeFile(place, "another program's");
        if (what == u"ours") installSet();
        if (what == u"ours alike") files.remove(place), installSet(own);
        if (what == u"backup") createBackup(session, false);
        if (what == u"partial") BackupList::markPartial(session, u"2-Backup"_s);
        if (what == u"own bytes") writeFile(backups / u"2-Backup\\Texture" / texture, own);
        if (what == u"torn") write(u"2-Backup\\Texture\\"_s + texture);
        if (what == u"torn original") write(u"Originals\\Scenery\\World\\texture\\"_s + texture);
        if (what == u"alias") addRow(u"1-BACKUP"_s);
        if (what == u"edited") write(u"1-Backup\\Texture\\"_s + texture);
        if (what == u"note") write(u"1-Backup\\Texture\\note.txt"_s);
        if (what == u"folder") write(u"1-Backup\\older\\a.bmp"_s);
        if (what == u"link") linkFolder(u"1-Backup\\UTEurLC"_s);
        if (what == u"unreadable") UnreadableFile{backups / u"1-Backup\\Texture\\new.bmp"};
        if (what == u"odd row") addRow(u".."_s);
    }

    const QString texture = u"029H2SU6.BMP"_s;
    FilePath place = simulator() / u"Scenery\\World\\texture" / texture, backups = home() / u"Backup";
    const QByteArray own = readFile(place);
};

/// What happens after the first backup; a file that was the pilot's has to be somewhere else behind it.
TEST(KeptRoom, aBackupWithALastCopyStays) {
    const QStringList goes{u""_s, u"ours"_s, u"backup,taken away"_s, u"odd row"_s};
    QStringList stays{u"changed"_s,
                      u"taken away"_s,
                      u"ours,torn original"_s,
                      u"ours alike,backup"_s, // a restore of the originals takes both away
                      u"backup,taken away,partial"_s,
                      u"backup,taken away,torn"_s,
                      u"alias,taken away"_s,
                      u"edited"_s,
                      u"note"_s,
                      u"folder"_s,
                      u"odd row,taken away"_s,
                      u"changed,ours"_s,
                      u"changed,backup,own bytes"_s, // which its list takes for damaged
                      u"note,folder"_s};
    if (hasLinks) stays += {u"link"_s, u"unreadable"_s};
    for (const QString& what : goes + stays) {
        SCOPED_TRACE(what.toStdString());
        KeptInstall it;
        for (const QString& each : what.split(u','))
            it.happens(each);
        const auto before = contentsBelow(it.backups);
        EXPECT_EQ(removeBackup(it.session, u"1-Backup"_s), goes.contains(what));
        EXPECT_EQ(it.has(u"1-Backup"_s) || it.files.exists(it.backups / u"1-Backup"), stays.contains(what));
        if (goes.contains(what)) continue;
        EXPECT_TRUE(contentsBelow(it.backups) == before);
        EXPECT_TRUE(it.user.told().back().contains(what == u"note,folder"
                                                       ? u"as 2 of your own files are nowhere else: "_s
                                                       : u"as 1 of your own files is nowhere else: "_s));
    }
}

/// Nothing has gone as long as it is looked for.
TEST(KeptRoom, aRemovalThatIsCancelledTakesNothing) {
    KeptInstall it;
    const auto before = contentsBelow(it.backups);
    it.user.onPump = [&] { it.session.user.answers().cancelRequested = true; };
    EXPECT_FALSE(removeBackup(it.session, u"1-Backup"_s));
    EXPECT_TRUE(contentsBelow(it.backups) == before && it.has(u"1-Backup"_s));
    EXPECT_EQ(it.user.calls.filter(u"done"_s).size(), 0);
}

#ifndef Q_OS_WIN
TEST(KeptRoom, aFileWhoseNameIsNoTextOrNoPathKeepsItsBackup) {
    KeptInstall it;
    for (const auto& [name, told] :
         {std::pair("\xff.txt", u"?"_s), {"no path : .bmp", u"no path : .bmp"_s}}) {
        const std::string file = (it.backups / u"1-Backup\\Texture").native().toStdString() + '/' + name;
        std::ofstream(file) << "another hand's";
        EXPECT_FALSE(removeBackup(it.session, u"1-Backup"_s));
        EXPECT_TRUE(it.user.told().back().contains(u"as 1 of your own files is nowhere else: "_s + told));
        std::remove(file.c_str()); // no folder can be removed by Qt while one is no text
    }
    EXPECT_TRUE(removeBackup(it.session, u"1-Backup"_s));
}
#endif

/// Wherever it is cut, what is left is whole or a partial backup, and the next removal takes it.
TEST(KeptRoom, aRemovalThatIsCutLeavesNoBackupThatCountsAsComplete) {
    KeptInstall it;
    it.happens(u"ours"_s);
    it.happens(u"backup"_s);
    const FilePath folder = it.backups / u"2-Backup";
    const auto whole = contentsBelow(folder);
    int failures = 0;
    for (const Fault fault : {Fault::once, Fault::kill})
        failures += failEachOperation(
            it.files, fault, [&] { removeBackup(it.session, u"2-Backup"_s); },
            [&](int n) {
                const auto left = contentsBelow(folder);
                const auto isLeft = [&](const QString& path) { return left.contains(path); };
                const bool isWhole = std::ranges::all_of(whole.keys(), isLeft);
                ASSERT_TRUE(isWhole || !isBackupComplete(it.session, u"2-Backup"_s)) << n;
                ASSERT_TRUE(isLeft(u"ours.lst"_s) || !isLeft(u"Texture/029H2SU6.BMP"_s)) << n;
                ASSERT_TRUE(it.has(u"2-Backup"_s) ? bool(removeBackup(it.session, u"2-Backup"_s))
                                                  : left.isEmpty());
                it.addRow(u"2-Backup"_s);
                for (auto file = whole.cbegin(); file != whole.cend(); ++file)
                    writeFile(folder / QString(file.key()).replace(u'/', u'\\'), file.value());
            });
    EXPECT_GT(failures, 60);
}

TEST(KeptRoom, eachThingIsToldAndGoesBehindItsQuestionAlone) {
    KeptInstall it;
    it.happens(u"ours"_s);
    it.addGroundSet(u"2-Red"_s, u"Sunny"_s, true, {u"Texture\\a.bmp"_s, u"Texture\\b.bmp"_s});
    it.addGroundSet(u"3-Grey"_s, u"Sunny"_s, true, {u"Texture\\a.bmp"_s});
    it.addGroundSet(u"4-Pale"_s, u"Sunny"_s, false);
    it.addSkySet(u"2-Calm"_s, u"Sunny"_s, true, {u"day.bmp"_s});
    writeFile(it.backups / u"Undo\\3\\Ünten\\a.bmp", "12345");
    writeFile(it.backups / u"Flights\\Old.flt", "123");
    writeFile(it.home() / u"TempBitmaps\\Texture\\a.bmp", "1234");
    it.reload();
    const auto contents = contentsBelow(it.home());
    auto& choice = it.session.state<MultiChoice>();
    it.user.onModal = [&](Screen) { choice.multiConfirmed = choice.multiNames; };
    const QRegularExpression ofLists(
        u"(originals, 2 files|Undo, 2 files), [0-9]+"_s); // paths and numbers in them
    for (const bool isWanted : {false, true}) {
        EXPECT_EQ(it.lines().replace(ofLists, u"\\1, some"_s).toStdString(),
                  "Ground sets, 4 of 5 sets, 62 -\nSky sets, 1 set, 14 -\nNight sets, none, 0\n"
                  "1-Backup, 6 files, 499 -\nYour originals, 2 files, some\nUndo, 2 files, some -\n"
                  "Base images, 5 files, 4110\nIntermediate images, 1 file, 4 -\n"
                  "Other things put aside, 1 file, 3\n");
        EXPECT_EQ(contentsBelow(it.home()), contents);
        it.user.otherwise = isWanted;
        for (const KeptItem& item : keptRoom(it.session).items)
            removeKept(it.session, item);
    }
    EXPECT_TRUE(it.lines().startsWith(u"Ground sets, 2 of 5 sets, 4\nSky sets, 0 of 1 set, 0\n"_s));
    EXPECT_FALSE(it.lines().contains(u" -\n"_s)) << it.lines().toStdString();
}

TEST(KeptRoom, aBackupThatDoesNotFitIsNotBegun) {
    KeptInstall it;
    it.files.toldFree = 100;
    EXPECT_FALSE(createBackup(it.session, false));
    ASSERT_EQ(it.user.runs.size(), 1U);
    EXPECT_EQ(it.user.runs[0].what, u"A backup of 5 textures"_s);
    EXPECT_FALSE(it.has(u"2-Backup"_s));
}

} // namespace
} // namespace morvane::test
