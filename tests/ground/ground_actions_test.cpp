#include "core/store.h"
#include "ground/ground_generation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "sets/set_removal.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;
using test::SmallInstall;

const QStringList threeFiles{u"Texture\\029h2su6.bmp"_s, u"UTEurLC\\034b2su4.bmp"_s,
                             u"Dutch\\005a2su2.bmp"_s};

struct GroundActions : testing::Test {
    SmallInstall install;
    Session& session = install.session;

    void addStorm(bool activated = true) {
        install.addGroundSet("2-Storm", "Overcast", activated, activated ? threeFiles : QStringList{});
        clickGroundRow(session, "2-Storm");
    }
    void deleteSelected(bool keepsColours) { GroundGeneration(session).deleteTextureSet(keepsColours); }
    QString activationOf(const QString& name) {
        install.reload();
        const auto set = findGroundSet(session, name);
        return set ? set->Actvated : u"gone"_s;
    }
    auto setFiles() { return contentsBelow(install.home() / u"Texture Sets"); }
};

TEST_F(GroundActions, deactivatingKeepsTheRowAndEmptyFoldersAndDeletingNothing) {
    addStorm();
    deleteSelected(true);
    EXPECT_EQ(activationOf("2-Storm"), "False");
    EXPECT_TRUE(setFiles().isEmpty());
    EXPECT_EQ(install.files.listFolders(install.home() / u"Texture Sets\\2-Storm").size(), 3);
    clickGroundRow(session, "2-Storm");
    deleteSelected(false);
    EXPECT_EQ(activationOf("2-Storm"), "gone");
    EXPECT_FALSE(install.files.exists(install.home() / u"Texture Sets\\2-Storm"));
    EXPECT_EQ(install.user.told().value(1),
              "Question|Morvane Information|Do you wish to delete the texture set: '2-Storm'?  This action "
              "cannot be reversed\n\nSelect Ok, to delete the file or select Cancel to cancel the delete.");
}

TEST_F(GroundActions, defaultAndTheInstalledSetAreProtected) {
    addStorm();
    session.rows<clsTextureSets>()->markInstalled("2-Storm");
    const std::pair<QString, QString> sets[] = {{"Default", "the Default"},
                                                {"2-Storm", "the currently installed"}};
    for (const auto& [name, words] : sets) {
        clickGroundRow(session, name);
        for (const bool keepsColours : {false, true}) {
            deleteSelected(keepsColours);
            EXPECT_EQ(
                install.user.told().last(),
                u"Exclamation|Morvane Information|You have selected %1 texture set to delete/deactivate."
                "\nThis is a protected texture set and no changes can be made to this set."_s.arg(words));
        }
        EXPECT_EQ(activationOf(name), "True");
    }
    EXPECT_EQ(setFiles().size(), 3);
}

TEST_F(GroundActions, severalAtOncePassOverDefaultAndTheInstalledOne) {
    for (const char* name : {"2-A", "3-B", "4-C"})
        install.addGroundSet(name, "Overcast", true, threeFiles);
    session.rows<clsTextureSets>()->markInstalled("3-B");
    clickGroundRow(session, "2-A");
    session.state<GroundSelection>().selectedRows = QStringList{"Default", "2-A", "3-B", "4-C"};
    install.user.onModal = [&](Screen screen) {
        ASSERT_EQ(screen, Screen::frm_MultiDelete);
        EXPECT_EQ(session.state<MultiChoice>().multiNames, QStringList({"2-A", "3-B", "4-C"}));
        session.state<MultiChoice>().multiConfirmed = QStringList{"2-A", "3-B"};
    };
    deleteSelected(false);
    EXPECT_EQ(activationOf("2-A") + activationOf("3-B") + activationOf("4-C"), "goneTrueTrue");
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_EQ(install.user.calls.filter("done "), QStringList({"done 1 texture set deleted"}));
    EXPECT_EQ(install.user.doneRemark, "1 set left");
}

TEST_F(GroundActions, aRemovalShowsThatItIsBusyAndCanBeEnded) {
    struct Case {
        bool keepsColours;
        int cancelAt; ///< the set before which the user cancels
        const char *activations, *verb, *done;
    };
    const Case cases[] = {
        {true, 0, "FalseFalse", "Deactivating", "done 2 texture sets deactivated"},
        {false, 2, "goneFalse", "Deleting", "done 1 texture set deleted"},
    };
    for (const char* name : {"2-A", "3-B"})
        install.addGroundSet(name, "Overcast", true, threeFiles);
    install.user.onModal = [&](Screen) {
        session.state<MultiChoice>().multiConfirmed = session.state<MultiChoice>().multiNames;
    };
    for (const Case& example : cases) {
        session.state<GroundSelection>().selectedRows = QStringList{"2-A", "3-B"};
        install.user.calls.clear();
        install.user.onPump = [&] {
            if (install.user.calls.filter("progress").size() == example.cancelAt)
                install.user.answers().cancelRequested = true;
        };
        deleteSelected(example.keepsColours);
        const QString text = u"%1 %2 texture set %3 of 2, '%4'.  Please wait............"_s;
        EXPECT_EQ(
            install.user.calls.mid(1, 5),
            QStringList({"message Progress Morvane Information",
                         text.arg("progress 0", example.verb, "1", "2-A"),
                         text.arg("progress 50", example.verb, "2", "3-B"), "hide message", example.done}));
        EXPECT_EQ(activationOf("2-A") + activationOf("3-B"), example.activations);
    }
}

TEST_F(GroundActions, cancelledActivationLeavesTheSetDeactivated) {
    addStorm(false);
    install.user.onPump = [&] {
        if (install.user.messages.back().text.contains("Process 2"))
            install.user.answers().cancelRequested = true;
    };
    GroundGeneration(session).activateTextureSet();
    EXPECT_EQ(activationOf("2-Storm"), "False");
    EXPECT_TRUE(setFiles().isEmpty());
}

TEST_F(GroundActions, aLockedStoreEndsARunWithOneMessageBeforeItMakesAnyFile) {
    Store other;
    other.open(install.home() / u"Morvane.mdb");
    StoreTransaction lock(other);
    other.execute("DELETE FROM MV_BACKUP WHERE ID = 0"); // takes the write lock
    install.user.onModal = [&](Screen) {
        session.state<GroundSetCounts>().setCounts = {2, 0, 1, 0, 0};
        session.state<GroundSetCounts>().setCountsConfirmed = true;
    };
    GroundGeneration(session).createTextureSets(true);
    EXPECT_EQ(install.user.told().size(), 1) << "and no report of how long it took";
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
    EXPECT_TRUE(install.user.calls.contains("show frm_Main"));
    EXPECT_TRUE(setFiles().isEmpty());
}

TEST_F(GroundActions, selectionTakesRowColoursAndDescription) {
    const QString key = u"Key:%1"_s.arg(install.addGroundSet("2-Storm", "Overcast", true));
    ASSERT_TRUE(loadGroundSelection(session, key));
    const auto& ground = session.state<GroundSelection>();
    EXPECT_EQ((QStringList{ground.SelectedGroundKey, ground.SelectedGroundSet, ground.SelectedGroundCover,
                           ground.SelectedGroundDescription}),
              (QStringList{key, "2-Storm", "Overcast", "A set of a test"}));
    EXPECT_TRUE(ground.SelectedGroundActivated);
    EXPECT_EQ(ground.colours, (ColourValues{0, 1.4f, 0, -1, 3, -1.5f}));
    EXPECT_FALSE(loadGroundSelection(session, "Key:999"));
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
}

} // namespace
} // namespace morvane
