#include "cli/console.h"

#include "core/options.h"
#include "support/printing.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::ConsoleInstall;
using test::contentsBelow;

TEST(CatalogueCommand, givesFourArraysForTheSet) {
    ConsoleInstall install;
    const auto run = install.run({u"catalogue"_s, u"2-Störm"_s});
    EXPECT_EQ(run.status, 0);
    const auto objects = run.objects();
    ASSERT_EQ(objects.size(), 1u);
    EXPECT_EQ(objects[0].keys(),
              QStringList({u"fileNames"_s, u"sourceFolders"_s, u"targetFolders"_s, u"tempFolders"_s}));
    const QJsonArray names = objects[0][u"fileNames"].toArray();
    EXPECT_EQ(names.size(), 6); // the winter of category 10 stands twice
    for (const QString& key : objects[0].keys())
        EXPECT_EQ(objects[0][key].toArray().size(), names.size()) << key.toStdString();
    const auto at = [&](const char16_t* key, qsizetype i) { return objects[0][key].toArray()[i].toString(); };
    qsizetype dutch = 0;
    while (dutch < names.size() && names[dutch] != QJsonValue(u"005a2su2.bmp"_s))
        ++dutch;
    ASSERT_LT(dutch, names.size());
    const QString home = install.home().native();
    EXPECT_EQ(at(u"sourceFolders", dutch), home + u"/Resources/DUTCH"_s);
    EXPECT_EQ(at(u"targetFolders", dutch), home + u"/Texture Sets/2-Störm/Dutch"_s);
    EXPECT_EQ(at(u"tempFolders", dutch), home + u"/TempBitmaps/Dutch/"_s);
}

TEST(GroundCommands, aSetIsMadeListedSwitchedOffAndOnAndDeleted) {
    ConsoleInstall install;
    const auto created = install.run({u"ground"_s, u"create"_s, u"0"_s, u"1"_s, u"0"_s, u"0"_s, u"0"_s});
    EXPECT_EQ(created.status, 0);
    EXPECT_EQ(created.countOf(u"Information: Average minutes per texture set"_s), 1);

    const QJsonArray list = install.run({u"ground"_s, u"list"_s}).array();
    ASSERT_EQ(list.size(), 2);
    const QJsonObject made = list[1].toObject();
    EXPECT_EQ(made.keys(), QStringList({"Actvated", "CloudCover", "ColorSettings", "Description", "Installed",
                                        "IsDutch", "IsNew", "TextureSet", "TsID"}));
    EXPECT_EQ(made[u"TsID"], QJsonValue(2));
    EXPECT_EQ(made[u"CloudCover"], QJsonValue(u"Mostly Clear"_s));
    EXPECT_EQ(made[u"Actvated"], QJsonValue(u"True"_s));
    EXPECT_EQ(made[u"Installed"], QJsonValue(false));
    EXPECT_EQ(made[u"ColorSettings"].toString().split(u':').size(), 6);
    const QString name = made[u"TextureSet"].toString();
    EXPECT_TRUE(QRegularExpression(u"^2-\\d\\d-\\d\\d-\\d{4} \\d\\d-\\d\\d-\\d\\d$"_s).match(name).hasMatch())
        << name.toStdString();
    EXPECT_EQ(install.setFolders(), QStringList{name});
    const auto files = contentsBelow(install.home() / u"Texture Sets");
    EXPECT_EQ(files.size(), 5);

    EXPECT_EQ(install.run({u"ground"_s, u"deactivate"_s, name}).status, 0);
    EXPECT_EQ(install.sets(), QStringList({u"Default+"_s, name}));
    EXPECT_TRUE(contentsBelow(install.home() / u"Texture Sets").isEmpty());
    EXPECT_EQ(install.run({u"ground"_s, u"activate"_s, name}).status, 0);
    EXPECT_EQ(install.sets(), QStringList({u"Default+"_s, name + u'+'}));
    EXPECT_EQ(contentsBelow(install.home() / u"Texture Sets"), files); // the colours were kept

    EXPECT_EQ(install.run({u"ground"_s, u"delete"_s, name}).status, 0);
    EXPECT_EQ(install.sets(), QStringList{u"Default+"_s});
    EXPECT_TRUE(install.setFolders().isEmpty());
}

TEST(GroundCommands, wrongCountsAreToldApart) {
    ConsoleInstall install;
    const std::pair<QString, int> cases[] = {
        {u"one"_s, 2},
        {u"-1"_s, 2},
        {u"1.5"_s, 2},
        {QString(), 2},
        {u"40000"_s, 1}, // more than the counter holds
        {u"99999999999999999999"_s, 1},
    };
    for (const auto& [count, status] : cases) {
        const auto run = install.run({u"ground"_s, u"create"_s, count, u"0"_s, u"0"_s, u"0"_s, u"0"_s});
        EXPECT_EQ(run.status, status) << count.toStdString() << '\n' << run.messages.toStdString();
        EXPECT_EQ(install.sets(), QStringList{u"Default+"_s}) << count.toStdString();
    }
    const auto none = install.run({u"ground"_s, u"create"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s});
    EXPECT_EQ(none.status, 1);
    EXPECT_TRUE(none.messages.contains(u"Division by zero"_s));
}

