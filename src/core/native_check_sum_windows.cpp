#include "core/native_check_sum.h"

#include <QCryptographicHash>
#include <algorithm>
#include <limits>
#include <windows.h>

#include <bcrypt.h>

namespace morvane {

namespace {

/// Kept for the whole run: to open it takes longer than to sum up a texture.
BCRYPT_ALG_HANDLE sha1() {
    static const BCRYPT_ALG_HANDLE opened = [] {
        BCRYPT_ALG_HANDLE handle = nullptr;
        const bool isOpen = BCryptOpenAlgorithmProvider(&handle, BCRYPT_SHA1_ALGORITHM, nullptr, 0) >= 0;
        return isOpen ? handle : nullptr;
    }();
    return opened;
}

PUCHAR bytesOf(const QByteArray& bytes) {
    return reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.constData())); // an input, but not const there
}

} // namespace

Sha1 sha1Of(const QByteArray& bytes) {
    Sha1 sum;
    const bool isInRange = bytes.size() <= std::numeric_limits<ULONG>::max();
    if (isInRange && sha1() &&
        BCryptHash(sha1(), nullptr, 0, bytesOf(bytes), static_cast<ULONG>(bytes.size()),
                   reinterpret_cast<PUCHAR>(sum.data()), static_cast<ULONG>(sum.size())) >= 0)
        return sum;
    const QByteArray otherwise = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
    std::copy_n(otherwise.cbegin(), sum.size(), sum.begin());
    return sum;
}

} // namespace morvane
