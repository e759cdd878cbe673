#include "core/store.h"
#include "ground/ground_generation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <QFile>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;
using test::SmallInstall;

const QStringList threeFiles{u"Texture\\029h2su6.bmp"_s, u"UTEurLC\\034b2su4.bmp"_s,
                             u"Dutch\\005a2su2.bmp"_s};

QString activationOf(SmallInstall& install, const QString& name) {
    install.reload();
    const auto set = findGroundSet(install.session, name);
    return set ? set->Actvated : u"gone"_s;
}

TEST(GroundActions, deletingTakesRowAndFolder) {
    SmallInstall install;
    install.addGroundSet("2-Störm", "Overcast", true, threeFiles);
    ASSERT_TRUE(clickGroundRow(install.session, "2-Störm"));
    GroundGeneration(install.session).deleteTextureSet(false);
    EXPECT_EQ(activationOf(install, "2-Störm"), "gone");
    EXPECT_FALSE(install.files.exists(install.home() / u"Texture Sets\\2-Störm"));
    EXPECT_EQ(
        install.user.told(),
        QStringList(
            {"Question|Morvane Information|Do you wish to delete the texture set: '2-Störm'?  This action "
             "cannot be reversed\n\nSelect Ok, to delete the file or select Cancel to cancel the "
             "delete."}));
}

TEST(GroundActions, deactivatingKeepsColoursAndEmptyFolders) {
    SmallInstall install;
    install.addGroundSet("2-Storm", "Overcast", true, threeFiles);
    clickGroundRow(install.session, "2-Storm");
    GroundGeneration(install.session).deleteTextureSet(true);
    EXPECT_EQ(activationOf(install, "2-Storm"), "False");
    EXPECT_TRUE(contentsBelow(install.home() / u"Texture Sets").isEmpty());
    for (const QString& name : groundSubfolders)
        EXPECT_TRUE(install.files.isFolder(install.home() / u"Texture Sets\\2-Storm" / name));

    clickGroundRow(install.session, "2-Storm");
    GroundGeneration(install.session).activateTextureSet();
    EXPECT_EQ(activationOf(install, "2-Storm"), "True");
    EXPECT_EQ(contentsBelow(install.home() / u"Texture Sets").size(), 5);
}

TEST(GroundActions, aNoChangesNothing) {
    SmallInstall install;
    install.addGroundSet("2-Storm", "Overcast", true, threeFiles);
    clickGroundRow(install.session, "2-Storm");
    install.user.otherwise = false;
    GroundGeneration(install.session).deleteTextureSet(false);
    EXPECT_EQ(activationOf(install, "2-Storm"), "True");
    EXPECT_EQ(contentsBelow(install.home() / u"Texture Sets").size(), 3);
}

TEST(GroundActions, defaultAndTheInstalledSetAreProtected) {
    SmallInstall install;
    install.addGroundSet("2-Storm", "Overcast", true, threeFiles);
    install.session.gTextureSets->markInstalled("2-Storm");
    for (const char* name : {"Default", "2-Storm"}) {
        clickGroundRow(install.session, name);
        GroundGeneration(install.session).deleteTextureSet(false);
        GroundGeneration(install.session).deleteTextureSet(true);
        EXPECT_EQ(activationOf(install, name), "True");
    }
    const QString tail = "\nThis is a protected texture set and no changes can be made to this set.";
    const QString first = "Exclamation|Morvane Information|You have selected the Default texture set to "
                          "delete/deactivate." +
                          tail;
    const QString second =
        "Exclamation|Morvane Information|You have selected the currently installed texture set to "
        "delete/deactivate." +
        tail;
    EXPECT_EQ(install.user.told(), QStringList({first, first, second, second}));
    EXPECT_EQ(contentsBelow(install.home() / u"Texture Sets").size(), 3);
}

