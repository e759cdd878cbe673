#pragma once

#include "core/file_path.h"

#include <QStringList>

namespace morvane {

/// Starts `program` with the path of `document` as its one argument, or without one when that is empty, and
/// leaves it running. False when it does not start, or ends at once in a failure, as a runner does that
/// cannot do it: for that the first moments are waited for, two seconds at most.
///
/// On Windows the document is named by its short path, which has no blanks; where the volume keeps none, by
/// the quoted long one. Elsewhere a Windows program gets `runner` in front, a command with its own arguments
/// such as "wine" or "flatpak run org.winehq.Wine"; any other program is started by itself.
bool startProgram(const FilePath& program, const FilePath& document, const QString& runner);

/// True for a Windows program on another system while there is no runner: it cannot be started.
bool lacksRunner(const FilePath& program, const QString& runner);

#ifndef Q_OS_WIN

/// What is handed to the system for such a start.
struct ProgramCall {
    QString program;
    QStringList arguments; ///< the system or the runner quotes those that hold blanks
    QString workingFolder; ///< the program's own
    QString winePrefix;    ///< for the environment of a program that lies in one; else empty
};

ProgramCall programCall(const FilePath& program, const FilePath& document, const QString& runner);

/// The path as a program under Wine reads it. Of the drives below the prefix's "dosdevices" the one that
/// reaches deepest gives the letter; a path that none reaches lies on "Z:", which Wine lays over everything.
QString wineDocumentPath(const QString& path, const QString& winePrefix);

#endif

} // namespace morvane
