#include "core/registry.h"
#include "core/session.h"
#include "core/store.h"
#include "core/store_schema.h"
#include "core/text_decoding.h"
#include "weather/awc_reports.h"
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

/// The sample list's lines over and over, each under a code of its own.
QByteArray awcList(int count) {
    const FilePath sample(QStringLiteral(MORVANE_DATA_DIR "/metar/metars.cache.csv"));
    const QByteArrayList lines = NativeFileSystem().read(sample).split('\n');
    constexpr qsizetype head = 6; // some lines about its making, and the columns' names
    QByteArray list = lines.sliced(0, head).join('\n') + '\n';
    const qsizetype reportLines = lines.size() - head - 1;
    for (int made = 0; made < count; ++made) {
        QByteArray line = lines[head + made % reportLines];
        const QByteArray code = QString(u"X%1"_s).arg(made, 4, 36, QChar(u'0')).toLatin1();
        list += line.replace(line.mid(line.indexOf(' ') + 1, 4), code) + '\n';
    }
    return list;
}

struct Install {
    explicit Install(const QByteArray& contents = fullHour()) {
        files.write(cycle, contents);
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

/// The list of the Aviation Weather Center, which has a report a station.
void loadList(benchmark::State& state) {
    Install install(awcList(static_cast<int>(state.range(0))));
    clsWxFinderData data(install.session);
    for ([[maybe_unused]] auto unused : state) {
        state.PauseTiming();
        install.session.adoConn->execute(u"DELETE FROM DECODED_METAR"_s);
        state.ResumeTiming();
        data.importCycleFile(install.cycle, CycleForm::awc);
    }
    state.counters["stations"] = install.session.rows<clsWxFinders>()->Count();
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}
BENCHMARK(loadList)->Arg(5'000)->Arg(reports)->Unit(benchmark::kMillisecond)->UseRealTime();

void readListAlone(benchmark::State& state) {
    const QByteArray list = awcList(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto unused : state)
        benchmark::DoNotOptimize(awcReports(decodeText(list)));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * list.size());
}
BENCHMARK(readListAlone)->Arg(5'000)->Arg(reports)->Unit(benchmark::kMillisecond);

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
