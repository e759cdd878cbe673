#include "ground/ground_tuning.h"

#include "core/failure_report.h"
#include "core/favourite_name.h"
#include "core/numbers.h"
#include "core/options.h"
#include "ground/cloud_cover.h"
#include "ground/colour_settings.h"
#include "ground/ground_generation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"

namespace morvane {

GroundTuning::GroundTuning(Session& session)
    : session_(session), tuningColourise_(session, session.ground.colours) {
    optCloudCover(0);
}

void GroundTuning::optCloudCover(int index) {
    const CloudCover* cover = cloudCover(index + 1);
    if (!cover) throw Error(ErrorCode::subscript);
    tuningCloudNumber_ = toInteger(cover->number);
    tuningCloudWord_ = cover->word;
}

bool GroundTuning::openDefaultSample() {
    return tuningColourise_.openTexImage(
        sampleTexture(session_.AppPath, defaultSample, u"summer"_s, session_.IsDutch));
}

bool GroundTuning::openSample() {
    ModalState& modal = session_.modal;
    modal.selectedSeason = u"summer"_s;
    modal.sampleConfirmed = false;
    session_.user.showModal(Screen::frm_SelectTexture);
    if (!modal.sampleConfirmed) return false;
    const FilePath sample =
        sampleTexture(session_.AppPath, modal.selectedTextureType, modal.selectedSeason, session_.IsDutch);
    return !sample.isEmpty() && tuningColourise_.openTexImage(sample);
}

void GroundTuning::showColourPreview(const SliderValues& sliders) {
    session_.ground.colours = effectiveColours(sliders);
    tuningColourise_.TsProcess();
}

SliderValues GroundTuning::randomGroundValues() {
    SliderValues sliders{};
    getRandomGroundValues(session_, tuningCloudNumber_, sliders);
    return sliders;
}

void GroundTuning::newFavTexture() {
    if (askFavouriteName(session_, FavouriteKind::ground)) saveFavourite(session_.modal.favName);
}

/// The row is written before the folders: when they cannot be made it stands.
void GroundTuning::saveFavourite(const QString& name) {
    reportFailures(session_.user, {}, [&] {
        clsTextureSet record;
        record.ColorSettings = colourSettingsText(session_.ground.colours);
        record.TextureSet = trimmedBlanks(name);
        record.Actvated = flagText(false); // it gets its files by activation only
        record.Description = trimmedBlanks(session_.modal.favDescription);
        record.CloudCover = tuningCloudWord_;
        record.IsDutch = true; // as every set, whatever the switch says
        record.IsNew = true;
        if (!loadedGroundSets(session_).UpdateTextureSet(record)) return;
        session_.RefreshGroundList = true;
        session_.ground.madeSet = record.TextureSet;
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
