#include "fuzz_entry.h"
#include "sets/shared_set.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    return test::feed(data, size, [](const QByteArray& bytes) {
        const SharedSet set = readSharedSet(bytes);
        test::require(readSharedSet(sharedSetBytes(set)) == set);
        checkedCover(set);
        checkedColours(set);
    });
}
