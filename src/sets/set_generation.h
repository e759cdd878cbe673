#pragma once

#include "core/job.h"
#include "core/reported.h"
#include "imaging/colour_values.h"
#include "sets/catalogue_file.h"
#include "sets/set_kind.h"

namespace morvane {

/// What tells the making of one kind of set's files from that of the other.
struct GenerationKind {
    QString caption;      ///< of the progress message
    QString duration;     ///< the sentence on how long it takes, up to "on your "
    Screen activatedFrom; ///< hidden while a set is being activated
};

/// Makes the files of the sets that a list has in hand, and removes such sets; ground and night alike.
class SetGeneration {
public:
    virtual ~SetGeneration() = default;

    /// As morvane::removeSet.
    bool removeSetFiles(const QString& name, bool keepRecord);
    /// Rebuilds the files of the set in hand, or of several after frm_MultiDelete. A cancel ends the run and
    /// leaves its unfinished set deactivated. Refused where the disk has no room for them.
    void activateInHand();
    /// Deletes the set in hand or several; with `deactivateMode` only the files go and the colours stay.
    void deleteInHand(bool deactivateMode);

protected:
    struct Counters {
        int setsDone, total;
    };
    /// `colours` are those of the set in hand.
    SetGeneration(Session& session, const SetKind& set, const GenerationKind& kind, ColourValues& colours)
        : session_(session), set_(set), kind_(kind), colours_(colours) {}

    /// Both passes for the set in hand in its colours.
    void makeFiles(const Job& job, Counters counters, Screen hiddenScreen);

    virtual std::vector<CatalogueFile> baseFilesOf(const QString& name) = 0;

    Session& session_;

private:
    bool hasRoom(const QStringList& names);
    void activateSeveral(Job& job, const QStringList& names);
    Reported takeInHand(const StoredSet& set);
    bool activate(const Job& job, const StoredSet& set, Counters counters);

    const SetKind& set_;
    const GenerationKind& kind_;
    ColourValues& colours_;
};

} // namespace morvane
