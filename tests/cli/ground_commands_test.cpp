#include "cli/console.h"

#include "support/night_install.h"

#include <QRegularExpression>

namespace morvane::test {
namespace {

struct GroundCommands : testing::Test {
    ConsoleInstall install;

    void SetUp() override { addNightStock(install); }
    template <class Kind = GroundKind>
    void expectDone(const QString& words, const QString& setsAfterwards) {
        expectSteps(install, {{words}});
        EXPECT_EQ(install.states<Kind>(), setsAfterwards) << words.toStdString();
    }
    void addNight(const QString& name, bool activated) {
        install.withStore([&](Session&) { addNightSet(install, name, activated); });
    }
};

TEST_F(GroundCommands, aSetIsMadeListedSwitchedOffAndOnAndDeleted) {
    expectSteps(install,
                {{u"catalogue|2-Störm"_s,
                  {u"{\"fileNames\":["_s, quoted(FilePath(u"/Texture Sets/2-Störm/Dutch"_s).text()).mid(1)}},
                 {u"ground|create|0|1|0|0|0"_s, {u"Information: Average minutes per texture set"_s}},
                 {u"ground|list"_s,
                  {u"\"Actvated\":\"True\",\"CloudCover\":\"Mostly Clear\",\"ColorSettings\":\""_s,
                   u"\"Installed\":false,\"IsDutch\":true,\"IsNew\":false,"_s, u"\"TsID\":2}]"_s}}});
    const QString name = install.setFolders().value(0);
    EXPECT_TRUE(QRegularExpression(u"^2-\\d\\d-\\d\\d-\\d{4} \\d\\d-\\d\\d-\\d\\d$"_s).match(name).hasMatch())
        << name.toStdString();
    const auto files = contentsBelow(install.home() / u"Texture Sets");
    EXPECT_EQ(files.size(), 5);
    expectDone(u"ground|deactivate|"_s + name, u"Default+ "_s + name);
    EXPECT_TRUE(contentsBelow(install.home() / u"Texture Sets").isEmpty());
    expectDone(u"ground|activate|"_s + name, u"Default+ "_s + name + u'+');
    EXPECT_EQ(contentsBelow(install.home() / u"Texture Sets"), files); // the colours were kept
    expectDone(u"ground|delete|"_s + name, u"Default+"_s);
    EXPECT_TRUE(install.setFolders().isEmpty());
}

TEST_F(GroundCommands, wrongCountsAreToldApart) {
    expectSteps(install,
                {{u"ground|create|0|0|0|0|1.5"_s, {u"N5 takes a whole number"_s}, 2},
                 {u"ground|create|0|0|0|0|40000"_s, {u"Overflow"_s}, 1}, // more than the counter holds
                 {u"ground|create|0|0|0|0|99999999999999999999"_s, {u"Overflow"_s}, 1},
                 {u"ground|create|0|0|0|0|0"_s, {u"Division by zero"_s}, 1}});
    EXPECT_EQ(install.sets(), u"Default+"_s);
}

TEST_F(GroundCommands, refusalsOfEveryKindOfSetAreToldAndChangeNothing) {
    install.addSet("2-Störm", "Overcast");
    install.addSet("3-Calm", "Sky Clear", false);
    for (const auto& [name, isActivated] :
         {std::pair("Default", true), {"2-Störm", true}, {"3-Calm", false}}) {
        install.addSky(name, "Overcast", isActivated);
        addNight(name, isActivated);
    }
    const QString unknown = "There is no %1 texture set named 'Fog'", all = "ground night sky",
                  locked = "This is a protected texture set and no changes can be made to this set.";
    const std::tuple<QString, QString, QString> cases[] = {
        // The words, what is told, and the kinds of which it holds: each kind protects sets of its own.
        {"activate Default", "The %1 texture set 'Default' is activated already", "ground night"},
        {"activate Fog", unknown, all},
        {"deactivate Fog", unknown, all},
        {"delete Fog", unknown, all},
        {"install Fog", unknown, all},
        {"install 3-Calm", "The %1 texture set '3-Calm' is not activated", all},
        {"deactivate Default", locked, all},
        {"deactivate 2-Störm", locked, "ground sky"}, // an installed one
    };
    for (const QString& kind : {u"ground"_s, u"night"_s, u"sky"_s}) {
        EXPECT_EQ(install.run(kind + " install 2-Störm").status, 0);
        const auto before = contentsBelow(install.folder.path());
        for (const auto& [words, text, kinds] : cases) {
            if (!kinds.contains(kind)) continue;
            const auto run = install.run(kind + u' ' + words);
            EXPECT_EQ(run.status, 1) << kind.toStdString() << words.toStdString();
            EXPECT_EQ(run.messages.count(text.contains("%1") ? text.arg(kind) : text), 1)
                << run.messages.toStdString();
            EXPECT_TRUE(run.output.isEmpty());
        }
        EXPECT_TRUE(contentsBelow(install.folder.path()) == before) << kind.toStdString();
    }
    EXPECT_EQ(install.run("sky show Fog").status, 1);
    EXPECT_EQ(install.sets() + '|' + install.nights() + '|' + install.skies(),
              "Default+ 2-Störm+* 3-Calm|Default+ 2-Störm+* 3-Calm|Default+ 2-Störm+* 3-Calm");
}

TEST_F(GroundCommands, aFavouriteIsMadeActivatedInstalledSwitchedOffAndDeleted) {
    addNight("Default", true);
    const QString name = u"2-Cold lights"_s;
    expectDone<NightKind>(u"night|favourite|Cold lights|-100:-30:-30:80:0:0"_s, u"Default+ "_s + name);
    expectSteps(install,
                {{u"night|list"_s,
                  {u"{\"Actvated\":\"False\",\"ColorSettings\":\"-100:-6:-6:16:0:0\",\"Description\":\"\","
                   "\"Installed\":false,\"IsNew\":false,\"NtsID\":2,\"TextureSet\":\"2-Cold lights\"}]"_s}}});
    expectDone<NightKind>(u"night|activate|"_s + name, u"Default+ "_s + name + u'+');
    expectDone<NightKind>(u"night|deactivate|"_s + name, u"Default+ "_s + name);
    expectDone<NightKind>(u"night|delete|"_s + name, u"Default+"_s);
}

/// What is not ours any more is left and named; a damaged kept file is a failure.
TEST_F(GroundCommands, thePilotsFilesAreListedAndRestored) {
    const QString path = "Scenery\\World\\texture\\029H2SU6.BMP";
    const FilePath texture = install.simulator() / path, kept = install.home() / u"Backup\\Originals" / path;
    install.addSet("2-Storm", "Overcast", true, {"Texture\\029h2su6.bmp", "Texture\\new.bmp"});
    const auto before = contentsBelow(install.simulator());
    EXPECT_TRUE(install.run("originals list").array().isEmpty());
    expectDone("ground|install|2-Storm", "Default+ 2-Storm+*");
    EXPECT_EQ(readFile(texture), "2-Storm Texture\\029h2su6.bmp");

    EXPECT_EQ(install.run("originals list").array().size(), 2); // "new.bmp" replaced nothing
    expectSteps(install, {{"originals|list",
                           {"\"path\":\"Scenery\\\\World\\\\texture\\\\029H2SU6.BMP\"",
                            "\"copy\":\"Uires\\\\dlgsplash.bmp\"", "\"number\":1",
                            "\"sha1\":\"74a0a683fa9a9bd35ff624fad775b1f42cc4b897\",\"size\":18"}}});
    expectDone("originals|restore", "Default+ 2-Storm+"); // none is installed any more
    EXPECT_EQ(contentsBelow(install.simulator()), before);

    EXPECT_EQ(install.run("ground install 2-Storm").status, 0);
    writeFile(texture, "by another hand");
    expectSteps(install, {{"originals|restore", {"\"left\":[\"Scenery", "1 file put back, 1 taken away"}}});
    writeFile(texture, "2-Storm Texture\\029h2su6.bmp");
    EXPECT_EQ(install.run("ground install 2-Storm").status, 0);
    writeFile(kept, "by another hand");
    expectSteps(install, {{"originals|restore", {"\"damaged\":[\"Scenery", "Exclamation: "}, 1}});
}

} // namespace
} // namespace morvane::test
