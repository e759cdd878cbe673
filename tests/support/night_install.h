#pragma once

#include "core/flag_text.h"
#include "core/store.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "support/small_install.h"

namespace morvane::test {

/// Base images and bodies of the night in a small install, and what the simulator has under their names. No
/// two are alike; one Dutch file bears the name of a generic one.
inline void addNightStock(SmallInstall& install) {
    const QString paths[] = {u"GENERIC WORLD NIGHT\\008b2lm1.bmp"_s, u"GENERIC WORLD NIGHT\\029b2lm1.bmp"_s,
                             u"GENERIC WORLD NIGHT\\045b2lm1.bmp"_s, u"DUTCH NIGHT\\005a2lm2.bmp"_s,
                             u"DUTCH NIGHT\\008b2lm1.bmp"_s};
    int shade = 40;
    for (const QString& path : paths) {
        writeFile(install.home() / u"Resources" / path, smallBitmap(16, shade += 23));
        writeFile(install.home() / path, "body of " + path.toUtf8());
        writeFile(install.simulator() / u"Scenery\\World\\texture" / path.section(u'\\', 1).toUpper(),
                  "the pilot's " + path.toUtf8());
    }
}

/// A row of NIGHT_TEXTURE_SETS; its folder holds `names`, each with its name as contents.
inline void addNightSet(SmallInstall& install, const QString& name, bool activated,
                        const QStringList& names = {}) {
    install.session.adoConn->execute(
        u"INSERT INTO NIGHT_TEXTURE_SETS(TEXTURE_SET, COLOR_SETTINGS, ACTIVATED, DESCRIPTION, INSTALLED) "
        "VALUES ('%1', '0:10:0:-1:3:-1.5', '%2', 'A night of a test', 0)"_s.arg(name, flagText(activated)));
    for (const QString& file : names)
        writeFile(install.home() / u"Night Texture Sets" / name / file, name.toUtf8() + ' ' + file.toUtf8());
    refreshNightSets(install.session);
}

inline QString nightSets(Session& session) {
    return setStates<NightKind>(session);
}

} // namespace morvane::test
