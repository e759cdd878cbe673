#include "core/ini_file.h"
#include "fuzz_entry.h"
#include "sky/sky_tuning_state.h"

/// What is written into a file, whatever stands there, is read out of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    IniFile settings = IniFile::parse(test::bytesOf(data, size));
    SkyTuningState tuning;
    SkyGroups table;
    readSkySettings(settings, tuning, table);
    settings.setRawValue(u"Red"_s, u"7"_s, u"-12.5"_s);
    test::require(IniFile::parse(settings.toBytes()).number(u"Red"_s, u"7"_s) == -12);
    return 0;
}
