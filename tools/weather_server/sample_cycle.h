#pragma once

#include "loopback_server.h"

namespace morvane {

/// Answers with the sample cycle, in the public service's form, for every hour's file below "/weather/"; 404
/// for anything else.
LoopbackServer::Reply sampleCycleReply(const QByteArray& path);

} // namespace morvane
