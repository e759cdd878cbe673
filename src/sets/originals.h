#pragma once

#include "core/disk_spelling.h"
#include "core/error.h"
#include "sets/checked_place.h"
#include "sets/originals_list.h"

#include <QSet>
#include <functional>

namespace morvane {

/// A simulator file that was kept before the program replaced it.
struct KeptOriginal {
    QString path; ///< below the simulator's folder, names joined by "\"
    std::int64_t size = 0;
    QString checksum;  ///< SHA-1, hexadecimal
    int number = 1;    ///< of several kept files of one path, the oldest first
    QDate day;         ///< of the keeping; invalid in lists of old
    QString copy;      ///< the kept file, below "Backup\Originals"
    unsigned mode = 0; ///< permission bits; 0 in lists of old
};

/// One replacement of a simulator file by one of ours.
struct FileCopy {
    FilePath source; ///< joined behind the install folder
    FilePath target; ///< joined behind the simulator's folder

    bool isFor(const FileCopy& other) const { return source == other.source && target == other.target; }
};

/// What a restore did with the files that are known.
struct OriginalsReport {
    int putBack = 0;     ///< the pilot's files; those that stand already are not counted
    int takenAway = 0;   ///< ours, where nothing stood before
    QStringList left;    ///< paths left as they are: changed by another hand, or before us not known
    QStringList damaged; ///< paths left as they are: the kept file is damaged or gone
    std::optional<Error> failure = {}; ///< the first of those files that could not be put back or taken away
};

/// The pilot's own files of one simulator: each is kept under "Backup\Originals" before a copy of ours
/// replaces it, and can be put back. A list beside them (docs/originals.md) knows every kept file and every
/// file that we put there, so that a file of ours is never taken for the pilot's, nor his for ours.
///
/// A file is ours when a fact of the list says so and its bytes are those of the fact; without such a fact it
/// is the pilot's, whatever its bytes, but for what a cut of power left of one. Facts are on the disk before
/// what they speak of is done, so the worst that a kill leaves behind is a file that is kept once too often.
class Originals {
public:
    /// Raises when the list cannot be read, or when a newer version wrote it.
    Originals(FileSystem& files, const FilePath& simulator, const FilePath& appPath,
              const QDate& today = QDate::currentDate());

    /// The target in the spelling of the disk, found without a look at each file.
    FilePath find(const FilePath& target);
    /// Removes what killed runs left beside such a target.
    void clearStraysBeside(const FilePath& target);

    /// Call it with all copies before the first of them is made: looks at every target, keeps the pilot's
    /// files and notes, in one write, what is about to be put where. A file that cannot be read or kept does
    /// not stop the others: its failure is raised by `place`. A first install takes its time here; `pump` is
    /// called after each copy's part.
    /// Gives the place of each in the spelling of the disk.
    std::vector<FilePath> prepare(
        const std::vector<FileCopy>& copies, const std::function<void()>& pump = [] {});
    /// The same for files of the pilot's own: only what stands in their places is kept.
    void keepAll(const std::vector<FileCopy>& copies);
    /// A file of those contents there is ours or kept.
    bool isKnown(const FilePath& target, const FileFingerprint& print) {
        return isOursOrKept(find(target), print);
    }
    /// Where that copy goes, in the spelling of the disk. Raises what kept it from being prepared: it must
    /// not be made then. A copy that was not prepared brings a file of the pilot's own; only what stands in
    /// its place is kept. `standing`: what was read there just now, where somebody has.
    FilePath place(const FileCopy& copy, const std::optional<SeenFile>& standing = {});
    /// The place has the very bytes of a prepared copy: it can be spared. Only where it would end as the same
    /// plain file, and as long as nobody has written to it since it was read. Any thread may ask between
    /// `prepare` and `settle`.
    bool stands(const FileCopy& copy, const FilePath& place) const;
    /// Call it when the copy stands in its place.
    void notePlaced(const FileCopy& copy, const FilePath& place);
    /// Call it after the last copy: the list is written anew, so that it does not grow with every flight. Of
    /// what was put to one path the last counts, and what it replaced, which a cut of power may bring back.
    void settle();

