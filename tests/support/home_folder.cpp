#include "support/home_folder.h"

namespace morvane::test {

HomeFolder::HomeFolder() {
    const std::pair<const char*, const char*> places[] = {{"HOME", ""},
                                                          {"WINEPREFIX", "/.wine"},
                                                          {"XDG_CONFIG_HOME", "/.config"},
                                                          {"XDG_DATA_HOME", "/.local/share"},
                                                          {"XDG_CACHE_HOME", "/.cache"}};
    for (const auto& [name, place] : places) {
        before_[name] = qgetenv(name);
        qputenv(name, path().toUtf8() + place);
    }
}

HomeFolder::~HomeFolder() {
    for (const auto& [name, value] : before_)
        if (value.isNull())
            qunsetenv(name.constData());
        else
            qputenv(name.constData(), value);
}

} // namespace morvane::test
