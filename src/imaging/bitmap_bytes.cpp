#include "imaging/bitmap_bytes.h"

#include "core/error.h"

#include <QtEndian>

namespace morvane {

void refusePicture(const char16_t* reason) {
    throw Error(ErrorCode::invalidPicture, QStringView(reason).toString());
}

Bytes partOf(Bytes file, std::size_t at, std::size_t count) {
    if (at > file.size() || count > file.size() - at) refusePicture(u"the file is cut short");
    return file.subspan(at, count);
}

std::uint16_t wordAt(Bytes file, std::size_t at) {
    return qFromLittleEndian<quint16>(partOf(file, at, 2).data());
}

std::uint32_t longAt(Bytes file, std::size_t at) {
    return qFromLittleEndian<quint32>(partOf(file, at, 4).data());
}

} // namespace morvane
