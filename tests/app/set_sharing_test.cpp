// A look that pilots pass on: a set's colours in a small file.

#include "app/joined_rooms.h"
#include "app/logged_run.h"
#include "core/store.h"
#include "ground/ground_sets.h"
#include "night/night_sets.h"
#include "sets/set_sharing.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sub_sets.h"
#include "support/small_install.h"

namespace morvane::test {
namespace {

struct SetSharing : InstallTest {
    SetSharing() {
        joinRooms(session);
        user.calls.clear();
    }

    FilePath file() const { return install.folder / u"Löok mine.morvaneset"; }
    const SetKind* take(const QByteArray& bytes) {
        writeFile(file(), bytes);
        return importSharedSet(session, file());
    }
    QString skyColours(std::int16_t set) {
        clsSkyTextureSubSets::reload(session, set);
        QStringList texts;
        for (const auto& subSet : *session.rows<clsSkyTextureSubSets>())
            texts << subSet->SkyMain << subSet->GroundDark << subSet->timeOfDay;
        return texts.join(u' ');
    }
};

TEST_F(SetSharing, GroundAndNightComeBackAsFavourites) {
    install.addGroundSet(u"1-Störm"_s, u"Overcast"_s, true);
    session.adoConn->execute(u"UPDATE TEXTURE_SETS SET COLOR_SETTINGS = '-12:0.6:0:-20:30:2.1', "
                             "DESCRIPTION = 'grey'"_s);
    install.reload();
    session.DecimalSep = u","_s;
    ASSERT_TRUE(exportSet(session, setKind<GroundKind>(), u"1-Störm"_s, file(), u" Jan, Île "_s));
    EXPECT_EQ(importSharedSet(session, file()), &setKind<GroundKind>());
    EXPECT_EQ(setStates<GroundKind>(session), u"Default+ 1-Störm+ 3-Störm"_s);
    const auto taken = findGroundSet(session, u"3-Störm"_s);
    EXPECT_EQ(taken->ColorSettings, u"-12:0,6:0:-20:30:2,1"_s);
    EXPECT_EQ(taken->CloudCover, u"Overcast"_s);
    EXPECT_EQ(taken->Description, u"grey\nBy Jan, Île"_s);
    EXPECT_EQ(session.state<GroundSelection>().madeSet, u"3-Störm"_s);
    EXPECT_TRUE(user.calls.contains(u"show frm_MVTextures"_s));
    EXPECT_TRUE(session.files.list(groundSetFolder(session, u"3-Störm"_s) / u"Texture", u"*"_s).isEmpty());

    EXPECT_EQ(take(R"({"morvaneset":1,"kind":"night","name":"../a:b","colours":["0:0:0:0:0:1"]})"),
              &setKind<NightKind>());
    EXPECT_EQ(setStates<NightKind>(session), u"1-.._a_b"_s);
    EXPECT_TRUE(user.told().isEmpty()) << user.told().join(u'\n').toStdString();
}

TEST_F(SetSharing, TheLogNamesSetsByTheirKeys) {
    const int ground = install.addGroundSet(u"7-Geheim storm"_s, u"Overcast"_s, true);
    const int sky = install.addSkySet(u"8-Geheim"_s, u"Overcast"_s, true);
    install.reload();
    const QString text = u"8-Geheim with 7-GEHEIM storm, from "_s + session.AppPath.native() + u"/x and "_s;
    EXPECT_EQ(withoutPrivate(session, text + session.FSPath.text()),
              u"#%1 with #%2, from <data>/x and <simulator>"_s.arg(sky).arg(ground));
}

TEST_F(SetSharing, SkyBringsItsBaseSetAndTenTexts) {
    const int key = install.addSkySet(u"1-Dawn"_s, u"Sky Clear"_s, true, {}, u"Pro Sky"_s);
    const QString colours = skyColours(toInteger(key));
    ASSERT_TRUE(exportSet(session, setKind<SkyKind>(), u"1-Dawn"_s, file()));
    EXPECT_EQ(importSharedSet(session, file()), &setKind<SkyKind>());
    EXPECT_EQ(setStates<SkyKind>(session), u"1-Dawn+ 2-Dawn"_s);
    const auto taken = findSkySet(session, u"2-Dawn"_s);
    EXPECT_EQ(taken->TextureSetGroup, u"Pro Sky"_s);
    EXPECT_EQ(skyColours(taken->StsID), colours);
    EXPECT_TRUE(session.files.isFolder(skySetFolder(session, u"2-Dawn"_s)));
}

TEST_F(SetSharing, NothingIsMadeOfADamagedFile) {
    const QByteArray ten = R"(["","","","","","","","","","0:0:0:0:0:101:1:32:255"])";
    const std::pair<QByteArray, QString> cases[] = {
        {"", u"it is no look of a set"_s},
        {"{}", u"it is no look of a set"_s},
        {QByteArray(1 << 17, '['), u"it is no look of a set"_s},
        {QByteArray(1 << 15, '['), u"it is nested deeper than 32 brackets"_s},
        {R"({"morvaneset":2})", u"it was written by a newer Morvane"_s},
        {R"({"morvaneset":1,"name":7})", u"its \"name\" is no text"_s},
        {R"({"morvaneset":1,"kind":"ground","cover":"Overcast"})", u"it has no colours"_s},
        {R"({"morvaneset":1,"kind":"sea","colours":["0:0:0:0:0:0"]})",
         u"it is of a kind that this Morvane does not know"_s},
        {R"({"morvaneset":1,"kind":"ground","cover":"Rain","colours":["0:0:0:0:0:0"]})",
         u"its cloud cover is none"_s},
        {R"({"morvaneset":1,"kind":"night","colours":["0:0:0:0:0:30.1"]})", u"its colours are damaged"_s},
        {R"({"morvaneset":1,"kind":"night","colours":["0:0:0:nan:0:0"]})", u"its colours are damaged"_s},
        {R"({"morvaneset":1,"kind":"night","colours":["0:0:0"]})", u"its colours are damaged"_s},
        {R"({"morvaneset":1,"kind":"sky","cover":"Overcast","baseSet":"..","colours":[""]})",
         u"its base set is none"_s},
        {R"({"morvaneset":1,"kind":"sky","cover":"Overcast","baseSet":"Overcast","colours":)" + ten + "}",
         u"its colours are damaged"_s},
    };
    const auto states = [&] {
        return setStates<GroundKind>(session) + setStates<SkyKind>(session) + setStates<NightKind>(session);
    };
    const QString statesBefore = states();
    const auto before = contentsBelow(install.home());
    for (const auto& [bytes, reason] : cases) {
        user.messages.clear();
        EXPECT_EQ(take(bytes), nullptr);
        EXPECT_EQ(user.told().join(u'\n'),
                  u"Error|Morvane Error|Nothing is taken from Löok mine.morvaneset: "_s + reason);
    }
    EXPECT_EQ(states(), statesBefore);
    EXPECT_EQ(contentsBelow(install.home()).keys(), before.keys());
}

TEST_F(SetSharing, AnotherFileIsWrittenOverByAYesOnly) {
    install.addGroundSet(u"1-A"_s, u"Overcast"_s, true);
    writeFile(file(), "mine");
    user.answersToGive = {false, true};
    EXPECT_FALSE(exportSet(session, setKind<GroundKind>(), u"1-A"_s, file()));
    EXPECT_EQ(session.files.read(file()), "mine");
    EXPECT_TRUE(exportSet(session, setKind<GroundKind>(), u"1-A"_s, file()));
    EXPECT_TRUE(session.files.read(file()).contains("Overcast"));
}

} // namespace
} // namespace morvane::test
