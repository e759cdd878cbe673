#pragma once

#include "cli/commands.h"

namespace morvane {

/// The options by which `fly` is ordered: one source of the weather, and how far the road goes.
std::vector<CommandOption> flightOptions();
/// Whether one of them names the source: the order is then the Yes to the install, and nothing but a
/// take-over of the simulator is asked.
bool isOrdered(const QHash<QString, QString>& options);
/// That option; empty for none.
QString orderedBy(const QHash<QString, QString>& options);
/// What is wrong with options that are good each by itself; empty when nothing is.
QString orderProblem(const QHash<QString, QString>& options);

/// The one of these saved flights that is meant, without regard to case; raises with the nearest name.
QString flightNamed(const QString& wanted, const QStringList& names);

/// From the weather to the started simulator, as far as the order goes. What was done is told in lines, and
/// with "--json" in one object, also where the road ended early: then nothing was installed, or the simulator
/// is not started, and `problem` says why.
void flyAsOrdered(CommandContext& context);

} // namespace morvane
