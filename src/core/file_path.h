#pragma once

#include <QString>
#include <QStringList>
#include <memory>

namespace morvane {

struct PathName;

/// A path as the program speaks of it. The program and the simulator join their paths with "\" and read them
/// without regard to case, while the folder may lie on a file system that knows case. Texts joined here take
/// "\" and "/"; `native()` gives the spelling that is on the disk.
///
/// No joined text leads out of the root: a name of dots and blanks only, a drive or a NUL in it raises "Path
/// not found". A "." alone is passed over.
class FilePath {
public:
    FilePath() = default;
    /// A folder or file as the system spells it (a user's choice, the environment); taken as it stands.
    explicit FilePath(const QString& systemPath);

    /// Appends one or more names, as in `appPath / "Scenery\\World\\texture"`. Empty names are passed over.
    FilePath operator/(QStringView relative) const;
    FilePath operator/(const char16_t* relative) const { return *this / QStringView(relative); }
    /// Appends exactly one name, a set's or a file's. An empty name, or one that holds a separator, raises
    /// "Path not found": a name from the store or the user can never reach another folder.
    FilePath child(const QString& name) const;
    /// True for a name that `child` takes.
    static bool isChildName(const QString& name);
    /// The same, but in exactly that spelling; no other one is looked for. For folders that only we write to:
    /// a new name among thousands needs no search.
    FilePath exactChild(const QString& name) const;
    /// A file beside this one whose name on the disk has that ending; in messages it goes by this one's name.
    FilePath withEnding(const QString& ending) const;
    /// A spelling was settled on, by `exactChild` or `resolved`.
    bool isResolved() const;
    /// The folder above; a path without joined names loses the last name of its root.
    FilePath parent() const;

    bool isEmpty() const;
    QString fileName() const;
    /// The part that was joined behind the root, with "\" between the names.
    QString relative() const { return relativeTo({}); }
    /// The part that was joined behind `folder`, which this path was joined from.
    QString relativeTo(const FilePath& folder) const;
    /// For messages: the path as joined, with the system's separators.
    QString text() const;
    /// Whether they are joined alike, however they are spelled.
    friend bool operator==(const FilePath& one, const FilePath& other) {
        return one.last_ == other.last_ || one.text() == other.text();
    }
    /// The path on this system. Each name is taken in the spelling found on the disk, if need be without
    /// regard to case; names that do not exist stay as joined. Exact spelling wins over any other.
    QString native() const;
    /// The same path with the spelling on the disk looked up now and kept, for several operations in a row.
    FilePath resolved() const;

private:
    explicit FilePath(std::shared_ptr<const PathName> last) : last_(std::move(last)) {}
    FilePath settled(const QString& spelling) const;

    /// Lists have thousands of paths that lie in few folders: the names above are shared. None in an empty
    /// one.
    std::shared_ptr<const PathName> last_;
};

std::size_t qHash(const FilePath& path, std::size_t seed = 0);

/// True when the mask ("*" any run, "?" one character) takes the whole name, without regard to case.
/// "*.*" takes every name, with or without a dot.
bool matchesMask(QStringView name, QStringView mask);

/// Trims blanks and removes one trailing "\".
QString StripBackslash(const QString& path);

} // namespace morvane
