#pragma once

#include "ground/ground_selection.h"
#include "sets/catalogue_file.h"
#include "sets/set_generation.h"
#include "sets/slider_values.h"

#include <array>

namespace morvane {

/// frm_TsRequired: sets wanted for the cloud covers 1 to 5, and whether OK was pressed.
struct GroundSetCounts {
    std::array<std::int16_t, 5> setCounts{};
    bool setCountsConfirmed = false;
};

/// Makes, rebuilds and removes ground sets. A set's row is written first and its files after it, set by set;
/// a cancel ends the whole run and takes the unfinished set with it.
class GroundGeneration : public SetGeneration {
public:
    explicit GroundGeneration(Session& session);

    /// Asks for the quantities (frm_TsRequired) and makes the sets, all of one cloud cover before the next.
    /// `fromMain` tells which screen started the run and comes back at its end.
    void createTextureSets(bool fromMain);
    /// Rebuilds the files of the set in hand (session.state<GroundSelection>()), or of several after
    /// frm_MultiDelete.
    void activateTextureSet() { activateInHand(); }
    /// Deletes the set in hand or several; with `deactivateMode` only the files go and the colours stay.
    void deleteTextureSet(bool deactivateMode) { deleteInHand(deactivateMode); }

private:
    bool createAll(const Job& job, int total, bool fromMain);
    void dropUnfinishedSet();
    bool createRandomSet(const Job& job, int cloudNumber, Counters counters, bool fromMain);
    bool createSet(const Job& job, int cloudNumber, const SliderValues& sliders, Counters counters,
                   bool fromMain);
    void reportDuration(const QTime& start, const QTime& end, int total);
    void endRun(bool fromMain);

    SetsInHand inHand() override;
    bool refresh() override;
    std::optional<StoredSet> find(const QString& name) override;
    bool storeActivation(const QString& name, bool activated) override;
    bool removeRecord(const QString& name) override;
    FilePath folderOf(const QString& name) override;
    std::vector<CatalogueFile> baseFilesOf(const QString& name) override;
};

/// Subfolders of a ground set's folder.
inline const QStringList groundSubfolders{u"Texture"_s, u"UTEurLC"_s, u"Dutch"_s};

/// The folder of the named ground set. Raises "Path not found" for a name that is no single folder name.
FilePath groundSetFolder(const Session& session, const QString& name);

/// Minutes between two times of day as the report counts them.
int reportedMinutes(const QTime& start, const QTime& end);

} // namespace morvane
