#include "fuzz_entry.h"
#include "sheets/small_picture_file.h"

#include <QCryptographicHash>

/// With a sum of its own, so that more than the sum is tried.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = morvane::test::bytesOf(data, size);
    morvane::readSmallPictureFile(bytes);
    constexpr qsizetype head = 25, sum = 20;
    const QByteArray body = bytes.mid(head + sum);
    const QByteArray trusted =
        bytes.left(head) + QCryptographicHash::hash(body, QCryptographicHash::Sha1) + body;
    morvane::readSmallPictureFile(trusted);
    return 0;
}
