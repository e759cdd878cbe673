#include "core/literals.h"

#include <QTemporaryDir>

namespace {

using namespace morvane;

/// What a program looks for in the user's home it finds in one of its own, and so do the programs that it
/// starts: nothing of who runs the tests is read or written.
class OwnHome {
public:
    OwnHome() {
        for (const auto& [name, folder] : {std::pair("HOME", u""_s),
                                           {"WINEPREFIX", u".wine"_s},
                                           {"XDG_CONFIG_HOME", u".config"_s},
                                           {"XDG_DATA_HOME", u".local/share"_s},
                                           {"XDG_CACHE_HOME", u".cache"_s}})
            qputenv(name, folder_.filePath(folder).toUtf8());
    }

private:
    QTemporaryDir folder_{QDir::tempPath() + u"/Heimat på jorden XXXXXX"_s};
};

const OwnHome ownHome;

} // namespace
