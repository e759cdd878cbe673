#pragma once

#include "core/job.h"
#include "core/session.h"
#include "imaging/colour_values.h"
#include "sets/catalogue_file.h"

#include <optional>

namespace morvane {

/// What tells the making and removing of one kind of set's files from that of the other.
struct GenerationKind {
    QString caption;                ///< of the progress message
    QString duration;               ///< the sentence on how long it takes, up to "on your "
    QStringList subfolders;         ///< of a set's folder
    Screen activatedFrom;           ///< hidden while a set is being activated
    Screen listScreen;              ///< comes back afterwards
    bool& (*refreshList)(Session&); ///< the list is to be filled anew when it is shown
    bool protectsInstalled; ///< the installed set alone is not removed; several pass it over in any case
};

/// What a run needs of a set's row.
struct StoredSet {
    QString name, colourSettings;
    bool installed;
};

/// The kind's part of the session: what is selected in its list.
struct SetsInHand {
    QString& name;
    ColourValues& colours; ///< of that set
    const QStringList& selectedRows;
};

/// Makes and removes the files of the sets that a list has in hand; ground and night alike.
class SetGeneration {
public:
    virtual ~SetGeneration() = default;

    /// Takes the set's record, or with `keepRecord` its activation, and then its files. False when the store
    /// refused: the files then stay.
    bool removeSetFiles(const QString& name, bool keepRecord);

protected:
    struct Counters {
        int setsDone, total;
    };
    SetGeneration(Session& session, const GenerationKind& kind) : session_(session), kind_(kind) {}

    /// Rebuilds the files of the set in hand, or of several after frm_MultiDelete. A cancel ends the run and
    /// leaves its unfinished set deactivated.
    void activateInHand();
    /// Deletes the set in hand or several; with `deactivateMode` only the files go and the colours stay.
    void deleteInHand(bool deactivateMode);
    /// Both passes for the set in hand in its colours.
    void makeFiles(const Job& job, Counters counters, Screen hiddenScreen);

    virtual SetsInHand inHand() = 0;
    /// Reads the store anew; false after the message of a failure.
    virtual bool refresh() = 0;
    virtual std::optional<StoredSet> find(const QString& name) = 0;
    // Both are of a set that was found; false when the store refused.
    virtual bool storeActivation(const QString& name, bool activated) = 0;
    virtual bool removeRecord(const QString& name) = 0;
    /// Raises "Path not found" for a name that is no single folder name.
    virtual FilePath folderOf(const QString& name) = 0;
    virtual std::vector<CatalogueFile> baseFilesOf(const QString& name) = 0;

    Session& session_;

private:
    void activateSeveral(Job& job, const QStringList& names);
    bool takeInHand(const StoredSet& set);
    bool activate(const Job& job, const StoredSet& set, Counters counters);

    const GenerationKind& kind_;
};

/// Empties each of the subfolders that holds a bitmap, and with `removeFolders` removes them and the folder.
/// Folders are removed only when empty. What a link points to is left alone: the link itself goes with the
/// folders.
void removeBitmapFolders(Session& session, const FilePath& setFolder, const QStringList& subfolders,
                         bool removeFolders);

} // namespace morvane