    /// What stood in the places of the prepared copies, by path, as UndoRecord has it.
    const QMap<QString, OriginalFact>& stood() const { return stood_; }
    /// Brings back what stood there: the pilot's files, ours from where they came or else from below `saved`,
    /// or nothing. What another hand changed since is left. As `restore` in the rest.
    OriginalsReport undo(
        const std::vector<OriginalFact>& stood, const FilePath& saved,
        const std::function<void(double)>& progress = [](double) {});

    /// Takes the read-only mark away, where there is one, so that a restore can give it back; true when there
    /// was.
    bool takeReadOnlyMark(const FilePath& place);
    /// Makes a folder of the simulator, and those above it; a restore takes it away when it is empty.
    void makeFolder(const FilePath& folder);

    /// All kept files, sorted by path and number.
    std::vector<KeptOriginal> list() const;
    /// What is known of that place of the simulator.
    const OriginalRecord& recordOf(const FilePath& target);
    /// One of ours stands there. Raises when the file cannot be read.
    bool isOurs(const FilePath& target);
    /// The pilot's youngest file in the place of one of ours; nothing where none of ours stands, where none
    /// was kept, or where it is no longer what was kept.
    std::optional<FilePath> keptFile(const FilePath& target);
    const OriginalRecords& records() const { return list_.records(); }

    /// Gives the first tree back: the pilot's youngest files in the place of ours, with their modes, and
    /// nothing where we put the first file. What was given back has no facts afterwards. One file that fails
    /// does not keep the others from it. `progress` is called with a part of 1 after each file.
    OriginalsReport restore(const std::function<void(double)>& progress = [](double) {});

    /// Takes over what the install in that folder knows of this simulator: its facts, and copies of the files
    /// it kept that are whole. Nothing where its list cannot be read.
    void adopt(const FilePath& install);

    /// What stands in every place where a file of ours was put or the pilot's was kept. `progress` as above.
    std::vector<CheckedPlace> check(
        CheckDepth depth, const std::function<void(double)>& progress = [](double) {});
    /// What another program put in the place of ours counts as the pilot's own from now on, and is kept.
    /// False when no such file stands there.
    bool takeAsPilots(const QString& path);
    /// What stands there goes without a fact, as the pilot does not want it; what nobody else has is copied
    /// beside the kept ones all the same. Call it before `prepare`.
    void layAside(const FilePath& target);
    /// The pilot's youngest file in that place, whatever stands there, which is laid aside. False when none
    /// is kept whole.
    bool putPilotsBack(const QString& path);

private:
    void respell();
    /// What stands in a place before a copy goes there.
    struct Standing {
        std::optional<SeenFile> file = {};      ///< nothing where none is
        std::optional<QByteArray> unknown = {}; ///< the contents of one that is neither ours nor kept
        bool isRemnant = false;                 ///< that one is what a cut of power left
        std::optional<OriginalFact> kept = {};  ///< that one has been kept
    };
    struct SeenCopy {
        FileFingerprint source;
        Standing target;
        std::optional<Error> sourceFailure, targetFailure;
    };
    Standing see(const FileCopy& copy, const FilePath& place) const;
    bool isRemnantOfKnown(const FilePath& place, const QByteArray& contents,
                          const std::optional<FilePath>& source = {}) const;
    bool isOursOrKept(const FilePath& place, const FileFingerprint& print) const;
    SeenCopy seeCopy(const FileCopy& copy, const FilePath& place, bool mayKeep) const;
    std::vector<bool> mayKeepAhead(const std::vector<FilePath>& places);
    std::vector<FilePath> prepareAll(const std::vector<FileCopy>& copies, const std::function<void()>& pump,
                                     bool areOurs);
    void prepareCopy(const FileCopy& copy, const FilePath& place, const SeenCopy& seen, bool isOurs,
                     std::vector<OriginalFact>& facts);
    /// Adds what has to be noted before the file is replaced.
    void note(const FilePath& place, const QString& path, const Standing& standing, bool isForOurs,
              std::vector<OriginalFact>& facts);
    OriginalFact keep(const FilePath& place, const SeenFile& file, const QByteArray& contents) const;
    QString keepCopy(const QString& path, const QByteArray& contents) const;
    void makeCopyFolder(const QString& path);
    FilePath copyPlace(const QString& where) const;
    void addKept(const std::vector<OriginalFact>& facts);
    OriginalFact factOf(FactKind kind, const FilePath& place) const { return factOf(kind, place.relative()); }
    OriginalFact factOf(FactKind kind, const QString& path) const;

