#pragma once

#include "app/content_process.h"

class QProgressDialog;

namespace morvane {

/// Runs the content tool with these arguments to its end, or to the user's cancel or the end of the session,
/// by which it is killed and `progress` is cancelled. It has ended when this returns.
ContentToolRun runContentTool(const QStringList& arguments, QProgressDialog& progress);

} // namespace morvane
