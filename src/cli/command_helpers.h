#pragma once

#include "cli/commands.h"
#include "imaging/colouriser.h"

#include <array>

namespace morvane {

/// A path as typed, from the folder in which the console was started.
FilePath pathOfArgument(const QString& argument);

/// An error message; the exit status follows from it.
void fail(CommandContext& context, const QString& text);

/// The five quantities that stand as arguments from that position on; nothing when one is no whole number.
/// Raises "Overflow" for more than the counter holds.
std::optional<std::array<std::int16_t, 5>> countsOfArguments(const QStringList& arguments, qsizetype first);

/// Reads the picture of the last argument but one, lets `recolour` do its work from it into a buffer of the
/// same size, and saves that under the last argument.
void recolourFile(CommandContext& context,
                  const std::function<void(const cDIBSection& source, cDIBSection& result)>& recolour);

} // namespace morvane
