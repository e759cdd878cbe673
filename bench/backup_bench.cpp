// Backup and restore of 4,000 textures of 43 KB, beside what `cp -r` takes for the same files.

#include "simulator/backup_files.h"
#include "simulator/backup_restore.h"
#include "support/small_install.h"

#include <QElapsedTimer>
#include <QProcess>
#include <benchmark/benchmark.h>

namespace morvane {
namespace {

constexpr int textures = 4000, textureBytes = 43 * 1024;

double millisecondsOf(const std::function<void()>& work) {
    QElapsedTimer clock;
    clock.start();
    work();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// Every byte differs from the file before, so that nothing is passed over as being the same.
void writeTextures(const FilePath& folder, int round) {
    for (int i = 0; i < textures; ++i) {
        QByteArray contents(textureBytes, static_cast<char>('a' + (i + round) % 26));
        contents.replace(0, 8, QByteArray::number(i).rightJustified(8));
        test::writeFile(folder / u"%1h2su6.bmp"_s.arg(i, 5), contents);
    }
}

void backupAndRestore(benchmark::State& state) {
    test::SmallInstall install;
    const FilePath world = install.simulator() / u"Scenery\\World\\texture";
    writeTextures(world, 0);
    const auto copy = [&](const char16_t* name) {
        return millisecondsOf([&] {
            QProcess::execute(u"cp"_s, {u"-r"_s, world.native(), (install.folder / name).native()});
        });
    };
    for (auto round : state) {
        const double first = copy(u"first");
        const double backup = millisecondsOf([&] { createBackup(install.session, true); });
        writeTextures(world, 1);
        const double second = copy(u"second");
        const double restore = millisecondsOf([&] { restoreBackup(install.session, u"1-Backup"_s); });
        writeTextures(world, 2);
        const double again = millisecondsOf([&] { restoreBackup(install.session, u"1-Backup"_s); });
        state.counters["cp_ms"] = (first + second) / 2;
        state.counters["backup_ms"] = backup;
        state.counters["first_restore_ms"] = restore;
        state.counters["later_restore_ms"] = again;
        state.counters["backup_to_cp"] = backup / first;
        state.counters["restore_to_cp"] = restore / second;
    }
}
BENCHMARK(backupAndRestore)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
} // namespace morvane
