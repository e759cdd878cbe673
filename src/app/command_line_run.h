#pragma once

#include <QString>

namespace morvane {

class Session;

/// The unattended run: a cover code as the whole text ("CLR", "FEW", "SCT", "BKN", "OVC", exactly so). Any
/// other text leaves the cover open, which makes it "Partly Cloudy", without a word.
void runCommandLine(Session& session, const QString& argument);

} // namespace morvane
