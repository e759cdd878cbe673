#include "app/start_up.h"
#include "core/registry.h"
#include "core/store_connection.h"
#include "ground/ground_generation.h"
#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "process_usage.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <chrono>
#include <filesystem>

namespace morvane {
namespace {

/// Says yes to everything, wants one "Partly Cloudy" set, and remembers nothing: what a user keeps must not
/// be counted as the engine's memory.
class SilentUser : public UserInterface {
public:
    void showMessage(const Message& message) override {
        isVisible_ = message.isProgress;
        if (!message.isProgress) answers().answer(true);
    }
    void updateProgress(const QString&, const QString&, double) override {}
    void setProgressFile(const QString&) override {}
    void hideMessage() override { isVisible_ = false; }
    void tellDone(const DoneLine&) override {}
    bool allowsRun(const RunSize&) override { return true; }
    bool isMessageVisible() const override { return isVisible_; }
    bool systemBox(const QString&, const QString&, SystemBoxButtons buttons) override {
        return buttons == SystemBoxButtons::ok;
    }
    QString browseForFolder(const QString&) override { return {}; }
    void showModal(Screen screen) override { onModal(screen); }
    void showScreen(Screen) override {}
    void hideScreen(Screen) override {}
    void refreshScreen(Screen) override {}
    void minimiseProgram() override {}
    void pumpMessages() override {}

    std::function<void(Screen)> onModal = [](Screen) {};

private:
    bool isVisible_ = false;
};

std::filesystem::path systemPath(const QString& path) {
    return path.toStdU16String();
}

int filesBelow(const FilePath& folder) {
    int count = 0;
    for (QDirIterator entry(folder.native(), QDir::Files, QDirIterator::Subdirectories); entry.hasNext();
         ++count)
        entry.next();
    return count;
}

/// The install of MORVANE_HOME_BENCH, worked on in a temporary folder: the store is a copy, the base images
/// are links, and everything that is written goes beside them. The install and its simulator are only read,
/// so the variable may name a folder that is in use. TMPDIR says where; a run with four
/// thousand base images takes 2 GB there.
class BenchInstall {
public:
    explicit BenchInstall(const QString& model) {
        for (const QString& name : {u"Resources"_s, u"Media"_s, u"GENERIC WORLD"_s, u"DUTCH"_s})
            std::filesystem::create_directory_symlink(systemPath(model + u'/' + name),
                                                      systemPath(home_.text() + u'/' + name));
        for (const QString& name : {u"Morvane.mdb"_s, u"registry.ini"_s})
            files_.copyContents(FilePath(model) / name, home_ / name);
        for (const QString& name : {u"Texture"_s, u"UTEurLC"_s, u"Dutch"_s})
            files_.makeFolder(home_ / u"TempBitmaps" / name);
        user_.onModal = [this](Screen) {
            session_.state<GroundSetCounts>().setCounts = {0, 0, 1, 0, 0};
            session_.state<GroundSetCounts>().setCountsConfirmed = true;
        };
        isStarted_ = startUp(session_);
        modelSimulator_ = session_.FSPath;
        session_.FSPath = FilePath(folder_.path()) / u"Simulator";
    }
    ~BenchInstall() {
        for (const QString& name : setNames_)
            GroundGeneration(session_).removeSetFiles(name, false);
        closeDatabase(session_);
    }

    bool isStarted() const { return isStarted_; }
    bool hasSet() const { return !setNames_.isEmpty(); }
    FilePath setFolder() const { return groundSetFolder(session_, setNames_.last()); }
    /// A place for copies that does not exist.
    FilePath emptyPlace() const {
        const FilePath place = FilePath(folder_.path()) / u"Copy";
        std::filesystem::remove_all(systemPath(place.native()));
        return place;
    }

    /// Makes one more set. All of them stay to the end of the run: right behind the removal of a thousand
    /// files some file systems are slow to make new ones.
    void makeSet() {
        GroundGeneration(session_).createTextureSets(true);
        setNames_ << session_.state<GroundSelection>().SelectedGroundSet;
    }

    /// A simulator as the pilot had it, of which no original is kept yet.
    void renewSimulator() {
        std::filesystem::remove_all(systemPath(session_.FSPath.native()));
        std::filesystem::remove_all(systemPath((session_.BackupPath / u"Originals").native()));
        std::filesystem::copy(systemPath(modelSimulator_.native()), systemPath(session_.FSPath.native()),
                              std::filesystem::copy_options::recursive);
    }
    /// Puts the set into the simulator and returns the number of its files.
    int installSet() {
        GroundInstallation installation(session_);
        installation.installTextureSet(setNames_.last());
        return installation.filesCopied();
    }

private:
    static FilePath madeFolder(const QString& path) {
        std::filesystem::create_directory(systemPath(path));
        return FilePath(path);
    }

