#pragma once

#include "core/job.h"
#include "core/session.h"
#include "ground/ground_randomiser.h"

namespace morvane {

class clsTextureSet;

/// Makes, rebuilds and removes ground sets. A set's row is written first and its files after it, set by set;
/// a cancel ends the whole run and takes the unfinished set with it.
class GroundGeneration {
public:
    explicit GroundGeneration(Session& session) : session_(session) {}

    /// Asks for the quantities (frm_TsRequired) and makes the sets, all of one cloud cover before the next.
    /// `fromMain` tells which screen started the run and comes back at its end.
    void createTextureSets(bool fromMain);
    /// Rebuilds the files of the set in hand (session.ground), or of several after frm_MultiDelete.
    void activateTextureSet();
    /// Deletes the set in hand or several; with `deactivateMode` only the files go and the colours stay.
    void deleteTextureSet(bool deactivateMode);
    /// Takes the set's record, or with `keepRecord` its activation, and then its files. False when the store
    /// refused: the files then stay.
    bool removeSetFiles(const QString& name, bool keepRecord);

private:
    struct Counters {
        int setsDone, total;
    };
    bool createAll(const Job& job, int total, bool fromMain);
    void createRandomSet(const Job& job, int cloudNumber, Counters counters, bool fromMain);
    void createSet(const Job& job, int cloudNumber, const SliderValues& sliders, Counters counters,
                   bool fromMain);
    void makeFiles(const Job& job, const ColourValues& colours, Counters counters, bool fromMain);
    void reportDuration(const QTime& start, const QTime& end, int total);
    void endRun(bool fromMain);

    void activateSeveral(const Job& job, const QStringList& names);
    bool activate(const Job& job, const clsTextureSet& record, Counters counters);

    Session& session_;
};

/// Subfolders of a ground set's folder.
inline const QStringList groundSubfolders{u"Texture"_s, u"UTEurLC"_s, u"Dutch"_s};

/// The folder of the named ground set. Raises "Path not found" for a name that is no single folder name.
FilePath groundSetFolder(const Session& session, const QString& name);

/// Empties each of the subfolders that holds a bitmap, and with `removeFolders` removes them and the folder.
/// Folders are removed only when empty, and one that is a link is left alone with what it points to.
void removeBitmapFolders(Session& session, const FilePath& setFolder, const QStringList& subfolders,
                         bool removeFolders);

/// Minutes between two times of day as the report counts them.
int reportedMinutes(const QTime& start, const QTime& end);

} // namespace morvane
