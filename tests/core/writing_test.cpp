#include "core/writing.h"

#include "app/start_up.h"
#include "core/changed_rows.h"
#include "core/job.h"
#include "core/store.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "sets/options_in_force.h"
#include "support/small_install.h"

#include <QCoreApplication>

namespace morvane::test {
namespace {

/// Two programs on one install, as two sessions of one process. The first one writes at the beginning.
struct WritingTest : testing::Test {
    SmallInstall install;
    ScriptedUser user;
    Session second{{user, install.files, install.clock, install.random, install.registry}, install.home()};
    std::optional<Writing> first{install.session};

    void SetUp() override {
        ASSERT_TRUE(startUp(second)) << "a start needs no lock";
        user.calls.clear();
        second.writing->patience = {};
    }
};

TEST_F(WritingTest, aSecondWriterIsToldWhoTheFirstIsAndBeginsNothing) {
    for (const bool isUnattended : {false, true}) {
        if (isUnattended) second.writing->beUnattended();
        second.writing->patience = {};
        second.writing->wasRefused = false;
        user.messages.clear();
        EXPECT_FALSE(Job(second, u"work"_s));
        const QString process = QString::number(QCoreApplication::applicationPid());
        EXPECT_TRUE(user.told().value(0).contains(u" (process %1)"_s.arg(process)));
        EXPECT_EQ(user.messages.back().isProgress, isUnattended) << "which waits for no click";
        EXPECT_TRUE(second.writing->wasRefused && !second.jobRunning);
    }
    first.reset();
    EXPECT_FALSE(Job(second, u"work"_s)) << "an unattended run that was refused once is over";
}

TEST_F(WritingTest, theWaitIsLeftByACancelAndByTheEndOfTheProgramWithoutAWord) {
    second.writing->patience = std::chrono::minutes(1);
    user.onPump = [this] { user.answers().cancelRequested = true; };
    EXPECT_FALSE(Job(second, u"work"_s));
    user.onPump = [this] { second.ExitInProgress.moveTo(ExitStage::sessionEnd); };
    EXPECT_FALSE(Job(second, u"work"_s));
    EXPECT_TRUE(user.told().isEmpty());
    EXPECT_FALSE(user.isMessageVisible() || user.answers().cancelRequested);
}

TEST_F(WritingTest, rowsThatAnotherProgramChangedAreReadAnew) {
    EXPECT_EQ(loadedGroundSets(second).Count(), 1);
    EXPECT_FALSE(reloadChangedRows(second));
    install.addGroundSet("2-Storm", "Overcast", true);
    install.session.adoConn->execute(u"UPDATE TEXTURE_SWITCH SET ISHALO = TRUE"_s);
    first.reset();
    const Job job(second, u"work"_s);
    EXPECT_EQ(second.rows<clsTextureSets>()->Count(), 2);
    EXPECT_TRUE(second.state<OptionsInForce>().IsHalo && second.state<GroundSelection>().RefreshGroundList);
    EXPECT_FALSE(reloadChangedRows(second)) << "once";
    second.adoConn->execute(u"UPDATE TEXTURE_SWITCH SET ISHALO = FALSE"_s);
    EXPECT_FALSE(reloadChangedRows(second)) << "its own writes are known to it";
}

/// After a restart of the machine a killed holder's number may be that of a program of the same name.
TEST(InstallLock, isHeldByWhoHoldsItsFileAndNotByANumber) {
    TemporaryFolder folder;
    const FilePath file = folder / u"Writing.lock";
    std::optional<InstallLock> holder(std::in_place, folder.path(), u"Writing.lock"_s);
    InstallLock other(folder.path(), u"Writing.lock"_s);
    EXPECT_TRUE(holder->tryTake() && !holder->wasLeftBehind());
    EXPECT_FALSE(other.tryTake());
    const QByteArray left = readFile(file);
    holder.reset();
    writeFile(file, left); // this process is alive, and did not write it
    EXPECT_TRUE(other.tryTake() && other.wasLeftBehind()) << "as behind a crash";
    other.release();
    EXPECT_TRUE(other.tryTake() && !other.wasLeftBehind()) << "not behind an end";
}

} // namespace
} // namespace morvane::test