TEST(GroundCommands, refusalsAreToldAndChangeNothing) {
    ConsoleInstall install;
    install.addSet(u"2-Störm"_s, u"Overcast"_s, true);
    install.addSet(u"3-Calm"_s, u"Sky Clear"_s, false);
    ASSERT_EQ(install.run({u"ground"_s, u"install"_s, u"2-Störm"_s}).status, 0);
    const auto before = contentsBelow(install.folder.path());
    const QStringList sets = install.sets();
    EXPECT_EQ(sets, QStringList({u"Default+"_s, u"2-Störm+*"_s, u"3-Calm"_s}));

    const QString unknown = u"There is no ground texture set named 'Fog'"_s;
    const QString locked = u"This is a protected texture set and no changes can be made to this set."_s;
    const std::pair<QStringList, QString> cases[] = {
        {{u"activate"_s, u"Default"_s}, u"The ground texture set 'Default' is activated already"_s},
        {{u"activate"_s, u"2-Störm"_s}, u"The ground texture set '2-Störm' is activated already"_s},
        {{u"activate"_s, u"Fog"_s}, unknown},
        {{u"deactivate"_s, u"Fog"_s}, unknown},
        {{u"delete"_s, u"Fog"_s}, unknown},
        {{u"install"_s, u"Fog"_s}, unknown},
        {{u"install"_s, u"3-Calm"_s}, u"The ground texture set '3-Calm' is not activated"_s},
        {{u"deactivate"_s, u"Default"_s}, locked},
        {{u"delete"_s, u"Default"_s}, locked},
        {{u"deactivate"_s, u"2-Störm"_s}, locked},
        {{u"delete"_s, u"2-Störm"_s}, locked},
    };
    for (const auto& [words, text] : cases) {
        const auto run = install.run(QStringList{u"ground"_s} + words);
        EXPECT_EQ(run.status, 1) << words.join(u' ').toStdString();
        EXPECT_EQ(run.countOf(text), 1) << run.messages.toStdString();
        EXPECT_TRUE(run.output.isEmpty());
    }
    EXPECT_EQ(install.sets(), sets);
    EXPECT_EQ(contentsBelow(install.folder.path()), before);
}

TEST(GroundCommands, aNoOrNobodyToAskDeletesNothing) {
    ConsoleInstall install;
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    const QString home = install.home().native();
    const QStringList policies[] = {{u"--answer"_s, u"no"_s}, {}, {u"--answer"_s, u"ask"_s}};
    for (const QStringList& policy : policies) {
        const auto run = test::runConsole(QStringList{u"--home"_s, home} + policy +
                                          QStringList{u"ground"_s, u"delete"_s, u"2-Storm"_s});
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.countOf(u"Question: Morvane Information"_s), 1);
        EXPECT_EQ(install.sets(), QStringList({u"Default+"_s, u"2-Storm+"_s}));
    }
    const auto asked = test::runConsole(
        {u"--home"_s, home, u"--answer"_s, u"ask"_s, u"ground"_s, u"delete"_s, u"2-Storm"_s}, "Yes\n");
    EXPECT_EQ(asked.status, 0);
    EXPECT_EQ(install.sets(), QStringList{u"Default+"_s});
}

TEST(OriginalsCommands, listAndRestoreThePilotsFiles) {
    ConsoleInstall install;
    const FilePath texture = install.simulator() / u"Scenery\\World\\texture\\029h2su6.bmp";
    install.addSet(u"2-Storm"_s, u"Overcast"_s, true, {u"Texture\\029h2su6.bmp"_s, u"Texture\\new.bmp"_s});
    const auto before = contentsBelow(install.simulator());
    EXPECT_TRUE(install.run({u"originals"_s, u"list"_s}).array().isEmpty());
    ASSERT_EQ(install.run({u"ground"_s, u"install"_s, u"2-Storm"_s}).status, 0);
    EXPECT_EQ(test::readFile(texture), "2-Storm Texture\\029h2su6.bmp");

    const QJsonArray list = install.run({u"originals"_s, u"list"_s}).array();
    ASSERT_EQ(list.size(), 2); // "new.bmp" replaced nothing
    EXPECT_EQ(list[0].toObject().keys(), QStringList({"path", "sha1", "size"}));
    EXPECT_EQ(list[0].toObject()[u"path"].toString().toLower(), u"scenery\\world\\texture\\029h2su6.bmp"_s);
    EXPECT_EQ(list[1].toObject(), QJsonObject({{u"path"_s, u"Uires\\dlgsplash.bmp"_s},
                                               {u"sha1"_s, u"74a0a683fa9a9bd35ff624fad775b1f42cc4b897"_s},
                                               {u"size"_s, 18}}));

    install.files.setReadOnly(texture, true);
    const auto restored = install.run({u"originals"_s, u"restore"_s});
    EXPECT_EQ(restored.status, 0);
    EXPECT_EQ(restored.messages, u"2 files put back\n"_s);
    auto after = contentsBelow(install.simulator());
    EXPECT_EQ(after.take(u"Scenery/World/texture/new.bmp"_s), "2-Storm Texture\\new.bmp");
    EXPECT_EQ(after, before);
    EXPECT_TRUE(install.files.isReadOnly(texture));
    EXPECT_EQ(install.sets(), QStringList({u"Default+"_s, u"2-Storm+"_s})); // none is installed any more
}

} // namespace
} // namespace morvane
