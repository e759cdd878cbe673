#pragma once

#include "cli/commands.h"

namespace morvane {

bool baseList(CommandContext& context);
bool baseInstall(CommandContext& context); ///< one title or several

bool backupCreate(CommandContext& context);
bool backupList(CommandContext& context);
bool backupRestore(CommandContext& context);

bool optionGet(CommandContext& context);
bool optionSet(CommandContext& context);

} // namespace morvane
