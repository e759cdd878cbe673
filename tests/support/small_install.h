#pragma once

#include "core/flag_text.h"
#include "core/registry.h"
#include "core/session.h"
#include "sets/set_kind.h"
#include "support/scripted_services.h"
#include "support/scripted_user.h"
#include "support/temporary_folder.h"
#include "support/testing.h"

namespace morvane::test {

/// What a small install begins with.
struct SmallInstallOptions {
    QStringList baseImages{u"GENERIC WORLD\\029h2su6.bmp"_s, u"GENERIC WORLD\\029b2su6.bmp"_s,
                           u"GENERIC WORLD\\002c2wi1.bmp"_s, u"UTIND\\034b2su4.bmp"_s,
                           u"DUTCH\\005a2su2.bmp"_s};
    int side = 16;      ///< of each base image
    FilePath skin = {}; ///< a finished skin's folder, for tests that show windows; empty for none
};

/// A working install with a few small base images, its store, and a simulator with textures of its own, both
/// in one temporary folder; the session on it is started, with a scripted user, clock and random source.
class SmallInstall {
public:
    explicit SmallInstall(const SmallInstallOptions& options = {});
    ~SmallInstall();

    /// A row of TEXTURE_SETS, as delivered by nobody; its folder holds those named, each with its name as
    /// contents. Returns the key.
    int addGroundSet(const QString& name, const QString& cover, bool activated,
                     const QStringList& names = {});
    /// The same of SKY_TEXTURE_SETS, with a "Day" row of neutral colours but for red in the main sky.
    int addSkySet(const QString& name, const QString& cover, bool activated, const QStringList& names = {},
                  const QString& baseSet = u"Default"_s);
    /// Names of sets in the store with INSTALLED true.
    QStringList installedSets() const;
    QStringList installedSkySets() const;
    /// Drops what is in memory and reads the store anew.
    void reload();

    FilePath home() const { return folder / u"Morvane"; }
    FilePath simulator() const { return folder / u"Simulator Ünï"; }

    TemporaryFolder folder;
    ScriptedUser user;
    FaultyFileSystem files;
    ScriptedClock clock;
    ScriptedRandom random;
    IniRegistry registry;
    Session session;
};

/// A test of what a session does on a small install.
struct InstallTest : testing::Test {
    explicit InstallTest(const SmallInstallOptions& options = {}) : install(options) {}

    SmallInstall install;
    Session& session = install.session;
    ScriptedUser& user = install.user;
};

/// All sets of the kind in the store, "+" behind an activated and "*" behind an installed one.
template <class Kind>
QString setStates(Session& session) {
    refreshSets<Kind>(session);
    QStringList names;
    for (const auto& set : loadedSets<Kind>(session))
        names << nameOf(*set) + (activationOf(*set) == flagText(true) ? u"+"_s : QString()) +
                     (set->Installed ? u"*"_s : QString());
    return names.join(u' ');
}

/// A picture file of one colour with a few marks, 24 bits.
QByteArray smallBitmap(int side, int shade);
/// Contents of every file below a folder, by path below it, the note in a simulator and the log left out.
QMap<QString, QByteArray> contentsBelow(const FilePath& folder);

} // namespace morvane::test
