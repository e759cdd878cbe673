#pragma once

#include "core/session.h"

namespace morvane {

/// Draws a sheet for people to look at: for a handful of samples the base texture beside its colours under
/// each of the five cloud covers, as the randomiser draws them. Raises when the picture cannot be written.
void writeContactSheet(Session& session, const QString& target);

} // namespace morvane
