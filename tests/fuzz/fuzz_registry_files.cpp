#include "core/literals.h"
#include "core/registry.h"
#include "core/registry_file.h"
#include "fuzz_entry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    textsInRegistryFile(test::bytesOf(data, size), {simulatorKey, QString::fromUtf8("a]空")}, u"EXE Path"_s);
    return 0;
}
