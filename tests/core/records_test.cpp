#include "core/registry.h"
#include "core/session.h"
#include "core/store_fixture.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "sets/resource_folders.h"
#include "simulator/backups.h"
#include "simulator/options.h"
#include "sky/sky_texture_sets.h"
#include "sky/sky_texture_sub_sets.h"
#include "weather/reports.h"

#include "support/faulty_store.h"
#include "support/scripted_services.h"
#include "support/scripted_user.h"

namespace morvane::test {
namespace {

/// The session's connection is one of its own: the fixture looks at what really reached the file.
struct RecordsTest : StoreFixture {
    RecordsTest() {
        connectSession();
        clsTextureSets::reload(session);
    }

    void connectSession() {
        session.adoConn = std::make_unique<Store>();
        session.adoConn->open(file);
    }
    /// The key that the next row of the table gets.
    void setNextKey(const QString& table, int key) {
        execute(u"INSERT INTO sqlite_sequence VALUES ('%1', %2)"_s.arg(table).arg(key - 1));
    }

    /// Saves a new record, loads it and saves what was read: `row` is what the table holds either time.
    template <class Record, class Collection>
    void saveAndLoad(Record record, std::unique_ptr<Collection>& loaded, Reported (*reload)(Session&),
                     Reported (Collection::*save)(Record&), const QString& table, const QString& row) {
        setNextKey(table, 12);
        EXPECT_TRUE(reload(session)); // an empty table is no failure
        record.IsNew = true;
        EXPECT_TRUE((*loaded.*save)(record));
        EXPECT_EQ(rowsOf(table), QStringList{row});
        EXPECT_EQ(nameOf(*loaded->GetKey(u"12"_s)), nameOf(record));
        EXPECT_TRUE(reload(session));
        Record read = *loaded->GetItem(1);
        EXPECT_TRUE((*loaded.*save)(read));
        EXPECT_EQ(rowsOf(table), QStringList{row});
    }

