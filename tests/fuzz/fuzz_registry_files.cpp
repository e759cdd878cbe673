#include "core/literals.h"
#include "core/registry.h"
#include "core/registry_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    const QByteArray contents(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    textsInRegistryFile(contents, {simulatorKey, QString::fromUtf8("a]空")}, u"EXE Path"_s);
    return 0;
}
