#include "cli/console.h"

#include "support/printing.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;

struct GroundCommands : testing::Test {
    test::ConsoleInstall install;

    void expectDone(const QString& command, const QString& setsAfterwards) {
        const auto run = install.run(command);
        EXPECT_EQ(run.status, 0) << command.toStdString() << '\n' << run.messages.toStdString();
        EXPECT_EQ(install.sets(), setsAfterwards);
    }
};

TEST_F(GroundCommands, theCatalogueGivesFourArraysForTheSet) {
    const QJsonObject catalogue = install.run(u"catalogue 2-Störm"_s).objects().at(0);
    const QStringList keys = catalogue.keys();
    EXPECT_EQ(keys.join(u' '), u"fileNames sourceFolders targetFolders tempFolders"_s);
    QStringList dutch;
    for (const QString& key : keys) {
        EXPECT_EQ(catalogue[key].toArray().size(), 6); // the winter of category 10 stands twice
        for (int i = 0; i < 6; ++i)
            if (catalogue[u"fileNames"].toArray()[i] == QJsonValue(u"005a2su2.bmp"_s))
                dutch << catalogue[key].toArray()[i].toString();
    }
    const QString home = install.home().native();
    EXPECT_EQ(dutch, QStringList({u"005a2su2.bmp"_s, home + u"/Resources/DUTCH"_s,
                                  home + u"/Texture Sets/2-Störm/Dutch"_s, home + u"/TempBitmaps/Dutch/"_s}));
}

TEST_F(GroundCommands, aSetIsMadeListedSwitchedOffAndOnAndDeleted) {
    const auto created = install.run(u"ground create 0 1 0 0 0"_s);
    EXPECT_EQ(created.status, 0);
    EXPECT_EQ(created.messages.count(u"Information: Average minutes per texture set"_s), 1);

    const QJsonArray list = install.run(u"ground list"_s).array();
    ASSERT_EQ(list.size(), 2);
    const QJsonObject made = list[1].toObject();
    EXPECT_EQ(made.keys().join(u' '),
              u"Actvated CloudCover ColorSettings Description Installed IsDutch IsNew TextureSet TsID"_s);
    EXPECT_EQ(made[u"TsID"], QJsonValue(2));
    EXPECT_EQ(made[u"CloudCover"], QJsonValue(u"Mostly Clear"_s));
    EXPECT_EQ(made[u"Actvated"], QJsonValue(u"True"_s));
    EXPECT_EQ(made[u"Installed"], QJsonValue(false));
    const QString name = made[u"TextureSet"].toString();
    EXPECT_TRUE(QRegularExpression(u"^2-\\d\\d-\\d\\d-\\d{4} \\d\\d-\\d\\d-\\d\\d$"_s).match(name).hasMatch())
        << name.toStdString();
    EXPECT_EQ(install.setFolders(), QStringList{name});
    const auto files = contentsBelow(install.home() / u"Texture Sets");
    EXPECT_EQ(files.size(), 5);

    EXPECT_EQ(install.run(u"ground deactivate"_s, {name}).status, 0);
    EXPECT_EQ(install.sets(), u"Default+ "_s + name);
    EXPECT_TRUE(contentsBelow(install.home() / u"Texture Sets").isEmpty());
    EXPECT_EQ(install.run(u"ground activate"_s, {name}).status, 0);
    EXPECT_EQ(contentsBelow(install.home() / u"Texture Sets"), files); // the colours were kept
    EXPECT_EQ(install.run(u"ground delete"_s, {name}).status, 0);
    EXPECT_EQ(install.sets(), u"Default+"_s);
    EXPECT_TRUE(install.setFolders().isEmpty());
}

TEST_F(GroundCommands, wrongCountsAreToldApart) {
    const std::tuple<QString, int, QString> cases[] = {
        {u"one"_s, 2, u"N5 takes a whole number"_s},
        {u"-1"_s, 2, u"N5 takes a whole number"_s},
        {u"1.5"_s, 2, u"N5 takes a whole number"_s},
        {QString(), 2, u"N5 takes a whole number"_s},
        {u"40000"_s, 1, u"Overflow"_s}, // more than the counter holds
        {u"99999999999999999999"_s, 1, u"Overflow"_s},
        {u"0"_s, 1, u"Division by zero"_s},
    };
    for (const auto& [count, status, said] : cases) {
        const auto run = install.run(u"ground create 0 0 0 0"_s, {count});
        EXPECT_EQ(run.status, status) << count.toStdString() << '\n' << run.messages.toStdString();
        EXPECT_EQ(install.sets(), u"Default+"_s) << count.toStdString();
        EXPECT_TRUE(run.messages.contains(said)) << run.messages.toStdString();
    }
}

