#pragma once

#include "core/file_path.h"

#include <QStringList>

namespace morvane {

/// What is handed to the system for such a start.
struct ProgramCall {
    QString program;
    QStringList arguments; ///< the system or the runner quotes those that hold blanks
    QString workingFolder; ///< the program's own
    QString winePrefix;    ///< for the environment of a program that lies in one; else empty
};

/// `winePrefix` is for a program that lies in none: the one to start it in; where empty the runner chooses.
ProgramCall programCall(const FilePath& program, const FilePath& document, const QString& runner,
                        const QString& winePrefix = {});

/// The prefix that the file lies in; empty for one that lies in none.
QString prefixAbove(const QString& file);

/// The path as a program under Wine reads it. Of the drives below the prefix's "dosdevices" the one that
/// reaches deepest gives the letter; a path that none reaches lies on "Z:", which Wine lays over everything.
QString wineDocumentPath(const QString& path, const QString& winePrefix);

} // namespace morvane
