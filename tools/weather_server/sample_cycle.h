#pragma once

#include "loopback_server.h"

namespace morvane {

/// Answers with the sample reports in the three forms: the cycle, in the public service's form, for every
/// hour's file below "/weather/"; the list of the Aviation Weather Center under
/// "/data/cache/metars.cache.csv.gz"; a report a line under "/metar.php?id=all". Who asks for a newer one
/// gets 304. Below "/bad/" stand answers that a client has to be ready for (see badReplies); 404 for anything
/// else.
LoopbackServer::Reply sampleReply(const LoopbackServer::Request& request);

/// Names below "/bad/".
QByteArrayList badReplyNames();

} // namespace morvane
