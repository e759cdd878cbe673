#pragma once

#include "core/error.h"

#include <QByteArray>
#include <cstdint>
#include <cstdlib>

/// What both libFuzzer and the driver call.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace morvane::test {

inline QByteArray bytesOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

/// For readers that may refuse: an Error is an answer, anything else a fault.
template <class Read>
int feed(const std::uint8_t* data, std::size_t size, Read read) {
    try {
        read(bytesOf(data, size));
    } catch (const Error&) { // refused
    }
    return 0;
}

/// Ends the program where what was read does not hold together.
inline void require(bool holds) {
    if (!holds) std::abort();
}

} // namespace morvane::test
