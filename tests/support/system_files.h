#pragma once

#include "core/file_path.h"

#include <QString>
#include <memory>

namespace morvane::test {

// What files can be is not the same on every system. Tests of what one lacks are skipped there.

/// Whether a program may make links that files are reached through; Wine makes none.
extern const bool hasLinks;
/// What a name may have that few do.
extern const QString oddLetter;
/// Which of many operations a test lets fail: each, or each so many, where one takes ten times as long.
extern const int faultStride;
/// How the name of a program ends.
extern const QString programEnding;
/// The permission bits that the system keeps of these.
unsigned modeHere(unsigned mode);

/// What this process has open: files, and on some systems other things too.
qint64 openHandles();

/// A file that can be listed and not be read, while this lives.
class UnreadableFile {
public:
    explicit UnreadableFile(const FilePath& file);
    ~UnreadableFile();

private:
    struct Hold;
    std::unique_ptr<Hold> hold_;
};

} // namespace morvane::test
