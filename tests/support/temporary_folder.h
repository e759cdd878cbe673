#pragma once

#include "core/file_path.h"

#include <QTemporaryDir>

namespace morvane::test {

/// A folder for one test, removed with it. Its name has blanks and letters beyond ASCII, as pilots' folders
/// do.
class TemporaryFolder {
public:
    TemporaryFolder();
    FilePath path() const { return FilePath(directory_.path()); }
    FilePath operator/(QStringView relative) const { return path() / relative; }

private:
    QTemporaryDir directory_;
};

/// Plain helpers for tests: they throw std::runtime_error when the system refuses.
void writeFile(const FilePath& path, const QByteArray& contents);
QByteArray readFile(const FilePath& path);

} // namespace morvane::test
