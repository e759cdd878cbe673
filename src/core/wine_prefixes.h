#pragma once

#include "core/file_system.h"

#include <QStringList>
#include <optional>
#include <vector>

namespace morvane {

/// A folder that Wine gives to Windows programs as their machine. Nothing here writes into one.
struct WinePrefix {
    QString folder; ///< without links in it
    /// The program that keeps it and starts what lies in it: "Steam", "Bottles" or "Lutris"; empty for one of
    /// plain wine.
    QString keeper;
    QString runner; ///< what starts its programs: "wine", or a keeper's command for the user to choose
};

/// The user's prefixes, each once: that of WINEPREFIX, `~/.wine`, those of Lutris, Bottles and Steam. None on
/// Windows.
std::vector<WinePrefix> winePrefixes(FileSystem& files);

/// The prefix that the file lies in, whether it is among the user's or not.
std::optional<WinePrefix> winePrefixAbove(FileSystem& files, const FilePath& file);

/// Of the Wine that this program runs in; empty for none.
QString wineVersion();

/// What a small text of `NAME: text` lines has for that name, at any depth; empty when it has none.
QString textOfLine(const QByteArray& lines, const QByteArray& name);

/// A simulator that the registry of a prefix names.
struct PrefixSimulator {
    FilePath folder; ///< the one with fs9.exe
    WinePrefix prefix;
};

/// Every simulator that is there, each once, in the order of the prefixes: "EXE Path" of the machine's part
/// of a registry goes before the user's, the view of 32-bit programs before the other.
std::vector<PrefixSimulator> simulatorsInPrefixes(FileSystem& files);

} // namespace morvane
