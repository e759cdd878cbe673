// The window program on the install of MORVANE_HOME_BENCH, on the offscreen platform: how long from the start
// of its own code to a painted main window, how live it stays while a set is made, and how soon a search
// shows what it found. The install is worked on: name a sample.

#include "app/start_up.h"
#include "core/registry.h"
#include "core/session.h"
#include "core/store.h"
#include "core/store_statement.h"
#include "ground/ground_generation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "imaging/program_font.h"
#include "sets/resource_folders.h"
#include "sets/sheet_request.h"
#include "sheets/screens/set_sheet_screen.h"
#include "sky/sky_generation.h"
#include "sky/sky_sets.h"
#include "ui/controls/paper_style.h"
#include "ui/controls/slider.h"
#include "ui/skin.h"
#include "weather/reports.h"
#include "window/message_screen.h"
#include "window/window_shell.h"
#include "window/window_user.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <functional>

namespace morvane {
namespace {

/// Counts the paints of a window's parts and the longest wait between two turns of the event loop.
class Liveliness : public QObject {
public:
    explicit Liveliness(QWidget& window) : window_(window) {
        qApp->installEventFilter(this);
        turns_.callOnTimeout([this] { noteTurn(); });
        clock_.start();
        turns_.start(0);
    }
    int paints = 0;
    qint64 longestWait = 0; ///< nanoseconds

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Paint && widget && widget->window() == &window_) ++paints;
        return false;
    }

private:
    void noteTurn() {
        longestWait = std::max(longestWait, clock_.nsecsElapsed());
        clock_.restart();
    }
    QWidget& window_;
    QTimer turns_;
    QElapsedTimer clock_;
};

class Program {
public:
    explicit Program(const FilePath& home)
        : registry_(openRegistry(files_, home)), session({user_, files_, clock_, random_, *registry_}, home),
          skin_(files_, home / u"Media"), shell(session, skin_) {
        user_.setShell(&shell);
        isStarted = startUp(session) && clsResourceFolders::reload(session) && clsWxFinders::reload(session);
        shell.formatMainScreen();
        shell.form(u"frm_Main"_s)->show();
        QCoreApplication::processEvents();
    }

private:
    NativeFileSystem files_;
    SystemClock clock_;
    ReseedingRandomSource random_;
    WindowUser user_;
    std::unique_ptr<Registry> registry_;

public:
    Session session;

private:
    Skin skin_;

public:
    WindowShell shell;
    bool isStarted = false;
};

FilePath benchHome() {
    return FilePath(qEnvironmentVariable("MORVANE_HOME_BENCH"));
}

void startingToAPaintedWindow(benchmark::State& state) {
    for (auto round : state) {
        const Program program(benchHome());
        if (!program.isStarted) state.SkipWithError("set MORVANE_HOME_BENCH to a sample install");
    }
}
BENCHMARK(startingToAPaintedWindow)->Unit(benchmark::kMillisecond)->Iterations(5);

/// Wants one overcast set and says OK to the report.
void answerByItself(WindowShell& shell, QTimer& timer) {
    timer.callOnTimeout([&shell] {
        auto* counts = qobject_cast<DialogForm*>(shell.loadedForm(u"frm_TsRequired"_s));
        auto* message = qobject_cast<DialogForm*>(shell.loadedForm(u"frm_Msg"_s));
        if (counts && counts->isVisible()) {
            counts->findChild<QLineEdit*>(u"txtOvercastClouds"_s)->setText(u"1"_s);
            counts->ok();
        } else if (message && message->button(u"btn_Ok"_s)->isVisible()) {
            message->ok();
        }
    });
    timer.start(5);
}

constexpr int skySets = 50;

/// Copies the sets' files to a temporary folder, counts the time, and takes the sets away.
int copyAndRemove(Session& session, const QStringList& names, benchmark::State& state) {
    const QTemporaryDir folder;
    int files = 0;
    QElapsedTimer clock;
    clock.start();
    for (const QString& name : names)
        for (const QFileInfo& file : QDir(skySetFolder(session, name).native()).entryInfoList(QDir::Files)) {
            QFile::copy(file.filePath(), folder.filePath(QString::number(files++)));
        }
    state.counters["plain_copy_ms"] = static_cast<double>(clock.elapsed());
    for (const QString& name : names) {
        QDir(skySetFolder(session, name).native()).removeRecursively();
        clsSkyTextureSets& sets = loadedSkySets(session);
        sets.RemoveItem(QString::number(findSkySet(session, name)->StsID));
    }
    return files;
}