    ScriptedUser user;
    NativeFileSystem files;
    ScriptedClock clock;
    ScriptedRandom random;
    IniRegistry registry{files, folder / u"registry.ini"};
    clsTextureSet storm{false, true, 0, {}, u"Storm"_s, {}, {}, {}, false}; ///< a new one
    Session session{{user, files, clock, random, registry}, folder.path()};
};

TEST_F(RecordsTest, everyKindOfRecordSurvivesAReload) {
    session.DecimalSep = u","_s; // stored with "." all the same, and only in colours
    const QString colours = u"0:1,4:0:-1:3:-1,5"_s;
    const QString name = u"Storm på Ålborg's 1.5"_s;
    saveAndLoad(clsTextureSet{false, true, 0, colours, name, u"True"_s, u"a, b"_s, u"Overcast"_s, true},
                session.rows<clsTextureSets>(), clsTextureSets::reload, &clsTextureSets::Save,
                u"TEXTURE_SETS"_s, u"12|0:1.4:0:-1:3:-1.5|12-Storm på Ålborg's 1.5|Overcast|True|a, b|1|0"_s);
    EXPECT_EQ(session.rows<clsTextureSets>()->GetItem(1)->ColorSettings, colours);
    saveAndLoad(clsNightTextureSet{true, true, 0, colours, name, u"False"_s, u"warm"_s},
                session.rows<clsNightTextureSets>(), clsNightTextureSets::reload, &clsNightTextureSets::Save,
                u"NIGHT_TEXTURE_SETS"_s, u"12|0:1.4:0:-1:3:-1.5|12-Storm på Ålborg's 1.5|False|warm|1"_s);
    saveAndLoad(clsSkyTextureSet{u"Pro Sky"_s, u"d"_s, u"True"_s, u"Overcast"_s, true, true, 0, name},
                session.rows<clsSkyTextureSets>(), clsSkyTextureSets::reload, &clsSkyTextureSets::Save,
                u"SKY_TEXTURE_SETS"_s, u"12|12-Storm på Ålborg's 1.5|Overcast|True|d|Pro Sky|1"_s);
    saveAndLoad(clsBackup{u"Backup"_s, 0, clock.now, true}, session.rows<clsBackups>(), clsBackups::reload,
                &clsBackups::Save, u"MV_BACKUP"_s, u"12|12-Backup|2007/05/30 21:14:09"_s);
    // A category's name gets no key.
    saveAndLoad(clsResourceFolder{true, 0, u"DUTCH"_s, u"source"_s, u"Scenery\\World"_s, u"Dutch"_s},
                session.rows<clsResourceFolders>(), clsResourceFolders::reload, &clsResourceFolders::Save,
                u"RESOURCE_FOLDERS"_s, u"12|DUTCH|source|Dutch|Scenery\\World"_s);
    const clsSkyTextureSubSet sky{u"Day"_s, true,    3,       0,       u"Day:3-Storm"_s,
                                  u"gd"_s,  u"gl"_s, u"cd"_s, u"cl"_s, u"wd"_s,
                                  u"2,5"_s, u"wl"_s, u"s"_s,  u"hl"_s, u"hh"_s};
    saveAndLoad(
        sky, session.rows<clsSkyTextureSubSets>(),
        +[](Session& s) { return clsSkyTextureSubSets::reload(s, 3); }, &clsSkyTextureSubSets::Save,
        u"SKY_TEXTURE_SUB_SETS"_s, u"12|3|12-Day:3-Storm|gd|gl|cd|cl|hh|hl|s|wl|2.5|wd|Day"_s);
    EXPECT_EQ(session.rows<clsSkyTextureSubSets>()->GetItem(1)->WaterMain,
              "2.5"); // the sky's are read as stored
    EXPECT_TRUE(user.calls.isEmpty());
}

TEST_F(RecordsTest, aDamagedRowIsToldAndHidesNoOther) {
    execute(u"INSERT INTO TEXTURE_SETS(ID, INSTALLED) VALUES (7, 0), (8, 'much'), (9, 'more'), (10, 0), "
            "(40000, 0)"_s);
    EXPECT_FALSE(clsTextureSets::reload(session));
    EXPECT_EQ(session.rows<clsTextureSets>()->Count(), 2);
    EXPECT_EQ(user.told(), QStringList{u"Error|Morvane Error|Type mismatch"_s});
    execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME, BACKUP_DATE_TIME) VALUES ('1-Backup', 'yesterday'), "
            "(NULL, NULL), ('3-Backup', '2007/05/30 21:14:09')"_s);
    EXPECT_TRUE(clsBackups::reload(session)); // a backup without a date can be put back, too
    EXPECT_FALSE(session.rows<clsBackups>()->GetItem(1)->BackupDateTime.isValid());
    EXPECT_EQ(session.rows<clsBackups>()->GetItem(3)->BackupDateTime, clock.now);
}

TEST_F(RecordsTest, failuresAreToldAsEachRoutineAlwaysHas) {
    execute(u"INSERT INTO MV_BACKUP(ID) VALUES (40000)"_s);
    EXPECT_FALSE(clsBackups::reload(session));
    session.adoConn->close();
    EXPECT_FALSE(clsResourceFolders::reload(session));
    const QString closed = u"The database cannot be used: it is not open"_s;
    EXPECT_EQ(user.calls, (QStringList{u"box Overflow"_s, u"box "_s + closed})); // the oldest ones
    EXPECT_FALSE(clsTextureSets::reload(session));
    EXPECT_FALSE(clsWxFinders::reload(session));
    session.adoConn.reset(); // as when no store was found at all
    EXPECT_FALSE(storedSwitch(session, &OptionsInForce::IsHalo));
    EXPECT_EQ(user.told().join(u'/'), u"Error|Morvane Error|%1/Exclamation|Metar Database Error!|%1/"
                                      "Error|Morvane Error|%1"_s.arg(closed));
}

/// Each write of a save fails in its turn: one message, and neither half a row nor a record without one.
TEST_F(RecordsTest, aFailedSaveLeavesNothing) {
    FaultyStoreDisk disk;
    connectSession();
    int failures = 0;
    for (;; ++failures) {
        disk.failAt(failures + 1, false);
        if (session.rows<clsTextureSets>()->Save(storm)) break;
        ASSERT_TRUE(storm.IsNew && session.rows<clsTextureSets>()->Count() == 0 &&
                    rowsOf("TEXTURE_SETS").isEmpty())
            << failures;
        EXPECT_EQ(user.told().size(), failures + 1);
    }
    EXPECT_GE(failures, 2);
    session.adoConn.reset(); // before its disk
}

} // namespace
} // namespace morvane::test
