#include "core/native_check_sum.h"

#include <openssl/sha.h>

namespace morvane {

Sha1 sha1Of(const QByteArray& bytes) {
    Sha1 sum;
    SHA1(reinterpret_cast<const unsigned char*>(bytes.constData()), static_cast<std::size_t>(bytes.size()),
         reinterpret_cast<unsigned char*>(sum.data()));
    return sum;
}

} // namespace morvane
