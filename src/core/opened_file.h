#pragma once

#include <QStringList>

namespace morvane {

/// The files that a desktop opens with this program, by the endings of their names, in any case.
enum class OpenedFile { none, flightPlan, sharedSet };

OpenedFile openedFile(const QString& name);

/// ".pln" and ".lnmpln".
const QStringList& flightPlanEndings();

} // namespace morvane
