#pragma once

#include "core/session.h"

#include <QJsonObject>
#include <QStringList>

namespace morvane {

// What the store calls installed: the set of each kind, empty without one, and the bodies of the base install
// by their titles.
QString installedGround(Session& session);
QString installedSky(Session& session);
QString installedNight(Session& session);
QStringList installedBodies(Session& session);

/// All of that, and the options that change files, for `giveBackRows`.
QJsonObject installedRows(Session& session);
/// Makes store and session say so again; what the object does not name is not installed, and off. A set that
/// is gone counts as none. Each step tells its own failure and ends the row of them, so that a lost store is
/// told once.
void giveBackRows(Session& session, const QJsonObject& rows);

} // namespace morvane
