#include "core/attempts.h"
#include "core/file_helpers.h"
#include "core/literals.h"
#include "core/reading_limits.h"
#include "core/wine_call.h"
#include "core/wine_prefixes.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

namespace morvane {

namespace {

/// Where a program has its files: as packed by the distribution, and by Flatpak.
QStringList dataFolders(const QString& flatpak) {
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation),
            QDir::homePath() + u"/.var/app/"_s + flatpak + u"/data"_s};
}

QStringList configFolders(const QString& flatpak) {
    return {QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
            QDir::homePath() + u"/.var/app/"_s + flatpak + u"/config"_s};
}

const QString lutrisPackage = u"net.lutris.Lutris"_s, bottlesPackage = u"com.usebottles.bottles"_s;

QByteArray note(FileSystem& files, const QString& path) {
    return readBounded(files, FilePath(path), largestPrefixNote);
}

/// Whole paths; none of a folder that cannot be read.
QStringList foldersIn(FileSystem& files, const QString& folder) {
    QStringList names;
    attempt([&] { names = files.listFolders(FilePath(folder)); });
    for (QString& name : names)
        name.prepend(folder + u'/');
    return names;
}

/// Each of its games has a note that names the prefix, or only the program in it.
QStringList lutrisPrefixes(FileSystem& files) {
    QStringList prefixes;
    for (const QString& base : configFolders(lutrisPackage) + dataFolders(lutrisPackage)) {
        const QString games = base + u"/lutris/games"_s;
        QStringList names;
        attempt([&] { names = files.list(FilePath(games), u"*.yml"_s); });
        for (const QString& name : names) {
            const QByteArray lines = note(files, games + u'/' + name);
            const QString named = textOfLine(lines, "prefix");
            prefixes << (named.isEmpty() ? prefixAbove(textOfLine(lines, "exe")) : named);
        }
    }
    return prefixes;
}

QStringList bottles(FileSystem& files) {
    QStringList prefixes;
    for (const QString& base : dataFolders(bottlesPackage)) {
        const QString own = base + u"/bottles"_s;
        prefixes << foldersIn(files, own + u"/bottles"_s);
        const QString chosen = textOfLine(note(files, own + u"/data.yml"_s), "custom_bottles_path");
        if (!chosen.isEmpty()) prefixes << foldersIn(files, chosen);
    }
    return prefixes;
}

/// The first one, and those that its list of libraries names on other drives.
QStringList steamLibraries(FileSystem& files, const QString& root) {
    QStringList libraries{root};
    for (QByteArray line : note(files, root + u"/steamapps/libraryfolders.vdf"_s).split('\n')) {
        line = line.trimmed();
        if (line.startsWith("\"path\"")) libraries << textOfLine("path:" + line.mid(6), "path");
    }
    return libraries;
}

QStringList steamPrefixes(FileSystem& files) {
    QStringList roots = dataFolders(u"com.valvesoftware.Steam"_s);
    for (QString& root : roots)
        root += u"/Steam"_s;
    for (const QString& root : {u"/.steam/steam"_s, u"/.steam/root"_s, u"/.steam/debian-installation"_s,
                                u"/.var/app/com.valvesoftware.Steam/.local/share/Steam"_s,
                                u"/snap/steam/common/.local/share/Steam"_s})
        roots << QDir::homePath() + root;
    QStringList prefixes;
    for (const QString& root : std::as_const(roots))
        for (const QString& library : steamLibraries(files, root))
            for (const QString& game : foldersIn(files, library + u"/steamapps/compatdata"_s))
                prefixes << game + u"/pfx"_s;
    return prefixes;
}

QString inQuotes(const QString& text) {
    return text.contains(u' ') ? u'"' + text + u'"' : text;
}

/// The newest of the wines that it brought, by their names.
QString lutrisWine(FileSystem& files) {
    for (const QString& base : dataFolders(lutrisPackage))
        if (const QStringList wines = foldersIn(files, base + u"/lutris/runners/wine"_s); !wines.isEmpty())
            return inQuotes(wines.last() + u"/bin/wine"_s);
    return u"wine"_s;
}

WinePrefix bottle(FileSystem& files, const QString& folder) {
    const QString named = textOfLine(note(files, folder + u"/bottle.yml"_s), "Name");
    const QString command = folder.contains(bottlesPackage)
                                ? u"flatpak run --command=bottles-cli "_s + bottlesPackage
                                : u"bottles-cli"_s;
    const QString name = named.isEmpty() ? QFileInfo(folder).fileName() : named;
    return {folder, u"Bottles"_s, command + u" run -b "_s + inQuotes(name) + u" -e"_s};
}

/// A keeper is known by the marks of its prefixes, too: one that no list names is as much its own.
WinePrefix described(FileSystem& files, const QString& folder, const QStringList& lutris) {
    const QFileInfo game(QFileInfo(folder).path());
    if (folder.endsWith(u"/pfx"_s) && game.dir().dirName() == u"compatdata"_s)
        return {folder, u"Steam"_s, u"protontricks-launch --appid "_s + inQuotes(game.fileName())};
    if (QFileInfo::exists(folder + u"/bottle.yml"_s)) return bottle(files, folder);
    if (lutris.contains(folder)) return {folder, u"Lutris"_s, lutrisWine(files)};
    return {folder, {}, u"wine"_s};
}

/// Without links, each once, and what is no prefix left out.
QStringList truePrefixes(const QStringList& folders) {
    QStringList prefixes;
    for (const QString& folder : folders) {
        if (!QDir::isAbsolutePath(folder)) continue;
        const QString path = QFileInfo(folder).canonicalFilePath();
        if (!path.isEmpty() && QFileInfo(path + u"/dosdevices"_s).isDir()) prefixes << path;
    }
    prefixes.removeDuplicates();
    return prefixes;
}

} // namespace

std::vector<WinePrefix> winePrefixes(FileSystem& files) {
    const QStringList plain{qEnvironmentVariable("WINEPREFIX"), QDir::homePath() + u"/.wine"_s};
    const QStringList lutris = truePrefixes(lutrisPrefixes(files));
    std::vector<WinePrefix> prefixes;
    for (const QString& folder : truePrefixes(plain + lutris + bottles(files) + steamPrefixes(files)))
        prefixes.push_back(described(files, folder, lutris));
    return prefixes;
}

std::optional<WinePrefix> winePrefixAbove(FileSystem& files, const FilePath& file) {
    const QString folder = prefixAbove(file.native());
    if (folder.isEmpty()) return std::nullopt;
    return described(files, folder, truePrefixes(lutrisPrefixes(files)));
}

QString wineVersion() {
    return {};
}

} // namespace morvane
