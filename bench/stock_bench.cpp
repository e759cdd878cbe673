// The import of 4,000 textures of 256 x 256 as base images, over a stock of the same names.

#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "simulator/stock_requests.h"
#include "support/small_install.h"

#include <QElapsedTimer>
#include <benchmark/benchmark.h>

namespace morvane {
namespace {

constexpr int textures = 4000;

/// Land classes 29 to 49 with all their variants, months and numbers.
QString textureName(int i) {
    const char16_t* const seasons[] = {u"sp", u"su", u"fa", u"wi"};
    return u"%1%2"_s.arg(29 + i % 21, 3, 10, QChar(u'0')).arg(QChar(u'a' + i / 21 % 10)) + u'2' +
           QStringView(seasons[i / 210 % 4]).toString() + QString::number(i / 840) + u".bmp"_s;
}

void stockImport(benchmark::State& state) {
    test::SmallInstall install;
    const QByteArray own = test::smallBitmap(256, 90), other = test::smallBitmap(256, 30);
    test::writeFile(install.folder / u"one.bmp", own);
    const QByteArray texture = compressTexture(loadPicture(install.files, install.folder / u"one.bmp"));
    for (int i = 0; i < textures; ++i) {
        test::writeFile(install.simulator() / u"Scenery\\World\\texture" / textureName(i).toUpper(), texture);
        test::writeFile(install.home() / u"Resources\\GENERIC WORLD" / textureName(i), other);
    }
    int files = 0;
    QElapsedTimer clock;
    for (auto round : state) {
        clock.start();
        files = importSimulatorStock(install.session).value_or(StockImportReport{}).files;
        state.counters["import_ms"] = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        clock.start();
        restoreStock(install.session, true);
        state.counters["restore_ms"] = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    }
    state.counters["files"] = files;
    state.counters["ms_per_file"] = state.counters["import_ms"] / files;
}
BENCHMARK(stockImport)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
} // namespace morvane
