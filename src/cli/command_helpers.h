#pragma once

#include "cli/commands.h"
#include "imaging/colouriser.h"

#include <array>

namespace morvane {

/// Operands that several commands take.
extern const Operand setName, inPicture, outFile;
/// "--json", for what is printed as lines otherwise.
extern const CommandOption jsonOption;
/// "--dry-run": with it a command that writes is one that only tells something.
extern const CommandOption dryRunOption;
/// A word that is a whole number without a sign.
Operand countOperand(const QString& name, const QString& meaning);
/// "WORD", the code of a cloud cover.
Operand coverOperand();
/// "N1" to "N5", for the cloud covers in order.
std::vector<Operand> fiveCounts();
/// True for a number from `lowest` to `highest`, "." the separator.
bool isNumberWithin(const QString& word, double lowest, double highest);

/// A path as typed, from the folder in which the console was started.
FilePath pathOfArgument(const QString& argument);

/// An error message; the exit status follows from it.
void fail(CommandContext& context, const QString& text);

/// The five quantities that stand as arguments from that position on.
/// Raises "Overflow" for more than the counter holds.
std::array<std::int16_t, 5> countsOfArguments(const QStringList& arguments, qsizetype first);

/// Reads the picture of the last argument but one, lets `recolour` do its work from it into a buffer of the
/// same size, and saves that under the last argument.
void recolourFile(CommandContext& context,
                  const std::function<void(const cDIBSection& source, cDIBSection& result)>& recolour);

} // namespace morvane
