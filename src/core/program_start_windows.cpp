#include "core/literals.h"
#include "core/program_start.h"

#include <QDir>
#include <windows.h>

#include <shellapi.h>

namespace morvane {

namespace {

constexpr DWORD longestShortPath = 255;

const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

/// The argument names one file on any command line: without blanks, or in quotes.
QString argumentOf(const QString& path) {
    wchar_t buffer[longestShortPath];
    const DWORD length = GetShortPathNameW(wide(path), buffer, longestShortPath);
    const bool isShort = length > 0 && length < longestShortPath;
    const QString name = isShort ? QString::fromWCharArray(buffer, static_cast<int>(length)) : path;
    return name.contains(u' ') ? u'"' + name + u'"' : name;
}

} // namespace

bool lacksRunner(const FilePath&, const QString&) {
    return false;
}

bool startProgram(const FilePath& program, const FilePath& document, const QString&, const QString&) {
    const QString argument = document.isEmpty() ? QString() : argumentOf(document.text());
    const QString folder = program.parent().text();
    const HINSTANCE started =
        ShellExecuteW(nullptr, L"Open", wide(program.text()), argument.isEmpty() ? nullptr : wide(argument),
                      wide(folder), SW_SHOWNORMAL);
    constexpr INT_PTR highestFailure = 32;
    return reinterpret_cast<INT_PTR>(started) > highestFailure;
}

} // namespace morvane
