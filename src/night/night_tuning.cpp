#include "night/night_tuning.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "core/numbers.h"
#include "night/night_samples.h"
#include "night/night_selection.h"
#include "night/night_sets.h"
#include "sets/colour_settings.h"
#include "sets/favourite_name.h"

namespace morvane {

namespace {

/// From low up to, and not including, high; in the order of the draws and of the sliders.
constexpr struct {
    int low, high;
} ranges[] = {{-30, 70}, {-10, 30}, {0, 45}, {-5, 50}, {-25, 65}, {-35, 45}};

} // namespace

const std::array<LightsBias, 4>& lightsBiases() {
    // The captions do not tell the colours of all rows: "Green Lights" are blue, "White Lights" green and
    // blue. They have always stood so.
    static const std::array<LightsBias, 4> biases{{
        {u"White Lights"_s, {13, 0, 80, 91, -28, 0}},
        {u"Orange Lights"_s, {0, 65, -26, 0, -22, 0}},
        {u"Red Light"_s, {20, 50, 0, 0, -22, 0}},
        {u"Green Lights"_s, {0, -30, -30, 80, 0, 0}},
    }};
    return biases;
}

void getRandomNightValues(Session& session, SliderValues& values) {
    values.fill(0);
    for (std::size_t field = 0; field < values.size(); ++field)
        drawOne(session, ranges[field].low, ranges[field].high, values[field]);
}

NightTuning::NightTuning(Session& session)
    : session_(session), colourise_(session, session.state<NightSelection>().colours) {}

bool NightTuning::openDefaultSample() {
    session_.state<NightSampleChoice>().selectedNightTexture = firstNightSample;
    return colourise_.openTexImage(nightSampleTexture(session_.AppPath, firstNightSample));
}

bool NightTuning::openSample() {
    NightSampleChoice& choice = session_.state<NightSampleChoice>();
    choice.sampleConfirmed = false;
    session_.user.showModal(Screen::frm_SelectNightTexture);
    if (!choice.sampleConfirmed) return false;
    const FilePath sample = nightSampleTexture(session_.AppPath, choice.selectedNightTexture);
    return !sample.isEmpty() && colourise_.openTexImage(sample);
}

void NightTuning::showColourPreview(const SliderValues& sliders) {
    session_.state<NightSelection>().colours = effectiveColours(sliders);
    colourise_.TsProcess();
}

void NightTuning::newFavNightTexture() {
    if (askFavouriteName(session_, FavouriteKind::night))
        saveNightFavourite(session_.state<FavouriteAnswer>().favName);
}

/// The row is written before the folders: when they cannot be made it stands.
void NightTuning::saveNightFavourite(const QString& name) {
    reportFailures(session_.user, {}, [&] {
        clsNightTextureSet record;
        record.ColorSettings = colourSettingsText(session_.state<NightSelection>().colours);
        record.TextureSet = trimmedBlanks(name);
        record.Actvated = flagText(false); // it gets its files by activation only
        record.Description = trimmedBlanks(session_.state<FavouriteAnswer>().favDescription);
        record.IsNew = true;
        if (!loadedNightSets(session_).UpdateNightTextureSet(record)) return;
        session_.state<NightSelection>().RefreshNightList = true;
        session_.state<NightSelection>().madeSet = record.TextureSet;
        loadNightSelection(session_, u"Key:"_s + QString::number(record.NtsID));
        for (const QString& subfolder : nightSubfolders)
            session_.files.makeFolder(nightSetFolder(session_, record.TextureSet).child(subfolder));
        session_.user.refreshScreen(Screen::frm_NightTextures);
        session_.user.showScreen(Screen::frm_NightTextures);
    });
}

} // namespace morvane
