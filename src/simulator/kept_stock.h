#pragma once

#include "core/file_system.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace morvane {

/// A file of the install: its folder below `AppPath` ("Resources\GENERIC WORLD") and its name in the spelling
/// that it has, or shall have, on the disk.
struct InstallFile {
    QString folder, name;
    bool isThere; ///< found in a listing: a mere test of existence says no to a file that it cannot see

    QString path() const { return folder + u'\\' + name; }
};

/// What an import replaces in the install lies below "Resources kept" under the same path. The list
/// "kept.lst" there has a line a file, "kept" or "new" (nothing stood there before) and its path, separated
/// by a tab. It is written whole before the first file is replaced and goes after the last one is back, so
/// every moment in between can be undone: a file is either still in its place or lies here. One that lies
/// here is never replaced, or the next import would keep what the last one brought.
///
/// A move is not safe from a cut of power, which may take it from the one folder and not bring it to the
/// other. So a copy is on the disk wherever a file is to be moved to, before the list is or the first one
/// moves.
class KeptStock {
public:
    KeptStock(FileSystem& files, const FilePath& appPath);

    bool isEmpty() const { return facts_.isEmpty(); }
    /// Copies what will be replaced and notes the files in the list. Only now may they be replaced. `pump` is
    /// called after each file.
    void announce(
        const std::vector<InstallFile>& files, const std::function<void()>& pump = [] {});
    /// Puts `part`, a file of the same drive, in the place of an announced file and keeps that one. Where
    /// that fails the file stands as before.
    void replace(const InstallFile& file, const FilePath& part);
    /// After the last one: of what was announced and not replaced nothing is kept.
    void forgetUnused();
    /// Where the delivered file of that path lies: here once an import has replaced it, else in its place.
    /// Nothing where an import brings a file for which none was delivered.
    std::optional<FilePath> deliveredPlace(const QString& path) const;
    /// Puts everything back, takes away what was new, and forgets. One file that fails does not keep the
    /// others from it; the first such failure is raised at the end, with everything still kept. Returns the
    /// number of files put back.
    int restore();

private:
    struct Fact {
        QString path;
        bool wasThere;
    };
    void load();
    void loadKept(const QString& folder);
    void add(const QString& path, bool wasThere);
    void copyFirst(const std::vector<InstallFile>& files, const std::function<void()>& pump);
    void writeList();
    std::optional<FilePath> copyBack(const Fact& fact);
    void forget();
    FilePath placeOf(const FilePath& root, const InstallFile& file);

    FileSystem& files_;
    FilePath appPath_, keptPath_, listFile_;
    QMap<QString, Fact> facts_; ///< by path without regard to case
    QSet<QString> kept_;        ///< paths of what lies here, alike
    QSet<QString> copied_;      ///< of those the ones that are to be moved here
    bool isAhead_ = false;      ///< the list tells of files that do not lie here
    QHash<QString, FilePath> folders_;
};

} // namespace morvane
