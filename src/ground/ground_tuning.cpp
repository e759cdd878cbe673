#include "ground/ground_tuning.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "core/numbers.h"
#include "ground/ground_generation.h"
#include "ground/ground_randomiser.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/sample_textures.h"
#include "sets/cloud_cover.h"
#include "sets/colour_settings.h"
#include "sets/favourite_name.h"
#include "sets/options_in_force.h"
#include "sets/slider_values.h"

namespace morvane {

GroundTuning::GroundTuning(Session& session)
    : session_(session), tuningColourise_(session, session.state<GroundSelection>().colours) {
    optCloudCover(0);
}

void GroundTuning::optCloudCover(int index) {
    const CloudCover* cover = cloudCover(index + 1);
    if (!cover) throw Error(ErrorCode::subscript);
    tuningCloudNumber_ = toInteger(cover->number);
    tuningCloudWord_ = cover->word;
}

bool GroundTuning::openDefaultSample() {
    return tuningColourise_.openTexImage(sampleTexture(session_.AppPath, defaultSample, u"summer"_s,
                                                       session_.state<OptionsInForce>().IsDutch));
}

bool GroundTuning::openSample() {
    GroundSampleChoice& choice = session_.state<GroundSampleChoice>();
    choice.selectedSeason = u"summer"_s;
    choice.sampleConfirmed = false;
    session_.user.showModal(Screen::frm_SelectTexture);
    if (!choice.sampleConfirmed) return false;
    const FilePath sample = sampleTexture(session_.AppPath, choice.selectedTextureType, choice.selectedSeason,
                                          session_.state<OptionsInForce>().IsDutch);
    return !sample.isEmpty() && tuningColourise_.openTexImage(sample);
}

void GroundTuning::showColourPreview(const SliderValues& sliders) {
    session_.state<GroundSelection>().colours = effectiveColours(sliders);
    tuningColourise_.TsProcess();
}

SliderValues GroundTuning::randomGroundValues() {
    SliderValues sliders{};
    getRandomGroundValues(session_, tuningCloudNumber_, sliders);
    return sliders;
}

void GroundTuning::newFavTexture() {
    if (askFavouriteName(session_, FavouriteKind::ground))
        saveFavourite(session_.state<FavouriteAnswer>().favName);
}

/// The row is written before the folders: when they cannot be made it stands.
void GroundTuning::saveFavourite(const QString& name) {
    reportFailures(session_.user, {}, [&] {
        clsTextureSet record;
        record.ColorSettings = colourSettingsText(session_.state<GroundSelection>().colours);
        record.TextureSet = trimmedBlanks(name);
        record.Actvated = flagText(false); // it gets its files by activation only
        record.Description = trimmedBlanks(session_.state<FavouriteAnswer>().favDescription);
        record.CloudCover = tuningCloudWord_;
        record.IsDutch = true; // as every set, whatever the switch says
        record.IsNew = true;
        if (!loadedGroundSets(session_).UpdateTextureSet(record)) return;
        session_.state<GroundSelection>().RefreshGroundList = true;
        session_.state<GroundSelection>().madeSet = record.TextureSet;
        loadGroundSelection(session_, u"Key:"_s + QString::number(record.TsID));
        makeSetFolders(record.TextureSet);
        session_.user.refreshScreen(Screen::frm_MVTextures);
        session_.user.showScreen(Screen::frm_MVTextures);
    });
}

void GroundTuning::makeSetFolders(const QString& name) {
    for (const QString& subfolder : groundSubfolders)
        session_.files.makeFolder(groundSetFolder(session_, name).child(subfolder));
}

} // namespace morvane
