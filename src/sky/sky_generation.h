#pragma once

#include "core/job.h"
#include "core/reported.h"
#include "sky/sky_sample.h"
#include "sky/sky_strings.h"

#include <QStringList>
#include <array>

namespace morvane {

struct clsSkyTextureSet;

/// frm_SelectSkyTexture: the base sets ticked, by name, sets wanted for the cloud covers 1 to 5, and whether
/// OK was pressed.
struct SkySetCounts {
    QStringList skyBaseSets;
    std::array<std::int16_t, 5> skySetCounts{};
    bool skySetsConfirmed = false;
};

/// Makes sky sets, in bulk or one by hand, and writes the files of a set.
class SkyGeneration {
public:
    explicit SkyGeneration(Session& session) : session_(session), sample_(session, SkyTable::texture) {}

    /// Asks for base sets and quantities (frm_SelectSkyTexture) and makes the sets, all of one base set
    /// before the next. A cancel ends the run; sets made so far stay, the one in hand with the files it has.
    void createSkySets(bool fromHomeScreen);
    /// Draws, stores and colours one set of that base set for the cloud cover of that number, 1 to 5. False
    /// when the store refused it, which was told: it would refuse another one, too.
    Reported createAutoSkySet(const QString& baseSet, int cloudIndex, int setNumber, int setTotal);
    /// Writes the files of the set for a time of day: for "Day" the base set's in the colours of
    /// `skyTextureGroups`, for "Sunrise" and "Sunset" plain copies of their own folder's. The set's folder
    /// has to be there. `message` is the text of the progress message, opened when none stands on the screen,
    /// and closed in the end. False when it was cancelled, had no file or a failure was told.
    bool colourSkySetFiles(const QString& setName, const QString& baseSet, const QString& timeOfDay,
                           const QString& message, int setNumber, int setTotal);

    /// Asks for name and description (frm_AddFav) and saves the colour page's numbers as a set.
    void newFavSky();
    /// The saving alone, with the description of the dialog: rows and an empty folder, not activated.
    void saveSkySetFromTuning(const QString& name);
    /// The same of any set and its colours. The rows are written before the folder: when it cannot be made
    /// they stand.
    Reported saveFavourite(clsSkyTextureSet set, const SkyStrings& strings);

private:
    void createAll(const Job& job);
    void endRun(bool fromHomeScreen);
    void showNewestSet();
    void takeNewestSet();
    bool storeSubSet(const clsSkyTextureSet& set, const SkyStrings& strings);
    bool writeFiles(const QStringList& names, const FilePath& source, const FilePath& target, bool coloured);
    SkyStrings tunedStrings();

    Session& session_;
    SkySample sample_;
};

} // namespace morvane
