#include "core/error.h"
#include "imaging/picture_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        morvane::readPicture(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    } catch (const morvane::Error&) { // a refusal is an answer; anything else is a fault
    }
    return 0;
}
