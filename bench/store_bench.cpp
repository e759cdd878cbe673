#include "core/row_set.h"
#include "core/statement_translation.h"
#include "core/store.h"
#include "core/store_schema.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace morvane {
namespace {

constexpr int stations = 10'000;

QString codeOf(int station) {
    return u"K%1"_s.arg(station, 4, 36, QChar(u'0'));
}

/// As a weather report reaches its row: looked up by its code, then written over or added.
void storeReport(Store& store, const QString& code) {
    RowSet row(store,
               u"SELECT * FROM DECODED_METAR WHERE METAR_ICAO = '"_s + makeStatementSafe(code) + u"'"_s);
    if (row.atEnd()) row.addNew();
    row.setText(u"METAR_STRING", code + u" 241225Z 24015G28KT 9999 FEW020 BKN030 12/08 Q1012"_s);
    row.setText(u"METAR_ICAO", code);
    row.setText(u"METAR_WIND_SPEED", u"015"_s);
    row.setFlag(u"METAR_WIND_GUSTING", true);
    row.setText(u"METAR_CLOUD_COVER", u"Mostly Cloudy"_s);
    row.setNumber(u"METAR_MAX_CLOUD", 4);
    row.update();
}

/// Half of the reports are new stations, half are known ones.
void upsertByTextKey(benchmark::State& state) {
    for ([[maybe_unused]] auto unused : state) {
        state.PauseTiming();
        const QTemporaryDir folder;
        Store store;
        store.create(FilePath(folder.path()) / u"Morvane.mdb");
        createSchema(store);
        for (int station = 0; station < stations; station += 2)
            storeReport(store, codeOf(station));
        state.ResumeTiming();
        for (int station = 0; station < stations; ++station)
            storeReport(store, codeOf(station));
    }
    state.SetItemsProcessed(state.iterations() * stations);
}
BENCHMARK(upsertByTextKey)->Unit(benchmark::kMillisecond)->UseRealTime();

void walkTable(benchmark::State& state) {
    const QTemporaryDir folder;
    Store store;
    store.create(FilePath(folder.path()) / u"Morvane.mdb");
    createSchema(store);
    StoreTransaction filling(store);
    for (int station = 0; station < stations; ++station)
        storeReport(store, codeOf(station));
    filling.commit();
    for ([[maybe_unused]] auto unused : state)
        for (RowSet rows(store, u"SELECT * FROM DECODED_METAR ORDER BY METAR_ICAO"_s); !rows.atEnd();
             rows.next())
            benchmark::DoNotOptimize(rows.text(u"METAR_STRING"));
    state.SetItemsProcessed(state.iterations() * stations);
}
BENCHMARK(walkTable)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace morvane
