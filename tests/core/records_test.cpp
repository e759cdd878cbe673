#include "core/registry.h"
#include "core/row_set.h"
#include "core/session.h"
#include "core/store.h"
#include "core/store_schema.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "simulator/backups.h"
#include "simulator/configs.h"
#include "simulator/resource_folders.h"
#include "sky/sky_texture_sets.h"
#include "sky/sky_texture_sub_sets.h"
#include "weather/wx_finders.h"

#include "support/faulty_store.h"
#include "support/printing.h"
#include "support/scripted_user.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

class FixedClock : public Clock {
public:
    QDateTime localTime() const override { return QDateTime(QDate(2007, 5, 30), QTime(21, 14, 9)); }
    QDateTime utcTime() const override { return localTime(); }
};

class RecordsTest : public testing::Test {
protected:
    RecordsTest() {
        session.adoConn = std::make_unique<Store>();
        session.adoConn->create(file);
        createSchema(*session.adoConn);
        session.gTextureSets = std::make_unique<clsTextureSets>(session);
    }

    Store& store() { return *session.adoConn; }
    void execute(const QString& statement) { store().execute(statement); }
    QStringList column(const QString& field, const QString& table) {
        QStringList texts;
        for (RowSet rows(store(), u"SELECT * FROM "_s + table); !rows.atEnd(); rows.next())
            texts << rows.text(field);
        return texts;
    }
    /// The key that the next row of the table gets.
    void setNextKey(const QString& table, int key) {
        execute(u"INSERT INTO %1(ID) VALUES (%2)"_s.arg(table).arg(key - 1));
        execute(u"DELETE FROM %1 WHERE ID = %2"_s.arg(table).arg(key - 1));
    }
    void addGroundSets(const QStringList& names) {
        for (const QString& name : names)
            execute(u"INSERT INTO TEXTURE_SETS(TEXTURE_SET) VALUES ('%1')"_s.arg(name));
        clsTextureSets::reload(session);
    }

    static clsTextureSet newGroundSet(const QString& name) {
        clsTextureSet set;
        set.IsNew = true;
        set.TextureSet = name;
        set.ColorSettings = u"0:1.4:0:-1:3:-1.5"_s;
        set.Actvated = u"True"_s;
        set.CloudCover = u"Overcast"_s;
        set.IsDutch = true;
        return set;
    }

    test::TemporaryFolder folder;
    FilePath file = folder / u"Morvane.mdb";
    test::ScriptedUser user;
    NativeFileSystem files;
    FixedClock clock;
    ReseedingRandomSource random;
    IniRegistry registry{files, folder / u"registry.ini"};
    Session session{{user, files, clock, random, registry}, folder.path()};
};

