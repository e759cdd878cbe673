#include "core/registry.h"
#include "ground/ground_generation.h"
#include "ground/sample_textures.h"
#include "night/night_samples.h"
#include "sets/favourite_name.h"
#include "sets/set_removal.h"
#include "sets/sheet_request.h"
#include "simulator/backup_restore.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "walk/walk_tables.h"

#include <algorithm>

namespace morvane::test {

namespace {

void giveBackups(Session& session) {
    const QDateTime first(QDate(2026, 7, 14), QTime(14, 7));
    session.state<BackupChoice>().backups = {{u"1-Backup"_s, first, true},
                                             {u"2-Backup"_s, first.addDays(9), false}};
}

void giveNames(Session& session) {
    session.state<MultiChoice>().multiNames = QStringList{u"2-Fair"_s, u"4-Calm"_s, u"3-Grey"_s};
}

/// All boxes have something to count.
void giveBaseSets(Session& session) {
    session.state<SkySetCounts>().skyBaseSets = QStringList{u"Sunny"_s, overcastBaseSet};
}

void giveSet(Session& session) {
    session.state<SheetRequest>() = {u"Ground"_s, u"3-Grey"_s};
}

/// Of the picture that covers the sheet; nothing while it does not.
Effect aloneIs(const QString& name) {
    return {[](Walk& walk) {
                const QWidget& alone = walk.find(u"picAlone"_s);
                return alone.isVisible() ? alone.accessibleName() : QString();
            },
            name};
}

Effect staysDown() {
    return {[](Walk& walk) {
                const auto& key = static_cast<SkinnedButton&>(walk.find(u"btn_Beside"_s));
                return key.isLatched() ? u"down"_s : u"up"_s;
            },
            u"down"_s};
}

/// Of the simulator, of a whole set and of the settings.
std::vector<WalkScreen> otherDialogs() {
    const Effect closed = closes([](Session&) { return true; }, true);
    const WalkRows closing{{u"btn_Cancel"_s, closed}, {u"(Escape)"_s, closed}, {u"(close)"_s, closed}};
    const auto paletteWord = [](Session& session) { return ownValue(session.registry, u"Palette"_s); };
    const auto sources = [](Session& session) { return ownValue(session.registry, u"WeatherSources"_s); };
    return {
        {"in_simulator", u"frm_InSimulator"_s, dialog(Screen::frm_InSimulator), true,
         closing + WalkRows{{u"cmdReadAll"_s, label(u"lblLooked"_s)},
                            {u"cmdSeeAll"_s, shows(u"frm_SetSheet"_s)},
                            {u"rowCount*"_s, label(u"lblFiles"_s), 5},
                            {u"chkAll"_s, label(u"lblTicked"_s, u"2 of 2 ticked"_s)},
                            {u"lstFiles"_s, itself()},
                            {u"lstFiles|tick"_s, label(u"lblTicked"_s, u"1 of 2 ticked"_s)}}},
        {"sheet", u"frm_SetSheet"_s, dialog(Screen::frm_SetSheet, giveSet), true,
         closing + WalkRows{{u"lstSheet"_s, label(u"lblTexture"_s, u"029h2su6.bmp"_s)},
                            {u"(Enter)"_s, aloneIs(u"029b2su6.bmp, base and set side by side"_s)},
                            {u"picTexture"_s, itself()},
                            {u"vcZoom"_s, label(u"lblZoom"_s)},
                            {u"cmdZoomMinus"_s, label(u"lblZoom"_s, u"24 px"_s)},
                            {u"cmdZoomPlus"_s, label(u"lblZoom"_s, u"48 px"_s)},
                            {u"btn_Beside"_s, staysDown()},
                            {u"btn_SavePicture"_s, shows(u"box Save Picture"_s)}}},
        {"more_settings", u"frm_MoreSettings"_s, dialog(Screen::frm_MoreSettings), true,
         closing + WalkRows{{u"lstSources"_s, label(u"lblSourceState"_s)},
                            {u"(Down)"_s, label(u"lblSourceState"_s)},
                            {u"cmdSourceDown"_s, becomes(sources, u"awc;noaa"_s).lasting()},
                            {u"cmdSourceRemove"_s, becomes(sources, u"awc"_s).lasting()},
                            {u"cboNewSource"_s, itself()},
                            {u"cmdSourceAdd"_s, becomes(sources, u"noaa;awc;vatsim"_s).lasting()},
                            {u"cmdKept"_s, shows(u"frm_WhatIsKept"_s)},
                            {u"btn_Ready"_s, shows(u"frm_Ready"_s)},
                            {u"chkUndo"_s, label(u"lblUndoRoom"_s).lasting()},
                            {u"optPaletteDay"_s, becomes(paletteWord, u"day"_s).lasting()},
                            {u"optPaletteNight"_s, becomes(paletteWord, u"night"_s).lasting()},
                            {u"optPaletteClock"_s, becomes(paletteWord, u"clock"_s).lasting()}}},
        {"ready", u"frm_Ready"_s, dialog(Screen::frm_Ready), true,
         closing + WalkRows{{u"chkStep1"_s, itself()},
                            {u"chkStep3"_s, itself()},
                            {u"chkStep4"_s, itself()},
                            {u"optDelivered"_s, label(u"lblState2"_s, u"Done"_s)},
                            {u"optOwn"_s, label(u"lblState2"_s, u"Waiting"_s)},
                            {u"btn_Ok"_s, label(u"lblSteps"_s).lasting()}}},
        {"kept", u"frm_WhatIsKept"_s, dialog(Screen::frm_WhatIsKept), true,
         closing + WalkRows{{u"lstKept"_s, label(u"lblAbout"_s)},
                            {u"(Down)"_s, label(u"lblAbout"_s)},
                            {u"btn_RemoveKept"_s, shows(u"message Morvane Information"_s)}}},
    };
}

} // namespace

std::vector<WalkScreen> setDialogs() {
    const auto isBackupTaken = isSet(&BackupChoice::backupConfirmed);
    const Effect chosenBackup = becomes(&BackupChoice::chosenBackup);
    std::vector<WalkScreen> screens{
        {"ground_counts", u"frm_TsRequired"_s, dialog(Screen::frm_TsRequired), true,
         answerRows(isSet(&GroundSetCounts::setCountsConfirmed))},
        {"sky_counts", u"frm_SelectSkyTexture"_s, dialog(Screen::frm_SelectSkyTexture, giveBaseSets), true,
         answerRows(isSet(&SkySetCounts::skySetsConfirmed))},
        {"base_sky", u"frm_SelectBaseSky"_s, dialog(Screen::frm_SelectBaseSky), true,
         answerRows(isSet(&BaseSkyAnswer::baseSkyConfirmed))},
        {"sample", u"frm_SelectTexture"_s, dialog(Screen::frm_SelectTexture), true,
         answerRows(isSet(&GroundSampleChoice::sampleConfirmed))},
        {"night_sample", u"frm_SelectNightTexture"_s, dialog(Screen::frm_SelectNightTexture), true,
         answerRows(isSet(&NightSampleChoice::sampleConfirmed))},
        {"favourite", u"frm_AddFav"_s, dialog(Screen::frm_AddFav), true,
         answerRows(isSet(&FavouriteAnswer::favConfirmed)) +
             WalkRows{{u"txtFavName"_s, becomes(&FavouriteAnswer::favName, u"7"_s)},
                      {u"txtFavDesc"_s, label(u"lblLength"_s, u"1"_s)}}},
        {"names", u"frm_MultiDelete"_s, dialog(Screen::frm_MultiDelete, giveNames), true,
         answerRows(
             [](Session& session) { return session.state<MultiChoice>().multiConfirmed.size() == 3; })},
        {"backups", u"frm_BackupList"_s, dialog(Screen::frm_BackupList, giveBackups), true,
         WalkRows{{u"btn_Cancel"_s, closes(isBackupTaken, false)},
                  {u"lstBackupList"_s, chosenBackup},
                  {u"lstBackupList|twice"_s, closes(isBackupTaken, true)},
                  {u"(Enter)"_s, chosenBackup},
                  {u"(Down)"_s, chosenBackup},
                  {u"(Escape)"_s, closes(isBackupTaken, false)},
                  {u"(close)"_s, closes(isBackupTaken, false)}}},
    };
    std::ranges::move(otherDialogs(), std::back_inserter(screens));
    return screens;
}

} // namespace morvane::test
