#include "support/system_files.h"

#include "core/literals.h"
#include "support/temporary_folder.h"

#include <stdexcept>
#include <windows.h>

namespace morvane::test {

const bool hasLinks = false;
const int faultStride = 7;
const QString oddLetter(u'^');
const QString programEnding = u".exe"_s;

unsigned modeHere(unsigned mode) {
    return (mode & 0200) != 0 ? 0666 : 0444;
}

qint64 openHandles() {
    DWORD count = 0;
    return GetProcessHandleCount(GetCurrentProcess(), &count) ? count : 0;
}

struct UnreadableFile::Hold {
    HANDLE handle;
};

/// As another program would hold it, that shares with nobody.
UnreadableFile::UnreadableFile(const FilePath& file) {
    writeFile(file, "held");
    const std::wstring name = file.native().toStdWString();
    hold_ = std::make_unique<Hold>();
    hold_->handle = CreateFileW(name.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (hold_->handle == INVALID_HANDLE_VALUE) throw std::runtime_error("the file could not be held");
}

UnreadableFile::~UnreadableFile() {
    CloseHandle(hold_->handle);
}

} // namespace morvane::test
