#include "core/native_check_sum.h"

#include <openssl/evp.h>
#include <openssl/sha.h>

namespace morvane {

/// Fetched once: the library's own call looks for it in its tables, behind locks, for each sum.
Sha1 sha1Of(const QByteArray& bytes) {
    static const EVP_MD* const sha1 = EVP_MD_fetch(nullptr, "SHA1", nullptr);
    Sha1 sum;
    const auto size = static_cast<std::size_t>(bytes.size());
    auto* const place = reinterpret_cast<unsigned char*>(sum.data());
    if (!sha1 || EVP_Digest(bytes.constData(), size, place, nullptr, sha1, nullptr) != 1)
        SHA1(reinterpret_cast<const unsigned char*>(bytes.constData()), size, place);
    return sum;
}

} // namespace morvane
