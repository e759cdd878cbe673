#pragma once

#include <QString>
#include <QStringList>

namespace morvane {

/// The command line of the window program.
struct WindowLine {
    QString home = {};      ///< empty when not said
    QString coverCode = {}; ///< text of an unattended run, such as "OVC"; empty for the windows
    QString file = {};      ///< a flight plan or a shared set to open, as typed
    QString output = {};    ///< help or version, for stdout; nothing else is to be done then
    QString slip = {};      ///< what is wrong, in one line
};

/// Reads the words behind the program's name. What ends as a file does that the program opens is that file,
/// there or not. Any other word or words may be a cover code, known or not, but for
/// one that begins with "-": that is an option or a slip.
WindowLine readWindowLine(const QStringList& typed);

} // namespace morvane
