// Long days in one process: what is opened is closed again, and nothing that is kept grows.

#include "core/store_connection.h"
#include "ground/ground_generation.h"
#include "ground/ground_installation.h"
#include "sets/set_removal.h"
#include "simulator/simulator_restore.h"
#include "simulator/undo_install.h"
#include "support/system_files.h"
#include "support/window_program.h"
#include "weather/reports.h"
#include "window/form_table.h"

#include <QFileInfo>
#include <fstream>
#include <iostream>

namespace morvane::test {
namespace {

/// Rounds of work; MORVANE_SOAK names more, by hand. The memory is looked at from so many on.
constexpr int usualRounds = 6, warmRounds = 3, roundsForMemory = 100;

int rounds() {
    return std::max(qEnvironmentVariableIntValue("MORVANE_SOAK"), usualRounds);
}

/// What a process holds and an install keeps.
struct Held {
    qint64 openFiles = 0; ///< or whatever the system counts with them
    qint64 memory = 0;    ///< in bytes, what lies in the machine's
    qint64 storeBytes = 0, rows = 0, keptFiles = 0;
};

qint64 memoryHeld() {
    constexpr qint64 pageSize = 4096;
    qint64 whole = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> whole >> resident;
    return resident * pageSize;
}

Held heldBy(Session& session) {
    Held held{openHandles(), memoryHeld()};
    for (const QString& table : session.adoConn->tables())
        for (RowSet rows(*session.adoConn, u"SELECT * FROM "_s + table); !rows.atEnd(); rows.next())
            ++held.rows;
    closeDatabase(session); // which takes the log in
    held.storeBytes = QFileInfo((session.AppPath / u"Morvane.mdb").native()).size();
    connectDatabase(session);
    held.keptFiles = contentsBelow(session.AppPath).size() + contentsBelow(session.FSPath).size();
    return held;
}

void expectFlat(const Held& early, const Held& late, const char* what) {
    std::cout << what << ": open files " << early.openFiles << " -> " << late.openFiles << ", memory "
              << early.memory / 1024 << " -> " << late.memory / 1024 << " kB, store " << early.storeBytes
              << " -> " << late.storeBytes << " bytes, rows " << early.rows << " -> " << late.rows
              << ", files " << early.keptFiles << " -> " << late.keptFiles << '\n';
    EXPECT_EQ(late.openFiles, early.openFiles);
    EXPECT_EQ(late.rows, early.rows);
    EXPECT_EQ(late.keptFiles, early.keptFiles);
    EXPECT_LE(late.storeBytes, early.storeBytes * 105 / 100);
    EXPECT_TRUE(rounds() < roundsForMemory || late.memory <= early.memory * 105 / 100);
}

/// Runs the rounds, and compares what is held behind the first of them with what is held at the end.
void expectFlatOver(int count, Session& session, const char* what, const std::function<void()>& round) {
    Held early;
    const int warm = rounds() >= roundsForMemory ? 10 : warmRounds;
    for (int i = 0; i < count; ++i) {
        round();
        if (i + 1 == warm) early = heldBy(session);
    }
    expectFlat(early, heldBy(session), what);
}

struct Soak : InstallTest {
    Soak() {
        user.answersToGive.clear();
        user.onModal = [this](Screen) {
            session.state<GroundSetCounts>() = {.setCounts = {0, 0, 1, 0, 0}, .setCountsConfirmed = true};
        };
    }

    void makeInstallUndoRestoreDelete() {
        install.clock.now = install.clock.now.addSecs(61);
        GroundGeneration(session).createTextureSets(true);
        const QString made = session.state<GroundSelection>().madeSet;
        ASSERT_FALSE(made.isEmpty());
        GroundInstallation(session).installTextureSet(made);
        ASSERT_TRUE(undoLastInstall(session));
        GroundInstallation(session).installTextureSet(made);
        ASSERT_TRUE(restoreOriginals(session));
        ASSERT_TRUE(removeSet(session, setKind<GroundKind>(), made, false));
        user.calls.clear();
        user.messages.clear();
    }
};

TEST_F(Soak, setsThatComeAndGoLeaveNothingBehind) {
    expectFlatOver(rounds(), session, "sets", [this] { makeInstallUndoRestoreDelete(); });
}

TEST_F(Soak, cyclesReplaceOneAnother) {
    const FilePath cycle(QStringLiteral(MORVANE_DATA_DIR) + u"/metar/02Z.TXT"_s);
    expectFlatOver(rounds() * 5 / 3, session, "cycles", [&] {
        ASSERT_TRUE(clsWxFinderData(session).importCycleFile(cycle, CycleForm::noaa));
        user.calls.clear();
        user.messages.clear();
    });
}

TEST(SoakOfWindows, pagesThatOpenAndCloseLeaveNothingBehind) {
    WindowProgram program;
    expectFlatOver(std::max(rounds() * 2 / 3, warmRounds), program.session, "pages", [&program] {
        for (const QString& name : formNames()) {
            Form* form = program.shell.form(name);
            form->show();
            QCoreApplication::processEvents();
            form->hide();
        }
    });
}

} // namespace
} // namespace morvane::test
