#pragma once

#include "core/file_fingerprint.h"

#include <QDate>
#include <cstdint>
#include <vector>

namespace morvane {

/// What is known of a file of the simulator, one fact a line of the list. Which columns a fact has:
enum class FactKind {
    kept,   ///< the pilot's file lies in `where`: contents, time, number, mode and day of the keeping
    added,  ///< nothing stood there before our first copy: day
    ours,   ///< we put it there, or are about to: contents, day, `where`; time and number once it stands
    mode,   ///< the mode before we took a read-only mark away: mode, day
    folder, ///< a folder that we made: day
    gone,   ///< restored or removed: of the facts before this one none counts any more
};

struct OriginalFact {
    FactKind kind = FactKind::gone;
    QString path; ///< below the simulator's folder, names joined by "\", in the spelling of the disk
    FileFingerprint print = {};
    /// Of the file as it stood in the simulator, see FileStamp; 0 where it is not known.
    std::int64_t time = 0;
    std::uint64_t number = 0;
    unsigned mode = 0;
    QDate day = {};
    /// Kept: the copy, below "Backup\Originals". Ours: the file it was copied from, below the install folder,
    /// which names set, body or option.
    QString where = {};
};

/// The folder of such a path; empty where it has none.
QString folderOf(const QString& path);

/// The whole of a list.
struct OriginalsText {
    bool hasHead = false;           ///< lists of old had none
    QString simulator;              ///< its folder as the system spells it
    std::uint64_t folderNumber = 0; ///< of that folder
    std::vector<OriginalFact> facts;
};

/// The first line: the format's name, its version, number and path of the simulator's folder.
QByteArray headLine(const QString& simulator, std::uint64_t folderNumber);
void addFactLine(QByteArray& lines, const OriginalFact& fact);
/// Room for that line, where names are of plain letters.
qsizetype usualLength(const OriginalFact& fact);
/// Stands in front of whatever is added to a list: the line that a kill tore must not swallow the next one,
/// nor, torn inside its path, pass for a line about another file. The tab gives it a column too many.
inline constexpr char tornLineEnd[] = "\t\n";

/// Reads a list of any version up to ours; lines that are torn or unknown are passed over. Raises for a newer
/// one, with `file` in the description: nothing may be done on what it says.
OriginalsText parseOriginals(const QByteArray& bytes, const FilePath& file);

} // namespace morvane
