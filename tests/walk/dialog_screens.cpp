#include "ground/ground_generation.h"
#include "ground/sample_textures.h"
#include "night/night_samples.h"
#include "sets/favourite_name.h"
#include "sets/set_removal.h"
#include "simulator/backup_restore.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "walk/walk_tables.h"

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

} // namespace

std::vector<WalkScreen> setDialogs() {
    const Effect closed = closes([](Session&) { return true; }, true);
    const WalkRows closing{{u"btn_Cancel"_s, closed}, {u"(Escape)"_s, closed}, {u"(close)"_s, closed}};
    const auto isBackupTaken = isSet(&BackupChoice::backupConfirmed);
    const Effect chosenBackup = becomes(&BackupChoice::chosenBackup);
    return {
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
        {"in_simulator", u"frm_InSimulator"_s, dialog(Screen::frm_InSimulator), true,
         closing + WalkRows{{u"cmdReadAll"_s, label(u"lblLooked"_s)},
                            {u"rowCount*"_s, label(u"lblFiles"_s), 5},
                            {u"chkAll"_s, label(u"lblTicked"_s, u"2 of 2 ticked"_s)},
                            {u"lstFiles"_s, itself()},
                            {u"lstFiles|tick"_s, label(u"lblTicked"_s, u"1 of 2 ticked"_s)}}},
        {"more_settings", u"frm_MoreSettings"_s, dialog(Screen::frm_MoreSettings), true,
         closing + WalkRows{{u"cmdKept"_s, shows(u"frm_WhatIsKept"_s)},
                            {u"chkUndo"_s, label(u"lblUndoRoom"_s).lasting()}}},
        {"kept", u"frm_WhatIsKept"_s, dialog(Screen::frm_WhatIsKept), true,
         closing + WalkRows{{u"lstKept"_s, label(u"lblAbout"_s)},
                            {u"(Down)"_s, label(u"lblAbout"_s)},
                            {u"btn_RemoveKept"_s, shows(u"message Morvane Information"_s)}}},
    };
}

} // namespace morvane::test
