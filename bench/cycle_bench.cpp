#include "core/registry.h"
#include "core/session.h"
#include "core/store.h"
#include "core/store_schema.h"
#include "core/text_decoding.h"
#include "weather/metar_decoder.h"
#include "weather/reports.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace morvane {
namespace {

constexpr int stations = 5'100, reports = 35'000;

/// A user who looks at nothing.
class SilentUser : public UserInterface {
public:
    void showMessage(const Message&) override {}
    void updateProgress(const QString&, const QString&, double) override {}
    void setProgressFile(const QString&) override {}
    void hideMessage() override {}
    void tellDone(const DoneLine&) override {}
    bool allowsRun(const RunSize&) override { return true; }
    bool isMessageVisible() const override { return false; }
    bool systemBox(const QString&, const QString&, SystemBoxButtons) override { return true; }
    QString browseForFolder(const QString&) override { return {}; }
    void showModal(Screen) override {}
    void showScreen(Screen) override {}
    void hideScreen(Screen) override {}
    void refreshScreen(Screen) override {}
    void minimiseProgram() override {}
    void pumpMessages() override {}
};

/// The sample's records over and over, each round under codes of its own, until there are as many reports and
/// stations as a full hour has.
QByteArray fullHour() {
    const FilePath sample(QStringLiteral(MORVANE_DATA_DIR "/metar/02Z.TXT"));
    const QStringList lines = splitLines(decodeText(NativeFileSystem().read(sample)));
    QHash<QString, QString> codes;
    QByteArray hour;
    for (int made = 0, round = 0; made < reports; ++round)
        for (qsizetype i = 0; i + 2 < lines.size() && made < reports; i += 3, ++made) {
            const QString own = lines[i + 1].left(4) + QString::number(codes.size() < stations ? round : 0);
            const QString code =
                codes.value(own, u"X%1"_s.arg(static_cast<int>(codes.size()), 4, 36, QChar(u'0')));
            codes.insert(own, code);
            hour += (lines[i] + u'\n' + code + lines[i + 1].mid(4) + u"\n\n"_s).toUtf8();
        }
    return hour;
}

struct Install {
    Install() {
        files.write(cycle, fullHour());
        session.adoConn = std::make_unique<Store>();
        session.adoConn->create(path / u"Morvane.mdb");
        createSchema(*session.adoConn);
    }
    ~Install() { session.adoConn->close(); }

    QTemporaryDir folder;
    FilePath path{folder.path()}, cycle = path / u"02Z.txt";
    SilentUser user;
    NativeFileSystem files;
    SystemClock clock;
    ReseedingRandomSource random;
    IniRegistry registry{files, path / u"registry.ini"};
    Session session{{user, files, clock, random, registry}, path};
};

/// From the file to the collection: decode, store, reload. The first time all stations are new, later ones
/// write over them.
void loadCycle(benchmark::State& state, CycleForm form, bool isFirst) {
    Install install;
    clsWxFinderData data(install.session);
    if (!isFirst) data.importCycleFile(install.cycle, form);
    for ([[maybe_unused]] auto unused : state) {
        if (isFirst) {
            state.PauseTiming();
            install.session.adoConn->execute(u"DELETE FROM DECODED_METAR"_s);
            state.ResumeTiming();
        }
        data.importCycleFile(install.cycle, form);
    }
    state.counters["stations"] = install.session.rows<clsWxFinders>()->Count();
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * reports);
}
BENCHMARK_CAPTURE(loadCycle, noaaIntoAnEmptyTable, CycleForm::noaa, true)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(loadCycle, noaaAgain, CycleForm::noaa, false)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(loadCycle, plainIntoAnEmptyTable, CycleForm::plain, true)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(loadCycle, plainAgain, CycleForm::plain, false)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void decodeAlone(benchmark::State& state) {
    SilentUser user;
    QStringList lines;
    for (const QString& line : splitLines(decodeText(fullHour())))
        if (line.startsWith(u'X')) lines << line;
    for ([[maybe_unused]] auto unused : state)
        for (const QString& line : lines) {
            const clsWxFinder report = clsDecodeMetar(user).decodeMetarString(line);
            benchmark::DoNotOptimize(report.WxFinderMaxCloud);
        }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * lines.size());
}
BENCHMARK(decodeAlone)->Unit(benchmark::kMillisecond);

void reload(benchmark::State& state) {
    Install install;
    clsWxFinderData(install.session).importCycleFile(install.cycle, CycleForm::noaa);
    for ([[maybe_unused]] auto unused : state)
        clsWxFinders::reload(install.session);
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) *
                            install.session.rows<clsWxFinders>()->Count());
}
BENCHMARK(reload)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace morvane