    QTemporaryDir folder_;
    FilePath home_ = madeFolder(folder_.path() + u"/Morvane"_s);
    NativeFileSystem files_;
    SystemClock clock_;
    ReseedingRandomSource random_;
    SilentUser user_;
    IniRegistry registry_{files_, home_ / u"registry.ini"};
    Session session_{{user_, files_, clock_, random_, registry_}, home_};
    FilePath modelSimulator_;
    QStringList setNames_;
    bool isStarted_ = false;
};

/// The one install of the run; null, with the benchmark marked as failed, when there is none to work on.
BenchInstall* benchInstall(benchmark::State& state) {
    const QFileInfo model(qEnvironmentVariable("MORVANE_HOME_BENCH"));
    if (!QFileInfo::exists(model.filePath() + u"/Morvane.mdb"_s)) {
        state.SkipWithError("MORVANE_HOME_BENCH names no install folder; ./run makes one in sample/Morvane");
        return nullptr;
    }
    static BenchInstall install(model.absoluteFilePath());
    if (install.isStarted()) return &install;
    state.SkipWithError("The install of MORVANE_HOME_BENCH does not start; is its simulator gone?");
    return nullptr;
}

/// What a piece of work took, in seconds.
struct Effort {
    double wall = 0;
    double processor = 0; ///< of all threads together: says something even on a busy machine
};

Effort effortOf(const std::function<void()>& work) {
    const double processor = processorSeconds();
    const auto start = std::chrono::steady_clock::now();
    work();
    return {std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(),
            processorSeconds() - processor};
}

void report(benchmark::State& state, const Effort& effort, int files) {
    state.SetIterationTime(effort.wall);
    state.counters["files"] = files;
    state.counters["ms_a_file"] = effort.wall * 1000 / files;
}

void reportEngine(benchmark::State& state, const Effort& effort, int files) {
    report(state, effort, files);
    state.counters["cpu_ms_a_file"] = effort.processor * 1000 / files;
}

/// One whole set: both passes and all mip levels, from the store's row to the last file. The first one, of
/// which nothing is counted, brings the base images into the system's memory.
void makingOneSet(benchmark::State& state) {
    BenchInstall* install = benchInstall(state);
    if (!install) return;
    if (!install->hasSet()) install->makeSet();
    for (auto _ : state) {
        const Effort effort = effortOf([&] { install->makeSet(); });
        reportEngine(state, effort, filesBelow(install->setFolder()));
    }
    state.counters["peak_MB"] = peakMemory();
}

/// The same files, copied once by the system's own cp: what the disk alone takes.
void copyingTheSet(benchmark::State& state) {
    BenchInstall* install = benchInstall(state);
    if (!install) return;
    if (!install->hasSet()) install->makeSet();
    for (auto _ : state) {
        const QStringList arguments{u"-r"_s, install->setFolder().native(), install->emptyPlace().native()};
        int status = 0;
        const Effort effort = effortOf([&] { status = QProcess::execute(u"cp"_s, arguments); });
        if (status != 0) return state.SkipWithError("cp failed");
        report(state, effort, filesBelow(install->setFolder()));
    }
}

/// Into a simulator that has never had a set of ours: every file that is replaced is kept first.
void installingFirst(benchmark::State& state) {
    BenchInstall* install = benchInstall(state);
    if (!install) return;
    if (!install->hasSet()) install->makeSet();
    for (auto _ : state) {
        install->renewSimulator();
        int files = 0;
        const Effort effort = effortOf([&] { files = install->installSet(); });
        reportEngine(state, effort, files);
    }
}

/// Once more, over files of ours.
void installingLater(benchmark::State& state) {
    BenchInstall* install = benchInstall(state);
    if (!install) return;
    if (!install->hasSet()) install->makeSet();
    install->renewSimulator();
    install->installSet();
    for (auto _ : state) {
        int files = 0;
        const Effort effort = effortOf([&] { files = install->installSet(); });
        reportEngine(state, effort, files);
    }
}

/// Three warm runs; the median is the figure.
void threeRuns(benchmark::internal::Benchmark* bench) {
    bench->Iterations(1)->Repetitions(3)->UseManualTime()->Unit(benchmark::kMillisecond);
}
BENCHMARK(makingOneSet)->Apply(threeRuns);
BENCHMARK(copyingTheSet)->Apply(threeRuns);
BENCHMARK(installingFirst)->Apply(threeRuns);
BENCHMARK(installingLater)->Apply(threeRuns);

} // namespace
} // namespace morvane
