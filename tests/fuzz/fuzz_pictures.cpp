#include "fuzz_entry.h"
#include "imaging/picture_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return morvane::test::feed(data, size, [](const QByteArray& bytes) { morvane::readPicture(bytes); });
}