    OriginalFact stoodFact(const QString& path, const Standing& standing,
                           const std::vector<OriginalFact>& facts) const;
    void settlePlaced();

    /// A place of a step that is undone.
    struct StoodPlace {
        FilePath place;
        OriginalFact stood;
    };
    struct FoundPlace {
        std::optional<SeenFile> standing = {};
        std::optional<FilePath> source = {}; ///< of what stood, where it does not stand
        std::optional<Error> failure = {};

        bool stands(const OriginalFact& stood) const {
            return standing ? stood.kind != FactKind::added && standing->print == stood.print
                            : stood.kind == FactKind::added;
        }
    };
    FoundPlace lookAt(const StoodPlace& place, const FilePath& saved) const;
    bool undoPlace(const StoodPlace& place, const FoundPlace& found, OriginalsReport& report);
    void giveModeBack(const StoodPlace& place);
    void bringBack(const StoodPlace& place, const FilePath& source);
    void settleUndone(const std::vector<OriginalFact>& undone);

    void clearStrays();
    void clearStraysIn(const QString& folder);
    /// What a file to be put back or taken away has been found to be.
    struct FoundFile {
        std::optional<SeenFile> standing = {}; ///< in its place
        bool isOurs = false;                   ///< that is one of ours, or what a cut of power left
        bool isKeptSound = false;              ///< where the kept one has to come
        std::optional<Error> failure = {};
    };
    /// A file that is known, where it is; any thread may look at it.
    struct KnownFile {
        FilePath place;
        OriginalRecord record;
    };
    bool holds(const FilePath& file, const FileFingerprint& print) const;
    bool isSound(const OriginalFact& kept) const { return holds(folder_ / kept.where, kept.print); }
    FoundFile lookAt(const KnownFile& file) const;
    void restoreFile(const KnownFile& file, const FoundFile& ahead, OriginalsReport& report);
    void giveBack(const KnownFile& file, const FoundFile& found);
    void restoreKept(const KnownFile& file, const FoundFile& found, OriginalsReport& report);
    static unsigned modeAfter(const KnownFile& file, const FoundFile& found);
    void removeMadeFolders();
    struct ReadFile {
        SeenFile seen;
        QByteArray contents;
    };
    /// What stands there and is neither ours nor kept.
    std::optional<ReadFile> readUnknown(const FilePath& place) const;
    CheckedPlace check(const KnownFile& file, CheckDepth depth) const;
    PlaceState stateOf(const KnownFile& file, const FileStamp& stamp, CheckDepth depth) const;
    static PlaceState stateOfNothing(const OriginalRecord& record);
    static bool isUntouched(const OriginalFact& ours, const FileStamp& stamp);
    bool isKeptSound(const OriginalFact& kept, CheckDepth depth) const;
    void forgetRestored();

    FileSystem& files_;
    FilePath simulator_, appPath_, folder_;
    QDate today_;
    OriginalsList list_;
    DiskSpelling spelling_;
    QHash<FilePath, FileFingerprint> announced_; ///< by source
    QMap<QString, OriginalFact> stood_;          ///< before the copies, by path
    QHash<QString, SeenFile> standing_;          ///< with the bytes of a copy that is to go there
    QHash<QString, OriginalFact> placed_;        ///< the last of each path
    QSet<QString> pilots_;                       ///< where his own was put
    std::vector<FilePath> restored_;             ///< as they were before us, or gone as nothing was there
    QHash<QString, Error> failures_;             ///< by source or by path of the target
    QSet<QString> cleared_;                      ///< folders without strays
    QSet<QString> looked_;                 ///< paths of which nothing has to be kept any more in this run
    QHash<QString, FilePath> copyFolders_; ///< made, by the folder below `folder_`
};

} // namespace morvane
