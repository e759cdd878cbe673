#include "core/literals.h"
#include "core/wine_prefixes.h"

#include <windows.h>

namespace morvane {

std::vector<WinePrefix> winePrefixes(FileSystem&) {
    return {};
}

std::optional<WinePrefix> winePrefixAbove(FileSystem&, const FilePath&) {
    return std::nullopt;
}

QString wineVersion() {
    const auto function = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version");
    if (!function) return {};
    const auto* version = reinterpret_cast<const char*(__cdecl*)()>(reinterpret_cast<void*>(function))();
    return u"Wine "_s + QString::fromLatin1(version);
}

} // namespace morvane
