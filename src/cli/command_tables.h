#pragma once

#include "cli/commands.h"

namespace morvane {

// The commands by subject, each list in the file of its name.

std::vector<Command> airportCommands();
std::vector<Command> configCommands();
std::vector<Command> cycleCommands();
std::vector<Command> flightCommands();
std::vector<Command> groundCommands();
std::vector<Command> nightCommands();
std::vector<Command> optionCommands(); ///< base installs and backups, too
std::vector<Command> originalsCommands();
std::vector<Command> pictureCommands();
std::vector<Command> readyCommands();
std::vector<Command> reportCommands();
std::vector<Command> routeCommands();
std::vector<Command> sheetCommands();
std::vector<Command> skyCommands();
std::vector<Command> spaceCommands();
std::vector<Command> stockCommands();

} // namespace morvane
