#include "simulator/kept_splash.h"

#include "core/safe_copy.h"
#include "sets/cloud_cover.h"
#include "sets/simulator_copy.h"

#include <algorithm>

namespace morvane {

namespace {

/// One of the splashes that an install puts there for its cloud cover; no list knows of one that an earlier
/// installation of the program left there.
bool isCoverSplash(Session& session, const FilePath& splash) {
    const QByteArray contents = session.files.read(splash);
    return std::any_of(cloudCovers(), cloudCovers() + cloudCoverCount, [&](const CloudCover& cover) {
        const FilePath ours = session.AppPath / u"Media" / cover.splash;
        return session.files.exists(ours) && session.files.read(ours) == contents;
    });
}

} // namespace

void keepPilotsSplash(Session& session) {
    const FilePath splash = splashTarget(session);
    Originals originals = originalsOf(session);
    const bool isOurs = originals.isOurs(splash) || isCoverSplash(session, splash);
    const std::optional<FilePath> own = isOurs ? originals.keptFile(splash) : splash;
    if (own) replaceFile(session.files, *own, session.AppPath / u"Media\\dlgsplash.bmp");
}

} // namespace morvane
