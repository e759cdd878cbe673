#include "sheets/small_picture_file.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

namespace morvane {

namespace {

constexpr char head[] = "Morvane small pictures 1\n";
constexpr qsizetype headSize = sizeof head - 1;
constexpr qsizetype sumSize = 20;

QByteArray sumOf(QByteArrayView bytes) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(bytes);
    return hash.result();
}

/// The stream itself would set aside what a damaged length asks for.
bool readText(QDataStream& stream, QByteArray& text) {
    quint32 length = 0;
    stream >> length;
    if (stream.status() != QDataStream::Ok || length > stream.device()->bytesAvailable()) return false;
    text = stream.device()->read(length);
    return text.size() == length;
}

} // namespace

QByteArray smallPictureFile(const KeptSmallPictures& pictures) {
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    for (const auto& [name, picture] : pictures.asKeyValueRange())
        stream << name.toUtf8() << qint64(picture.size) << qint64(picture.time) << quint64(picture.number)
               << picture.whole << picture.texture;
    return head + sumOf(body) + body;
}

std::optional<KeptSmallPictures> readSmallPictureFile(const QByteArray& bytes) {
    const QByteArrayView view(bytes);
    if (!view.startsWith(head) || view.size() < headSize + sumSize) return std::nullopt;
    if (sumOf(view.sliced(headSize + sumSize)) != view.sliced(headSize, sumSize)) return std::nullopt;
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_0);
    stream.skipRawData(headSize + sumSize);
    KeptSmallPictures pictures;
    while (!stream.atEnd()) {
        QByteArray name;
        KeptSmallPicture picture;
        qint64 size = 0, time = 0;
        quint64 number = 0;
        if (!readText(stream, name)) return std::nullopt;
        stream >> size >> time >> number >> picture.whole;
        if (!readText(stream, picture.texture)) return std::nullopt;
        picture.size = size;
        picture.time = time;
        picture.number = number;
        pictures.insert(QString::fromUtf8(name), picture);
    }
    return pictures;
}

} // namespace morvane
