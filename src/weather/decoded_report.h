#pragma once

#include "weather/metar_decoder.h"
#include "weather/wx_finders.h"

namespace morvane {

/// The decoded report as the record of its station; `line` is the report as it came. Cycle, month and year
/// are the caller's: they depend on where the report is from.
clsWxFinder toWxFinder(const clsDecodeMetar& decoded, const QString& line);

} // namespace morvane
