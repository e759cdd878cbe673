#pragma once

#include "night/night_selection.h"
#include "sets/catalogue_file.h"
#include "sets/set_generation.h"

namespace morvane {

/// Rebuilds and removes night sets. None is made here: they are born as favourites (NightTuning).
class NightGeneration : public SetGeneration {
public:
    explicit NightGeneration(Session& session);

    /// Makes the files of the set in hand (session.state<NightSelection>()), or of several after
    /// frm_MultiDelete.
    void activateNightTextureSet() { activateInHand(); }
    /// Deletes the set in hand or several; with `deactivateMode` only the files go and the colours stay. The
    /// installed set may go when it stands alone.
    void deleteNightTextureSet(bool deactivateMode) { deleteInHand(deactivateMode); }
    bool removeNightSetFiles(const QString& name, bool keepRecord) {
        return removeSetFiles(name, keepRecord);
    }

private:
    SetsInHand inHand() override;
    bool refresh() override;
    std::optional<StoredSet> find(const QString& name) override;
    bool storeActivation(const QString& name, bool activated) override;
    bool removeRecord(const QString& name) override;
    FilePath folderOf(const QString& name) override;
    std::vector<CatalogueFile> baseFilesOf(const QString& name) override;
};

} // namespace morvane