void stayingLiveWhileASetIsMade(benchmark::State& state) {
    Program program(benchHome());
    if (!program.isStarted) return state.SkipWithError("set MORVANE_HOME_BENCH to a sample install");
    QTimer timer;
    answerByItself(program.shell, timer);
    for (auto round : state) {
        Liveliness liveliness(*program.shell.form(u"frm_Msg"_s));
        QElapsedTimer clock;
        clock.start();
        GroundGeneration generation(program.session);
        generation.createTextureSets(true);
        state.counters["paints_a_second"] = liveliness.paints * 1000.0 / static_cast<double>(clock.elapsed());
        state.counters["longest_wait_ms"] = static_cast<double>(liveliness.longestWait) / 1e6;
        generation.removeSetFiles(program.session.state<GroundSelection>().SelectedGroundSet, false);
    }
}
BENCHMARK(stayingLiveWhileASetIsMade)->Unit(benchmark::kMillisecond)->Iterations(1);

/// Fifty sets of one cover, beside a plain copy of the same files.
void makingFiftySkySets(benchmark::State& state) {
    Program program(benchHome());
    if (!program.isStarted) return state.SkipWithError("set MORVANE_HOME_BENCH to a sample install");
    const auto before = loadedSkySets(program.session).Count();
    for (auto round : state) {
        SkyGeneration generation(program.session);
        for (int number = 1; number <= skySets; ++number)
            generation.createAutoSkySet(u"Sunny"_s, 1, number, skySets);
        program.session.user.hideMessage();
    }
    QStringList names;
    for (auto at = before + 1; at <= loadedSkySets(program.session).Count(); ++at)
        names << loadedSkySets(program.session).GetItem(at)->SkyTextureSet;
    state.counters["files"] = copyAndRemove(program.session, names, state);
}
BENCHMARK(makingFiftySkySets)->Unit(benchmark::kMillisecond)->Iterations(1);

/// The longest of the quickest 99 in 100 moves, processing and paint together.
void movingASkySlider(benchmark::State& state) {
    Program program(benchHome());
    if (!program.isStarted) return state.SkipWithError("set MORVANE_HOME_BENCH to a sample install");
    program.shell.showHost(u"frm_KMTextures"_s);
    program.shell.goToPage(u"frm_SkyColorize"_s);
    auto* slider = program.shell.form(u"frm_SkyColorize"_s)->findChild<ucSlider*>(u"vcSkyRed"_s);
    std::vector<double> moves;
    for (auto round : state)
        for (int value = -50; value < 50; ++value) {
            QElapsedTimer clock;
            clock.start();
            slider->setValue(value);
            QCoreApplication::processEvents();
            moves.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
        }
    std::sort(moves.begin(), moves.end());
    state.counters["ms_of_the_99th"] = moves[moves.size() * 99 / 100 - 1];
    state.counters["ms_median"] = moves[moves.size() / 2];
}
BENCHMARK(movingASkySlider)->Unit(benchmark::kMillisecond)->Iterations(1);

// Weather ------------------------------------------------------------------------------------------------

constexpr int fullCycle = 5'100, allAirports = 20'000;

/// Copies rows of both tables under codes of their own until they hold a full cycle and all airports of a
/// large directory, and takes the copies away at its end.
class FullTables {
public:
    FullTables() {
        Store store;
        store.open(file_);
        fill(store, u"DECODED_METAR"_s, u"METAR_ICAO"_s, fullCycle);
        fill(store, u"AIRPORTDATA"_s, u"ICAO"_s, allAirports);
    }
    ~FullTables() {
        Store store;
        store.open(file_);
        StoreStatement(store, u"DELETE FROM DECODED_METAR WHERE METAR_ICAO LIKE '~%'"_s).step();
        StoreStatement(store, u"DELETE FROM AIRPORTDATA WHERE ICAO LIKE '~%'"_s).step();
    }

private:
    static void fill(Store& store, const QString& table, const QString& code, int count) {
        QStringList columns = store.columns(table);
        columns.removeOne(u"ID"_s);
        QStringList values = columns;
        values.replace(columns.indexOf(code), u"'~' || n || "_s + code);
        StoreStatement(store,
                       u"WITH RECURSIVE rounds(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM rounds WHERE n < "
                       "100) INSERT INTO %1(%2) SELECT %3 FROM rounds, %1 LIMIT max(0, %4 - (SELECT count(*) "
                       "FROM %1))"_s.arg(table, columns.join(u','), values.join(u','))
                           .arg(count))
            .step();
    }
    FilePath file_ = benchHome() / u"Morvane.mdb"; ///< open only here, for the program wants it for itself
};

void startingWithAFullCycle(benchmark::State& state) {
    const FullTables tables;
    for (auto round : state) {
        const Program program(benchHome());
        if (!program.isStarted) state.SkipWithError("set MORVANE_HOME_BENCH to a sample install");
        state.counters["reports"] = program.session.state<std::unique_ptr<clsWxFinders>>()->Count();
    }
}
BENCHMARK(startingWithAFullCycle)->Unit(benchmark::kMillisecond)->Iterations(5);

