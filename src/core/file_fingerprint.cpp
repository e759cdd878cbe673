#include "core/file_fingerprint.h"

#include "core/sha1_blocks.h"

#include <QCryptographicHash>
#include <QtEndian>

namespace morvane {

namespace {

constexpr std::size_t blockBytes = 64;

/// The bytes behind the last whole block, with the mark and the length in bits that end every message.
QByteArray paddedEnd(const QByteArray& contents) {
    const qsizetype left = contents.size() % qsizetype{blockBytes};
    QByteArray end = contents.last(left) + '\x80';
    end.append((left < qsizetype{blockBytes} - 8 ? 1 : 2) * qsizetype{blockBytes} - 8 - end.size(), '\0');
    const quint64 bits = qToBigEndian(static_cast<quint64>(contents.size()) * 8);
    return end.append(reinterpret_cast<const char*>(&bits), sizeof bits);
}

void addBlocks(Sha1State& state, const QByteArray& bytes) {
    addSha1Blocks(state, reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                  static_cast<std::size_t>(bytes.size()) / blockBytes);
}

QByteArray sha1Of(const QByteArray& contents) {
    static const bool isFast = hasSha1Instructions();
    if (!isFast) return QCryptographicHash::hash(contents, QCryptographicHash::Sha1);
    Sha1State state{{0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476, 0xc3d2e1f0}};
    addBlocks(state, contents);
    addBlocks(state, paddedEnd(contents));
    qToBigEndian<quint32>(state.words, std::ssize(state.words), state.words);
    return {reinterpret_cast<const char*>(state.words), sizeof state.words};
}

} // namespace

FileFingerprint fingerprintOf(const QByteArray& contents) {
    return {contents.size(), QString::fromLatin1(sha1Of(contents).toHex())};
}

FileFingerprint fingerprintOf(FileSystem& files, const FilePath& file) {
    return fingerprintOf(files.read(file));
}

std::optional<SeenFile> seeFile(FileSystem& files, const FilePath& file) {
    const auto stamp = files.stampIfThere(file);
    const auto contents = stamp ? files.readIfThere(file) : std::nullopt;
    return contents ? std::optional(SeenFile{fingerprintOf(*contents), *stamp}) : std::nullopt;
}

bool isAsSeen(FileSystem& files, const FilePath& file, const std::optional<SeenFile>& seen) {
    return files.stampIfThere(file) == (seen ? std::optional(seen->stamp) : std::nullopt);
}

} // namespace morvane
