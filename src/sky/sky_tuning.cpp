#include "sky/sky_tuning.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "imaging/slider_steps.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"
#include "sky/sky_palette_map.h"
#include "sky/sky_randomiser.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "sky/sky_tuning_state.h"

#include <algorithm>

namespace morvane {

namespace {

// A settings file that was edited by hand may hold more than a slider shows.
constexpr auto lowest = static_cast<float>(sliderLowest), highest = static_cast<float>(sliderHighest);

} // namespace

SliderValues SkyTuning::open() {
    reportFailures(session_.user, morvaneError, [&] {
        const bool isFirst = !session_.state<SkyTuningState>().isLoaded;
        loadSkyTuning(session_);
        if (isFirst || !sample_.sourceDib().isCreated()) openSelectedBaseSky();
        // The flag stays: the list page has yet to rebuild its rows.
        if (isFirst && session_.state<SkySelection>().RefreshSkyList) refreshSkySets(session_);
    });
    return sliders();
}

Reported SkyTuning::openSkyImage(const FilePath& path) {
    const bool loaded = sample_.openImage(path);
    SkyProcess(sliders());
    return loaded;
}

Reported SkyTuning::openSelectedBaseSky() {
    return openSkyImage(skySampleFile(session_, trimmedBlanks(session_.state<SkyTuningState>().baseSet)));
}

void SkyTuning::openBaseSkyImage() {
    reportFailures(session_.user, morvaneError, [&] {
        session_.state<BaseSkyAnswer>().baseSkyConfirmed = false;
        session_.user.showModal(Screen::frm_SelectBaseSky);
        // For some base sets the sample is loaded whatever the answer, as their choice is in force at its
        // click; "Average" has no option on the dialog.
        static const QStringList loadedAnyway{u"Sunny"_s, u"Average"_s, u"Tropical"_s, u"Overcast"_s};
        const QString& baseSet = session_.state<SkyTuningState>().baseSet;
        if (session_.state<BaseSkyAnswer>().baseSkyConfirmed || loadedAnyway.contains(baseSet))
            openSelectedBaseSky();
    });
}

void SkyTuning::SkyProcess(const SliderValues& sliders) {
    SkyGroup& record = skyRecord(session_.state<SkyColourTables>().skyPaletteGroups,
                                 session_.state<SkyTuningState>().selectedGroup);
    for (std::size_t i = 0; i < skyColourCount; ++i)
        record.*skyFields()[i].value = static_cast<float>(sliders[i]);
    sample_.process();
}

SliderValues SkyTuning::sliders() const {
    const SkyGroup& record = skyRecord(session_.state<SkyColourTables>().skyPaletteGroups,
                                       session_.state<SkyTuningState>().selectedGroup);
    SliderValues values{};
    for (std::size_t i = 0; i < skyColourCount; ++i)
        values[i] = static_cast<int>(std::clamp(record.*skyFields()[i].value, lowest, highest));
    return values;
}

SliderValues SkyTuning::clickPalette(float x, float y) {
    if (const SkyGroupConstants* group = skyGroupAt(x, y)) {
        session_.state<SkyTuningState>().selectedGroup = toInteger(group->number);
        setRegion(skyRecord(session_.state<SkyColourTables>().skyPaletteGroups, group->number), *group);
    }
    const SliderValues values = sliders();
    SkyProcess(values);
    return values;
}

SliderValues SkyTuning::randomizeSky() {
    const SkyTuningState& tuning = session_.state<SkyTuningState>();
    SliderValues values{};
    randomizeSkyValues(session_, tuning.cloudIndex, values, tuning.baseSet, tuning.selectedGroup);
    SkyProcess(values);
    return values;
}

const QString& SkyTuning::selectedText() const {
    return skyGroup(session_.state<SkyTuningState>().selectedGroup).text;
}

std::optional<QString> SkyTuning::tipAt(float x, float y) {
    const SkyGroupConstants* group = skyGroupAt(x, y);
    return group ? std::optional(group->tip) : std::nullopt;
}

void SkyTuning::optCloudCover(int index) {
    tuneCloudCover(session_, index + 1);
}

} // namespace morvane