TEST_F(RecordsTest, aNewSetGetsItsKeyInFrontOfItsName) {
    setNextKey(u"TEXTURE_SETS"_s, 12);
    clsTextureSet set = newGroundSet(u"Storm på Ålborg's"_s);
    ASSERT_TRUE(session.gTextureSets->UpdateTextureSet(set));
    EXPECT_EQ(set.TsID, 12);
    EXPECT_EQ(set.TextureSet, u"12-Storm på Ålborg's"_s);
    EXPECT_EQ(column(u"TEXTURE_SET"_s, u"TEXTURE_SETS"_s), QStringList{set.TextureSet});
    ASSERT_EQ(session.gTextureSets->Count(), 1);
    const auto added = session.gTextureSets->GetKey(u"12"_s);
    EXPECT_EQ(added, session.gTextureSets->Item(u"12"_s));
    EXPECT_EQ(added, session.gTextureSets->GetItem(1));
    EXPECT_EQ(added->TextureSet, set.TextureSet);
    EXPECT_FALSE(added->IsNew);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(RecordsTest, everyKindOfRecordSurvivesAReload) {
    clsNightTextureSets::reload(session);
    clsSkyTextureSets::reload(session);
    clsBackups::reload(session);
    clsResourceFolders::reload(session);
    EXPECT_TRUE(user.calls.isEmpty()); // empty tables are no failure

    clsTextureSet ground = newGroundSet(u"Storm"_s);
    EXPECT_TRUE(session.gTextureSets->UpdateTextureSet(ground));
    clsTextureSets::reload(session);
    const auto groundRead = session.gTextureSets->GetItem(1);
    EXPECT_EQ(groundRead->TextureSet, "1-Storm");
    EXPECT_EQ(groundRead->ColorSettings, "0:1.4:0:-1:3:-1.5");
    EXPECT_EQ(groundRead->Actvated, "True");
    EXPECT_EQ(groundRead->CloudCover, "Overcast");
    EXPECT_TRUE(groundRead->IsDutch);
    EXPECT_FALSE(groundRead->Installed);

    clsNightTextureSet night{true, true, 0, u"20:10:0:0:-6.6:0"_s, u"Lights"_s, u"False"_s, u"warm"_s};
    EXPECT_TRUE(session.gNightTextureSets->UpdateNightTextureSet(night));
    clsNightTextureSets::reload(session);
    const auto nightRead = session.gNightTextureSets->GetItem(1);
    EXPECT_EQ(nightRead->TextureSet, "1-Lights");
    EXPECT_EQ(nightRead->Description, "warm");
    EXPECT_TRUE(nightRead->Installed);

    clsBackup backup{u"Backup"_s, 0, clock.localTime(), true};
    EXPECT_TRUE(session.gBackups->UpdateBackups(backup));
    clsBackups::reload(session);
    EXPECT_EQ(session.gBackups->GetItem(1)->BackupName, "1-Backup");
    EXPECT_EQ(session.gBackups->GetItem(1)->BackupDateTime, clock.localTime());
    EXPECT_EQ(column(u"BACKUP_DATE_TIME"_s, u"MV_BACKUP"_s), QStringList{u"2007/05/30 21:14:09"_s});

    clsResourceFolder resource{true, 0, u"DUTCH"_s, u"DUTCH src"_s, u"Scenery\\World\\texture"_s, u"Dutch"_s};
    EXPECT_TRUE(session.gResources->UpdateResources(resource));
    clsResourceFolders::reload(session);
    const auto resourceRead = session.gResources->GetItem(1);
    EXPECT_EQ(resourceRead->ResourceName, "DUTCH"); // a category's name gets no key
    EXPECT_EQ(resourceRead->ResourceMVFolder, "DUTCH src");
    EXPECT_EQ(resourceRead->ResourceFSFolder, "Scenery\\World\\texture");
    EXPECT_EQ(resourceRead->ResourceTSFolder, "Dutch");

    EXPECT_EQ(clsResourceFolderData(session).getNextID(), 1);
    EXPECT_EQ(clsBackupData(session).getNextID(), 1);
    EXPECT_TRUE(user.calls.isEmpty());
}

TEST_F(RecordsTest, aSkySetAndItsColours) {
    clsSkyTextureSets::reload(session);
    setNextKey(u"SKY_TEXTURE_SETS"_s, 12);
    setNextKey(u"SKY_TEXTURE_SUB_SETS"_s, 40);
    clsSkyTextureSet set;
    set.IsNew = true;
    set.SkyTextureSet = u"Storm"_s;
    set.TextureSetGroup = u"Pro Sky"_s;
    ASSERT_TRUE(session.gSkyTextureSets->UpdateSkyTextureSet(set));
    EXPECT_EQ(set.SkyTextureSet, "12-Storm");
    EXPECT_EQ(clsSkyTextureSetData(session).getNextID(), 12);

    session.DecimalSep = u","_s;
    clsSkyTextureSubSets::reload(session, set.StsID);
    clsSkyTextureSubSet colours;
    colours.IsNew = true;
    colours.timeOfDay = u"Day"_s;
    colours.StsID = set.StsID;
    colours.SkyTextureSubSet = u"Day:"_s + set.SkyTextureSet;
    colours.WaterMain = u"1:2,5:3:4:5:6:6:31:32"_s;
    colours.HorizonHigh = u"high"_s;
    colours.GroundDark = u"dark"_s;
    ASSERT_TRUE(session.gSkyTextureSubSets->UpdateSkyTextureSubSet(colours));
    EXPECT_EQ(clsSkyTextureSubSetData(session).getNextSubID(), 40);

    clsSkyTextureSubSets::reload(session, 3);
    EXPECT_EQ(session.gSkyTextureSubSets->Count(), 0);
    clsSkyTextureSubSets::reload(session, 12);
    const auto read = session.gSkyTextureSubSets->GetItem(1);
    EXPECT_EQ(read->SkyTextureSubSet, "40-Day:12-Storm");
    EXPECT_EQ(read->WaterMain, "1:2.5:3:4:5:6:6:31:32"); // stored with "."
    EXPECT_EQ(read->HorizonHigh, "high");
    EXPECT_EQ(read->GroundDark, "dark");
    EXPECT_EQ(read->timeOfDay, "Day");

    execute(u"INSERT INTO SKY_TEXTURE_SUB_SETS(TEXTURE_SET_ID) VALUES (3)"_s);
    ASSERT_TRUE(session.gSkyTextureSets->RemoveItem(u"12"_s));
    EXPECT_EQ(session.gSkyTextureSets->Count(), 0);
    EXPECT_EQ(column(u"ID"_s, u"SKY_TEXTURE_SETS"_s), QStringList());
    EXPECT_EQ(column(u"TEXTURE_SET_ID"_s, u"SKY_TEXTURE_SUB_SETS"_s), QStringList{u"3"_s});
    EXPECT_TRUE(user.calls.isEmpty());
}

TEST_F(RecordsTest, aKeyBeyondSixteenBitsLeavesNothing) {
    setNextKey(u"TEXTURE_SETS"_s, 32768);
    clsTextureSet set = newGroundSet(u"Storm"_s);
    EXPECT_FALSE(session.gTextureSets->UpdateTextureSet(set));
    EXPECT_EQ(user.told(), QStringList{u"Error|Morvane Error|Overflow"_s});
    EXPECT_TRUE(set.IsNew);
    EXPECT_EQ(set.TsID, 0);
    EXPECT_EQ(set.TextureSet, "Storm");
    EXPECT_EQ(session.gTextureSets->Count(), 0);
    EXPECT_EQ(column(u"ID"_s, u"TEXTURE_SETS"_s), QStringList());
}

TEST_F(RecordsTest, aLoadStopsAtABadRowAndKeepsTheOthers) {
    execute(u"INSERT INTO TEXTURE_SETS(ID, TEXTURE_SET) VALUES (7, 'good')"_s);
    execute(u"INSERT INTO TEXTURE_SETS(ID, TEXTURE_SET) VALUES (40000, 'bad')"_s);
    EXPECT_FALSE(clsTextureSets::reload(session));
    EXPECT_EQ(user.told(), QStringList{u"Error|Morvane Error|Overflow"_s});
    ASSERT_EQ(session.gTextureSets->Count(), 1);
    EXPECT_EQ(session.gTextureSets->GetItem(1)->TextureSet, "good");
}

TEST_F(RecordsTest, theOldestLoadersFailInASystemBox) {
    execute(u"INSERT INTO MV_BACKUP(BACKUP_DATE_TIME) VALUES ('yesterday')"_s);
    execute(u"DROP TABLE RESOURCE_FOLDERS"_s);
    EXPECT_FALSE(clsBackups::reload(session));
    EXPECT_FALSE(clsResourceFolders::reload(session));
    EXPECT_EQ(user.calls, (QStringList{u"box Type mismatch"_s, u"box no such table: RESOURCE_FOLDERS"_s}));
}

TEST_F(RecordsTest, aStoreThatNeverOpenedFailsIntoEachHandler) {
    session.adoConn = std::make_unique<Store>();
    EXPECT_FALSE(clsTextureSets::reload(session));
    session.adoConn.reset();
    EXPECT_FALSE(clsConfigs(session).GetHaloVal());
    const QString told = u"Error|Morvane Error|The database cannot be used: it is not open"_s;
    EXPECT_EQ(user.told(), (QStringList{told, told}));
}

TEST_F(RecordsTest, savingAChangeLeavesTheRecordInMemory) {
    addGroundSets({u"Default"_s, u"Storm"_s});
    clsTextureSet changed = *session.gTextureSets->GetKey(u"2"_s);
    changed.Description = u"wet"_s;
    ASSERT_TRUE(session.gTextureSets->UpdateTextureSet(changed));
    EXPECT_EQ(changed.TextureSet, "Storm");
    EXPECT_EQ(session.gTextureSets->GetKey(u"2"_s)->Description, "");
    EXPECT_EQ(column(u"DESCRIPTION"_s, u"TEXTURE_SETS"_s), (QStringList{QString(), u"wet"_s}));

    const auto kept = session.gTextureSets->GetKey(u"2"_s);
    clsTextureSets::reload(session);
    EXPECT_EQ(kept->Description, ""); // a record from before a reload is the old one
    EXPECT_EQ(session.gTextureSets->GetKey(u"2"_s)->Description, "wet");

    execute(u"DELETE FROM TEXTURE_SETS WHERE ID = 2"_s);
    EXPECT_FALSE(session.gTextureSets->UpdateTextureSet(changed));
    EXPECT_EQ(user.countOfKind(MessageKind::error), 1);
}

TEST_F(RecordsTest, positionsAndKeys) {
    addGroundSets({u"a"_s, u"b"_s, u"c"_s});
    clsTextureSets& sets = *session.gTextureSets;
    EXPECT_THROW(sets.Item(0), Error);
    EXPECT_THROW(sets.GetItem(4), Error);
    EXPECT_THROW(sets.GetKey(u"4"_s), Error);
    EXPECT_THROW(sets.RemoveItem(u"4"_s, 1), Error);
    EXPECT_EQ(column(u"TEXTURE_SET"_s, u"TEXTURE_SETS"_s).size(), 3); // not touched
    EXPECT_THROW(sets.AddItem(*sets.GetItem(2)), Error);

    EXPECT_TRUE(sets.RemoveItem(u"2"_s, 2));
    EXPECT_EQ(sets.Count(), 2);
    EXPECT_EQ(sets.GetItem(2)->TextureSet, "c");
    EXPECT_THROW(sets.GetKey(u"2"_s), Error);
    EXPECT_EQ(column(u"TEXTURE_SET"_s, u"TEXTURE_SETS"_s), (QStringList{u"a"_s, u"c"_s}));
    QStringList walked;
    for (const auto& set : sets.GetTextureSet())
        walked << set->TextureSet;
    EXPECT_EQ(walked, (QStringList{u"a"_s, u"c"_s}));
}

TEST_F(RecordsTest, aKeyInMemoryAlreadyFailsAfterTheRowIsThere) {
    clsTextureSet stale;
    stale.TsID = 1;
    session.gTextureSets->AddItem(stale);
    clsTextureSet set = newGroundSet(u"Storm"_s);
    EXPECT_FALSE(session.gTextureSets->UpdateTextureSet(set));
    EXPECT_EQ(user.countOfKind(MessageKind::error), 1);
    EXPECT_EQ(column(u"TEXTURE_SET"_s, u"TEXTURE_SETS"_s), QStringList{u"1-Storm"_s});
}

TEST_F(RecordsTest, namesAreFoundAsTextOrAsNumbers) {
    addGroundSets({u"Storm"_s, u"storm"_s});
    EXPECT_EQ(session.gTextureSets->findIndex(u"storm"_s), 2); // exactly, with regard to case
    EXPECT_EQ(session.gTextureSets->findIndex(u"calm"_s), 0);

    execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('12.0')"_s);
    execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('2-Backup')"_s);
    clsBackups::reload(session);
    EXPECT_EQ(session.gBackups->findIndex(12), 1);
    EXPECT_THROW(session.gBackups->findIndex(2), Error);
}

TEST_F(RecordsTest, aLoadFillsTheSessionsCollection) {
    addGroundSets({u"Default"_s});
    session.gTextureSets = std::make_unique<clsTextureSets>(session);
    clsTextureSets second(session);
    EXPECT_TRUE(second.getTextureSets());
    EXPECT_EQ(second.Count(), 0);
    EXPECT_EQ(session.gTextureSets->Count(), 1);
}

TEST_F(RecordsTest, colourNumbersFollowTheLocale) {
    execute(
        u"INSERT INTO NIGHT_TEXTURE_SETS(COLOR_SETTINGS, TEXTURE_SET) VALUES ('13:0:16:18.2:-8.4:0', '1.5')"_s);
    session.DecimalSep = u","_s;
    clsNightTextureSets::reload(session);
    clsNightTextureSet set = *session.gNightTextureSets->GetItem(1);
    EXPECT_EQ(set.ColorSettings, "13:0:16:18,2:-8,4:0");
    EXPECT_EQ(set.TextureSet, "1.5"); // only the colours
    set.ColorSettings = u"0:1,4:0:-1:3:-1,5"_s;
    set.Description = u"a, b"_s;
    EXPECT_TRUE(session.gNightTextureSets->UpdateNightTextureSet(set));
    EXPECT_EQ(set.ColorSettings, "0:1,4:0:-1:3:-1,5");
    EXPECT_EQ(column(u"COLOR_SETTINGS"_s, u"NIGHT_TEXTURE_SETS"_s), QStringList{u"0:1.4:0:-1:3:-1.5"_s});
    EXPECT_EQ(column(u"DESCRIPTION"_s, u"NIGHT_TEXTURE_SETS"_s), QStringList{u"a, b"_s});
}

TEST_F(RecordsTest, oneSetIsInstalled) {
    addGroundSets({u"Default"_s, u"Storm"_s, u"Calm"_s});
    const auto installed = [&] { return column(u"INSTALLED"_s, u"TEXTURE_SETS"_s).join(u' '); };
    execute(u"UPDATE TEXTURE_SETS SET INSTALLED = True WHERE ID < 3"_s); // more than ever should be
    EXPECT_TRUE(session.gTextureSets->markInstalled(u"Storm"_s));
    EXPECT_EQ(installed(), "0 1 0");

    execute(u"CREATE TRIGGER T BEFORE UPDATE ON TEXTURE_SETS WHEN OLD.TEXTURE_SET = 'Storm' "
            "BEGIN SELECT RAISE(ABORT, 'refused'); END"_s);
    EXPECT_FALSE(session.gTextureSets->markInstalled(u"Default"_s));
    EXPECT_EQ(user.told(), QStringList{u"Error|Morvane Error|refused"_s});
    EXPECT_EQ(installed(), "0 1 0"); // not two of them, and not none
}

TEST_F(RecordsTest, configurationsAreFoundByTheirTitle) {
    execute(u"INSERT INTO MV_CONFIG(TITLE, MV_IMAGE) VALUES ('Golf''s', 'a.bmp')"_s);
    execute(u"INSERT INTO MV_CONFIG(TITLE) VALUES ('Other')"_s);
    clsConfigs::reload(session);
    clsConfig config = *session.gConfigs->GetItem(1);
    EXPECT_EQ(config.ConfigImageName, "a.bmp");
    config.ConfigInstalled = true;
    EXPECT_TRUE(session.gConfigs->UpdateConfig(config));
    EXPECT_EQ(column(u"INSTALLED"_s, u"MV_CONFIG"_s), (QStringList{u"1"_s, u"0"_s}));
    EXPECT_TRUE(user.messages.empty());
    config.ConfigName = u"No such title"_s;
    EXPECT_FALSE(session.gConfigs->UpdateConfig(config)); // no row is made
    EXPECT_EQ(column(u"TITLE"_s, u"MV_CONFIG"_s).size(), 2);
    EXPECT_EQ(user.countOfKind(MessageKind::error), 1);
}

TEST_F(RecordsTest, eachSwitchWritesItsOwnColumn) {
    execute(u"INSERT INTO TEXTURE_SWITCH(ISDUTCH) VALUES (False)"_s);
    clsConfigs configs(session);
    const struct {
        bool (clsConfigs::*write)(bool);
        bool (clsConfigs::*read)();
        const char* column;
    } switches[] = {
        {&clsConfigs::UpdateDutch, &clsConfigs::GetDutchVal, "ISDUTCH"},
        {&clsConfigs::UpdateTropical, &clsConfigs::GetTropicalVal, "ISTROPICAL"},
        {&clsConfigs::UpdateHalo, &clsConfigs::GetHaloVal, "ISHALO"},
        {&clsConfigs::UpdateFastExit, &clsConfigs::GetFastExitVal, "ISFASTEXIT"},
    };
    for (const auto& written : switches) {
        EXPECT_TRUE((configs.*written.write)(true));
        for (const auto& other : switches) {
            const bool expected = &other == &written;
            EXPECT_EQ((configs.*other.read)(), expected) << written.column << other.column;
            EXPECT_EQ(column(QString::fromLatin1(other.column), u"TEXTURE_SWITCH"_s),
                      QStringList{QString::number(expected ? 1 : 0)});
        }
        EXPECT_TRUE((configs.*written.write)(false));
    }
    EXPECT_TRUE(user.messages.empty());
    execute(u"DELETE FROM TEXTURE_SWITCH WHERE ID = 1"_s);
    EXPECT_FALSE(configs.UpdateHalo(true));
    EXPECT_EQ(user.countOfKind(MessageKind::error), 1);
}

TEST_F(RecordsTest, oneReportAStation) {
    DecodedMetarRow seattle;
    seattle.report.WxFinderIcao = u" KSEA "_s;
    seattle.report.WxFinderMetar = u"KSEA 241225Z ..."_s;
    seattle.report.WxFinderMaxCloud = 4;
    seattle.report.WxFinderWindGusting = true;
    seattle.latitude = u"47.45"_s;
    seattle.longitude = u"-122.31"_s;
    DecodedMetarRow london;
    london.report.WxFinderIcao = u"EGLL"_s;
    london.report.WxFinderYear = u"1999"_s;
    clsWxFinderData data(session);
    EXPECT_TRUE(data.insertDecodedMetar(seattle));
    EXPECT_TRUE(data.insertDecodedMetar(london));
    seattle.report.WxFinderIcao = u"ksea"_s;
    seattle.report.WxFinderMetar = u"KSEA 241325Z ..."_s;
    seattle.latitude.clear();
    EXPECT_TRUE(data.insertDecodedMetar(seattle));
    EXPECT_EQ(column(u"METAR_LAT"_s, u"DECODED_METAR"_s), (QStringList{u"47.45"_s, QString()}));

    EXPECT_TRUE(clsWxFinders::reload(session));
    ASSERT_EQ(session.gWxFinders->Count(), 2);
    EXPECT_EQ(session.gWxFinders->GetItem(1)->WxFinderIcao, "EGLL"); // by code, not by row
    EXPECT_EQ(session.gWxFinders->GetItem(1)->WxFinderYear, "1999");
    const auto read = session.gWxFinders->GetKey(u"KSEA"_s);
    EXPECT_EQ(session.gWxFinders->findIndex(u"ksea"_s), 2);
    EXPECT_EQ(read->WxFinderMetar, "KSEA 241325Z ...");
    EXPECT_EQ(read->WxFinderMaxCloud, 4);
    EXPECT_TRUE(read->WxFinderWindGusting);
    EXPECT_EQ(read->WxFinderYear, "2007"); // a row without a year is of the present one
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(RecordsTest, failuresOfReportsHaveTitlesOfTheirOwn) {
    DecodedMetarRow endless;
    endless.report.WxFinderMetar = QString(2000, u'x');
    EXPECT_FALSE(clsWxFinderData(session).insertDecodedMetar(endless));
    execute(u"DROP TABLE DECODED_METAR"_s);
    EXPECT_FALSE(clsWxFinders::reload(session));
    EXPECT_EQ(
        user.told(),
        (QStringList{u"Exclamation|Metar Decode Error!|CHECK constraint failed: METAR_STRING takes at most "
                     "1024 characters"_s,
                     u"Exclamation|Metar Database Error!|no such table: DECODED_METAR"_s}));
}

/// Each write of a save fails in its turn: one message, and neither half a row nor a record without one.
TEST_F(RecordsTest, aFailedSaveLeavesNothing) {
    session.adoConn.reset();
    int failures = 0;
    for (int n = 1;; ++n) {
        test::FaultyStoreDisk disk;
        session.adoConn = std::make_unique<Store>();
        store().open(file);
        clsTextureSets::reload(session);
        user.messages.clear();
        disk.failAt(n, false);
        clsTextureSet set = newGroundSet(u"Storm"_s);
        const bool isSaved = session.gTextureSets->UpdateTextureSet(set);
        const bool wasHit = disk.operations() >= n;
        disk.heal();
        EXPECT_EQ(isSaved, !wasHit);
        EXPECT_EQ(session.gTextureSets->Count(), isSaved ? 1 : 0);
        EXPECT_EQ(column(u"TEXTURE_SET"_s, u"TEXTURE_SETS"_s).size(), isSaved ? 1 : 0) << n;
        EXPECT_EQ(user.told().size(), isSaved ? 0 : 1);
        EXPECT_EQ(set.IsNew, !isSaved);
        session.adoConn.reset();
        if (isSaved) break;
        ++failures;
    }
    EXPECT_GE(failures, 2);
    EXPECT_EQ(test::integrityOf(file), "ok");
}

} // namespace
} // namespace morvane
