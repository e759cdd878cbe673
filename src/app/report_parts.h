#pragma once

#include "app/logged_run.h"

namespace morvane {

// The texts of a report, each with the paths shortened and without what the pilot typed. All raise.

/// Program, toolkit, store's library, system, Wine.
QString versionsText(Session& session);
/// The program's registry values; of addresses and commands of the pilot's own no more than that they are
/// there.
QString settingsText(Session& session);
/// How many rows each table has, and of sets, backups and bodies what is no name.
QString rowsText(Session& session);
/// What `verify` prints, sets by their keys.
QString verifyText(Session& session);
/// What only a real simulator can show, with the ticks of the pilot's own copy of that list.
QString simulatorListText(Session& session);

} // namespace morvane
