// The window program on the install of MORVANE_HOME_BENCH, on the offscreen platform: how long from the start
// of its own code to a painted main window, and how live it stays while a set is made. The install is worked
// on: name a sample.

#include "core/application.h"
#include "core/registry.h"
#include "core/session.h"
#include "ground/ground_generation.h"
#include "simulator/resource_folders.h"
#include "sky/sky_generation.h"
#include "sky/sky_sets.h"
#include "ui/controls/paper_style.h"
#include "ui/controls/slider.h"
#include "ui/program_font.h"
#include "ui/screens/message_screen.h"
#include "ui/shell.h"
#include "ui/skin.h"
#include "ui/window_user.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <benchmark/benchmark.h>

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
        isStarted = startUp(session) && clsResourceFolders::reload(session);
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
    Shell shell;
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
void answerByItself(Shell& shell, QTimer& timer) {
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
        generation.removeSetFiles(program.session.ground.SelectedGroundSet, false);
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

} // namespace
} // namespace morvane

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    morvane::loadProgramFont();
    morvane::applyPaperStyle(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
