#include "core/zip_file.h"

#include "core/error.h"

#include <limits>

#define ZLIB_CONST // it only reads what is given to it
#include <zlib.h>

namespace morvane {

namespace {

constexpr std::uint32_t localMark = 0x04034B50, centralMark = 0x02014B50, endMark = 0x06054B50;
constexpr std::uint16_t neededVersion = 20, namesAreUtf8 = 1 << 11, deflated = 8;

template <class Number>
void put(QByteArray& bytes, Number number) {
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

/// As DOS has it: two seconds are the smallest step.
std::uint32_t dosTime(const QDateTime& time) {
    const auto day = time.date();
    const auto clock = time.time();
    return static_cast<std::uint32_t>((day.year() - 1980) << 25 | day.month() << 21 | day.day() << 16 |
                                      clock.hour() << 11 | clock.minute() << 5 | clock.second() / 2);
}

QByteArray packedBytes(const QByteArray& contents) {
    z_stream stream{};
    constexpr int noHead = -MAX_WBITS, memory = 8;
    if (deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, noHead, memory, Z_DEFAULT_STRATEGY) != Z_OK)
        throw Error(ErrorCode::outOfMemory);
    QByteArray packed(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(contents.size()))),
                      Qt::Uninitialized);
    stream.next_in = reinterpret_cast<const Bytef*>(contents.constData());
    stream.avail_in = static_cast<uInt>(contents.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.truncate(packed.size() - static_cast<qsizetype>(stream.avail_out));
    deflateEnd(&stream);
    return packed;
}

/// What stands in front of the file and again in the directory.
QByteArray factsOf(const ZipEntry& entry, const QByteArray& packed, const QDateTime& time) {
    QByteArray facts;
    put(facts, neededVersion);
    put(facts, namesAreUtf8);
    put(facts, deflated);
    put(facts, dosTime(time));
    const auto* bytes = reinterpret_cast<const Bytef*>(entry.contents.constData());
    put(facts, static_cast<std::uint32_t>(crc32(0, bytes, static_cast<uInt>(entry.contents.size()))));
    put(facts, static_cast<std::uint32_t>(packed.size()));
    put(facts, static_cast<std::uint32_t>(entry.contents.size()));
    put(facts, static_cast<std::uint16_t>(entry.name.toUtf8().size()));
    put(facts, std::uint16_t{0}); // nothing more
    return facts;
}

void putDirectoryEntry(QByteArray& directory, const ZipEntry& entry, const QByteArray& facts,
                       std::uint32_t place) {
    put(directory, centralMark);
    put(directory, neededVersion);
    directory += facts;
    directory += QByteArray(10, '\0'); // no remark, the first disk, no attributes
    put(directory, place);
    directory += entry.name.toUtf8();
}

} // namespace

QByteArray zipOf(const std::vector<ZipEntry>& entries, const QDateTime& time) {
    constexpr qsizetype largest = std::numeric_limits<std::int32_t>::max(), most = 0xFFFF;
    QByteArray zip, directory;
    for (const ZipEntry& entry : entries) {
        if (zip.size() + entry.contents.size() > largest || entry.name.size() > most / 4)
            throw Error(ErrorCode::overflow);
        const QByteArray packed = packedBytes(entry.contents), facts = factsOf(entry, packed, time);
        putDirectoryEntry(directory, entry, facts, static_cast<std::uint32_t>(zip.size()));
        put(zip, localMark);
        zip += facts + entry.name.toUtf8() + packed;
    }
    const auto place = static_cast<std::uint32_t>(zip.size());
    const auto count = static_cast<std::uint16_t>(entries.size());
    zip += directory;
    put(zip, endMark);
    put(zip, std::uint32_t{0}); // one disk
    put(zip, count);
    put(zip, count);
    put(zip, static_cast<std::uint32_t>(directory.size()));
    put(zip, place);
    put(zip, std::uint16_t{0});
    return zip;
}

} // namespace morvane