/// The longest of the changes, each with all paints that follow it, by the clock and in processor time.
template <class Changes>
void timeChanges(benchmark::State& state, const Changes& changes) {
    double longest = 0;
    std::clock_t longestWork = 0;
    for (auto round : state)
        for (const auto& change : changes) {
            QElapsedTimer clock;
            clock.start();
            const std::clock_t before = std::clock();
            change();
            QCoreApplication::processEvents();
            longestWork = std::max(longestWork, std::clock() - before);
            longest = std::max(longest, static_cast<double>(clock.nsecsElapsed()) / 1e6);
        }
    state.counters["ms_longest"] = longest;
    state.counters["ms_longest_work"] = 1e3 * static_cast<double>(longestWork) / CLOCKS_PER_SEC;
    state.counters["changes"] = static_cast<double>(changes.size());
}

void typingInTheSearchBoxes(benchmark::State& state) {
    const FullTables tables;
    Program program(benchHome());
    if (!program.isStarted) return state.SkipWithError("set MORVANE_HOME_BENCH to a sample install");
    program.shell.goToPage(u"frm_WxControl"_s);
    std::vector<std::function<void()>> changes;
    for (const QString& box : {u"txtICAO"_s, u"txtAirportName"_s, u"txtCity"_s})
        for (const QString& text : {u"~"_s, u"s"_s, u"sa"_s, u"san"_s, u"e"_s, u"eh"_s})
            changes.emplace_back([edit = program.shell.form(u"frm_Main"_s)->findChild<QLineEdit*>(box),
                                  text] { edit->setText(text); });
    timeChanges(state, changes);
}
BENCHMARK(typingInTheSearchBoxes)->Unit(benchmark::kMillisecond)->Iterations(5);

/// With all reports shown, the most that a change can cost.
void changingTheFinder(benchmark::State& state) {
    const FullTables tables;
    Program program(benchHome());
    if (!program.isStarted) return state.SkipWithError("set MORVANE_HOME_BENCH to a sample install");
    Form& finder = *program.shell.form(u"frm_WxFinder"_s);
    finder.show();
    std::vector<std::function<void()>> changes;
    for (const QString& most : {u"25"_s, u"0"_s}) {
        changes.emplace_back(
            [&finder, most] { finder.findChild<QLineEdit*>(u"txtWxMaxResults"_s)->setText(most); });
        for (const QString& name : {u"cboPrecipitation"_s, u"cboObscuration"_s, u"cboCloudCover"_s})
            for (const int entry : {1, 2, 3, 0})
                changes.emplace_back(
                    [list = finder.findChild<QComboBox*>(name), entry] { list->setCurrentIndex(entry); });
    }
    timeChanges(state, changes);
}
BENCHMARK(changingTheFinder)->Unit(benchmark::kMillisecond)->Iterations(5);

/// "See all" on the last ground set: from the key to a window with what is seen in it, and until all pictures
/// are there; the longest that the event loop stood still meanwhile. 0: without what is kept of the base.
void seeingAWholeSet(benchmark::State& state) {
    Program program(benchHome());
    if (!program.isStarted) return state.SkipWithError("set MORVANE_HOME_BENCH to a sample install");
    const auto& sets = loadedGroundSets(program.session);
    program.session.state<SheetRequest>() = {u"Ground"_s, sets.GetItem(sets.Count())->TextureSet};
    double first = 0, all = 0, longest = 0;
    for (auto round : state) {
        if (state.range(0) == 0)
            QDir((benchHome() / u"Resources\\Small Pictures").native()).removeRecursively();
        QElapsedTimer clock;
        clock.start();
        auto& sheet = program.shell.screen<frm_SetSheet>(u"frm_SetSheet"_s);
        QTimer watch;
        std::optional<Liveliness> liveliness;
        watch.callOnTimeout([&] {
            if (!liveliness) {
                sheet.repaint();
                first += static_cast<double>(clock.elapsed());
                liveliness.emplace(sheet);
            }
            if (!sheet.loading()->isWhole()) return;
            all += static_cast<double>(clock.elapsed());
            longest += static_cast<double>(liveliness->longestWait) / 1e6;
            watch.stop();
            sheet.cancel();
        });
        watch.start(0);
        sheet.run();
    }
    state.counters["ms_first"] = benchmark::Counter(first, benchmark::Counter::kAvgIterations);
    state.counters["ms_all"] = benchmark::Counter(all, benchmark::Counter::kAvgIterations);
    state.counters["ms_longest"] = benchmark::Counter(longest, benchmark::Counter::kAvgIterations);
}
BENCHMARK(seeingAWholeSet)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
} // namespace morvane

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    morvane::loadProgramFont();
    morvane::applyPaperStyle();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
