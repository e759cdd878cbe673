#include "core/text_decoding.h"
#include "fuzz_entry.h"
#include "support/scripted_user.h"
#include "weather/decoded_lines.h"
#include "weather/metar_decoder.h"

/// Nothing is refused here: a group that cannot be read is a group that is not there.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    test::ScriptedUser user;
    const QString line = decodeText(test::bytesOf(data, size));
    const clsWxFinder report = clsDecodeMetar(user).decodeMetarString(line);
    test::require(report.WxFinderMaxCloud >= 0 && report.WxFinderMaxCloud <= 6);
    decodedMetarLines(report, QString(), QDate(2026, 1, 1));
    return 0;
}