TEST(GroundActions, severalAtOncePassOverDefaultAndTheInstalledOne) {
    SmallInstall install;
    for (const char* name : {"2-A", "3-B", "4-C"})
        install.addGroundSet(name, "Overcast", true, threeFiles);
    install.session.gTextureSets->markInstalled("3-B");
    clickGroundRow(install.session, "2-A");
    install.session.ground.selectedRows = QStringList{"Default", "2-A", "3-B", "4-C"};
    install.user.onModal = [&](Screen screen) {
        ASSERT_EQ(screen, Screen::frm_MultiDelete);
        EXPECT_EQ(install.session.modal.multiNames, QStringList({"2-A", "3-B", "4-C"}));
        install.session.modal.multiConfirmed = QStringList{"2-A", "3-B"};
    };
    GroundGeneration(install.session).deleteTextureSet(false);
    EXPECT_EQ(activationOf(install, "2-A"), "gone");
    EXPECT_EQ(activationOf(install, "3-B"), "True");
    EXPECT_EQ(activationOf(install, "4-C"), "True");
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST(GroundActions, cancelledActivationLeavesTheSetDeactivated) {
    SmallInstall install;
    install.addGroundSet("2-Storm", "Overcast", false);
    clickGroundRow(install.session, "2-Storm");
    install.user.onPump = [&] {
        if (install.user.messages.back().text.contains("Process 2"))
            install.user.answers().cancelRequested = true;
    };
    GroundGeneration(install.session).activateTextureSet();
    EXPECT_EQ(activationOf(install, "2-Storm"), "False");
    EXPECT_TRUE(contentsBelow(install.home() / u"Texture Sets").isEmpty());
}

TEST(GroundActions, namesOfTheStoreReachNoOtherFolder) {
    SmallInstall install;
    test::writeFile(install.home() / u"Resources\\Texture\\a.bmp", "not a set's");
    for (const char* name : {"..\\Resources", "../Resources", "..", ".", "2-Storm\\..\\..\\Resources"}) {
        install.addGroundSet("x", "Overcast", true);
        install.session.adoConn->execute(
            u"UPDATE TEXTURE_SETS SET TEXTURE_SET = '%1' WHERE TEXTURE_SET = 'x'"_s.arg(name));
        install.reload();
        clickGroundRow(install.session, name);
        GroundGeneration(install.session).deleteTextureSet(false);
        EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1) << name;
        install.user.messages.clear();
    }
    EXPECT_EQ(test::readFile(install.home() / u"Resources\\Texture\\a.bmp"), "not a set's");
}

TEST(GroundActions, filesBehindALinkAreLeftAlone) {
    SmallInstall install;
    install.addGroundSet("2-Storm", "Overcast", true, threeFiles);
    test::writeFile(install.folder / u"elsewhere\\a.bmp", "mine");
    const FilePath set = install.home() / u"Texture Sets\\2-Storm";
    install.files.remove(set / u"Dutch\\005a2su2.bmp");
    install.files.removeFolder(set / u"Dutch");
    ASSERT_TRUE(QFile::link((install.folder / u"elsewhere").native(), (set / u"Dutch").native()));
    clickGroundRow(install.session, "2-Storm");
    GroundGeneration(install.session).deleteTextureSet(true);
    EXPECT_EQ(test::readFile(install.folder / u"elsewhere\\a.bmp"), "mine");
}

TEST(GroundActions, aLockedStoreEndsARunBeforeItTouchesAnotherSet) {
    SmallInstall install;
    install.addGroundSet("2-Storm", "Overcast", true, threeFiles);
    const auto before = contentsBelow(install.home() / u"Texture Sets");
    Store other;
    other.open(install.home() / u"Morvane.mdb");
    StoreTransaction lock(other);
    other.execute("DELETE FROM MV_BACKUP WHERE ID = 0"); // takes the write lock
    install.user.onModal = [&](Screen) {
        install.session.modal.setCounts = {1, 0, 0, 0, 0};
        install.session.modal.setCountsConfirmed = true;
    };
    GroundGeneration(install.session).createTextureSets(true);
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
    clickGroundRow(install.session, "2-Storm");
    GroundGeneration(install.session).deleteTextureSet(false);
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 2);
    EXPECT_EQ(contentsBelow(install.home() / u"Texture Sets"), before);
}

TEST(GroundActions, selectionTakesNameColoursAndTheFirst255CharactersOfTheDescription) {
    SmallInstall install;
    const int key = install.addGroundSet("2-Storm", "Overcast", false);
    ASSERT_TRUE(loadGroundSelection(install.session, u"Key:%1"_s.arg(key)));
    EXPECT_EQ(install.session.ground.SelectedGroundSet, "2-Storm");
    EXPECT_FLOAT_EQ(install.session.ground.colours.red, 1.4f);
    EXPECT_FLOAT_EQ(install.session.ground.colours.contrast, -1.5f);
    EXPECT_EQ(install.session.ground.SelectedGroundDescription, "A set of a test");
    EXPECT_FALSE(loadGroundSelection(install.session, "Key:999"));
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
}

} // namespace
} // namespace morvane
