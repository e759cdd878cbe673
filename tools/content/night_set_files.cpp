#include "night_set_files.h"

#include "core/error.h"
#include "core/registry.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "night/night_generation.h"
#include "night/night_selection.h"
#include "night/night_sets.h"
#include "quiet_user.h"
#include "sets/set_removal.h"

namespace morvane {

namespace {

void activate(Session& session, const QString& name) {
    if (clickNightRow(session, name)) NightGeneration(session).activateInHand();
}

} // namespace

void writeNightSets(FileSystem& files, const FilePath& home) {
    QuietUser user;
    SystemClock clock;
    ReseedingRandomSource random;
    const auto registry = openRegistry(files, home, FolderChoice::named);
    Session session({user, files, clock, random, *registry}, home);
    connectDatabase(session);
    QStringList names;
    for (const auto& set : loadedNightSets(session))
        names << set->TextureSet;
    names.removeAll(u"Default"_s); // its files are the bodies
    for (const QString& name : names)
        activate(session, name);
    for (const QString& folder : NightKind::facts().subfolders)
        emptyBitmapFolder(session, home / u"TempBitmaps" / folder);
    closeDatabase(session);
    if (user.hasFailed()) throw Error(ErrorCode::ioFailure, (home / u"Night Texture Sets").text());
}

} // namespace morvane