TEST_F(GroundCommands, refusalsAreToldAndChangeNothing) {
    install.addSet(u"2-Störm"_s, u"Overcast"_s);
    install.addSet(u"3-Calm"_s, u"Sky Clear"_s, false);
    const QString sets = u"Default+ 2-Störm+* 3-Calm"_s;
    expectDone(u"ground install 2-Störm"_s, sets);
    const auto before = contentsBelow(install.folder.path());

    const QString unknown = u"There is no ground texture set named 'Fog'"_s;
    const QString locked = u"This is a protected texture set and no changes can be made to this set."_s;
    const std::pair<QString, QString> cases[] = {
        {u"activate Default"_s, u"The ground texture set 'Default' is activated already"_s},
        {u"activate Fog"_s, unknown},
        {u"deactivate Fog"_s, unknown},
        {u"delete Fog"_s, unknown},
        {u"install Fog"_s, unknown},
        {u"install 3-Calm"_s, u"The ground texture set '3-Calm' is not activated"_s},
        {u"deactivate Default"_s, locked},
        {u"delete Default"_s, locked},
        {u"deactivate 2-Störm"_s, locked},
        {u"delete 2-Störm"_s, locked},
    };
    for (const auto& [words, text] : cases) {
        const auto run = install.run(u"ground "_s + words);
        EXPECT_EQ(run.status, 1) << words.toStdString();
        EXPECT_EQ(run.messages.count(text), 1) << run.messages.toStdString();
        EXPECT_TRUE(run.output.isEmpty());
    }
    EXPECT_EQ(install.sets(), sets);
    EXPECT_EQ(contentsBelow(install.folder.path()), before);
}

TEST_F(GroundCommands, aNoOrNobodyToAskDeletesNothing) {
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    const QStringList arguments{u"--home"_s, install.home().native(), u"ground"_s, u"delete"_s, u"2-Storm"_s};
    // A No is no failure, but that nobody could be asked is one.
    for (const auto& [policy, status] :
         {std::pair(u"--answer no"_s, 0), {QString(), 1}, {u"--answer ask"_s, 1}}) {
        const auto run = test::runConsole(policy, arguments);
        EXPECT_EQ(run.status, status) << policy.toStdString();
        EXPECT_EQ(run.messages.count(u"Question: Morvane Information"_s), 1);
        EXPECT_EQ(run.messages.contains(u"No; use --answer yes\n"_s), status == 1)
            << run.messages.toStdString();
        EXPECT_EQ(install.sets(), u"Default+ 2-Storm+"_s);
    }
    EXPECT_EQ(test::runConsole(u"--answer ask"_s, arguments, "Yes\n").status, 0);
    EXPECT_EQ(install.sets(), u"Default+"_s);
}

TEST_F(GroundCommands, thePilotsFilesAreListedAndRestored) {
    const FilePath texture = install.simulator() / u"Scenery\\World\\texture\\029h2su6.bmp";
    install.addSet(u"2-Storm"_s, u"Overcast"_s, true, {u"Texture\\029h2su6.bmp"_s, u"Texture\\new.bmp"_s});
    const auto before = contentsBelow(install.simulator());
    EXPECT_TRUE(install.run(u"originals list"_s).array().isEmpty());
    expectDone(u"ground install 2-Storm"_s, u"Default+ 2-Storm+*"_s);
    EXPECT_EQ(test::readFile(texture), "2-Storm Texture\\029h2su6.bmp");

    const QJsonArray list = install.run(u"originals list"_s).array();
    ASSERT_EQ(list.size(), 2); // "new.bmp" replaced nothing
    EXPECT_EQ(list[0].toObject()[u"path"], u"Scenery\\World\\texture\\029H2SU6.BMP"_s);
    const QJsonObject splash = list[1].toObject();
    EXPECT_EQ(splash.keys(), QStringList({"copy", "kept", "mode", "number", "path", "sha1", "size"}));
    EXPECT_EQ(splash[u"path"], u"Uires\\dlgsplash.bmp"_s);
    EXPECT_EQ(splash[u"sha1"], u"74a0a683fa9a9bd35ff624fad775b1f42cc4b897"_s);
    EXPECT_EQ(splash[u"size"], 18);
    EXPECT_EQ(splash[u"number"], 1);

    expectDone(u"originals restore"_s, u"Default+ 2-Storm+"_s); // none is installed any more
    EXPECT_EQ(contentsBelow(install.simulator()), before);
}

/// What is not ours any more is left and named; a damaged kept file is a failure.
TEST_F(GroundCommands, aRestoreNamesWhatItLeaves) {
    const QString path = u"Scenery\\World\\texture\\029H2SU6.BMP"_s;
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    const struct {
        FilePath spoilt;
        int status;
        QString list, said;
    } cases[] = {
        {install.simulator() / path, 0, u"left"_s, u"1 file put back, 1 left as they are\n"_s},
        {install.home() / u"Backup\\Originals" / path, 1, u"damaged"_s, u"Exclamation: "_s},
    };
    for (const auto& road : cases) {
        EXPECT_EQ(install.run(u"ground install 2-Storm"_s).status, 0);
        test::writeFile(road.spoilt, "by another hand");
        const auto run = install.run(u"originals restore"_s);
        EXPECT_EQ(run.status, road.status) << run.messages.toStdString();
        ASSERT_EQ(run.objects().size(), 1u);
        EXPECT_EQ(run.objects()[0][road.list].toArray(), QJsonArray{path});
        EXPECT_TRUE(run.messages.contains(road.said) && run.messages.contains(path))
            << run.messages.toStdString();
        test::writeFile(install.simulator() / path, "2-Storm Texture\\029h2su6.bmp");
    }
}

} // namespace
} // namespace morvane
