#include "core/error.h"
#include "sets/shared_set.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const morvane::SharedSet set = morvane::readSharedSet(
            QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
        morvane::checkedCover(set);
        morvane::checkedColours(set);
    } catch (const morvane::Error&) { // a refusal is an answer; anything else is a fault
    }
    return 0;
}
