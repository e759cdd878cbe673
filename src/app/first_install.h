#pragma once

#include "app/content_process.h"

#include <functional>

namespace morvane {

/// Whether nothing of an install lies there yet, or a first start was cut while it put its files in place.
bool awaitsFirstStart(const QString& home);

/// Fills the install folder by the content tool, which `runTool` runs with the arguments that it is given;
/// what lies there already stays. It is made whole in a folder of its own inside, then moved up, the store
/// last, so that a start that was cut short leaves nothing that a later one could take for an install.
/// Gives what went wrong; empty when nothing did.
QString fillInstallFolder(const QString& home,
                          const std::function<ContentToolRun(const QStringList& arguments)>& runTool);

} // namespace morvane
