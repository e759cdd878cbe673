// morvane-simulator: stands in for fs9.exe in a sample simulator. It flies nothing; it records how it was
// called, so that a start can be seen. It is copied into a simulator's folder, where it finds no library but
// the system's.

#include <algorithm>
#include <string>
#include <windows.h>

namespace {

std::string utf8(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    std::string bytes(static_cast<std::size_t>(4 * size), '\0');
    const int count = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(),
                                          static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

/// As JSON has it.
std::string quoted(const std::wstring& text) {
    std::string word = "\"";
    for (const char letter : utf8(text)) {
        if (letter == '"' || letter == '\\') word += '\\';
        word += letter;
    }
    return word + '"';
}

std::wstring withSlashes(std::wstring path) {
    std::ranges::replace(path, L'\\', L'/');
    return path;
}

constexpr DWORD longestPath = 32767;

std::wstring programFile() {
    std::wstring path(longestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), longestPath));
    return path;
}

std::wstring workingFolder() {
    std::wstring path(longestPath, L'\0');
    path.resize(GetCurrentDirectoryW(longestPath, path.data()));
    return path;
}

std::string listOf(int count, wchar_t** words) {
    std::string list = "[";
    for (int i = 0; i < count; ++i) {
        if (i > 0) list += ',';
        list += quoted(words[i]);
    }
    list += ']';
    return list;
}

bool append(const std::wstring& file, const std::string& line) {
    const HANDLE handle = CreateFileW(file.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool isDone = WriteFile(handle, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    CloseHandle(handle);
    return isDone && written == line.size();
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    const std::wstring program = programFile();
    const std::wstring record = program.substr(0, program.rfind(L'\\') + 1) + L"fs9.starts.jsonl";
    std::string line = "{\"arguments\":";
    line += listOf(argc - 1, argv + 1);
    line += ",\"program\":";
    line += quoted(withSlashes(program));
    line += ",\"workingFolder\":";
    line += quoted(withSlashes(workingFolder()));
    line += "}\n";
    return append(record, line) ? 0 : 1;
}
