#pragma once

#include "core/session.h"

#include <vector>

namespace morvane {

/// Fourteen land classes of the tropics have two forms, "b" and "h", which differ at dawn and dusk only.
enum class TropicalForm { b, h };

/// How the names of that form begin: "004h2" to "047h2".
QStringList tropicalPatterns(TropicalForm form);

/// The pictures of that form in the named ground set, those of spring, summer, autumn and winter in this
/// order, and behind them the annotation files, which are "GENERIC WORLD"'s whatever the set.
std::vector<FilePath> tropicalFiles(Session& session, TropicalForm form, const QString& groundName);

/// The name under which a "b" texture stands in for its "h" twin: the first "b" of either case becomes "h".
QString tropicalName(const QString& name);

/// Appends the names of the folder that match any of the patterns with the ending behind it ("029b2" and
/// "su*.bmp"), pattern by pattern.
void collectPatternFiles(Session& session, const FilePath& folder, const QStringList& patterns,
                         const QString& ending, QStringList& names);

} // namespace morvane
