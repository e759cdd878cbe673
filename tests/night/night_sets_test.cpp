#include "night/night_generation.h"
#include "night/night_installation.h"
#include "night/night_samples.h"
#include "night/night_sets.h"
#include "night/night_tuning.h"
#include "sets/options_in_force.h"
#include "support/night_install.h"
#include "support/small_install.h"

namespace morvane::test {
namespace {

struct NightSets : InstallTest {
    NightSets() {
        addNightStock(install);
        addNightSet(install, u"Default"_s, true);
    }
};

TEST_F(NightSets, activationMakesEveryFileInTheColoursOfTheSet) {
    addNightSet(install, u"2-Red"_s, false);
    const FilePath sets = install.home() / u"Night Texture Sets";
    ASSERT_TRUE(clickNightRow(session, u"2-Red"_s));
    install.files.toldFree = 100; // less than it takes
    NightGeneration(session).activateInHand();
    EXPECT_EQ(nightSets(session), u"Default+ 2-Red"_s);
    install.files.toldFree = -1;
    NightGeneration(session).activateInHand();
    EXPECT_EQ(nightSets(session), u"Default+ 2-Red+"_s);
    EXPECT_EQ(contentsBelow(sets).keys().join(u' '),
              u"2-Red/Dutch/005a2lm2.bmp 2-Red/Dutch/008b2lm1.bmp 2-Red/Texture/008b2lm1.bmp "
              "2-Red/Texture/029b2lm1.bmp 2-Red/Texture/045b2lm1.bmp"_s);
    // In the colours of the set.
    EXPECT_EQ(qChecksum(readFile(sets / u"2-Red\\Texture\\029b2lm1.bmp")), 56679);
    EXPECT_TRUE(install.user.told().isEmpty());
    const Message& first = install.user.messages.front();
    EXPECT_EQ(first.title + u'|' + first.text,
              u"Creating Night Texture Sets|Colorizing texture set 1 of 1 texture sets.  Process 1 of 2 Be "
              "aware that this may take 3 - 5 minutes per set dependant on your system specification. "
              "\nPlease wait............"_s);
    EXPECT_EQ(install.user.calls.last(), u"show frm_NightTextures"_s);
    EXPECT_TRUE(session.state<NightSelection>().RefreshNightList);
    NightTuning tuning(session);
    EXPECT_TRUE(tuning.openDefaultSample());
    session.state<NightSampleChoice>().sampleConfirmed = true;
    EXPECT_FALSE(tuning.openSample()) << "an OK of last time";
    EXPECT_TRUE(nightSampleTexture({}, u"ocean"_s).isEmpty());
}

/// The whole of what each of the four roads copies.
TEST_F(NightSets, goldenCopyLists) {
    addNightSet(install, u"2-Red"_s, true,
                {u"Texture\\008b2lm1.bmp"_s, u"Texture\\new.bmp"_s, u"Texture\\no.txt"_s,
                 u"Dutch\\008b2lm1.bmp"_s, u"Dutch\\005a2lm2.bmp"_s});
    writeFile(install.home() / u"DUTCH\\005a2an.agn", "Dutch annotation");
    writeFile(install.home() / u"GENERIC WORLD\\029b2an.agn", "annotation");
    writeFile(install.home() / u"GENERIC WORLD NIGHT\\more.agn", "night body");
    writeFile(install.home() / u"DUTCH NIGHT\\dutch.txt", "Dutch night body");
    const FilePath world = install.simulator() / u"Scenery\\World\\texture";
    const QString bodies = u"029B2LM1.BMP: body of GENERIC WORLD NIGHT\\029b2lm1.bmp|"
                           "045B2LM1.BMP: body of GENERIC WORLD NIGHT\\045b2lm1.bmp|MORE.AGN: night body"_s;
    const std::tuple<QString, bool, QString> cases[] = {
        {u"2-Red"_s, false, u"008B2LM1.BMP: 2-Red Texture\\008b2lm1.bmp|NEW.BMP: 2-Red Texture\\new.bmp"_s},
        {u"Default"_s, false, u"008B2LM1.BMP: body of GENERIC WORLD NIGHT\\008b2lm1.bmp|"_s + bodies},
        // The Dutch file of the same name comes last. The annotation is the day's: no night brings another.
        {u"2-Red"_s, true,
         u"005A2AN.AGN: Dutch annotation|005A2LM2.BMP: 2-Red Dutch\\005a2lm2.bmp|"
         "008B2LM1.BMP: 2-Red Dutch\\008b2lm1.bmp|NEW.BMP: 2-Red Texture\\new.bmp"_s},
        {u"Default"_s, true,
         u"005A2LM2.BMP: body of DUTCH NIGHT\\005a2lm2.bmp|008B2LM1.BMP: body of DUTCH NIGHT\\008b2lm1.bmp|"_s +
             bodies + u"|DUTCH.TXT: Dutch night body"_s},
    };
    for (const auto& [set, isDutch, copied] : cases) {
        for (const QString& name : install.files.list(world, u"*.*"_s))
            install.files.remove(world.child(name));
        session.state<OptionsInForce>().IsDutch = isDutch;
        clickNightRow(session, set);
        NightInstallation(session).installNightTextureSet();
        QStringList expected = copied.split(u'|'), found;
        for (const QString& name : install.files.list(world, u"*.*"_s))
            found << name.toUpper() + u": "_s + QString::fromUtf8(readFile(world.child(name)));
        expected.sort();
        found.sort();
        EXPECT_EQ(found, expected) << set.toStdString() << isDutch;
        EXPECT_EQ(nightSets(session), set == u"2-Red" ? u"Default+ 2-Red+*"_s : u"Default+* 2-Red+"_s);
    }
    EXPECT_EQ(install.user.messages[0].text,
              "Processing your Night Texture Files.  Please wait until the process has finished.  This may "
              "take a few moments!");
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_EQ(readFile(install.simulator() / u"Uires\\dlgsplash.bmp"), "the pilot's splash");
}

} // namespace
} // namespace morvane::test
