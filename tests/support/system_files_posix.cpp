#include "support/system_files.h"

#include "core/literals.h"

#include <QDir>
#include <QFile>
#include <stdexcept>

namespace morvane::test {

const bool hasLinks = true;
const int faultStride = 1;
const QString oddLetter(u'\t');
const QString programEnding;

unsigned modeHere(unsigned mode) {
    return mode;
}

qint64 openHandles() {
    return QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System).size();
}

struct UnreadableFile::Hold {};

/// Root may read whatever it likes, but not what is not there.
UnreadableFile::UnreadableFile(const FilePath& file) {
    if (!QFile::link(QStringLiteral("/nowhere"), file.native())) throw std::runtime_error("no link was made");
}

UnreadableFile::~UnreadableFile() = default;

} // namespace morvane::test
